#pragma once

#include "mainwindow/bound_view.h"
#include "printing/form_tabs.h"

#include <array>

// All that the window needs to know of a tab, in the order of the tabs.
struct TabRow {
    const char16_t* caption; // blanks as the system has them
    const char* page;        // control name of the picture
    int setupOldal;          // page of the setup dialog that belongs to the tab
    bool singleOnly;         // showing the tab takes the batch button away
    const char* uprightSample;
    const char* sidewaysSample; // null: the form has the upright feed alone
    const char* amountBox;      // control of the amount, null for none
    BoundView* (*make)(FormTabs&, const FormContext&);
    // What the tab shows of the settings, fresh from the record; null for nothing.
    void (*reload)(FormTabs&, const FormContext&);
    // The bytes of that record, by which a change is seen.
    QByteArray (*shownRecord)(const ProgramFolder&);
};

extern const std::array<TabRow, 8> tabRows;

inline const TabRow& rowOf(Tab tab) { return tabRows[static_cast<std::size_t>(tab)]; }
