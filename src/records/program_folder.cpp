#include "records/program_folder.h"

#include "records/file_replacement.h"

ProgramFolder::ProgramFolder(QString path) : path_(std::move(path)) {}

QString ProgramFolder::file(const QString& name) const { return path_ + u'/' + name; }

bool ProgramFolder::isWritable() const {
    // Only an attempt tells: permissions alone say nothing of read-only media or of the system's access lists.
    return NewFile(file(QStringLiteral("iras"))).open();
}
