#pragma once

#include "records/client_database.h"

#include <vector>

// The twelve amounts that are kept for a client, in forints. A slot is empty when it holds 0; a value that isn't usable
// (isUsableAmount) is never shown, but its slot isn't empty.

struct StoredAmount {
    int slot; // 1 to 12
    int forints;
};

// The usable amounts in slot order; empty slots leave a gap in the numbers.
std::vector<StoredAmount> storedAmounts(const ClientRec& client);
// The same as the digits that boxes offer.
QStringList offeredAmounts(const ClientRec& client);

enum class AmountStored { stored, full, noClient, notWritten };

// Puts an amount into the client's first empty slot. Unless it is `stored`, nothing changed.
[[nodiscard]] AmountStored addAmount(const ProgramFolder& folder, int number, int forints);
// Puts an amount into a slot of the client; 0 empties it.
[[nodiscard]] AmountStored setAmount(const ProgramFolder& folder, int number, int slot, int forints);
