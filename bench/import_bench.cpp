#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "exchange/csv_export.h"
#include "exchange/csv_import.h"
#include "exchange/watched_folder.h"
#include "samples.h"

#include <QDir>

#include <map>

#include <unistd.h>

namespace {

// What earlier work left for the disk is written first, not on the clock.
void settleDisk() { ::sync(); }

double timeOfImportOf(const QString& csv, int clients) {
    static const ScratchFolder scratch;
    settleDisk();
    qint64 imported = 0;
    const double seconds =
        secondsOf([&] { imported = importClients(csv, scratch.folder(), {ImportMode::overwrite}).clients; });
    if (imported != clients) qFatal("the import failed");
    return seconds;
}

double timeOfImport(int clients) { return timeOfImportOf(sampleCsv(clients), clients); }

double timeOfBareImport(const QString& csv) {
    static const ScratchFolder scratch;
    settleDisk();
    return secondsOf([&] { bareImport(csv, scratch.folder().path()); });
}

double timeOfExport(int clients, const std::function<void(const QString& path)>& write) {
    static const ScratchFolder scratch;
    const QString path = scratch.folder().file(QStringLiteral("ki.csv"));
    QFile::remove(path);
    sampleFolder(clients);
    settleDisk();
    const double seconds = secondsOf([&] { write(path); });
    if (QFileInfo(path).size() != clients * exportLineLength) qFatal("the export failed");
    return seconds;
}

// A program folder with a watched folder beside the data.
struct Watch {
    ScratchFolder scratch;
    QString file = scratch.folder().file(QStringLiteral("be/uj.csv"));

    explicit Watch(int otherFiles = 0) {
        const QDir watched(scratch.folder().file(QStringLiteral("be")));
        watched.mkpath(QStringLiteral("."));
        for (int i = 0; i < otherFiles; ++i)
            (void)QFile(watched.filePath(QStringLiteral("%1.txt").arg(i))).open(QIODevice::WriteOnly);
        updateRecord<Set>(scratch.folder(), [&](Set& set) {
            set.chkAutBeolvas = 1;
            set.opHozzafuzes_1 = true;
            set.txtAutBeolvas.set(watched.path());
        });
    }
    TickOutcome tick() const { return watchTick(scratch.folder(), QDateTime::currentDateTime().addSecs(60)); }
};

double timeOfEmptyTick(int otherFiles) {
    static std::map<int, Watch> watches;
    const Watch& watch = watches.try_emplace(otherFiles, otherFiles).first->second;
    return secondsOf([&] { (void)watch.tick(); });
}

double timeOfTick(int clients) {
    static const Watch watch;
    QFile::copy(sampleCsv(clients), watch.file);
    settleDisk();
    qint64 imported = 0;
    const double seconds = secondsOf([&] { imported = watch.tick().import.clients; });
    if (imported != clients) qFatal("the tick failed");
    return seconds;
}

} // namespace

void addImportBenches(Suite& suite) {
    const struct {
        const char* name;
        QString (*csv)(int clients);
        double timesLimit;
    } encodings[] = {{"", sampleCsv, 1.3}, {" of UTF-8", sampleUtf8Csv, 1.8}};
    for (const auto& [name, csv, timesLimit] : encodings)
        for (const int clients : {100'000, 300'000})
            suite.add(Comparison{"CSV import, " + std::to_string(clients) + " lines" + name,
                                 [csv, clients] { return timeOfImportOf(csv(clients), clients); },
                                 "plain loop, one buffer a file",
                                 [csv, clients] { return timeOfBareImport(csv(clients)); },
                                 {Aim::Kind::timesLimit, timesLimit}});
    suite.add(Growth{"CSV import", timeOfImport});
    for (const int clients : {32'767, 300'000})
        suite.add(Comparison{
            "CSV export, " + std::to_string(clients) + " clients",
            [clients] {
                return timeOfExport(clients, [=](const QString& path) { exportClients(path, sampleFolder(clients)); });
            },
            "plain loop, one buffer",
            [clients] { return timeOfExport(clients, [=](const QString& path) { bareExport(path, clients); }); },
            {Aim::Kind::timesLimit, 1.6}});
    for (const int otherFiles : {0, 1000})
        suite.add(Comparison{"tick that finds nothing among " + std::to_string(otherFiles) + " files",
                             [otherFiles] { return timeOfEmptyTick(otherFiles); },
                             "",
                             {},
                             {Aim::Kind::milliseconds, 1}});
    suite.add(Comparison{"tick with 100000 lines",
                         [] { return timeOfTick(100'000); },
                         "import of the same lines",
                         [] { return timeOfImport(100'000); },
                         {Aim::Kind::timesLimit, 1.1}});
}
