#pragma once

#include "records/client_records.h"
#include "records/record_file.h"

#include <QSaveFile>

// The client database is a pair of files in step: record k of both is one client. A client exists once its record in
// nevek1.dat is whole; a shorter twin file reads as zeros.

// Beyond this number a client cannot be picked from the list: the held record number has 16 bits.
constexpr qint64 maxClientNumber = 32767;

struct Client {
    ClientRec client;
    TwinRec twin;
};

// Number of clients.
qint64 clientCount(const ProgramFolder& folder);

// A new pair of files in the making: written aside and flushed, then put in the place of the old pair as one step. A
// kill at any moment leaves the old pair or, after finishInterruptedCommit, the new one, both files in step.
class ClientReplacement {
public:
    explicit ClientReplacement(const ProgramFolder& folder);

    // Appends raw records; the byte counts are multiples of the record lengths.
    void appendClients(QByteArrayView records);
    void appendTwins(QByteArrayView records);
    // False: nothing was replaced, the old pair stands (disk full, folder not writable). To be called once, last.
    [[nodiscard]] bool commit();

private:
    const ProgramFolder& folder_;
    QSaveFile clients_;
    QSaveFile twins_;
    bool whole_ = true;
};

// Finishes or clears away what a killed process left of a commit. Run once at start, before anyone opens the pair.
void finishInterruptedCommit(const ProgramFolder& folder);

// Deletes client `number`; those behind it move down by one. False, and nothing changes, if it isn't there or the new
// pair could not be written.
[[nodiscard]] bool deleteClient(const ProgramFolder& folder, qint64 number);

// Empties the database.
[[nodiscard]] bool wipeClients(const ProgramFolder& folder);
