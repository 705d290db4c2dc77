#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

// The names of the selected clients, printed over sheets of the posting list, 14 a sheet. They print across the page
// and the device that are in force, at the margins of the settings.
PrintOutcome PrintFeladojegyzek(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
