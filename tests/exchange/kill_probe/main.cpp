#include "exchange/csv_import.h"
#include "exchange/older_database.h"
#include "exchange/watched_folder.h"
#include "records/client_database.h"

#include <QCoreApplication>

#include <cstdio>

// A process to be killed: says "go", does one operation on the database of a program folder, and says "done".
// kill_probe <delete|wipe|convert|tick|append|overwrite> <program folder> [CSV file]
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const ProgramFolder folder(arguments.value(2));
    const auto say = [](const char* word) {
        std::puts(word);
        std::fflush(stdout);
    };

    say("go");
    bool done = false;
    if (arguments.value(1) == QStringLiteral("delete")) {
        done = deleteClient(folder, 2);
    } else if (arguments.value(1) == QStringLiteral("wipe")) {
        done = wipeClients(folder);
    } else if (arguments.value(1) == QStringLiteral("convert")) {
        done = convertOlderDatabase(folder) == Conversion::converted;
    } else if (arguments.value(1) == QStringLiteral("tick")) {
        done = watchTick(folder, QDateTime::currentDateTime().addSecs(60)).result == TickOutcome::Result::imported;
    } else {
        const ImportMode mode =
            arguments.value(1) == QStringLiteral("append") ? ImportMode::append : ImportMode::overwrite;
        done = importClients(arguments.value(3), folder, {mode}).result == ImportOutcome::Result::imported;
    }
    say(done ? "done" : "failed");
    return done ? 0 : 1;
}
