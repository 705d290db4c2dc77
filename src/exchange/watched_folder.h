#pragma once

#include "exchange/csv_import.h"
#include "settings/general_settings.h"

#include <QDateTime>

// The folder that other programs put their files into, as Set.dat has it.
struct WatchSettings {
    explicit WatchSettings(const Set& set);

    bool isOn;      // ticked, and a folder is named
    QString folder; // trimmed
    ImportMode mode;
    bool prints; // checks after an import; never while it appends
};

// Whether a file of this path would be taken as one of the watched folder.
bool liesInWatchedFolder(const QString& path, const WatchSettings& watch);

// What one look into the watched folder came to.
struct TickOutcome {
    enum class Result {
        off,           // not configured: the timer stops
        folderMissing, // or no folder, or no full path
        idle,          // no file, or none that is ready
        imported,      // the database has changed, and import.mode says how
        refused        // the database is as it was, and import.result says why
    };
    Result result = Result::idle;
    QString file = {};         // its name; empty for none
    ImportOutcome import = {}; // calledOff: the file is no text
    ImportMode mode = ImportMode::append;
    bool prints = false;       // checks are to be printed, if every client has an amount
    bool isPassedOver = false; // the file stays, and isn't taken again before somebody changes it
    bool isTooLong = false;    // more lines than are taken with nobody to ask
    bool isStuck = false;      // it was imported, but can't be deleted

    bool timerGoesOn() const { return result != Result::off; }
};

// A tick: takes the first file by name that is ready, imports and deletes it. A file that has changed less than two
// seconds before `now`, or while it was read, is still being written and waits; one that can't be opened waits too, and
// the next one is taken. An empty line ends the reading: what stands before it is imported, and the file stays and is
// passed over, as one is that is empty or no text. A file that was imported is noted in the same step, so that none is
// taken twice though it should still be there. `progress` hears of a file before it is read.
TickOutcome watchTick(const ProgramFolder& folder, const QDateTime& now, const ProgressFn& progress = {});

// In the user's words; empty for nothing to say.
QString tickText(const TickOutcome& outcome);
