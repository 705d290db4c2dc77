#include "samples.h"

#include "exchange/csv_import.h"
#include "records/client_records.h"
#include "records/delivered_files.h"
#include "records/windows1250.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>

#include <map>
#include <memory>

namespace {

[[noreturn]] void giveUp(const QString& what) { qFatal("%s", qPrintable(what)); }

QString scratchFile(const QString& name) {
    static const ScratchFolder scratch;
    return scratch.folder().file(name);
}

std::unique_ptr<ScratchFolder> filledFolder(int clients) {
    auto made = std::make_unique<ScratchFolder>();
    const QDir delivered(QStringLiteral(TARLIMO_PROGRAM_FOLDER));
    for (const QFileInfo& file : delivered.entryInfoList(QDir::Files))
        if (!file.isExecutable()) QFile::copy(file.filePath(), made->folder().file(file.fileName()));
    if (!placeDelivered(delivered.filePath(deliveredFolder), made->folder()).isEmpty())
        giveUp(QStringLiteral("the delivered settings could not be copied"));
    const ImportOutcome outcome = importClients(sampleCsv(clients), made->folder(), {ImportMode::overwrite});
    if (outcome.clients != clients) giveUp(QStringLiteral("the sample clients could not be imported"));
    return made;
}

} // namespace

QString sampleCsv(int clients) {
    const QString path = scratchFile(QStringLiteral("%1.csv").arg(clients));
    const QStringList arguments{QString::number(clients), path};
    if (!QFile::exists(path) && QProcess::execute(QStringLiteral(MAKE_SAMPLE_CSV), arguments) != 0)
        giveUp(QStringLiteral("the sample file could not be written: ") + path);
    return path;
}

QString sampleUtf8Csv(int clients) {
    const QString path = scratchFile(QStringLiteral("%1-utf8.csv").arg(clients));
    if (QFile::exists(path)) return path;
    QFile plain(sampleCsv(clients));
    QFile utf8(path);
    if (!plain.open(QIODevice::ReadOnly) || !utf8.open(QIODevice::WriteOnly)) giveUp(path);
    utf8.write(windows1250::decode(plain.readAll()).toUtf8());
    return path;
}

const ProgramFolder& sampleFolder(int clients) {
    static std::map<int, std::unique_ptr<ScratchFolder>> folders;
    std::unique_ptr<ScratchFolder>& folder = folders[clients];
    if (!folder) folder = filledFolder(clients);
    return folder->folder();
}

const ProgramFolder& restingFolder(int clients) {
    const ProgramFolder& folder = sampleFolder(clients);
    QFile file(folder.file(QString::fromLatin1(ClientRec::fileName)));
    const QDateTime hourAgo = QDateTime::currentDateTime().addSecs(-3600);
    if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(hourAgo, QFileDevice::FileModificationTime))
        giveUp(QStringLiteral("the time of the clients could not be set"));
    return folder;
}
