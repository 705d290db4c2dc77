#include "exchange/watched_folder.h"

#include "exchange/csv_import.h"
#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Result = TickOutcome::Result;

class WatchedFolder : public testing::Test {
protected:
    WatchedFolder() { configure(ImportMode::append); }

    void configure(ImportMode mode, std::int16_t isOn = 1, std::int16_t prints = 0) const {
        configure(mode, watched.path(), isOn, prints);
    }
    void configure(ImportMode mode, const QString& folder, std::int16_t isOn = 1, std::int16_t prints = 0) const {
        updateRecord<Set>(files, [&](Set& set) {
            set.chkAutBeolvas = isOn;
            set.opHozzafuzes_1 = mode == ImportMode::overwrite;
            set.txtAutBeolvas.set(folder);
            set.chkAutoPrint = prints;
        });
    }
    // A file that was last changed so many seconds before the tick.
    void drop(const QString& name, const QByteArray& bytes, int secondsAgo = 10) const {
        QFile file(watched.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.flush();
        file.setFileTime(now.addSecs(-secondsAgo), QFileDevice::FileModificationTime);
    }
    TickOutcome tick() const { return watchTick(files, now); }
    std::string tickSays() const { return tickText(tick()).toStdString(); }
    QStringList left() const { return watched.entryList(QDir::Files); }
    // The first fields of all clients, parted by '|'.
    std::string names() const {
        QStringList texts;
        RecordFile<ClientRec> clients(files);
        for (qint64 i = 1; i <= clients.count(); ++i)
            texts << clients.read(i).Nev.trimmed();
        return texts.join(u'|').toStdString();
    }

    TestFolder files;
    QTemporaryDir watchedDir;
    QDir watched{watchedDir.path()};
    QDateTime now = QDateTime::currentDateTime();
};

} // namespace

TEST_F(WatchedFolder, WatchesOnlyWhatIsConfigured) {
    drop(u"a.csv"_s, "A");
    const QString file = watched.filePath(u"a.csv"_s);
    const std::tuple<const char*, QString, std::int16_t, Result> cases[] = {
        {"off", watched.path(), 0, Result::off},
        {"no path", {}, 1, Result::off},
        {"blank path", u"   "_s, 1, Result::off},
        {"missing", watched.filePath(u"nincs"_s), 1, Result::folderMissing},
        {"a file", file, 1, Result::folderMissing},
        {"not a full path", u"."_s, 1, Result::folderMissing},
        {"the program folder", files.folder().path(), 1, Result::idle},
        {"on", watched.path() + u"/ "_s, 1, Result::imported},
    };
    for (const auto& [what, folder, isOn, expected] : cases) {
        configure(ImportMode::append, folder, isOn);
        const TickOutcome outcome = tick();
        EXPECT_EQ(outcome.result, expected) << what;
        EXPECT_EQ(outcome.timerGoesOn(), expected != Result::off) << what;
        EXPECT_EQ(names(), expected == Result::imported ? "A" : "") << what;
    }
    EXPECT_EQ(left(), QStringList());
}

TEST_F(WatchedFolder, TakesOneReadyFileATick) {
    drop(u"c.CSV"_s, "C", -100); // a clock that goes ahead
    drop(u"B.csv"_s, "B");
    drop(u"a.csv"_s, "A", 1); // still being written
    drop(u"a.csvx"_s, "x");
    drop(u".d.csv"_s, "x");
    ASSERT_TRUE(watched.mkdir(u"0.csv"_s));
    const char* const expected[] = {"B", "B|C", "B|C"};
    for (const char* after : expected) {
        tick();
        EXPECT_EQ(names(), after);
    }
    now = now.addSecs(1);
    EXPECT_EQ(tickSays(), "A(z) ''a.csv'' fájlból 1 ügyfél beolvasva.");
    EXPECT_EQ(names(), "B|C|A");
    EXPECT_EQ(left(), QStringList(u"a.csvx"_s));
}

TEST_F(WatchedFolder, TheTenthColumnIsTheKindOfDocument) {
    drop(u"a.csv"_s, "n;n2;az;hely;1234;c\xEDm;900;sor;hat;fajta;eleven\r\n;;;;;;;;;;\r\n");
    files.store(clientNamed(u"Régi"_s));
    configure(ImportMode::overwrite, 1, 1);
    const TickOutcome outcome = tick();
    EXPECT_EQ(outcome.import.clients, 2);
    EXPECT_EQ(outcome.import.withoutAmount, 1);
    EXPECT_TRUE(outcome.prints);
    const ClientRec client = RecordFile<ClientRec>(files).read(1);
    const TwinRec twin = RecordFile<TwinRec>(files).read(1);
    EXPECT_EQ(client.Cim.trimmed(), u"cím"_s);
    EXPECT_EQ(client.Osszegek[0], 900);
    EXPECT_EQ(client.FizHatIdo.trimmed(), u"hat"_s);
    EXPECT_EQ(twin.IratFajtaja.trimmed(), u"fajta"_s);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(&twin), sizeof twin).trimmed(),
              QByteArray("sor").leftJustified(20) + "fajta");
    configure(ImportMode::append, 1, 1); // a stored 1 doesn't print in this mode
    drop(u"a.csv"_s, "A;;;;;;900");
    EXPECT_FALSE(tick().prints);
}

