#pragma once

#include <QByteArrayView>
#include <QString>

// A file is replaced as one step: its new contents are written whole and flushed beside it, then put in its place. Who
// opens it, after a kill too, finds the old file or the new one.

// Makes `bytes` the contents of a file, which need not exist. False: all is as it was (disk full, no right, a file held
// by another program).
[[nodiscard]] bool replaceFile(const QString& path, QByteArrayView bytes);

// Puts one file in the place of another; what stood there goes. False: both are where they were.
[[nodiscard]] bool moveOnto(const QString& from, const QString& to);

// Removes what a killed process left beside a file that it was to replace.
void removeUnfinished(const QString& path);
