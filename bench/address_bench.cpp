#include "bare_files.h"
#include "benches.h"
#include "clients/address_search.h"
#include "comparison.h"
#include "samples.h"

// ENTER in the street box: the larger table, walked from its first record to its last.
void addAddressBenches(Suite& suite) {
    const auto& folder = sampleFolder(1000);
    suite.add(
        Comparison{"postcode lookup of a street",
                   [&folder] {
                       ClientEntry entry;
                       entry.txBefizetoCim2 = QStringLiteral("váci");
                       std::size_t hits = 0;
                       const double seconds = secondsOf([&] { hits = searchStreet(folder, entry).hits.size(); });
                       if (hits < 2) qFatal("the street wasn't found");
                       return seconds;
                   },
                   "open, read(), close",
                   [path = folder.file(QStringLiteral("Budapest.dat"))] { return secondsOf([&] { bareRead(path); }); },
                   {Aim::Kind::milliseconds, 5}});
}
