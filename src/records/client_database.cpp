#include "records/client_database.h"

#include "records/disk.h"

#include <QFileInfo>

#include <algorithm>
#include <vector>

// How the pair is replaced as one step. The new files are written whole and flushed under names of their own; then the
// marker, which holds their sizes, is written: the point of no return. Then
//     nevek1.dat -> nevek1.regi, nevx.dat -> nevek1.dat, xxkoz.dat -> kozl3sor.dat, figyelt.uj -> figyelt.lst,
// nevek1.regi goes, and the marker last. A name to keep the old clients under takes the place of nevek1.regi,
// stands in the marker, and stays. A start that finds the marker goes on from wherever a kill came. Without a marker
// new files are never used, whoever left them.
//
// Renames reach the disk in any order, so the folder is flushed where one step relies on another: the new files are
// there before the marker, the marker before the first rename, the old clients under their other name before the new
// ones take theirs, all of it before the marker goes, and its going before the next commit writes files that it would
// speak for.
//
// nevek1.regi is there for a rename that the system refuses half-way (Windows does while another program has the file
// open): as long as the twins are the old ones, the old clients can be put back.

namespace {

constexpr qsizetype clientLength = sizeof(ClientRec);
constexpr qsizetype bufferSize = 1 << 20;

struct PairPaths {
    explicit PairPaths(const ProgramFolder& folder, const QString& keptName = {})
        : clients(folder.file(QString::fromLatin1(ClientRec::fileName)))
        , twins(folder.file(QString::fromLatin1(TwinRec::fileName)))
        , nextClients(folder.file(QStringLiteral("nevx.dat")))
        , nextTwins(folder.file(QStringLiteral("xxkoz.dat")))
        , notes(folder.file(QString::fromLatin1(importNotesFile)))
        , nextNotes(folder.file(QStringLiteral("figyelt.uj")))
        , kept(keptName)
        , previousClients(folder.file(kept.isEmpty() ? QStringLiteral("nevek1.regi") : kept))
        , marker(folder.file(QStringLiteral("csere.kesz"))) {}

