#include "records/delivered_files.h"

#include "records/file_replacement.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool copy(const QString& from, const QString& to) {
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError && replaceFile(to, bytes);
}

} // namespace

QStringList placeDelivered(const QString& delivered, const ProgramFolder& folder) {
    QStringList failed;
    for (const QFileInfo& file : QDir(delivered).entryInfoList(QDir::Files, QDir::Name)) {
        const QString target = folder.file(file.fileName());
        if (QFileInfo(target).size() == 0 && !copy(file.filePath(), target)) failed << file.fileName();
    }
    return failed;
}
