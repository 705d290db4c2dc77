#pragma once

#include <QString>

// Lines of a text file, by their ends. What a file of millions would do to the machine is asked before it is read in;
// one that can't be read has none.
qint64 lineCount(const QString& path);

constexpr qint64 manyLines = 100'000;        // from here on the clerk is asked
constexpr qint64 mostWatchedLines = 300'000; // that are taken with nobody to ask
