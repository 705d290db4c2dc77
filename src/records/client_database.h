#pragma once

#include "records/client_records.h"
#include "records/record_file.h"

#include <optional>

// The client database is a pair of files in step: record k of both is one client. A client exists once its record in
// nevek1.dat is whole; a shorter twin file reads as zeros, a longer one has a tail that belongs to nobody.

// Beyond this number a client cannot be picked from the list: the held record number has 16 bits.
constexpr qint64 maxClientNumber = 32767;

struct Client {
    ClientRec client;
    TwinRec twin;
};

// The whole database as the bytes of its records, as many twins as clients.
struct ClientPair {
    QByteArray clients;
    QByteArray twins;
};

// Number of clients. Throws UnreadableFile, which it is not to be taken for none.
qint64 clientCount(const ProgramFolder& folder);

// Client `number`, a twin that was never written as zeros. Nothing if there is no such client or it can't be read.
std::optional<Client> readClient(const ProgramFolder& folder, qint64 number);

// Reads each file once and brings the twins into step. Nothing if a file is there but can't be read.
std::optional<ClientPair> readClientPair(const ProgramFolder& folder);

// What the importer knows of files that it has done with. It changes in the same step as the pair, so that no file is
// taken twice after a kill.
constexpr auto importNotesFile = "figyelt.lst";

// What a commit does beside replacing the pair.
struct CommitExtras {
    QByteArray importNotes = {};   // new contents of importNotesFile; empty leaves them as they are
    QString keepOldClientsAs = {}; // name for the old nevek1.dat, which must be free; empty: it goes
};

// A new pair of files in the making: written aside and flushed, then put in the place of the old pair as one step. A
// kill at any moment leaves the old pair or, after finishInterruptedCommit, the new one, both files in step. Destroyed
// without a commit it leaves no trace.
class ClientReplacement {
public:
    explicit ClientReplacement(const ProgramFolder& folder);

    void append(const Client& client);
    // Raw records, as many twins as clients.
    void append(QByteArrayView clients, QByteArrayView twins);
    // Throws UnreadableFile, before anything changed. False: nothing was replaced, the old pair stands (disk full,
    // folder or a file not writable, one held by another program, the name to keep the old file under taken). To be
    // called once, last.
    [[nodiscard]] bool commit(const CommitExtras& extras = {});

private:
    void flush();

    ProgramFolder folder_;
    NewFile clients_;
    NewFile twins_;
    ClientPair buffer_;
    bool whole_; // every byte so far reached the files
};

enum class Recovery {
    settled,     // nothing to tell: no commit was interrupted, or it is finished now
    oldPairKept, // the new pair that was to be finished is damaged or can't be put in place, and the old one stands
    clientsFound // nevek1.dat was gone and the clients set aside were put back
};
// Finishes or clears away what a killed process left of a commit. Run once at start, before anyone opens the pair.
[[nodiscard]] Recovery finishInterruptedCommit(const ProgramFolder& folder);

// These throw UnreadableFile, and nothing changes, where the database can't be read.

// Stores a client behind the last one and returns its number; 0, and the database is as it was, if it holds
// maxClientNumber clients already or can't be written.
[[nodiscard]] qint64 addClient(const ProgramFolder& folder, const Client& client);

// Replaces both records of client `number` as one step. False, and nothing changes, if there is no such client or the
// new pair could not be written.
[[nodiscard]] bool modifyClient(const ProgramFolder& folder, qint64 number, const Client& client);

// Deletes client `number`; those behind it move down by one. False, and nothing changes, if it isn't there or the new
// pair could not be written.
[[nodiscard]] bool deleteClient(const ProgramFolder& folder, qint64 number);

// Empties the database. False, and nothing changes, if that could not be written.
[[nodiscard]] bool wipeClients(const ProgramFolder& folder);
