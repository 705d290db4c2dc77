#pragma once

#include "printing/form_tabs.h"
#include "printing/print_device.h"
#include "records/client_records.h"
#include "settings/check_layouts.h"

// What an edit of a control of the pink check's tab does to the others. Each works on the tab's values, in which the
// edited control already holds its new text or option.

// A new amount: its words, fitted to the form's word rows, with their copies. Without words the copies stay as they
// were. An amount above 9.999.999 shows the limit.
void RtxOsszeg_Change(PinkCheckTab& tab, const SetRcsekk& set, PrintDevice& device);
// The words were typed over.
void copyWords(PinkCheckTab& tab);

// Puts the fixed party on its side and empties the other one.
void opAllando_Click(PinkCheckTab& tab, const SetRcsekk& set);
// The tab comes into view: the fixed party as stored now, and the other side stays.
void reload(PinkCheckTab& tab, const SetRcsekk& set);

// The client, without the amounts, goes to the side that isn't fixed.
void showClient(PinkCheckTab& tab, const ClientRec& client);

// Turns the page.
void cmdOldalCsere_Click(PinkCheckTab& tab);
