#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

enum class Press { single, batch }; // cmdPrint, cmdCsPrint

// What a press of either button asks for.
struct PrintRequest {
    Tab tab;
    Press press;
    Feed feed;
};

// Prints it by the routing table, after the questions about what a clerk would not expect of the press. `shownName` is
// the name of the client last clicked. Where nothing prints, the outcome's trouble says why.
PrintOutcome dispatchPrint(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request,
                           const ListRows& rows, const QString& shownName);

// Prints the names of the selected clients over the posting list, after the question whether the page is as it should
// be.
PrintOutcome dispatchPostingList(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows);
