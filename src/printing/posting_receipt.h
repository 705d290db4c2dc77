#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The posting receipt, upright (Allo) and sideways (Fekvo), for what the tab shows or (Cs) for clients of the list, one
// page each: a batch takes its addressees from the records and all else from the tab. An upright routine falls back to
// another font where the chosen one is missing and tells other errors; a sideways one drops the job silently. Batches
// take their clients out of the list if the settings say so.

PrintOutcome PrintAlloFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
