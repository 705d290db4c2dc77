#pragma once

#include <QString>

// What the print spooler answered to the job that this thread has just handed over: empty if it took it. The toolkit
// does not look, so a refused job would pass for a printed one. Always empty where the toolkit itself speaks to the
// printer.
QString spoolerTrouble();

// Whether a printer's job can still be held back while it is painted. Not where the toolkit itself speaks to the
// printer, which takes pages as they come.
bool canShutSpooler();

// While one lives, no job of this thread reaches the print spooler, where that can be.
class ShutSpooler {
public:
    ShutSpooler();
    ShutSpooler(const ShutSpooler&) = delete;
    ShutSpooler& operator=(const ShutSpooler&) = delete;
    ~ShutSpooler();
};
