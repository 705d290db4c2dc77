#pragma once

#include <QtGlobal>

#include <functional>

// Told after each piece of about a megabyte of a file that is read or written.
using ProgressFn = std::function<void(qint64 bytesDone, qint64 bytesTotal)>;
