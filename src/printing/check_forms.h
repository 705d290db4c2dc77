#pragma once

#include "printing/amount_in_words.h"
#include "printing/form_tabs.h"
#include "printing/item_table.h"
#include "settings/general_settings.h"

// What the money forms share.

// Set::chkNyomtatando by its places: the groups of items that can be left out, and (keepTicks) whether the window keeps
// these ticks.
struct Printed {
    enum Flag { amount, words, name, address, notice, title, keepTicks, identifier };
};

// The groups that the settings have ticked. If there is none of them at all, the outcome says so.
PrintOptions checkOptions(Pen& pen, const Set& set, Run run);

// The client's first stored amount in words, starred and fitted to the word rows of a form.
WordRows batchWords(PrintDevice& device, std::int32_t amount, const Text<25>& font, int size);

// The box that rejects a single print while the yellow check's tab names nobody.
std::optional<Message> missingClient(const YellowCheckTab& tab);
