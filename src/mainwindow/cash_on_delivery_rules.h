#pragma once

#include "mainwindow/receipt_rules.h"
#include "printing/form_tabs.h"
#include "printing/print_device.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"

// What an edit of a control of the cash-on-delivery form's tab does to the others. Each works on the tab's values, in
// which the edited control already holds its new text or tick.

// The client, without the amount: addressee, or with the parties swapped the payee, the fixed party then being the
// addressee.
void showClient(CashOnDeliveryTab& tab, const ClientRec& client, const PostalLines& address, const SetRcsekk& set);

// The tab comes into view: the payee as stored now, by address or by bank account. With the parties swapped the client
// stands in the payee's place, and nothing changes.
void reload(CashOnDeliveryTab& tab, const SetRcsekk& set);

// Swaps the parties, or puts them back; `client` is the one last clicked.
void chkCimzettCsereUlap_Click(CashOnDeliveryTab& tab, const ClientRec& client, const SetRcsekk& set);

// A new amount: its words between stars, on two lines if wider than the form's row, or "**" for none.
void txUosszeg_Change(CashOnDeliveryTab& tab, const Set& set, PrintDevice& device);

// Turns the page.
void cmdUtanvetOdalCsere_Click(CashOnDeliveryTab& tab);
