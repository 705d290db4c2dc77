#include "samples.h"

#include "exchange/csv_import.h"

#include <QDir>
#include <QProcess>

#include <map>
#include <memory>

namespace {

[[noreturn]] void giveUp(const QString& what) { qFatal("%s", qPrintable(what)); }

std::unique_ptr<ScratchFolder> filledFolder(int clients) {
    auto made = std::make_unique<ScratchFolder>();
    const QDir delivered(QStringLiteral(TARLIMO_PROGRAM_FOLDER));
    for (const QFileInfo& file : delivered.entryInfoList(QDir::Files))
        if (!file.isExecutable()) QFile::copy(file.filePath(), made->folder().file(file.fileName()));
    const ImportOutcome outcome = importClients(sampleCsv(clients), made->folder(), {ImportMode::overwrite});
    if (outcome.clients != clients) giveUp(QStringLiteral("the sample clients could not be imported"));
    return made;
}

} // namespace

QString sampleCsv(int clients) {
    static const ScratchFolder scratch;
    const QString path = scratch.folder().file(QStringLiteral("%1.csv").arg(clients));
    const QStringList arguments{QString::number(clients), path};
    if (!QFile::exists(path) && QProcess::execute(QStringLiteral(MAKE_SAMPLE_CSV), arguments) != 0)
        giveUp(QStringLiteral("the sample file could not be written: ") + path);
    return path;
}

const ProgramFolder& sampleFolder(int clients) {
    static std::map<int, std::unique_ptr<ScratchFolder>> folders;
    std::unique_ptr<ScratchFolder>& folder = folders[clients];
    if (!folder) folder = filledFolder(clients);
    return folder->folder();
}
