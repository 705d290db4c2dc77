#pragma once

#include "records/program_folder.h"

#include <QByteArray>
#include <QFileInfo>

#include <optional>
#include <vector>

// A file as it was at one moment: whoever writes to it makes another one of it.
struct FileVersion {
    explicit FileVersion(const QFileInfo& file)
        : path(file.absoluteFilePath())
        , size(file.size())
        , changed(file.lastModified().toMSecsSinceEpoch()) {}
    FileVersion(QString filePath, qint64 bytes, qint64 changedAt)
        : path(std::move(filePath))
        , size(bytes)
        , changed(changedAt) {}

    QString path;   // absolute
    qint64 size;    // bytes
    qint64 changed; // milliseconds since 1970

    bool operator==(const FileVersion&) const = default;
};

// The files of the watched folder that the importer has done with though they are still there: text beside the data,
// one file a line. A line that can't be read counts as none.
class ImportNotes {
public:
    enum class Kind {
        imported,  // to the end: it only waits to be deleted
        passedOver // left where it is until somebody changes it
    };

    explicit ImportNotes(const ProgramFolder& folder);

    std::optional<Kind> find(const FileVersion& file) const;
    void add(const FileVersion& file, Kind kind);
    // Forgets files that are gone or have changed since, so that the same file may come again; those of a folder that
    // is away stay. Tells whether there were any.
    bool dropStale();
    // What importNotesFile is to hold.
    QByteArray bytes() const;

private:
    struct Note {
        FileVersion file;
        Kind kind;
    };
    std::vector<Note> notes_;
};
