#include "exchange/csv_import.h"
#include "exchange/watched_folder.h"
#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int clientsBefore = 4000;
constexpr int killsEach = 40;

ClientPair pairIn(const TestFolder& folder) { return {folder.bytes(u"nevek1.dat"_s), folder.bytes(u"kozl3sor.dat"_s)}; }

void store(const TestFolder& folder, const ClientPair& pair) {
    folder.setBytes(u"nevek1.dat"_s, pair.clients);
    folder.setBytes(u"kozl3sor.dat"_s, pair.twins);
}

bool same(const ClientPair& a, const ClientPair& b) { return a.clients == b.clients && a.twins == b.twins; }

QByteArray csvOf(int lines, const QByteArray& name) {
    QByteArray csv;
    for (int i = 0; i < lines; ++i)
        csv += name + ' ' + QByteArray::number(i) + ";;azon;Buda;1024;utca;" + QByteArray::number(i) + ";sor\r\n";
    return csv;
}

// What became of one operation in a process of its own.
struct Run {
    bool done;
    qint64 microseconds; // from the start of the operation
};

// Lets the operation end, or kills it so long after its start.
Run runProbe(const QString& operation, const TestFolder& folder, const QString& csv,
             std::optional<qint64> killAfter = {}) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(KILL_PROBE), {operation, folder.folder().path(), csv});
    const auto nextWord = [&] {
        while (!process.canReadLine() && process.waitForReadyRead())
            ;
        return process.readLine().trimmed();
    };
    EXPECT_EQ(nextWord(), QByteArray("go"));
    QElapsedTimer sinceGo;
    sinceGo.start();
    if (killAfter) {
        while (sinceGo.nsecsElapsed() < *killAfter * 1000)
            ; // finer than any timer
        process.kill();
    }
    const bool done = nextWord() == "done";
    const qint64 microseconds = sinceGo.nsecsElapsed() / 1000;
    process.waitForFinished();
    return {done, microseconds};
}

// Wherever the kill comes, the next start finds the whole old or the whole new pair.
void killAtManyPoints(const QString& operation) {
    const TestFolder source;
    const QString csvPath = source.folder().file(u"be.csv"_s);
    source.setBytes(u"be.csv"_s, csvOf(clientsBefore, "Regi"));
    ASSERT_EQ(importClients(csvPath, source, {ImportMode::overwrite}).clients, clientsBefore);
    source.setBytes(u"be.csv"_s, csvOf(clientsBefore, "Uj"));
    const ClientPair before = pairIn(source);

    const Run whole = runProbe(operation, source, csvPath);
    ASSERT_TRUE(whole.done);
    const ClientPair after = pairIn(source);

    const TestFolder folder;
    for (int kill = 0; kill < killsEach; ++kill) {
        store(folder, before);
        const bool done = runProbe(operation, folder, csvPath, whole.microseconds * kill / killsEach).done;
        EXPECT_EQ(finishInterruptedCommit(folder), Recovery::settled);
        const ClientPair found = pairIn(folder);
        EXPECT_TRUE(same(found, after) || (!done && same(found, before))) << operation.toStdString() << ' ' << kill;
        EXPECT_EQ(QDir(folder.folder().path()).entryList(QDir::Files).size(), 2) << "something was left behind";
    }
}

// All files of the folder.
QMap<QString, QByteArray> filesIn(const TestFolder& folder) {
    QMap<QString, QByteArray> files;
    for (const QString& name : QDir(folder.folder().path()).entryList(QDir::Files))
        files[name] = folder.bytes(name);
    return files;
}

void storeAll(const TestFolder& folder, const QMap<QString, QByteArray>& files) {
    for (const QString& name : QDir(folder.folder().path()).entryList(QDir::Files))
        QFile::remove(folder.folder().file(name));
    for (const auto& [name, bytes] : files.asKeyValueRange())
        folder.setBytes(name, bytes);
}

} // namespace

TEST(Kill, DuringConversionLeavesTheOldDatabaseOrBoth) {
    const TestFolder folder;
    folder.setBytes(u"nevek1.dat"_s, QByteArray("Kiss").leftJustified(125).append(112, '\0').repeated(clientsBefore));
    folder.setBytes(u"kozl3sor.dat"_s, QByteArray(135 * clientsBefore, 'x'));
    const auto before = filesIn(folder);
    const auto whole = runProbe(u"convert"_s, folder, {});
    ASSERT_TRUE(whole.done);
    const auto after = filesIn(folder);
    ASSERT_EQ(after.keys(), QStringList({u"kozl3sor.dat"_s, u"nevek1.dat"_s, u"nevekR.dat"_s}));
    ASSERT_EQ(after[u"nevekR.dat"_s], before[u"nevek1.dat"_s]);
    for (int kill = 0; kill < killsEach; ++kill) {
        storeAll(folder, before);
        const bool done = runProbe(u"convert"_s, folder, {}, whole.microseconds * kill / killsEach).done;
        EXPECT_EQ(finishInterruptedCommit(folder), Recovery::settled);
        const auto found = filesIn(folder);
        EXPECT_TRUE(found == after || (!done && found == before))
            << kill << ' ' << found.keys().join(u' ').toStdString();
    }
}

// Whether the kill comes before the commit, behind it or behind the deletion: the next tick ends with one import.
TEST(Kill, DuringATickNothingIsImportedTwiceOrLost) {
    for (const bool overwrites : {false, true}) {
        const TestFolder folder;
        const QDir program(folder.folder().path());
        ASSERT_TRUE(program.mkdir(u"be"_s));
        updateRecord<Set>(folder, [&](Set& set) {
            set.chkAutBeolvas = 1;
            set.opHozzafuzes_1 = overwrites;
            set.txtAutBeolvas.set(program.filePath(u"be"_s));
        });
        folder.setBytes(u"regi.csv"_s, csvOf(clientsBefore, "Regi"));
        importClients(folder.folder().file(u"regi.csv"_s), folder, {ImportMode::overwrite});
        const auto before = filesIn(folder);
        const QByteArray csv = csvOf(clientsBefore, "Uj");
        folder.setBytes(u"be/uj.csv"_s, csv);
        const auto whole = runProbe(u"tick"_s, folder, {});
        ASSERT_TRUE(whole.done);
        const ClientPair after = pairIn(folder);
        for (int kill = 0; kill < killsEach; ++kill) {
            storeAll(folder, before);
            folder.setBytes(u"be/uj.csv"_s, csv);
            runProbe(u"tick"_s, folder, {}, whole.microseconds * kill / killsEach);
            EXPECT_EQ(finishInterruptedCommit(folder), Recovery::settled);
            watchTick(folder, QDateTime::currentDateTime().addSecs(60));
            EXPECT_TRUE(same(pairIn(folder), after)) << overwrites << ' ' << kill;
            EXPECT_FALSE(folder.has(u"be/uj.csv"_s));
        }
    }
}

TEST(Kill, DuringDeleteLeavesOldOrNewPair) { killAtManyPoints(u"delete"_s); }
TEST(Kill, DuringWipeLeavesOldOrNewPair) { killAtManyPoints(u"wipe"_s); }
TEST(Kill, DuringAppendLeavesOldOrNewPair) { killAtManyPoints(u"append"_s); }
TEST(Kill, DuringOverwriteLeavesOldOrNewPair) { killAtManyPoints(u"overwrite"_s); }
