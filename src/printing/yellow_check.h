#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"
#include "records/client_records.h"
#include "settings/general_settings.h"

// The yellow check, upright (Allo) and sideways (Fekvo), for what the tab shows or (Cs) for clients of the list, one
// page each, with notice and titles from the tab. Single and sideways routines drop the job silently on a device error.

PrintOutcome PrintAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
// Takes all rows instead of the selected ones while automatic printing (chkAutoPrint) is switched on.
PrintOutcome PrintCsAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);

// The payment deadline as it stands on a check: the label of the settings, a blank, the client's own text, which may be
// empty. For use while chkFizHat is True.
QString deadlineText(const Set& set, const ClientRec& client);
