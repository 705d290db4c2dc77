#include "platform/program_lock.h"

#include <QFileInfo>

ProgramLock::ProgramLock(const ProgramFolder& folder) : lock_(folder.file(QStringLiteral("Tarlimo.zar"))) {
    lock_.setStaleLockTime(0); // a program may run for days
    if (lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError) return;
    qint64 process = 0;
    QString machine, program;
    lock_.getLockInfo(&process, &machine, &program);
    const QString user = QFileInfo(lock_.fileName()).owner();
    holder_ = user.isEmpty() ? machine : machine + QStringLiteral(", ") + user;
    if (holder_.isEmpty()) holder_ = QStringLiteral("?");
}
