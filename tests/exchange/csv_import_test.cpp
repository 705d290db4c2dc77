#include "exchange/csv_import.h"
#include "records/client_database.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

using Result = ImportOutcome::Result;

ImportOutcome importBytes(const TestFolder& folder, const QByteArray& bytes, ImportMode mode = ImportMode::overwrite) {
    folder.setBytes(u"be.csv"_s, bytes);
    return importClients(folder.folder().file(u"be.csv"_s), folder, {mode});
}

// The texts and the amount of a stored client in the order of the file, parted by '|'; trailing empty ones left out.
std::string shown(const TestFolder& folder, qint64 number) {
    const ClientRec c = RecordFile<ClientRec>(folder).read(number);
    const TwinRec t = RecordFile<TwinRec>(folder).read(number);
    QString firstField = c.Nev.stored();
    while (firstField.endsWith(u' '))
        firstField.chop(1);
    QStringList fields{firstField, c.Nev2.trimmed(), c.Azonosito.trimmed(), c.Helyseg.trimmed(), c.Irsz.trimmed()};
    fields << c.Cim.trimmed() << QString::number(c.Osszegek[0]) << t.Kozl3Sor.trimmed() << c.FizHatIdo.trimmed();
    fields << t.IratSzama.trimmed() << t.IratFajtaja.trimmed() << t.IratMelleklet.trimmed();
    fields << t.KuldemenyAzonosito.trimmed() << t.SajatJelzes.trimmed();
    if (fields[6] == u'0') fields[6].clear();
    while (!fields.isEmpty() && fields.last().isEmpty())
        fields.removeLast();
    return fields.join(u'|').toStdString();
}

// Gives its bytes until a point, then fails as a drive that was pulled out.
class FailingDevice : public QBuffer {
public:
    FailingDevice(QByteArray* bytes, qint64 failAt) : QBuffer(bytes), failAt_(failAt) {}

protected:
    qint64 readData(char* data, qint64 length) override {
        return pos() >= failAt_ ? -1 : QBuffer::readData(data, std::min(length, failAt_ - pos()));
    }

private:
    qint64 failAt_;
};

} // namespace

TEST(CsvImport, DialectsOfLinesAndFields) {
    const std::tuple<const char*, QByteArray, std::vector<std::string>> rows[] = {
        {"all columns", "1;2;3;4;5;6;7;8;9;10;11;12;13;14\r\n", {"1|2|3|4|5|6|7|8|9|10|11|12|13|14"}},
        {"surplus columns", "1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16\n", {"1|2|3|4|5|6|7|8|9|10|11|12|13|14"}},
        {"titles are a client", "N\xE9v;Nev2\nA\n", {"Név|Nev2", "A"}},
        {"ends of lines", "a\r\nb\nc\rd\r\ne", {"a", "b", "c", "d", "e"}},
        {"lone CR only", "a;x\rb;y\r", {"a|x", "b|y"}},
        {"empty lines inside", "a\r\n\r\nb\n\nc\r\rd\r\n", {"a", "", "b", "", "c", "", "d"}},
        {"empty line first", "\nb", {"", "b"}},
        {"nothing carries over", "a;b;c;d;e;f;7;g;h;i;j;k;l;m\nz\n", {"a|b|c|d|e|f|7|g|h|i|j|k|l|m", "z"}},
        {"quotes", "\"a\"\"b\";\"\";\"c;d\"\n\"\n", {"ab||c|d", ""}},
        {"last line of a quote or a separator", "a\n\"", {"a", ""}},
        {"blanks", "  a ;  b ; \"  c\" \n", {"  a|b|c"}},
        {"only blanks", " ;  ;\n", {""}},
        {"cut after trimming",
         "  " + QByteArray(40, 'n') + ";   " + QByteArray(40, 'm') + "x;;;  12345678\n",
         {"  " + std::string(34, 'n') + "|" + std::string(36, 'm') + "|||123456"}},
        {"NUL is a blank", QByteArray("a\0b;\0c\0\n", 8), {"a b|c"}},
        {"bytes beyond the letters", "\x01\x81\x98\xFF\n", {"\x01\xC2\x81\xC2\x98\xCB\x99"}},
        {"1250", "\xD5ze D\xFBl\xF5;\n", {"Őze Dűlő"}},
        {"UTF-8", "Őze Dűlő;tű–fok\n", {"Őze Dűlő|tű–fok"}},
        {"UTF-8 with mark", "\xEF\xBB\xBFŐze\nű\n", {"Őze", "ű"}},
        {"ASCII with mark", "\xEF\xBB\xBFZoe\n", {"Zoe"}},
        {"UTF-8 beyond 1250", "õÛ Ж\xF0\x9F\x98\x80.\n", {"őŰ ??."}},
        {"UTF-8 field cut by letters", QByteArray("ő").repeated(50) + "\n", {QString(36, u'ő').toStdString()}},
        {"UTF-8 but for one byte", "\xC5\x91 \xF5\n", {"Ĺ‘ ő"}},
        {"1250 cut at the end", "abc\xF5", {"abcő"}},
        {"UTF-8 cut at the end", "ő\xE2\x80", {"ő?"}},
        {"UTF-8 with mark and wrong bytes", "\xEF\xBB\xBF\xF5 \xE2\x80.\xC0\xAF\n", {"? ??.??"}},
        {"UTF-8 of three and four bytes, all ends",
         "\uFEFF\u07FF\u0800\uD7FF\uE000\uFFFD\U00010000\U0010FFFF\n",
         {"???????"}},
        {"surrogates are no UTF-8", "ő\xED\xA0\x80\n", {"Ĺ‘í\xC2\xA0€"}},
        {"overlong is no UTF-8", "ő\xE0\x9F\xBF\n", {"Ĺ‘ŕźż"}},
        {"beyond the last letter is no UTF-8", "ő\xF4\x90\x80\x80\n", {"Ĺ‘ô\xC2\x90€€"}},
    };
    for (const auto& [what, bytes, clients] : rows) {
        SCOPED_TRACE(what);
        const TestFolder folder;
        const ImportOutcome outcome = importBytes(folder, bytes);
        EXPECT_EQ(outcome.result, Result::imported);
        EXPECT_EQ(outcome.clients, static_cast<qint64>(clients.size()));
        ASSERT_EQ(clientCount(folder), static_cast<qint64>(clients.size()));
        EXPECT_EQ(RecordFile<TwinRec>(folder).count(), clientCount(folder));
        for (std::size_t i = 0; i < clients.size(); ++i)
            EXPECT_EQ(shown(folder, static_cast<qint64>(i) + 1), clients[i]) << i;
    }
}

