#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The envelope: addressee, picture and sender, each by its switch on the tab. "Allo" is the upright feed, "Fekvo"
// sideways, "Cs" a batch over clients. A single print takes the sender from the tab, a batch from the settings. They
// take the tab, or the selected rows.
PrintOutcome PrintAlloBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintFekvoBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsAlloBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
PrintOutcome PrintCsFekvoBoritek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
