#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The return receipt, upright (Allo) and sideways (Fekvo), for what the tab shows or (Cs) for clients of the list, one
// page each, with office, date and marks from the tab. The tab also says which variant prints, domestic or foreign,
// whatever the clients are. A device error is passed over upright and drops the job silently sideways.
PrintOutcome PrintAlloTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
