#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

const QString clientFile = QStringLiteral("nevek1.dat");
const QString twinFile = QStringLiteral("kozl3sor.dat");
const QString nextClients = QStringLiteral("nevx.dat");
const QString nextTwins = QStringLiteral("xxkoz.dat");
const QString previousClients = QStringLiteral("nevek1.regi");
const QString marker = QStringLiteral("csere.kesz");

Client numbered(int number) {
    Client client{clientNamed(QStringLiteral("Ügyfél %1").arg(number), number), blankTwin()};
    client.twin.Kozl3Sor.set(QStringLiteral("sor %1").arg(number));
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

QByteArray sizesOf(const ClientPair& pair) {
    return QByteArray::number(pair.clients.size()) + ' ' + QByteArray::number(pair.twins.size()) + '\n';
}

} // namespace

TEST(ClientDatabase, DeleteMovesTheLaterOnesDownInBothFiles) {
    struct Row {
        std::vector<int> before;
        qint64 number;
        bool deleted;
        std::vector<int> after;
    };
    const Row rows[] = {
        {{1, 2, 3, 4}, 1, true, {2, 3, 4}},
        {{1, 2, 3, 4}, 3, true, {1, 2, 4}},
        {{1, 2, 3, 4}, 4, true, {1, 2, 3}},
        {{1, 2, 3, 4}, 5, false, {1, 2, 3, 4}},
        {{1, 2}, 0, false, {1, 2}},
        {{1, 2}, -1, false, {1, 2}},
        {{1}, 1, true, {}},
        {{}, 1, false, {}},
    };
    for (const Row& row : rows) {
        const TestFolder folder;
        store(folder, pairOf(row.before));
        EXPECT_EQ(deleteClient(folder, row.number), row.deleted);
        expectPair(folder, pairOf(row.after));
        expectNoTrace(folder);
    }
}

TEST(ClientDatabase, TwinsComeIntoStepWhenThePairIsRewritten) {
    const ClientPair whole = pairOf({1, 2, 3});
    const ClientPair after = pairOf({1, 3});
    const QByteArray zeros(135, '\0');
    struct Row {
        const char* what;
        QByteArray twins, expected;
    };
    const Row rows[] = {
        {"longer", whole.twins + pairOf({9, 9}).twins, after.twins},
        {"shorter", whole.twins.first(135), after.twins.first(135) + zeros},
        {"none", "", zeros + zeros},
        {"odd tail", whole.twins.first(270) + "xyz", after.twins.first(135) + zeros},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TestFolder folder;
        store(folder, {whole.clients + "odd tail", row.twins});
        EXPECT_TRUE(deleteClient(folder, 2));
        expectPair(folder, {after.clients, row.expected});
    }
}

TEST(ClientDatabase, WipeLeavesTwoEmptyFiles) {
    for (const std::vector<int>& before : {std::vector<int>{}, {1, 2, 3}}) {
        const TestFolder folder;
        if (!before.empty()) store(folder, pairOf(before));
        EXPECT_TRUE(wipeClients(folder));
        EXPECT_TRUE(folder.has(clientFile) && folder.has(twinFile));
        expectPair(folder, {});
        expectNoTrace(folder);
    }
}

TEST(ClientDatabase, AddAppendsAndFillsTheTwinsUp) {
    const TestFolder folder;
    EXPECT_EQ(addClient(folder, numbered(1)), 1);
    EXPECT_EQ(addClient(folder, numbered(2)), 2);
    expectPair(folder, pairOf({1, 2}));
    folder.setBytes(twinFile, "");
    EXPECT_EQ(addClient(folder, numbered(3)), 3);
    expectPair(folder, {pairOf({1, 2, 3}).clients, QByteArray(270, '\0') + pairOf({3}).twins});
}

TEST(ClientDatabase, AddKeepsToTheHighestNumberThatCanBePicked) {
    const TestFolder folder;
    folder.setBytes(clientFile, QByteArray((maxClientNumber - 1) * 271, ' '));
    EXPECT_EQ(addClient(folder, numbered(1)), maxClientNumber);
    EXPECT_EQ(addClient(folder, numbered(2)), 0);
    EXPECT_EQ(clientCount(folder), maxClientNumber);
}

TEST(ClientDatabase, ModifyWritesOnlyAClientThatIsThere) {
    const TestFolder folder;
    store(folder, pairOf({1, 2, 3}));
    for (const qint64 number : {-1, 0, 4, 99})
        EXPECT_FALSE(modifyClient(folder, number, numbered(7)));
    expectPair(folder, pairOf({1, 2, 3}));
    EXPECT_TRUE(modifyClient(folder, 2, numbered(7)));
    expectPair(folder, pairOf({1, 7, 3}));
}

TEST(ClientDatabase, RefusedCommitLeavesTheOldPair) {
    const ClientPair old = pairOf({1, 2, 3});
    // Whichever of these names is a folder can't be written or replaced, for any user.
    for (const QString& blocked : {nextClients, nextTwins, marker}) {
        SCOPED_TRACE(blocked.toStdString());
        const TestFolder folder;
        store(folder, old);
        QDir(folder.folder().path()).mkpath(blocked + QStringLiteral("/benne"));
        EXPECT_FALSE(deleteClient(folder, 1));
        EXPECT_FALSE(wipeClients(folder));
        expectPair(folder, old);
    }
    const TestFolder folder;
    folder.setBytes(clientFile, old.clients);
    QDir(folder.folder().path()).mkpath(twinFile + QStringLiteral("/benne"));
    EXPECT_FALSE(wipeClients(folder)) << "refused at the second of the two renames";
    EXPECT_EQ(folder.bytes(clientFile), old.clients);
    EXPECT_FALSE(deleteClient(folder, 1)) << "the twins can't be read: they must not become zeros";
    EXPECT_EQ(folder.bytes(clientFile), old.clients);
    EXPECT_FALSE(folder.has(marker) || folder.has(nextClients) || folder.has(nextTwins));
}

