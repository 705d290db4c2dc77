#include "picture/picture_file.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace {

// A scan of an A3 sheet in colour; what takes more is refused as no picture.
constexpr int mostMegabytes = 512;

QSize within(QSize size, int mostSide) {
    const bool fits = std::max(size.width(), size.height()) <= mostSide;
    return fits ? size : size.scaled(mostSide, mostSide, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage onWhite(const QImage& image) {
    if (!image.hasAlphaChannel()) return image;
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(QPoint(), image);
    return flat;
}

} // namespace

PictureFile readPicture(const QString& path, int mostSide) {
    if (!QFileInfo(path).isFile()) return {}; // a pipe would never end
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(path);
    const QSize pixels = reader.size();
    if (pixels.isValid()) reader.setScaledSize(within(pixels, mostSide));
    const QImage image = reader.read();
    return {onWhite(image), pixels.isValid() ? pixels : image.size()};
}

QSizeF ownSize(QSize pixels) { return QSizeF(pixels) * 2540 / 96; }
