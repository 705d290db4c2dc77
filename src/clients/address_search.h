#pragma once

#include "clients/client_entry.h"

#include <vector>

// The postcode lookup. Each search walks Telepulesek.dat or Budapest.dat from the first record to the last; nothing is
// kept of them. A missing or unreadable table, and records without a name, give no hits. Texts are compared whole,
// without the blanks around them and without regard to case.

// What the list of several hits holds.
enum class KeresesMod { nothing, settlements, streetsByName, streetsByPostcode };

// One row of the list: what its columns show from the first on, and the number of its record.
struct AddressHit {
    QStringList columns;
    qint64 record;
};

// The addresses that a search leaves to choose from; none where it found nothing or a single one.
struct AddressChoice {
    KeresesMod keresesMod = KeresesMod::nothing;
    std::vector<AddressHit> hits;
};

// The three searches. A single hit is filled in at once; without a hit the texts that it would have filled are emptied.
// A street always is one of Budapest. A postcode of other than four characters, not counting blanks behind it, changes
// nothing.
AddressChoice searchSettlement(const ProgramFolder& folder, ClientEntry& entry);
AddressChoice searchStreet(const ProgramFolder& folder, ClientEntry& entry);
AddressChoice searchPostcode(const ProgramFolder& folder, ClientEntry& entry);

// Fills in the hit with the given record number. Nothing happens if the table hasn't such a record any more.
void chooseAddress(const ProgramFolder& folder, KeresesMod keresesMod, qint64 record, ClientEntry& entry);
