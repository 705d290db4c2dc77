#pragma once

#include "exchange/progress.h"
#include "records/program_folder.h"

// The client database as lines of text, in the columns of the import except that the last two change places. Every line
// has 331 bytes, CR and LF included: the fields stand in fixed places, padded with blanks and cut, a ';' ahead of each
// but the first. Text is Windows-1250 as stored; a byte that would end the line or the text becomes a blank.
constexpr qint64 exportLineLength = 331;

struct ExportOutcome {
    enum class Result {
        written,
        ownFile,    // the path is a data file of the program: nothing was done
        unreadable, // the database can't be read: nothing was written
        notWritten, // no right, a file in use, a full disk: what was there stands, and no new file was left
        brokenOff   // the disk failed half-way: the file holds new lines and old ones
    };
    Result result = Result::notWritten;
    qint64 clients = 0;
    bool hasOldLines = false; // the file was longer than what was written
};

// Writes all clients to a file in its place. A longer file isn't shortened: its old lines stay behind the new ones.
ExportOutcome exportClients(const QString& path, const ProgramFolder& folder, const ProgressFn& progress = {});
