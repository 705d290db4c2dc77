#pragma once

#include "printing/amount_in_words.h"
#include "printing/item_table.h"
#include "records/client_database.h"

#include <functional>

// What the checks share.

// A text of the tab without the blanks at both ends.
inline QString trimmed(const QString& text) { return trimBlanks(text).toString(); }

// The groups of items that the settings have ticked. If there is none of them at all, the outcome says so.
Sheet checkSheet(Pen& pen, const Set& set, FormRun feed);

// The client's first stored amount in words, starred and fitted to the word rows of a check.
WordRows batchWords(PrintDevice& device, std::int32_t amount, const Text<25>& font, int size);

// One page for each client, in the order of the numbers; records are read fresh. A number that the 16 bits of a record
// number cannot hold, or none at all, is error 6 before the first page.
void printClients(Pen& pen, const ProgramFolder& folder, const std::vector<int>& numbers,
                  const std::function<void(const Client&)>& printPage);
