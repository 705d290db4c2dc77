#include "platform/spooler.h"

#ifdef TARLIMO_CUPS
#include <cups/cups.h>

QString spoolerTrouble() {
    if (cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE) return {};
    return QString::fromUtf8(cupsLastErrorString());
}

bool canShutSpooler() { return true; }

// A server that nobody can reach, and then the system's own again.
ShutSpooler::ShutSpooler() { cupsSetServer("/nonexistent/shut"); }
ShutSpooler::~ShutSpooler() { cupsSetServer(nullptr); }
#else
QString spoolerTrouble() { return {}; }
bool canShutSpooler() { return false; }

ShutSpooler::ShutSpooler() = default;
ShutSpooler::~ShutSpooler() = default;
#endif
