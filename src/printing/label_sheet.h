#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// A4 sheets of address labels. With chkEgyediCimke the five lines that the preview shows print on each ticked place of
// the tab; else each ticked place gets its client; with no tick on the sheet the selected rows of the list fill as many
// sheets as they need. Labels print on the device and page that are in force. The stored count of printed labels grows
// by those that went out.
PrintOutcome PrintAlloCimke(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
