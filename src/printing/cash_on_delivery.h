#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The cash-on-delivery form, upright (Allo) and sideways (Fekvo), for what the tab shows or (Cs) for clients of the
// list, one page each; the side is the one on view. In a batch every client is the addressee, whatever the swap of the
// parties says, while payee and marks come from the tab. A device error drops the job silently.
PrintOutcome PrintAlloULap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoULap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloUlap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoUlap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