// One row is the contents of the found file.
TEST_F(WatchedFolder, WhatBecomesOfTheFile) {
    const struct {
        const char* what;
        QByteArray bytes;
        const char* said;
        const char* clients; // after the one that was there
        bool stays;
    } cases[] = {
        {"whole", "A\r\nB\r\n", "fájlból 2 ügyfél beolvasva.", "|A|B", false},
        {"no end of the last line", "A\nB", "fájlból 2 ügyfél beolvasva.", "|A|B", false},
        {"faults", "A;;;;;;sok\r\n" + QByteArray(50, 'b'),
         "fájlból 2 ügyfél beolvasva. 1 összeg nem értelmezhető. 1 szöveg nem fért el a mezőjében.",
         "|A|bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb", false},
        {"empty line", "A\r\nB\r\n\r\nC\r\n", "beolvasása üres sornál megszakadt, 2 ügyfél beolvasva.", "|A|B", true},
        {"empty line after LF", "A\n\nC\n", "beolvasása üres sornál megszakadt, 1 ügyfél beolvasva.", "|A", true},
        {"empty line after CR", "A\r\rC\r", "beolvasása üres sornál megszakadt, 1 ügyfél beolvasva.", "|A", true},
        {"blanks are a line", "A\n \nC\n", "fájlból 3 ügyfél beolvasva.", "|A||C", false},
        {"empty", "", "fájlban nincs ügyfél, az adatbázis nem változott.", "", true},
        {"empty line first", "\r\nA\r\n", "fájlban nincs ügyfél, az adatbázis nem változott.", "", true},
        {"too long", QByteArray("A\n").repeated(300001), "túl hosszú (legfeljebb 300000 sor lehet)", "", true},
        {"no text", QByteArray("PK\x03\x04\0\0;A\n", 9), "nem szövegfájl, az adatbázis nem változott.", "", true},
    };
    for (const ImportMode mode : {ImportMode::append, ImportMode::overwrite}) {
        for (const auto& [what, bytes, said, clients, stays] : cases) {
            const std::string was = mode == ImportMode::append || *clients == '\0' ? "Régi" : "";
            files.setBytes(u"nevek1.dat"_s, {});
            files.store(clientNamed(u"Régi"_s));
            configure(mode);
            drop(u"x.csv"_s, bytes);
            EXPECT_NE(tickSays().find(said), std::string::npos) << what;
            const std::string expected = (was + clients).substr(was.empty() ? 1 : 0);
            EXPECT_EQ(names(), expected) << what;
            EXPECT_EQ(left().size(), stays ? 1 : 0) << what;
            // A file that stays isn't taken again, but doesn't hold up the others.
            EXPECT_EQ(tickSays(), "") << what;
            EXPECT_EQ(names(), expected) << what;
            drop(u"y.csv"_s, "Y");
            tick();
            EXPECT_EQ(names(), (mode == ImportMode::append ? expected + "|" : "") + "Y") << what;
            QFile::remove(watched.filePath(u"x.csv"_s));
            tick();
        }
    }
    EXPECT_EQ(files.bytes(u"figyelt.lst"_s), QByteArray()) << "files that are gone are forgotten";
}

TEST_F(WatchedFolder, AFileThatStaysIsTakenAgainOnceItHasChanged) {
    drop(u"x.csv"_s, "A\n\nB\n");
    tick();
    drop(u"x.csv"_s, "C\n", 9);
    tick();
    EXPECT_EQ(names(), "A|C");
    // And so is the very same file when it comes a second time.
    for (int i = 0; i < 2; ++i) {
        drop(u"x.csv"_s, "D\n");
        tick();
    }
    EXPECT_EQ(names(), "A|C|D|D");
    // The drive is away for a while.
    drop(u"x.csv"_s, "E\n\nF\n");
    tick();
    const QString elsewhere = watchedDir.path() + u"-2"_s;
    ASSERT_TRUE(QDir().rename(watchedDir.path(), elsewhere));
    EXPECT_EQ(tickSays(), "A figyelt mappa nem található!");
    ASSERT_TRUE(QDir().rename(elsewhere, watchedDir.path()));
    tick();
    EXPECT_EQ(names(), "A|C|D|D|E");
}

TEST_F(WatchedFolder, AFileThatChangesWhileItIsReadWaits) {
    drop(u"x.csv"_s, "A\n");
    const auto append = [&](qint64 done, qint64) {
        if (done > 0) return;
        QFile file(watched.filePath(u"x.csv"_s));
        if (file.open(QIODevice::Append)) file.write("B\n");
    };
    EXPECT_EQ(watchTick(files, now, append).result, Result::idle);
    EXPECT_EQ(names(), "");
    EXPECT_EQ(left().size(), 1);
}

// The one who can't delete is stood in for by a note of an earlier, killed run.
TEST_F(WatchedFolder, AnImportedFileIsDeletedAndNotTakenTwice) {
    drop(u"x.csv"_s, "A\n\n");
    tick();
    files.setBytes(u"figyelt.lst"_s, files.bytes(u"figyelt.lst"_s).replace("kihagyva", "beolvasva") + "rossz sor\n\n");
    EXPECT_EQ(tick().result, Result::idle);
    EXPECT_EQ(names(), "A");
    EXPECT_EQ(left(), QStringList());
}

TEST_F(WatchedFolder, ADatabaseThatCannotBeWrittenKeepsTheFile) {
    drop(u"x.csv"_s, "A\n");
    ASSERT_TRUE(QDir(files.folder().path()).mkpath(u"nevx.dat/x"_s));
    EXPECT_EQ(tickSays(), "A(z) ''x.csv'' beolvasása nem sikerült: az adatbázis nem írható.");
    EXPECT_EQ(left(), QStringList(u"x.csv"_s));
    ASSERT_TRUE(QDir(files.folder().file(u"nevx.dat"_s)).removeRecursively());
    tick();
    EXPECT_EQ(names(), "A");
}
