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

// The kinds of a file that holds pictures for the desktop. In the list of its pictures two numbers depend on the kind:
// planes and bits a pixel of an icon, the place that a cursor points with.
enum class Kind : quint16 { icon = 1, cursor = 2 };
struct Listed {
    QSize size;
    QPoint numbers;
    QByteArray picture;
};

QByteArray pictureList(Kind kind, const QList<Listed>& pictures) {
    constexpr int headBytes = 6;
    constexpr int entryBytes = 16;
    const auto sizeByte = [](int size) { return static_cast<quint8>(size == 256 ? 0 : size); };
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << static_cast<quint16>(kind) << quint16(pictures.size());
    qsizetype place = headBytes + entryBytes * pictures.size();
    for (const Listed& listed : pictures) {
        out << sizeByte(listed.size.width()) << sizeByte(listed.size.height()) << quint8(0) << quint8(0); // no palette
        out << quint16(listed.numbers.x()) << quint16(listed.numbers.y());
        out << quint32(listed.picture.size()) << quint32(place);
        place += listed.picture.size();
    }
    for (const Listed& listed : pictures)
        out.writeRawData(listed.picture.constData(), static_cast<int>(listed.picture.size()));
    return bytes;
}

// As a bitmap without a file header, 32 bits a pixel: colours, then a mask.
QByteArray bitmap(const QImage& image) {
    const int width = image.width();
    const int height = image.height();
    const int maskLine = (width + 31) / 32 * 4; // one bit a pixel, lines of whole 32-bit words
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(40) << qint32(width) << qint32(2 * height);    // bitmap header; colours and mask count together
    out << quint16(1) << quint16(32) << quint32(0) << quint32(0); // planes, bits a pixel, not compressed
    out << quint32(0) << quint32(0) << quint32(0) << quint32(0);  // resolution, palette
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32); // lines go from the bottom up
    for (int y = height - 1; y >= 0; --y)
        for (int x = 0; x < width; ++x)
            out << quint32(pixels.pixel(x, y));
    // An empty mask: all is taken from the colours, whose alpha tells what is seen.
    return bytes + QByteArray(qsizetype{height} * maskLine, '\0');
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

QByteArray iconFile(const QList<QImage>& images) {
    QList<Listed> pictures;
    for (const QImage& image : images) // not every system reads small ones that are compressed
        pictures << Listed{image.size(), QPoint(1, 32), image.width() < 256 ? bitmap(image) : pngFile(image)};
    return pictureList(Kind::icon, pictures);
}

QByteArray cursorFile(const QImage& image, const QPoint& hotspot) {
    return pictureList(Kind::cursor, {{image.size(), hotspot, bitmap(image)}});
}