TEST(CsvImport, AmountsAreWholeForintsOrZeroAndCounted) {
    const std::pair<int, std::vector<QByteArray>> rows[] = {
        {0, {"", "  ", "0"}},
        {700, {"\"700\"", "0000700"}},
        {12500,
         {" 12500 ", "12 500", "12\240500\240Ft", "12500Ft", "12.500", "12,500,-", "12" + QByteArray(99, ' ') + "500"}},
        {1000000, {"1 000 000 ft.", "1.000.000,- Ft"}},
        {2147483647, {"2147483647", "2.147.483.647"}},
        {-1, {"2147483648", "-1", "12,5", "12.50", "1.234,50", "Ft", "ezer", "12Ft5", QByteArray(41, '0')}}, // bad
    };
    for (const auto& [forints, texts] : rows) {
        for (const QByteArray& typed : texts) {
            SCOPED_TRACE(typed.toStdString());
            const TestFolder folder;
            // A good amount before it must not shine through.
            const ImportOutcome outcome = importBytes(folder, "a;;;;;;999\nb;;;;;;" + typed + ";sor\n");
            const auto client = RecordFile<ClientRec>(folder).read(2);
            EXPECT_EQ(client.Osszegek[0], std::max(forints, 0));
            EXPECT_TRUE(std::all_of(client.Osszegek.begin() + 1, client.Osszegek.end(), std::logical_not()));
            EXPECT_FALSE(client.Kulfoldi);
            EXPECT_EQ(outcome.badAmounts, forints < 0 ? 1 : 0);
            EXPECT_EQ(RecordFile<TwinRec>(folder).read(2).Kozl3Sor.trimmed(), u"sor"_s);
        }
    }
}

TEST(CsvImport, TellsWhichLinesHoldWhatCouldNotBeStored) {
    const TestFolder folder;
    const QByteArray fits(36, 'n');
    const QByteArray bytes = fits + "   \r\n\n" + "Kov\341cs \311va;;;;;; nagyon  sok \n" + "  " + fits + "\r" + //
                             ";   " + fits + ";;;123\"4567;" + QByteArray(50, 'c') + ";" + QByteArray(60, '1');
    const ImportOutcome outcome = importBytes(folder, bytes);
    EXPECT_EQ(outcome.badAmounts, 2);
    EXPECT_EQ(outcome.cutTexts, 3);
    EXPECT_EQ(faultLines(outcome).join(u'\n').toStdString(),
              "3. sor, Kovács Éva: az összeg nem értelmezhető: ''nagyon sok''\n"
              "4. sor, " +
                  std::string(34, 'n') +
                  ": a Név levágva 36 betűre\n"
                  "5. sor: az Irányítószám levágva 6 betűre\n"
                  "5. sor: a Cím levágva 45 betűre\n"
                  "5. sor: az összeg nem értelmezhető: ''" +
                  std::string(40, '1') + "''");

    const ImportOutcome many = importBytes(folder, QByteArray("x;;;;;;?\n").repeated(12));
    EXPECT_EQ(faultLines(many).size(), 11);
    EXPECT_EQ(faultLines(many).last(), u"és további 2 helyen"_s);
    EXPECT_TRUE(faultLines(importBytes(folder, "x\n")).isEmpty());
}

