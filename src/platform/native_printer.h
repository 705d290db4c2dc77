#pragma once

#include "platform/job_painter.h"

class QPrinterInfo;

// Prints on a printer that the toolkit itself speaks to (Windows). It takes pages as they come: what was painted before
// a failure has left the program. DeviceError 482, also if the system's spooler refused the job.
void printNatively(const PrintJob& job, const QPrinterInfo& info, FontBook& fonts, const PaperOffer& offer,
                   const PagePainted& painted);

// What the toolkit's printer warned of while one lives: the only way that it tells of a page or a job that the system's
// spooler refused. One at a time, on the thread that prints.
class PrinterWarnings {
public:
    PrinterWarnings();
    PrinterWarnings(const PrinterWarnings&) = delete;
    PrinterWarnings& operator=(const PrinterWarnings&) = delete;
    ~PrinterWarnings();
    // Empty if there was none.
    const QString& first() const;
};
