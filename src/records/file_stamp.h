#pragma once

#include <QString>

#include <optional>

// A file as it was at one moment: with another stamp it has been written meanwhile.
struct FileStamp {
    qint64 size;    // bytes
    qint64 mtimeNs; // last write in nanoseconds since 1970, as exactly as the drive knows it
    bool operator==(const FileStamp&) const = default;
};

// Nothing if there is no such file.
std::optional<FileStamp> fileStamp(const QString& path);

// Whether the next write is sure to change this stamp. Not for a file that was written just now: drives round the time,
// some of them to two seconds.
bool showsNextWrite(const FileStamp& stamp);
