#pragma once

#include <QString>

// What the print spooler answered to the job that this thread has just handed over: empty if it took it. The toolkit
// does not look, so a refused job would pass for a printed one. Always empty where the toolkit itself speaks to the
// printer.
QString spoolerTrouble();
