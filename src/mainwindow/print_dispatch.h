#pragma once

#include "printing/form_tabs.h"
#include "printing/print_desk.h"

#include <optional>

enum class Press { single, batch }; // cmdPrint, cmdCsPrint

// Prints what a press of either button asks for, by the routing table of tab and feed. Nothing if there is no routine
// for it, if the press is a silent no-op (a yellow check without an amount), or if the user answered a warning with no.
std::optional<PrintOutcome> dispatchPrint(const PrintDesk& desk, const FormTabs& tabs, int tab, Feed feed, Press press,
                                          const ListRows& rows);
