#pragma once

#include "exchange/csv_clients.h"
#include "exchange/progress.h"
#include "records/program_folder.h"

#include <QIODevice>
#include <QStringList>

// What becomes of the clients that are there already.
enum class ImportMode { append, overwrite };

struct ImportOutcome {
    enum class Result {
        imported,
        empty,      // not one line: the database is as it was, in overwrite mode too
        calledOff,  // by ImportWay::confirm: the database is as it was
        unreadable, // no such file, no right to it, or an error on the way: the database is as it was
        notWritten  // the new database could not be written, or the old one not read: it is as it was
    };
    Result result = Result::unreadable;
    qint64 clients = 0;                  // lines read
    qint64 withoutAmount = 0;            // of these, how many have the amount 0
    qint64 badAmounts = 0;               // of these, how many have an amount that could not be understood and became 0
    qint64 cutTexts = 0;                 // how many texts were longer than their field
    std::vector<CsvFault> firstFaults{}; // the first of both, in the order of the file
    bool endedAtEmptyLine = false;       // under EmptyLine::end
    bool holdsNul = false;               // and so isn't the text that it should be
};

// A line for each of the first faults, in the user's words, and one that counts the rest; empty if there is none.
QStringList faultLines(const ImportOutcome& outcome);

// What one import does otherwise than another.
struct ImportWay {
    ImportMode mode = ImportMode::append;
    std::span<const CsvColumn> columns = importColumns;
    EmptyLine emptyLine = EmptyLine::client;
    // Asked when all is read and nothing is replaced yet: the import notes that are to be stored in the same step, or
    // nothing to call it off.
    std::function<std::optional<QByteArray>(const ImportOutcome&)> confirm = {};
};

// Reads the clients of a text file into the database, which is replaced as one step at the end. UTF-8 is known by its
// byte order mark or by being valid UTF-8 with letters beyond ASCII; anything else is Windows-1250. Memory doesn't grow
// with the file.
ImportOutcome importClients(const QString& path, const ProgramFolder& folder, const ImportWay& way,
                            const ProgressFn& progress = {});
// The same from any device that is open for reading and can go back to its start.
ImportOutcome importClients(QIODevice& csv, const ProgramFolder& folder, const ImportWay& way,
                            const ProgressFn& progress = {});
