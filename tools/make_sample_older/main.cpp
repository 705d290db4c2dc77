#include "older_sample.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <cstdio>

// make_sample_older <CSV file> <target file>
// Writes the clients of a file of make_sample_csv as a database of the earlier version.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QByteArray bytes = arguments.size() == 3 ? olderSample(arguments[1]) : QByteArray();
    QFile target(arguments.value(2));
    if (!bytes.isEmpty() && target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size()) return 0;
    std::fputs("make_sample_older: usage: make_sample_older <CSV file> <target file>\n", stderr);
    return 1;
}
