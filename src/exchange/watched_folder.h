#pragma once

#include "exchange/csv_import.h"
#include "settings/general_settings.h"

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
