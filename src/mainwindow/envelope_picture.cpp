#include "mainwindow/envelope_picture.h"

#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace {

// Twips of the screen to a millimetre of the envelope, and to a centimetre of the picture's own size. A C5 envelope is
// shown flatter than the others.
constexpr double across = 44;
constexpr double perCentimetre = 543;
double down(const EnvelopeTab& tab) { return tab.type == EnvelopeType::C5 ? 31 : 44; }

constexpr double leastSide = 1900, mostSide = 8000; // of the box, twips

QString wholeMm(double mm) { return qRound(mm) == 0 ? QString() : QString::number(qRound(mm)); }

Cur centimetres(double twips) { return Cur::fromTenThousandths(qRound64(twips / perCentimetre * 10000)); }

// As it prints: turned as a camera says, and on white where it is transparent, which a printer doesn't know.
QImage loadedPicture(const QString& path) {
    if (path.isEmpty()) return {};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (!image.hasAlphaChannel()) return image;
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.setDotsPerMeterX(image.dotsPerMeterX());
    flat.setDotsPerMeterY(image.dotsPerMeterY());
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(QPoint(), image);
    return flat;
}

// In hundredths of a millimetre, which the box compares with its twips as bare numbers.
QSizeF ownSize(const QImage& picture) {
    return {100000.0 * picture.width() / std::max(1, picture.dotsPerMeterX()),
            100000.0 * picture.height() / std::max(1, picture.dotsPerMeterY())};
}

// A picture larger than its square box shrinks into it; a smaller one keeps its own size, and the box its.
void fitPicture(EnvelopeTab& tab) {
    const double side = tab.Image3.width();
    QSizeF size = ownSize(tab.picture);
    if (std::max(size.width(), size.height()) > side) {
        size *= side / std::max(size.width(), size.height());
        tab.Image3.setSize(size);
    }
    tab.kepSzeles = centimetres(size.width());
    tab.kepMagas = centimetres(size.height());
}

} // namespace

void restorePicture(EnvelopeTab& tab, const Kepment& stored) {
    const double larger = std::max(double{stored.Width.toFloat()}, double{stored.Height.toFloat()});
    const double side = std::clamp(larger, leastSide, mostSide);
    tab.Image3 = QRectF(stored.Left, stored.Top, side, side);
    tab.kepFajl = stored.kepFajl.trimmed();
    tab.picture = loadedPicture(tab.kepFajl);
    if (!tab.picture.isNull()) fitPicture(tab);
    showPicturePosition(tab);
}

void showPicturePosition(EnvelopeTab& tab) {
    tab.lbXpoz = wholeMm(tab.Image3.x() / across);
    tab.lbYpoz = wholeMm(tab.Image3.y() / down(tab));
}

QRectF pictureOnEnvelope(const EnvelopeTab& tab) {
    const QPointF place(tab.Image3.x() / across, tab.Image3.y() / down(tab));
    if (tab.picture.isNull()) return {place, QSizeF(tab.Image3.width() / across, tab.Image3.height() / down(tab))};
    const auto mm = [](const Cur& cm) { return static_cast<double>(cm.tenThousandths()) / 1000; };
    return {place, QSizeF(mm(tab.kepSzeles), mm(tab.kepMagas))};
}