    QString clients, twins;
    QString nextClients, nextTwins;
    QString notes, nextNotes;
    QString kept; // a name
    QString previousClients;
    QString marker;
};

bool isGone(const QString& path) {
    return patiently([&] { return QFile::remove(path) || !QFile::exists(path); });
}

bool flushNames(const PairPaths& paths) { return flushFolder(QFileInfo(paths.clients).path()); }

bool writeMarker(const PairPaths& paths) {
    const qint64 clientBytes = QFileInfo(paths.nextClients).size();
    const qint64 twinBytes = QFileInfo(paths.nextTwins).size();
    const QByteArray words =
        QByteArray::number(clientBytes) + ' ' + QByteArray::number(twinBytes) + ' ' + paths.kept.toUtf8() + '\n';
    NewFile marker(paths.marker);
    return marker.open() && marker.write(words) && marker.commit() && flushNames(paths);
}

// A new file waits in full length, or is in its place already.
bool isReady(const QString& next, const QString& current, const QByteArray& markedSize) {
    const QFileInfo file(QFile::exists(next) ? next : current);
    return file.isFile() && QByteArray::number(file.size()) == markedSize;
}

// Both sizes and the name that is kept, if there is one.
QList<QByteArray> markerWords(const PairPaths& paths) {
    QFile marker(paths.marker);
    if (!marker.open(QIODevice::ReadOnly)) return {};
    return marker.read(256).trimmed().split(' ');
}

// The names that the last commit worked with.
PairPaths markedPaths(const ProgramFolder& folder) {
    return PairPaths(folder, QString::fromUtf8(markerWords(PairPaths(folder)).value(2)));
}

bool newPairIsWhole(const PairPaths& paths) {
    const QList<QByteArray> words = markerWords(paths);
    return words.size() >= 2 && isReady(paths.nextClients, paths.clients, words[0]) &&
           isReady(paths.nextTwins, paths.twins, words[1]);
}

// Each step passes over what an earlier, killed run has done.
bool putNewPairInPlace(const PairPaths& paths) {
    if (QFile::exists(paths.nextClients)) {
        if (!QFile::exists(paths.previousClients) && QFileInfo(paths.clients).isFile() &&
            !moveOnto(paths.clients, paths.previousClients))
            return false;
        if (!flushNames(paths) || !moveOnto(paths.nextClients, paths.clients)) return false;
    }
    if (QFile::exists(paths.nextTwins) && !moveOnto(paths.nextTwins, paths.twins)) return false;
    // The new pair stands by now, whatever becomes of the notes.
    if (QFile::exists(paths.nextNotes)) (void)moveOnto(paths.nextNotes, paths.notes);
    return true;
}

bool putOldClientsBack(const PairPaths& paths) {
    const bool swapIsHalfDone = QFile::exists(paths.nextTwins) || !QFile::exists(paths.clients);
    if (!swapIsHalfDone || !QFile::exists(paths.previousClients)) return true;
    return moveOnto(paths.previousClients, paths.clients);
}

void removeNewFiles(const PairPaths& paths) {
    QFile::remove(paths.nextClients);
    QFile::remove(paths.nextTwins);
    QFile::remove(paths.nextNotes);
}

// Puts the new pair in place, or leaves the old one. As long as something is left to do or nobody knows whether the
// disk has it all, the marker stays for the next start, or the next change of the database; what is in place stays so.
bool finish(const PairPaths& paths) {
    const bool finished = newPairIsWhole(paths) && putNewPairInPlace(paths);
    if (!finished && !putOldClientsBack(paths)) return false;
    const bool isNoneAside = !finished || !paths.kept.isEmpty() || isGone(paths.previousClients);
    if (isNoneAside && flushNames(paths) && isGone(paths.marker)) {
        removeNewFiles(paths);
        (void)flushNames(paths); // the next commit flushes it
    }
    return finished;
}

// A swap that was refused half-way may hold the only copy of the clients: nothing is read or replaced before it is
// done, nor while somebody holds the files for a moment.
bool settle(const ProgramFolder& folder) {
    const PairPaths paths = markedPaths(folder);
    if (QFile::exists(paths.marker)) (void)finish(paths);
    if (QFile::exists(paths.marker)) return false;
    // Opening makes a missing file, which would pass for the clients of a swap.
    (void)patiently(
        [&] { return RecordFile<ClientRec>(folder).isReadable() && RecordFile<TwinRec>(folder).isReadable(); });
    return true;
}

QByteArrayView bytesOf(const auto& record) {
    return {reinterpret_cast<const char*>(&record), qsizetype{sizeof record}};
}

template<class Rec>
QByteArrayView bytesOf(std::span<Rec> records) {
    return {reinterpret_cast<const char*>(records.data()), static_cast<qsizetype>(records.size_bytes())};
}

} // namespace

qint64 clientCount(const ProgramFolder& folder) {
    const RecordFile<ClientRec> clients(folder);
    if (!clients.isReadable()) throw UnreadableFile(QString::fromLatin1(ClientRec::fileName));
    return clients.count();
}

std::optional<Client> readClient(const ProgramFolder& folder, qint64 number) {
    RecordFile<ClientRec> clients(folder);
    if (number < 1 || number > clients.count()) return std::nullopt;
    Client client;
    const bool isRead = clients.read(number, client.client) && RecordFile<TwinRec>(folder).read(number, client.twin);
    return isRead ? std::optional(client) : std::nullopt;
}

ClientReplacement::ClientReplacement(const ProgramFolder& folder)
    : folder_(folder)
    , clients_(PairPaths(folder).nextClients)
    , twins_(PairPaths(folder).nextTwins) {
    whole_ = settle(folder) && clients_.open() && twins_.open();
    buffer_.clients.reserve(bufferSize + clientLength);
    buffer_.twins.reserve(bufferSize);
}

void ClientReplacement::append(const Client& client) {
    buffer_.clients.append(bytesOf(client.client));
    buffer_.twins.append(bytesOf(client.twin));
    if (buffer_.clients.size() >= bufferSize) flush();
}

void ClientReplacement::append(QByteArrayView clients, QByteArrayView twins) {
    flush();
    whole_ = whole_ && clients_.write(clients) && twins_.write(twins);
}

