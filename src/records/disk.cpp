#include "records/disk.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

// What a signal interrupted is done again.
template<class Call>
int repeated(Call call) {
    int result = 0;
    do
        result = call();
    while (result < 0 && errno == EINTR);
    return result;
}

bool flushHandle(int handle) {
    return repeated([handle] { return ::fsync(handle); }) == 0;
}

} // namespace

bool flushToDisk(QFileDevice& file) { return file.flush() && flushHandle(file.handle()); }

bool patiently(const std::function<bool()>& attempt) { return attempt(); }

bool flushFolder(const QString& folder) {
    const QByteArray path = QFile::encodeName(folder);
    const int handle = repeated([&] { return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0) return false;
    const bool flushed = flushHandle(handle) || errno == EINVAL; // some network drives have no such flush
    ::close(handle);
    return flushed;
}
#else
#include <QDeadlineTimer>
#include <QThread>

#include <io.h>

bool patiently(const std::function<bool()>& attempt) {
    for (const QDeadlineTimer second(1000); !attempt(); QThread::msleep(20))
        if (second.hasExpired()) return false;
    return true;
}

bool flushToDisk(QFileDevice& file) { return file.flush() && ::_commit(file.handle()) == 0; }

bool flushFolder(const QString& /*folder*/) { return true; }
#endif
