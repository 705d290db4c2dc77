#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <map>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString clientFile = u"nevek1.dat"_s;
const QString twinFile = u"kozl3sor.dat"_s;
const QString nextClients = u"nevx.dat"_s;
const QString nextTwins = u"xxkoz.dat"_s;
const QString marker = u"csere.kesz"_s;

Client numbered(int number) {
    Client client{clientNamed(u"Ügyfél %1"_s.arg(number), number), blankTwin()};
    client.twin.Kozl3Sor.set(u"sor %1"_s.arg(number));
    return client;
}

// The raw pair of clients with these numbers.
ClientPair pairOf(const std::vector<int>& numbers) {
    ClientPair pair;
    for (const int number : numbers) {
        const Client client = numbered(number);
        pair.clients.append(reinterpret_cast<const char*>(&client.client), sizeof client.client);
        pair.twins.append(reinterpret_cast<const char*>(&client.twin), sizeof client.twin);
    }
    return pair;
}

void store(const TestFolder& folder, const ClientPair& pair) {
    folder.setBytes(clientFile, pair.clients);
    folder.setBytes(twinFile, pair.twins);
}

void expectPair(const TestFolder& folder, const ClientPair& pair) {
    EXPECT_EQ(folder.bytes(clientFile), pair.clients);
    EXPECT_EQ(folder.bytes(twinFile), pair.twins);
}

