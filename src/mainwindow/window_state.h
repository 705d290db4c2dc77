#pragma once

#include "mainwindow/client_pour.h"
#include "printing/print_desk.h"
#include "settings/envelope_label_settings.h"
#include "settings/general_settings.h"

// What the window remembers from one run to the next, between the records and the values of the tabs. The controls that
// aren't on a tab (printer, list order, tab number) are the window's own.

// Fields of Set.dat that a start brings back, with what their controls set off.
void restoreTabs(FormTabs& tabs, const Set& set, const ProgramFolder& folder);
// The records behind the envelope and the labels: bold flags, picture, fonts and sizes of the lines.
void restoreSheets(FormTabs& tabs, const ProgramFolder& folder);

// What the window remembers beside the tabs.
struct WindowChoices {
    bool ascending;
    Feed feed;
    bool systemDefault;
};
// The other way, at exit; all other fields are left alone. False: not all of it was stored.
bool storeWindow(const ProgramFolder& folder, const FormTabs& tabs, const WindowChoices& choices);