TEST(ClientDatabase, MissingProgramFolderIsNoDatabase) {
    const ProgramFolder nowhere(QStringLiteral("/nincs/ilyen/mappa"));
    EXPECT_EQ(clientCount(nowhere), 0);
    EXPECT_EQ(addClient(nowhere, numbered(1)), 0);
    EXPECT_FALSE(deleteClient(nowhere, 1));
    EXPECT_FALSE(wipeClients(nowhere));
    EXPECT_TRUE(finishInterruptedCommit(nowhere)) << "nothing was begun there";
}

TEST(ClientDatabase, PendingSwapIsFinishedBeforeAnythingIsReadOrReplaced) {
    // The system refused both renames of the session before: the only copy of the old clients has the third name.
    const TestFolder folder;
    const ClientPair old = pairOf({1, 2, 3});
    const ClientPair next = pairOf({7, 8});
    folder.setBytes(QStringLiteral("nevek1.regi"), old.clients);
    folder.setBytes(clientFile, {});
    folder.setBytes(twinFile, old.twins);
    folder.setBytes(nextClients, next.clients);
    folder.setBytes(nextTwins, next.twins);
    folder.setBytes(marker, QByteArray::number(next.clients.size()) + ' ' + QByteArray::number(next.twins.size()));
    EXPECT_TRUE(deleteClient(folder, 1));
    EXPECT_EQ(folder.bytes(clientFile), pairOf({8}).clients);
    EXPECT_EQ(folder.bytes(twinFile), pairOf({8}).twins);
}

TEST(ClientDatabase, ReplacementThatIsNotCommittedLeavesNoTrace) {
    const TestFolder folder;
    store(folder, pairOf({1}));
    {
        ClientReplacement replacement(folder);
        replacement.append(numbered(2));
    }
    expectPair(folder, pairOf({1}));
    expectNoTrace(folder);
}

// Every state of the disk between two steps of a commit, in their order, and some that no commit leaves.
TEST(ClientDatabase, StartFinishesOrDropsWhatAKilledCommitLeft) {
    const ClientPair old = pairOf({1, 2, 3});
    const ClientPair next = pairOf({1, 3});
    const QByteArray sizes = sizesOf(next);
    using Files = std::vector<std::pair<QString, QByteArray>>;
    struct Row {
        const char* what;
        Files files;
        bool isNew;
        bool finished = true;
    };
    const Row rows[] = {
        {"nothing", {{clientFile, old.clients}, {twinFile, old.twins}}, false},
        {"unfinished writes",
         {{clientFile, old.clients},
          {twinFile, old.twins},
          {nextClients + QStringLiteral(".a1B2c3"), "x"},
          {nextTwins + QStringLiteral(".a1B2c3"), "x"}},
         false},
        {"first file whole", {{clientFile, old.clients}, {twinFile, old.twins}, {nextClients, next.clients}}, false},
        {"both whole, no marker",
         {{clientFile, old.clients}, {twinFile, old.twins}, {nextClients, next.clients}, {nextTwins, next.twins}},
         false},
        {"marker",
         {{clientFile, old.clients},
          {twinFile, old.twins},
          {nextClients, next.clients},
          {nextTwins, next.twins},
          {marker, sizes}},
         true},
        {"old clients aside",
         {{previousClients, old.clients},
          {twinFile, old.twins},
          {nextClients, next.clients},
          {nextTwins, next.twins},
          {marker, sizes}},
         true},
        {"new clients in place",
         {{previousClients, old.clients},
          {clientFile, next.clients},
          {twinFile, old.twins},
          {nextTwins, next.twins},
          {marker, sizes}},
         true},
        {"both in place",
         {{previousClients, old.clients}, {clientFile, next.clients}, {twinFile, next.twins}, {marker, sizes}},
         true},
        {"marker gone", {{previousClients, old.clients}, {clientFile, next.clients}, {twinFile, next.twins}}, true},
        {"one file put back",
         {{clientFile, old.clients}, {twinFile, old.twins}, {nextTwins, next.twins}, {marker, sizes}},
         false,
         false},
        {"damaged clients",
         {{clientFile, old.clients},
          {twinFile, old.twins},
          {nextClients, "short"},
          {nextTwins, next.twins},
          {marker, sizes}},
         false,
         false},
        {"damaged twins, clients in place",
         {{previousClients, old.clients},
          {clientFile, next.clients},
          {twinFile, old.twins},
          {nextTwins, "short"},
          {marker, sizes}},
         false,
         false},
        {"damaged twins, old clients aside",
         {{previousClients, old.clients},
          {twinFile, old.twins},
          {nextClients, next.clients},
          {nextTwins, "short"},
          {marker, sizes}},
         false,
         false},
        {"stale marker after later changes",
         {{clientFile, old.clients}, {twinFile, old.twins}, {marker, sizes}},
         false,
         false},
        {"marker of junk",
         {{clientFile, old.clients},
          {twinFile, old.twins},
          {nextClients, next.clients},
          {nextTwins, next.twins},
          {marker, QByteArray(300, '\xFF')}},
         false,
         false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TestFolder folder;
        for (const auto& [name, bytes] : row.files)
            folder.setBytes(name, bytes);
        EXPECT_EQ(finishInterruptedCommit(folder), row.finished);
        expectPair(folder, row.isNew ? next : old);
        expectNoTrace(folder);
        EXPECT_TRUE(finishInterruptedCommit(folder));
        EXPECT_TRUE(deleteClient(folder, 1)) << "the next commit is not hindered";
    }
}
