#pragma once

#include <QByteArray>
#include <QString>

// A client database of the earlier version with the clients of a CSV file: what is longer than its fields is cut, and
// the twenty amounts are the first one and multiples of it. Empty if the file can't be read.
QByteArray olderSample(const QString& csv);
