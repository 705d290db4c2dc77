#pragma once

#include <QString>

// The folder that holds all state of the program: a value, handed to whoever opens files. The process never changes its
// current folder, and no other place is read or written.
class ProgramFolder {
public:
    explicit ProgramFolder(QString path);

    const QString& path() const { return path_; }
    // Full path of a file of the folder; the letters' case is that of `name`.
    QString file(const QString& name) const;
    bool isWritable() const;

private:
    QString path_;
};
