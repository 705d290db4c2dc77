#pragma once

#include "records/file_stamp.h"

#include <QImage>
#include <QString>

// What tells a picture file from an earlier or another one; of a missing file only the path.
struct PictureStamp {
    QString path;
    std::optional<FileStamp> file;
    friend bool operator==(const PictureStamp&, const PictureStamp&) = default;
};
inline PictureStamp stampOf(const QString& path) { return {path, fileStamp(path)}; }

// A picture file as it is shown and printed: on white where it is transparent, which a printer doesn't know, its first
// image if there are several. A camera's turn isn't looked at.
struct PictureFile {
    QImage image; // may have fewer pixels than the file; null where the file is missing or no picture
    QSize pixels; // of the file
};

// Decoded no larger than `mostSide` pixels on the longer side; where the format allows, that is much quicker than
// decoding the whole.
PictureFile readPicture(const QString& path, int mostSide);

// In hundredths of a millimetre at the screen's 96 dots to the inch, whatever the file says of its density.
QSizeF ownSize(QSize pixels);
