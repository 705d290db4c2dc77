#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "exchange/csv_export.h"
#include "exchange/csv_import.h"
#include "exchange/watched_folder.h"
#include "records/client_database.h"
#include "samples.h"

#include <QDir>

#include <map>

#include <unistd.h>

namespace {

// What earlier work left for the disk is written first, not on the clock.
void settleDisk() { ::sync(); }

using Clock = double (*)(const std::function<void()>&);
constexpr Clock wall = secondsOf<const std::function<void()>&>;
constexpr Clock cpu = cpuSecondsOf<const std::function<void()>&>;

double timeOfImport(const QString& csv, int clients, Clock clock) {
    static const ScratchFolder scratch;
    settleDisk();
    qint64 imported = 0;
    const double seconds =
        clock([&] { imported = importClients(csv, scratch.folder(), {ImportMode::overwrite}).clients; });
    if (imported != clients) qFatal("the import failed");
    return seconds;
}

// So many lines behind so many clients.
double timeOfAppend(int lines, int present) {
    static const ScratchFolder scratch;
    const QString csv = sampleCsv(lines);
    for (const char* name : {ClientRec::fileName, TwinRec::fileName}) {
        const QString path = scratch.folder().file(QString::fromLatin1(name));
        QFile::remove(path);
        QFile::copy(sampleFolder(present).file(QString::fromLatin1(name)), path);
    }
    settleDisk();
    const double seconds = cpu([&] { importClients(csv, scratch.folder(), {ImportMode::append}); });
    if (clientCount(scratch.folder()) != present + lines) qFatal("the import failed");
    return seconds;
}

double timeOfBareImport(const QString& csv, Clock clock, const QString& present = {}) {
    static const ScratchFolder scratch;
    settleDisk();
    return clock([&] { bareImport(csv, scratch.folder().path(), present); });
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
        int clients;
        QString (*csv)(int clients);
        Clock clock;
        Aim aim;
    } imports[] = {{" lines, CPU", 100'000, sampleCsv, cpu, {Aim::Kind::timesLimit, 1.3}},
                   {" lines, CPU", 300'000, sampleCsv, cpu, {Aim::Kind::timesLimit, 1.3}},
                   {" lines of UTF-8, CPU", 100'000, sampleUtf8Csv, cpu, {Aim::Kind::timesLimit, 1.8}},
                   {" lines of UTF-8, CPU", 300'000, sampleUtf8Csv, cpu, {Aim::Kind::timesLimit, 1.8}},
                   {" lines, with the disk", 300'000, sampleCsv, wall, {}}};
    for (const auto& [name, clients, csv, clock, aim] : imports)
        suite.add(Comparison{
            "CSV import, " + std::to_string(clients) + name, [=] { return timeOfImport(csv(clients), clients, clock); },
            "plain loop, one buffer a file", [=] { return timeOfBareImport(csv(clients), clock); }, aim});
    for (const auto& [lines, present] : {std::pair{1000, 32'767}, {100'000, 300'000}})
        suite.add(
            Comparison{"CSV import, " + std::to_string(lines) + " lines behind " + std::to_string(present) + ", CPU",
                       [=] { return timeOfAppend(lines, present); },
                       "the same, both files copied first",
                       [=] { return timeOfBareImport(sampleCsv(lines), cpu, sampleFolder(present).path()); },
                       {Aim::Kind::timesLimit, 1.3}});
    suite.add(Growth{"CSV import, CPU", [](int clients) { return timeOfImport(sampleCsv(clients), clients, cpu); }});
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
                         [] { return timeOfImport(sampleCsv(100'000), 100'000, wall); },
                         {Aim::Kind::timesLimit, 1.1}});
}
