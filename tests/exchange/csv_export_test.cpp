#include "exchange/csv_export.h"

#include "exchange/csv_import.h"
#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

using Result = ExportOutcome::Result;

class CsvExport : public testing::Test {
protected:
    ExportOutcome exportTo(const QString& name) const { return exportClients(files.folder().file(name), files); }
    QByteArray line(int number) const {
        return files.bytes(u"ki.csv"_s).mid((number - 1) * exportLineLength, exportLineLength);
    }
    void storeClients(int count) const {
        for (int i = 1; i <= count; ++i) {
            files.store(clientNamed(u"Ügyfél %1"_s.arg(i)), i);
            files.store(blankTwin(), i);
        }
    }

    TestFolder files;
};

} // namespace

TEST_F(CsvExport, FieldsStandInFixedPlacesPaddedAndCut) {
    const auto fill = [](char c, auto&... texts) { (std::fill_n(texts.data(), texts.width, c++), ...); };
    ClientRec full;
    TwinRec twin;
    fill('a', full.Nev, full.Nev2, full.Azonosito, full.Helyseg, full.Irsz, full.Cim);
    full.Osszegek.fill(I32(-2000000000));
    fill('h', twin.Kozl3Sor, full.FizHatIdo, twin.IratSzama, twin.IratFajtaja, twin.IratMelleklet, twin.SajatJelzes,
         twin.KuldemenyAzonosito);
    full.Kulfoldi = true;
    files.store(full);
    files.store(twin);
    // The second client has no twin and holds bytes that would end a line.
    ClientRec odd = clientNamed(u"Őze\rEdit\n;ű"_s, 42);
    fill('\0', odd.Nev2);
    files.store(odd, 2);

    const ExportOutcome outcome = exportTo(u"ki.csv"_s);
    EXPECT_EQ(outcome.result, Result::written);
    EXPECT_EQ(outcome.clients, 2);
    const auto run = [](int width, char c) { return QByteArray(width, c); };
    EXPECT_EQ(line(1), run(31, 'a') + ';' + run(30, 'b') + ';' + run(30, 'c') + ';' + run(20, 'd') + ';' + run(4, 'e') +
                           ';' + run(45, 'f') + ";-20000000;" + run(20, 'h') + ';' + run(27, 'i') + ';' + run(20, 'j') +
                           ';' + run(20, 'k') + ';' + run(20, 'l') + ';' + run(20, 'm') + ';' + run(20, 'n') + "\r\n");
    EXPECT_EQ(line(2).first(32), QByteArray("\xD5ze Edit ;\xFB").leftJustified(31) + ';');
    EXPECT_EQ(line(2).mid(165, 11), ";42       ;");
    EXPECT_EQ(line(2).mid(176).count(' '), 147); // no NUL of the missing twin
    EXPECT_EQ(line(3), "");
}

TEST_F(CsvExport, ComesBackThroughTheImportWithMarksExchanged) {
    ClientRec client = clientNamed(u"Tóth Űrsula"_s, 12500);
    client.FizHatIdo.set(u"2024. 05. 31."_s);
    TwinRec twin = blankTwin();
    twin.SajatJelzes.set(u"jelzés"_s);
    twin.KuldemenyAzonosito.set(u"azonosító"_s);
    files.store(client);
    files.store(twin);
    exportTo(u"ki.csv"_s);
    importClients(files.folder().file(u"ki.csv"_s), files, {ImportMode::append});
    const auto back = RecordFile<ClientRec>(files).read(2);
    EXPECT_EQ(std::memcmp(&client, &back, sizeof back), 0);
    const auto backTwin = RecordFile<TwinRec>(files).read(2);
    EXPECT_EQ(backTwin.SajatJelzes.trimmed(), u"azonosító"_s);
    EXPECT_EQ(backTwin.KuldemenyAzonosito.trimmed(), u"jelzés"_s);
}

TEST_F(CsvExport, WritesInPlaceAndKeepsWhatLiesBehind) {
    // The number of clients, and the file's size before (-1 for none) and after.
    const std::tuple<int, qsizetype, qsizetype> cases[] = {
        {0, -1, 0}, {0, 10, 10}, {2, 10, 662}, {2, 662, 662}, {2, 700, 700}, {5000, 400, 5000 * exportLineLength},
    };
    for (const auto& [clients, before, after] : cases) {
        QFile::remove(files.folder().file(u"ki.csv"_s));
        if (before >= 0) files.setBytes(u"ki.csv"_s, QByteArray(before, 'x'));
        files.setBytes(u"nevek1.dat"_s, {});
        storeClients(clients);
        const ExportOutcome outcome = exportTo(u"ki.csv"_s);
        EXPECT_EQ(outcome.hasOldLines, before > clients * exportLineLength) << before;
        const QByteArray bytes = files.bytes(u"ki.csv"_s);
        EXPECT_EQ(bytes.size(), after);
        EXPECT_EQ(bytes.count("\r\n"), clients);
        EXPECT_EQ(bytes.mid(clients * exportLineLength).count('x'), after - clients * exportLineLength);
    }
}

#ifdef Q_OS_UNIX
TEST_F(CsvExport, WhatCannotBeWrittenStaysAsItWas) {
    storeClients(100);
    const QByteArray database = files.bytes(u"nevek1.dat"_s);
    EXPECT_EQ(exportTo(u"nevek1.dat"_s).result, Result::ownFile);
    EXPECT_EQ(exportTo(u"."_s).result, Result::notWritten);
    EXPECT_EQ(exportTo(u"nincs/ki.csv"_s).result, Result::notWritten);
    EXPECT_EQ(exportClients(u"/dev/full"_s, files).result, Result::notWritten);

    // A file may not grow beyond so many bytes, which is how a full disk looks.
    const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY};
    const rlimit small{20'000, RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    const QByteArray old(5000, 'x');
    files.setBytes(u"regi.csv"_s, old);
    setrlimit(RLIMIT_FSIZE, &small);
    const Result onOld = exportTo(u"regi.csv"_s).result;
    const Result onNew = exportTo(u"uj.csv"_s).result;
    setrlimit(RLIMIT_FSIZE, &unlimited);
    EXPECT_EQ(onOld, Result::notWritten);
    EXPECT_EQ(onNew, Result::notWritten);
    EXPECT_EQ(files.bytes(u"regi.csv"_s), old);
    EXPECT_FALSE(files.has(u"uj.csv"_s));

    files.setBytes(u"nevek1.dat"_s, database);
    QFile::remove(files.folder().file(u"kozl3sor.dat"_s));
    ASSERT_TRUE(QDir().mkdir(files.folder().file(u"kozl3sor.dat"_s)));
    EXPECT_EQ(exportTo(u"regi.csv"_s).result, Result::unreadable);
    EXPECT_EQ(files.bytes(u"nevek1.dat"_s), database);
}
#endif
