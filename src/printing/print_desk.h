#pragma once

#include "printing/print_device.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

#include <vector>

// What every print routine works with.
struct PrintDesk {
    PrintDevice& device;
    Prompts& prompts;
    const ProgramFolder& folder;
};

// The rows of the client list as record numbers, in the order on the screen.
struct ListRows {
    std::vector<int> all;
    std::vector<int> selected;
};

// A press of the batch button shows the print dialog; automatic printing prints without it.
enum class PrintDialog { show, skip };

// What a routine came to, for the status line; the user has already seen the boxes that belong to it.
struct PrintOutcome {
    int pages = 0;   // handed over
    QString device;  // where
    QString trouble; // the first thing that went wrong or was missing; empty if nothing did
};
