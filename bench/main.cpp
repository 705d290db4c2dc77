#include "benches.h"
#include "comparison.h"

#include <QApplication>

#include <malloc.h>

// tarlimo_bench [part of an item's name]
// Measures the program against the limits of the machine. Always exits with 0: on a busy machine a ratio may be over
// its aim for reasons that lie elsewhere.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Large blocks come fresh from the system at every size, for the program as for its limits. Left to itself the
    // library hands a small database the memory of the one before, which makes it look six times as fast.
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
    // The first option freezes this one at its least, and small blocks would go back to the system after every page.
    mallopt(M_TRIM_THRESHOLD, 2 << 20);
    const QApplication application(argc, argv);
    Suite suite;
    addWindowBenches(suite); // first: a process starts others faster while it is small
    addListBenches(suite);
    addSortBenches(suite);
    addAddressBenches(suite);
    addImportBenches(suite);
    addPrintBenches(suite);
    addPictureBenches(suite);
    addWordsBenches(suite);
    suite.run(argc > 1 ? argv[1] : "");
    return 0;
}
