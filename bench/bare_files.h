#pragma once

#include <QByteArrayView>
#include <QString>

// The limits of what a machine does with files: system calls and one buffer, nothing else.

// Opens a file, reads the whole of it into memory that is there already and begins at a page, and closes it. The bytes
// hold until the next call.
QByteArrayView bareRead(const QString& path);

// Copies both files of the client database in `present`, if one is named, reads a CSV file in pieces, splits it at line
// ends and ';', and writes both files of the client database into `folder`: one buffer each, flushed to the disk and
// put in the place of the old files. Knows the columns and their widths and nothing of quotes, encodings, blanks or
// errors.
void bareImport(const QString& csv, const QString& folder, const QString& present = {});

// Writes so many lines of an export into a new file: all bytes are copied into one buffer, which is handed to the
// system when it is full. Knows nothing of records.
void bareExport(const QString& path, int lines);

// Reads both files of the client database in `from` and writes them into `to` without the client in the middle, each in
// two calls, flushed to the disk and put in the place of the old file.
void bareDelete(const QString& from, const QString& to);