// Nothing of a commit stays behind.
void expectNoTrace(const TestFolder& folder) {
    for (const QString& name : QDir(folder.folder().path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        EXPECT_TRUE(name == clientFile || name == twinFile) << name.toStdString();
}

const ClientPair old = pairOf({1, 2, 3});
const ClientPair next = pairOf({1, 3});

// Puts files of a commit from `old` to `next` on the disk, a letter each: clients, twins, the two that wait to take
// their places, the former clients, the marker. o is the old content, n the new one, m the sizes that the marker holds,
// x junk, and - is no file.
void layOut(const TestFolder& folder, const QByteArray& letters) {
    const QStringList files = u"nevek1.dat kozl3sor.dat nevx.dat xxkoz.dat nevek1.regi csere.kesz"_s.split(u' ');
    const QByteArray sizes = QByteArray::number(next.clients.size()) + ' ' + QByteArray::number(next.twins.size());
    for (int i = 0; i < letters.size(); ++i) {
        const auto content = i == 1 || i == 3 ? &ClientPair::twins : &ClientPair::clients;
        const std::map<char, QByteArray> contents{
            {'o', old.*content}, {'n', next.*content}, {'e', ""}, {'m', sizes + '\n'}, {'x', QByteArray(300, '\xFF')}};
        const char letter = letters[i];
        if (letter != '-') folder.setBytes(files[i], contents.at(letter));
    }
}

} // namespace

TEST(ClientDatabase, DeleteMovesTheLaterOnesDownInBothFiles) {
    const std::tuple<std::vector<int>, qint64, std::vector<int>> rows[] = {
        {{1, 2, 3, 4}, 1, {2, 3, 4}},
        {{1, 2, 3, 4}, 3, {1, 2, 4}},
        {{1, 2, 3, 4}, 4, {1, 2, 3}},
        {{1, 2, 3}, 4, {1, 2, 3}},
        {{1, 2}, 0, {1, 2}},
        {{1, 2}, -1, {1, 2}},
        {{1}, 1, {}},
        {std::vector<int>(), 1, {}},
    };
    for (const auto& [before, number, after] : rows) {
        const TestFolder folder;
        store(folder, pairOf(before));
        EXPECT_EQ(deleteClient(folder, number), before != after);
        expectPair(folder, pairOf(after));
        expectNoTrace(folder);
    }
}

// Larger than the piece of memory that the clients pass through.
TEST(ClientDatabase, DeleteKeepsEveryOtherClientOfALargeDatabase) {
    const TestFolder folder;
    std::vector<int> numbers(9000);
    std::iota(numbers.begin(), numbers.end(), 1);
    store(folder, pairOf(numbers));
    for (const int number : {8998, 3869, 1}) { // from behind, so that numbers name whom they did
        EXPECT_TRUE(deleteClient(folder, number));
        numbers.erase(numbers.begin() + number - 1);
        expectPair(folder, pairOf(numbers));
    }
}

TEST(ClientDatabase, TwinsComeIntoStepWhenThePairIsRewritten) {
    const QByteArray zeros(135, '\0');
    const std::tuple<const char*, QByteArray, QByteArray> rows[] = {
        {"longer", old.twins + pairOf({9, 9}).twins, next.twins},
        {"shorter", old.twins.first(135), next.twins.first(135) + zeros},
        {"none", "", zeros + zeros},
        {"odd tail", old.twins.first(270) + "xyz", next.twins.first(135) + zeros},
    };
    for (const auto& [what, twins, expected] : rows) {
        SCOPED_TRACE(what);
        const TestFolder folder;
        store(folder, {old.clients + "odd tail", twins});
        EXPECT_TRUE(deleteClient(folder, 2));
        expectPair(folder, {next.clients, expected});
    }
}

TEST(ClientDatabase, WipeLeavesTwoEmptyFilesAndADroppedReplacementNoTrace) {
    for (const std::vector<int>& before : {std::vector<int>{}, {1, 2, 3}}) {
        const TestFolder folder;
        if (!before.empty()) store(folder, pairOf(before));
        ClientReplacement(folder).append(numbered(2));
        expectPair(folder, pairOf(before));
        EXPECT_TRUE(wipeClients(folder));
        EXPECT_TRUE(folder.has(clientFile) && folder.has(twinFile));
        expectPair(folder, {});
        expectNoTrace(folder);
    }
}

TEST(ClientDatabase, AddAppendsFillsTheTwinsUpAndKeepsToTheHighestNumber) {
    const TestFolder folder;
    EXPECT_EQ(addClient(folder, numbered(1)), 1);
    EXPECT_EQ(addClient(folder, numbered(2)), 2);
    expectPair(folder, pairOf({1, 2}));
    folder.setBytes(twinFile, "");
    EXPECT_EQ(addClient(folder, numbered(3)), 3);
    expectPair(folder, {old.clients, QByteArray(270, '\0') + pairOf({3}).twins});

    folder.setBytes(clientFile, QByteArray((maxClientNumber - 1) * 271, ' '));
    EXPECT_EQ(addClient(folder, numbered(1)), maxClientNumber);
    EXPECT_EQ(addClient(folder, numbered(2)), 0);
    EXPECT_EQ(clientCount(folder), maxClientNumber);
}

TEST(ClientDatabase, ModifyWritesOnlyAClientThatIsThere) {
    const TestFolder folder;
    store(folder, old);
    for (const qint64 number : {-1, 0, 4, 99})
        EXPECT_FALSE(modifyClient(folder, number, numbered(7)));
    expectPair(folder, old);
    EXPECT_TRUE(modifyClient(folder, 2, numbered(7)));
    expectPair(folder, pairOf({1, 7, 3}));
}

TEST(ClientDatabase, RefusedCommitLeavesTheOldPair) {
    // Whichever of these names is a folder can't be written or replaced, for any user.
    for (const QString& blocked : {nextClients, nextTwins, marker}) {
        SCOPED_TRACE(blocked.toStdString());
        const TestFolder folder;
        store(folder, old);
        QDir(folder.folder().path()).mkpath(blocked + u"/benne"_s);
        EXPECT_FALSE(deleteClient(folder, 1));
        EXPECT_FALSE(wipeClients(folder));
        expectPair(folder, old);
    }
    const TestFolder folder;
    folder.setBytes(clientFile, old.clients);
    QDir(folder.folder().path()).mkpath(twinFile + u"/benne"_s);
    EXPECT_FALSE(wipeClients(folder)) << "refused at the second of the two renames";
    EXPECT_EQ(folder.bytes(clientFile), old.clients);
    EXPECT_FALSE(deleteClient(folder, 1)) << "the twins can't be read: they must not become zeros";
    EXPECT_EQ(folder.bytes(clientFile), old.clients);
    EXPECT_FALSE(folder.has(marker) || folder.has(nextClients) || folder.has(nextTwins));
}

TEST(ClientDatabase, MissingProgramFolderIsNoDatabase) {
    const ProgramFolder nowhere(u"/nincs/ilyen/mappa"_s);
    EXPECT_THROW((void)clientCount(nowhere), UnreadableFile);
    EXPECT_THROW((void)addClient(nowhere, numbered(1)), UnreadableFile);
    EXPECT_THROW((void)deleteClient(nowhere, 1), UnreadableFile);
    EXPECT_FALSE(wipeClients(nowhere));
    EXPECT_EQ(finishInterruptedCommit(nowhere), Recovery::settled) << "nothing was begun there";
}

TEST(ClientDatabase, PendingSwapIsFinishedBeforeAnythingIsReadOrReplaced) {
    // The system refused both renames of the session before: the only copy of the old clients has the third name.
    const TestFolder folder;
    layOut(folder, "eonnom");
    EXPECT_TRUE(deleteClient(folder, 1));
    expectPair(folder, pairOf({3}));
}

// What no kill of a commit leaves; those are tried in tests/faults.
TEST(ClientDatabase, StartFinishesOrDropsWhatLiesThere) {
    struct {
        const char* what;
        const char* files;
        const ClientPair& pair;
        Recovery recovery = Recovery::settled;
    } const rows[] = {
        {"nothing", "oo", old},
        {"marker", "oonn-m", next},
        {"clients aside, nobody knows why", "-o--o", old, Recovery::clientsFound},
        {"one file put back", "oo-n-m", old, Recovery::oldPairKept},
        {"damaged clients", "ooxn-m", old, Recovery::oldPairKept},
        {"damaged twins, clients in place", "no-xom", old, Recovery::oldPairKept},
        {"damaged twins, old clients aside", "-onxom", old, Recovery::oldPairKept},
        {"stale marker after later changes", "oo---m", old, Recovery::oldPairKept},
        {"marker of junk", "oonn-x", old, Recovery::oldPairKept},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const TestFolder folder;
        layOut(folder, row.files);
        EXPECT_EQ(finishInterruptedCommit(folder), row.recovery);
        expectPair(folder, row.pair);
        expectNoTrace(folder);
        EXPECT_EQ(finishInterruptedCommit(folder), Recovery::settled);
        EXPECT_TRUE(deleteClient(folder, 1)) << "the next commit is not hindered";
    }
}
