#include "make_program_folder/pictures.h"

#include <QBuffer>
#include <QDataStream>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int jpegQuality = 90;

QImage render(QSvgRenderer& drawing, const QSize& size, Qt::GlobalColor background) {
    if (!drawing.isValid() || size.isEmpty()) return {};
    QImage image(size, QImage::Format_ARGB32);
    image.fill(background);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    drawing.render(&painter);
    return image;
}

QByteArray imageFile(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format, quality) ? bytes : QByteArray();
}

} // namespace

QImage renderStationery(const QString& svgPath, int pixelsPerMm) {
    QSvgRenderer drawing(svgPath);
    QImage image = render(drawing, (drawing.viewBoxF().size() * pixelsPerMm).toSize(), Qt::white);
    image.setDotsPerMeterX(pixelsPerMm * 1000);
    image.setDotsPerMeterY(pixelsPerMm * 1000);
    return image;
}

QImage renderDrawing(const QString& svgPath, const QSize& size, Qt::GlobalColor background) {
    QSvgRenderer drawing(svgPath);
    return render(drawing, size, background);
}

QByteArray jpegFile(const QImage& image) {
    return imageFile(image.convertToFormat(QImage::Format_RGB32), "jpg", jpegQuality);
}

QByteArray pngFile(const QImage& image) { return imageFile(image, "png", -1); }

QByteArray cursorFile(const QImage& image, const QPoint& hotspot) {
    const int width = image.width();
    const int height = image.height();
    const int maskLine = (width + 31) / 32 * 4; // one bit a pixel, lines of whole 32-bit words
    constexpr int headBytes = 6 + 16;           // of the file, of its one picture
    const int pictureBytes = 40 + height * (width * 4 + maskLine);

    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(2) << quint16(1);                    // a cursor file of one picture
    out << quint8(width) << quint8(height) << quint8(0) << quint8(0); // no palette
    out << quint16(hotspot.x()) << quint16(hotspot.y());
    out << quint32(pictureBytes) << quint32(headBytes);           // length and place of the picture
    out << quint32(40) << qint32(width) << qint32(2 * height);    // bitmap header; colours and mask count together
    out << quint16(1) << quint16(32) << quint32(0) << quint32(0); // planes, bits a pixel, not compressed
    out << quint32(0) << quint32(0) << quint32(0) << quint32(0);  // resolution, palette
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32); // lines go from the bottom up
    for (int y = height - 1; y >= 0; --y)
        for (int x = 0; x < width; ++x)
            out << quint32(pixels.pixel(x, y));
    const QByteArray mask(qsizetype{height} * maskLine,
                          '\0'); // all taken from the colours: their alpha tells what is seen
    out.writeRawData(mask.constData(), static_cast<int>(mask.size()));
    return bytes;
}
