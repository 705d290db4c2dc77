#include "exchange/line_count.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

qint64 lineCount(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return 0;
    QByteArray piece(1 << 20, Qt::Uninitialized);
    qint64 feeds = 0, returns = 0;
    for (qint64 length = 0; (length = file.read(piece.data(), piece.size())) > 0;) {
        feeds += std::count(piece.constData(), piece.constData() + length, '\n');
        returns += std::count(piece.constData(), piece.constData() + length, '\r');
    }
    return std::max(feeds, returns); // CR LF is one end
}
