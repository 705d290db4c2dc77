#pragma once

#include "records/client_database.h"

#include <optional>

// The texts of one client as they are typed, under the names of the entry dialog's boxes.
struct ClientEntry {
    QString txBefizetoNeve, txEtkezo; // name and its second line; of a foreign client the second is the street address
    QString txBefizetoCim1;           // settlement; of a foreign client postcode and town
    QString txBefizetoCim2;           // street address; of a foreign client the country
    QString txBefizetoIrsz;           // of a foreign client one blank
    QString txBefizAnonosito, txtKozlem3sor;
    bool chkKulfCim = false;
};

// A stored client as the dialog shows it: trimmed, but the postcode as stored.
ClientEntry entryOf(const Client& client);

// A client that was never stored: what the entry doesn't tell is blank, and there are no amounts.
Client newClient(const ClientEntry& entry);

// Puts the entry into a stored client. Amounts, document number, attachment, own mark and item identifier stay;
// deadline and kind of document, which only an import fills, are emptied.
void put(const ClientEntry& entry, Client& client);

// The first text that a new client must have and `entry` lacks.
struct MissingText {
    QString ClientEntry::*text;
    QString message;
};
std::optional<MissingText> firstMissing(const ClientEntry& entry);

// What won't reach a field of `width` bytes as it was typed: a tail that is cut, letters without a place in
// Windows-1250. Empty if all of it will.
QString storageWarning(const QString& text, qsizetype width);
