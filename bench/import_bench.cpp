#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "exchange/csv_import.h"
#include "samples.h"

#include <unistd.h>

namespace {

// What earlier work left for the disk is written first, not on the clock.
void settleDisk() { ::sync(); }

double timeOfImport(int clients) {
    static const ScratchFolder scratch;
    const QString csv = sampleCsv(clients);
    settleDisk();
    qint64 imported = 0;
    const double seconds =
        secondsOf([&] { imported = importClients(csv, scratch.folder(), {ImportMode::overwrite}).clients; });
    if (imported != clients) qFatal("the import failed");
    return seconds;
}

double timeOfBareImport(int clients) {
    static const ScratchFolder scratch;
    const QString csv = sampleCsv(clients);
    settleDisk();
    return secondsOf([&] { bareImport(csv, scratch.folder().path()); });
}

} // namespace

void addImportBenches(Suite& suite) {
    for (const int clients : {100'000, 300'000})
        suite.add(Comparison{"CSV import, " + std::to_string(clients) + " lines",
                             [clients] { return timeOfImport(clients); },
                             "plain loop, one buffer a file",
                             [clients] { return timeOfBareImport(clients); },
                             {Aim::Kind::timesLimit, 3}});
    suite.add(Growth{"CSV import", timeOfImport});
}
