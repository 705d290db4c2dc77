#include "platform/spooler.h"

#ifdef TARLIMO_CUPS
#include <cups/cups.h>

QString spoolerTrouble() {
    if (cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE) return {};
    return QString::fromUtf8(cupsLastErrorString());
}
#else
QString spoolerTrouble() { return {}; }
#endif
