#include "exchange/csv_import.h"
#include "records/client_database.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QDir>

#include <gtest/gtest.h>

namespace {

using Result = ImportOutcome::Result;

ImportOutcome importBytes(const TestFolder& folder, const QByteArray& bytes, ImportMode mode = ImportMode::overwrite) {
    folder.setBytes(QStringLiteral("be.csv"), bytes);
    return importClients(folder.folder().file(QStringLiteral("be.csv")), folder, mode);
}

// The texts and the amount of a stored client in the order of the file, parted by '|'; trailing empty ones left out.
std::string shown(const TestFolder& folder, qint64 number) {
    const ClientRec c = RecordFile<ClientRec>(folder).read(number);
    const TwinRec t = RecordFile<TwinRec>(folder).read(number);
    QString firstField = c.Nev.stored();
    while (firstField.endsWith(u' '))
        firstField.chop(1);
    QStringList fields = {firstField,
                          c.Nev2.trimmed(),
                          c.Azonosito.trimmed(),
                          c.Helyseg.trimmed(),
                          c.Irsz.trimmed(),
                          c.Cim.trimmed(),
                          QString::number(c.Osszegek[0]),
                          t.Kozl3Sor.trimmed(),
                          c.FizHatIdo.trimmed(),
                          t.IratSzama.trimmed(),
                          t.IratFajtaja.trimmed(),
                          t.IratMelleklet.trimmed(),
                          t.KuldemenyAzonosito.trimmed(),
                          t.SajatJelzes.trimmed()};
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
    struct Row {
        const char* what;
        QByteArray bytes;
        std::vector<std::string> clients;
    };
    const std::string emptyClient;
    const Row rows[] = {
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
        {"ASCII with mark",
         "\xEF\xBB\xBF"
         "Oze\n",
         {"Oze"}},
        {"UTF-8 beyond 1250", "õÛ Ж\xF0\x9F\x98\x80.\n", {"őŰ ??."}},
        {"UTF-8 field cut by letters", QByteArray("ő").repeated(50) + "\n", {QString(36, u'ő').toStdString()}},
        {"UTF-8 but for one byte", "\xC5\x91 \xF5\n", {"Ĺ‘ ő"}},
        {"1250 cut at the end", "abc\xF5", {"abcő"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TestFolder folder;
        const ImportOutcome outcome = importBytes(folder, row.bytes);
        EXPECT_EQ(outcome.result, Result::imported);
        EXPECT_EQ(outcome.clients, static_cast<qint64>(row.clients.size()));
        ASSERT_EQ(clientCount(folder), static_cast<qint64>(row.clients.size()));
        EXPECT_EQ(RecordFile<TwinRec>(folder).count(), clientCount(folder));
        for (std::size_t i = 0; i < row.clients.size(); ++i)
            EXPECT_EQ(shown(folder, static_cast<qint64>(i) + 1), row.clients[i]) << i;
    }
}

TEST(CsvImport, AmountsAreWholeForintsOrZeroAndCounted) {
    struct Row {
        QByteArray typed;
        int forints;
        bool bad = false;
    };
    const Row rows[] = {
        {"", 0},
        {"  ", 0},
        {"0", 0},
        {" 12500 ", 12500},
        {"12 500", 12500},
        {"12\xA0"
         "500\xA0"
         "Ft",
         12500},
        {"12500Ft", 12500},
        {"1 000 000 ft.", 1000000},
        {"\"700\"", 700},
        {"0000700", 700},
        {"2147483647", 2147483647},
        {"2147483648", 0, true},
        {"-1", 0, true},
        {"12,5", 0, true},
        {"12.50", 0, true},
        {"Ft", 0, true},
        {"ezer", 0, true},
        {"12Ft5", 0, true},
        {QByteArray(40, '1'), 0, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        const TestFolder folder;
        // A good amount before it must not shine through.
        const ImportOutcome outcome = importBytes(folder, "a;;;;;;999\nb;;;;;;" + row.typed + ";sor\n");
        const auto client = RecordFile<ClientRec>(folder).read(2);
        EXPECT_EQ(client.Osszegek[0], row.forints);
        for (std::size_t slot = 1; slot < 12; ++slot)
            EXPECT_EQ(client.Osszegek[slot], 0);
        EXPECT_FALSE(client.Kulfoldi);
        EXPECT_EQ(outcome.badAmounts, row.bad ? 1 : 0);
        EXPECT_EQ(RecordFile<TwinRec>(folder).read(2).Kozl3Sor.trimmed(), QStringLiteral("sor"));
    }
}

TEST(CsvImport, AppendGoesOnInBothFilesFromTheClientCount) {
    const QByteArray fiveClients(1355, 'n');
    for (const qsizetype twinsBefore : {5, 2, 9}) {
        const TestFolder folder;
        folder.setBytes(QStringLiteral("nevek1.dat"), fiveClients + "odd");
        folder.setBytes(QStringLiteral("kozl3sor.dat"), QByteArray(twinsBefore * 135, 't'));
        EXPECT_EQ(importBytes(folder, "hat;;;;;;;sor\nhet", ImportMode::append).clients, 2);
        EXPECT_EQ(clientCount(folder), 7);
        EXPECT_EQ(folder.bytes(QStringLiteral("nevek1.dat")).first(fiveClients.size()), fiveClients);
        EXPECT_EQ(shown(folder, 6), "hat|||||||sor");
        EXPECT_EQ(shown(folder, 7), "het");
        EXPECT_EQ(folder.bytes(QStringLiteral("kozl3sor.dat")).size(), 7 * 135);
    }
}

TEST(CsvImport, OverwriteStartsAtOne) {
    const TestFolder folder;
    importBytes(folder, "a\nb\nc\n");
    importBytes(folder, "uj\n");
    EXPECT_EQ(clientCount(folder), 1);
    EXPECT_EQ(shown(folder, 1), "uj");
}

TEST(CsvImport, WhatCannotBeReadOrWrittenChangesNothing) {
    const TestFolder folder;
    importBytes(folder, "a;;;;;;;sor\nb\n");
    const QByteArray clients = folder.bytes(QStringLiteral("nevek1.dat"));
    QDir(folder.folder().path()).mkpath(QStringLiteral("mappa.csv"));
    folder.setBytes(QStringLiteral("ures.csv"), "");
    folder.setBytes(QStringLiteral("jel.csv"), "\xEF\xBB\xBF");
    QByteArray bytes = QByteArray("sor;\n").repeated(500000);

    for (const ImportMode mode : {ImportMode::overwrite, ImportMode::append}) {
        const auto importFile = [&](const QString& name) {
            return importClients(folder.folder().file(name), folder, mode).result;
        };
        EXPECT_EQ(importFile(QStringLiteral("nincs.csv")), Result::unreadable);
        EXPECT_EQ(importFile(QStringLiteral("mappa.csv")), Result::unreadable);
        EXPECT_EQ(importFile(QString()), Result::unreadable);
        EXPECT_EQ(importFile(QStringLiteral("ures.csv")), Result::empty);
        EXPECT_EQ(importFile(QStringLiteral("jel.csv")), Result::empty);
        for (const qint64 failAt : {0, 10, 2000000}) {
            FailingDevice device(&bytes, failAt);
            ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
            EXPECT_EQ(importClients(device, folder, mode).result, Result::unreadable);
        }
    }
    QDir(folder.folder().path()).mkpath(QStringLiteral("xxkoz.dat/benne"));
    EXPECT_EQ(importBytes(folder, "uj\n").result, Result::notWritten);
    EXPECT_EQ(folder.bytes(QStringLiteral("nevek1.dat")), clients);
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
        folder.setBytes(QStringLiteral("be.csv"), text);
        const ImportOutcome outcome =
            importClients(folder.folder().file(QStringLiteral("be.csv")), folder, ImportMode::overwrite,
                          [&](qint64 done, qint64 total) { steps.push_back(total == text.size() ? done : -1); });
        EXPECT_EQ(outcome.clients, 400001);
        EXPECT_EQ(
            shown(folder, 1),
            (QString::fromLatin1(start) + QString(36 - start.size(), u'ő') + QStringLiteral("|vég")).toStdString());
        EXPECT_EQ(shown(folder, 200000), "é|ű");
        EXPECT_EQ(shown(folder, 400001), "é|ű");
        EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
        EXPECT_EQ(steps.back(), text.size());
    }
}
