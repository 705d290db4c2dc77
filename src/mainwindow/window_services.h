#pragma once

#include "printing/print_service.h"
#include "prompts/prompts.h"

#include <functional>

// What the window needs of the machine; app hands in the real things, a test its own.
struct WindowServices {
    PrintService& printing;
    Prompts& prompts;
    // Opens a file in the system's viewer for it.
    std::function<void(const QString& path)> openDocument;
    // File that the last job on the PDF device became.
    std::function<QString()> lastPdf;
    // Starts the platform's system information tool; empty where there is none.
    std::function<void()> openSystemInformation;
    // Starts another program with one argument; false if it can't be started.
    std::function<bool(const QString& program, const QString& argument)> startProgram;
};
