#pragma once

#include "printing/print_device.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

#include <functional>
#include <vector>

enum class Feed { upright, sideways }; // OpOrientacioAllo, OpOrientacioFekvo

// Told after each page of a batch; the answer false drops the whole job.
using PageProgress = std::function<bool(int pagesDone, int pages)>;

// What every print routine works with.
struct PrintDesk {
    PrintDevice& device;
    Prompts& prompts;
    const ProgramFolder& folder;
    // A clerk pressed a button: dialogs and questions come up. Automatic printing goes without them.
    bool attended = true;
    PageProgress progress = {};
};

// The rows of the client list as record numbers, in the order on the screen.
struct ListRows {
    std::vector<int> all;
    std::vector<int> selected;
};

// What a routine came to, for the status line; the user has already seen the boxes that belong to it.
struct PrintOutcome {
    int pages = 0;   // handed over
    QString device;  // where
    QString trouble; // the first thing that went wrong or was missing; empty only if all pages are out and in order
};
