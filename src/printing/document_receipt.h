#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The return receipt for official documents, upright (Allo) and sideways (Fekvo), for what the tab shows or (Cs) for
// clients of the list, one page each. A batch takes addressee and document from the records, both addresses of the
// sender from the settings, and all else from the tab. A step that fails is passed over. Batches take their clients out
// of the list if the settings say so.

PrintOutcome PrintAlloIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