TEST(CsvImport, AppendGoesOnFromTheClientCountAndOverwriteStartsAtOne) {
    const QByteArray fiveClients(1355, 'n');
    for (const qsizetype twinsBefore : {5, 2, 9}) {
        const TestFolder folder;
        folder.setBytes(u"nevek1.dat"_s, fiveClients + "odd");
        folder.setBytes(u"kozl3sor.dat"_s, QByteArray(twinsBefore * 135, 't'));
        EXPECT_EQ(importBytes(folder, "hat;;;;;;;sor\nhet", ImportMode::append).clients, 2);
        EXPECT_EQ(clientCount(folder), 7);
        EXPECT_EQ(folder.bytes(u"nevek1.dat"_s).first(fiveClients.size()), fiveClients);
        EXPECT_EQ(shown(folder, 6), "hat|||||||sor");
        EXPECT_EQ(shown(folder, 7), "het");
        EXPECT_EQ(folder.bytes(u"kozl3sor.dat"_s).size(), 7 * 135);
        importBytes(folder, "uj\n", ImportMode::overwrite);
        EXPECT_EQ(clientCount(folder), 1);
        EXPECT_EQ(shown(folder, 1), "uj");
    }
}

TEST(CsvImport, WhatCannotBeReadOrWrittenChangesNothing) {
    const TestFolder folder;
    importBytes(folder, "a;;;;;;;sor\nb\n");
    const QByteArray clients = folder.bytes(u"nevek1.dat"_s);
    QDir(folder.folder().path()).mkpath(u"mappa.csv"_s);
    folder.setBytes(u"ures.csv"_s, "");
    folder.setBytes(u"jel.csv"_s, "\xEF\xBB\xBF");
    QByteArray bytes = QByteArray("sor;\n").repeated(500000);

    for (const ImportMode mode : {ImportMode::overwrite, ImportMode::append}) {
        const auto importFile = [&](const QString& name) {
            return importClients(folder.folder().file(name), folder, {mode}).result;
        };
        for (const QString& name : {u"nincs.csv"_s, u"mappa.csv"_s, QString()})
            EXPECT_EQ(importFile(name), Result::unreadable);
        for (const QString& name : {u"ures.csv"_s, u"jel.csv"_s})
            EXPECT_EQ(importFile(name), Result::empty);
        for (const qint64 failAt : {0, 10, 2000000}) {
            FailingDevice device(&bytes, failAt);
            ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
            EXPECT_EQ(importClients(device, folder, {mode}).result, Result::unreadable);
        }
    }
    QDir(folder.folder().path()).mkpath(u"xxkoz.dat/benne"_s);
    EXPECT_EQ(importBytes(folder, "uj\n").result, Result::notWritten);
    EXPECT_EQ(folder.bytes(u"nevek1.dat"_s), clients);
    EXPECT_EQ(shown(folder, 1), "a|||||||sor");
}

TEST(CsvImport, OneHugeLineAndJunkCostNoMoreThanTheirBytes) {
    const TestFolder folder;
    QByteArray junk;
    for (unsigned i = 0; i < 3000000; ++i)
        junk.append(static_cast<char>(i * 2654435761U >> 13));
    EXPECT_EQ(importBytes(folder, junk).result, Result::imported);

    // Pieces end within lines, letters and CRLF: one byte more at the start moves all of them.
    for (const QByteArray& start : {QByteArray(""), QByteArray("x")}) {
        QByteArray text = start + QByteArray("ő").repeated(16 << 20) + ";vég\r\n";
        text += QByteArray("é;ű\r\n").repeated(400000);
        std::vector<qint64> steps;
        folder.setBytes(u"be.csv"_s, text);
        const ImportOutcome outcome =
            importClients(folder.folder().file(u"be.csv"_s), folder, {ImportMode::overwrite},
                          [&](qint64 done, qint64 total) { steps.push_back(total == text.size() ? done : -1); });
        EXPECT_EQ(outcome.clients, 400001);
        EXPECT_EQ(shown(folder, 1),
                  (QString::fromLatin1(start) + QString(36 - start.size(), u'ő') + u"|vég"_s).toStdString());
        EXPECT_EQ(shown(folder, 200000), "é|ű");
        EXPECT_EQ(shown(folder, 400001), "é|ű");
        EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
        EXPECT_EQ(steps.back(), text.size());
    }
}
