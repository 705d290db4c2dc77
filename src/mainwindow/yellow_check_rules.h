#pragma once

#include "printing/form_tabs.h"
#include "printing/print_device.h"
#include "records/client_database.h"
#include "settings/general_settings.h"

// What an edit of a control of the yellow check's tab does to the others. Each works on the tab's values, in which the
// edited control already holds its new text or tick.

// A new amount: its words, fitted to the form's word rows. An amount above 99.999.999 shows the limit.
void txOsszeg_Change(YellowCheckTab& tab, const Set& set, PrintDevice& device);

// Ticked, the second title line takes the payer's identifier; unticked, it is emptied.
void chkBefAzonMasolasa_Click(YellowCheckTab& tab);

// Everything of a client but the amounts. The deadline is shown if the settings want it; the notice that the clerk
// typed is then replaced by it.
void showClient(YellowCheckTab& tab, const Client& client, const Set& set);