void ClientReplacement::keep(qint64 first, qint64 last) {
    flush();
    if (!whole_) return;
    RecordFile<ClientRec> clients(folder_);
    RecordFile<TwinRec> twins(folder_);
    whole_ = clients.isReadable() && twins.isReadable();
    last = std::min(last, clients.count());
    constexpr qint64 pieceLength = bufferSize / clientLength;
    std::vector<ClientRec> clientPiece(pieceLength);
    std::vector<TwinRec> twinPiece(pieceLength);
    for (; whole_ && first <= last; first += pieceLength) {
        const auto number = static_cast<std::size_t>(std::min(pieceLength, last - first + 1));
        const std::span clientsRead(clientPiece.data(), number);
        const std::span twinsRead(twinPiece.data(), number);
        whole_ = clients.readMany(first, clientsRead) && twins.readMany(first, twinsRead) &&
                 clients_.write(bytesOf(clientsRead)) && twins_.write(bytesOf(twinsRead));
    }
}

// The memory is used again: first use of memory takes longer than the copying.
void ClientReplacement::flush() {
    whole_ = whole_ && clients_.write(buffer_.clients) && twins_.write(buffer_.twins);
    buffer_.clients.resize(0);
    buffer_.twins.resize(0);
}

bool ClientReplacement::commit(const CommitExtras& extras) {
    flush();
    if (!whole_) return false;
    (void)clientCount(folder_); // creates a missing file, so that there always is an old one to put back
    const PairPaths paths(folder_, extras.keepOldClientsAs);
    const QFileInfo twins(paths.twins);
    if (!QFileInfo(paths.clients).isWritable() || (twins.exists() && !twins.isWritable())) return false;
    const auto isFree = [&] {
        return paths.kept.isEmpty() ? isGone(paths.previousClients) : !QFile::exists(paths.previousClients);
    };
    // A marker of an earlier commit would speak for files that are not its own.
    if (!isGone(paths.marker) || !isGone(paths.nextNotes) || !isFree()) return false;
    const bool notesStored = extras.importNotes.isEmpty() || replaceFile(paths.nextNotes, extras.importNotes);
    const bool waiting = notesStored && clients_.finish() && twins_.finish() && clients_.commit(Flush::no) &&
                         twins_.commit(Flush::no) && flushNames(paths);
    if (!waiting || !writeMarker(paths)) {
        if (isGone(paths.marker)) removeNewFiles(paths);
        return false;
    }
    return finish(paths);
}

Recovery finishInterruptedCommit(const ProgramFolder& folder) {
    removeUnfinished(folder.path());
    const PairPaths paths = markedPaths(folder);
    if (QFile::exists(paths.marker)) return finish(paths) ? Recovery::settled : Recovery::oldPairKept;
    removeNewFiles(paths);
    const bool areAside = !QFile::exists(paths.clients) && QFileInfo(paths.previousClients).size() > 0;
    return areAside && moveOnto(paths.previousClients, paths.clients) ? Recovery::clientsFound : Recovery::settled;
}

qint64 addClient(const ProgramFolder& folder, const Client& client) {
    if (!settle(folder)) return 0;
    const qint64 number = clientCount(folder) + 1;
    if (number > maxClientNumber) return 0;
    ClientReplacement replacement(folder);
    replacement.keep(1);
    replacement.append(client);
    return replacement.commit() ? number : 0;
}

namespace {

// The database with the record of client `number` and its twin replaced by others; by none, if those are empty.
bool replaceRecords(const ProgramFolder& folder, qint64 number, QByteArrayView client, QByteArrayView twin) {
    if (!settle(folder) || number < 1 || number > clientCount(folder)) return false;
    ClientReplacement replacement(folder);
    replacement.keep(1, number - 1);
    replacement.append(client, twin);
    replacement.keep(number + 1);
    return replacement.commit();
}

} // namespace

bool modifyClient(const ProgramFolder& folder, qint64 number, const Client& client) {
    return replaceRecords(folder, number, bytesOf(client.client), bytesOf(client.twin));
}

bool deleteClient(const ProgramFolder& folder, qint64 number) { return replaceRecords(folder, number, {}, {}); }

bool wipeClients(const ProgramFolder& folder) { return ClientReplacement(folder).commit(); }
