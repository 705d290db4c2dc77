#include "records/file_replacement.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

bool replaceFile(const QString& path, QByteArrayView bytes) {
    QSaveFile file(path);
    // Unbuffered: QSaveFile looks at the errors of its own writes only, not at those of a buffer flushed behind it.
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(bytes.data(), bytes.size()) == bytes.size() && file.commit();
}

// QFile::rename would refuse where `to` exists.
bool moveOnto(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return !error;
}

// QSaveFile writes under the name of the file with six letters more.
void removeUnfinished(const QString& path) {
    QDir folder = QFileInfo(path).dir();
    for (const QString& file : folder.entryList({QFileInfo(path).fileName() + QStringLiteral(".??????")}, QDir::Files))
        folder.remove(file);
}
