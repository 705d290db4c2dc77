#pragma once

#include "printing/print_device.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

#include <functional>
#include <vector>

enum class Feed { upright, sideways }; // OpOrientacioAllo, OpOrientacioFekvo

// A job goes through its pages twice: a batch is written page by page, then any job is handed over to its device.
enum class PrintStage { writing, handingOver };

struct PagesDone {
    PrintStage stage;
    int done;       // from 1 to pages
    int pages;      // in a PDF each copy counts as pages of its own
    bool canCancel; // whether an answer of false is heard
};

// Told after each page of either stage, on the thread that prints. The answer false drops the whole job: nothing
// prints, no box comes up, and the outcome says that the user stopped it. Where it can't be cancelled any more (a
// native Windows printer takes pages as they come) the answer doesn't count.
using PageProgress = std::function<bool(const PagesDone&)>;

// What every print routine works with.
struct PrintDesk {
    PrintDevice& device;
    Prompts& prompts;
    const ProgramFolder& folder;
    // A clerk pressed a button: dialogs and questions come up. Automatic printing goes without them.
    bool attended = true;
    PageProgress progress = {};
    // Takes the selected rows out of the list on the screen. Batches whose routine does so
    // (FormRoutine::takesClientsOut) ask for it while the settings have chkPrintDel on: once, when they know their
    // clients and before the first page prints. Nothing is taken out where nobody hands it in.
    std::function<void()> takeSelectedOut = {};
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
    QString trouble; // why no page came out, or the first thing that was wrong with them; empty if all is in order
};
