#include "records/file_replacement.h"

#include "records/disk.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <filesystem>
#include <system_error>

namespace {

// Where a link leads to, be it there or not.
QString target(const QString& path) {
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < 8; ++links)
        file.setFile(file.symLinkTarget());
    return file.absoluteFilePath();
}

QString unfinishedName(const QString& path) {
    return path + QStringLiteral(".~") + QString::number(QCoreApplication::applicationPid());
}

} // namespace

NewFile::NewFile(const QString& path) : path_(target(path)), file_(unfinishedName(path_)) {}

NewFile::~NewFile() {
    if (file_.isOpen()) file_.remove();
}

bool NewFile::open() {
    const QFileInfo old(path_);
    if (old.exists() && !(old.isFile() && old.isWritable())) return false;
    // Unbuffered: each write tells its own error.
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) return false;
    return !old.exists() || file_.setPermissions(old.permissions());
}

bool NewFile::write(QByteArrayView bytes) { return file_.write(bytes.data(), bytes.size()) == bytes.size(); }

bool NewFile::finish(Flush flush) { return file_.isOpen() && (flush == Flush::no || flushToDisk(file_)); }

bool NewFile::commit(Flush flush) {
    if (!finish(flush)) return false;
    file_.close();
    if (moveOnto(file_.fileName(), path_)) return true;
    file_.remove();
    return false;
}

bool replaceFile(const QString& path, QByteArrayView bytes) {
    NewFile file(path);
    if (!file.open() || !file.write(bytes) || !file.commit()) return false;
    (void)flushFolder(QFileInfo(target(path)).path()); // it is in place, be its name safe or not
    return true;
}

// QFile::rename would refuse where `to` exists.
bool moveOnto(const QString& from, const QString& to) {
    const std::filesystem::path source = QFileInfo(from).filesystemFilePath();
    const std::filesystem::path place = QFileInfo(to).filesystemFilePath();
    return patiently([&] {
        std::error_code error;
        std::filesystem::rename(source, place, error);
        return !error;
    });
}

void removeUnfinished(const QString& folder) {
    static const QRegularExpression ofOurs(QStringLiteral("^.+\\.~[0-9]+$"));
    QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden))
        if (ofOurs.match(name).hasMatch()) dir.remove(name);
}
