#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The pink check: front or back, as the tab shows (PinkCheckTab::side), upright (Allo) and sideways (Fekvo). The batch
// routines (Cs) print the selected clients, one page each; sideways they know the front only.

PrintOutcome PrintAlloRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
