#include "records/file_stamp.h"

#include <QDateTime>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <QFile>

#include <sys/stat.h>
#endif

namespace {

constexpr qint64 nsEachMs = 1'000'000;

}

#ifdef Q_OS_UNIX
std::optional<FileStamp> fileStamp(const QString& path) {
    struct stat about {};
    if (::stat(QFile::encodeName(path).constData(), &about) != 0) return std::nullopt;
    return FileStamp{about.st_size, about.st_mtim.tv_sec * 1000 * nsEachMs + about.st_mtim.tv_nsec};
}
#else
std::optional<FileStamp> fileStamp(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return std::nullopt;
    return FileStamp{file.size(), file.lastModified().toMSecsSinceEpoch() * nsEachMs};
}
#endif

bool showsNextWrite(const FileStamp& stamp) {
    constexpr qint64 coarsestMs = 2'000;
    return QDateTime::currentMSecsSinceEpoch() - stamp.mtimeNs / nsEachMs > coarsestMs;
}
