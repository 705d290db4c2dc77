#include "picture/envelope_picture.h"

#include "records/number_text.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Twips of the screen to a millimetre of the envelope, and to a centimetre of the printed picture. A C5 envelope is
// measured flatter than the others.
constexpr double across = 44;
constexpr double perCentimetre = 543;

struct TypeRow {
    double down;  // twips to a millimetre
    int lowestMm; // that the picture may reach
};
constexpr TypeRow types[] = {{44, 114}, {31, 162}, {44, 114}};
const TypeRow& rowOf(EnvelopeType type) { return types[static_cast<int>(type) - 1]; }

constexpr double largestStored = 100000; // twips: no envelope holds more, and a record that says more is damaged
constexpr int mostPrintedPixels = 4096;  // on the longer side: sharp enough for the largest envelope

QString wholeMm(double mm) { return qRound(mm) == 0 ? QString() : QString::number(qRound(mm)); }

void showPosition(EnvelopePicture& picture, double horizontal) {
    picture.lbXpoz = wholeMm(picture.Image3.x() / horizontal);
    picture.lbYpoz = wholeMm(picture.Image3.y() / rowOf(picture.type).down);
}

Cur centimetres(double twips) { return Cur::fromTenThousandths(qRound64(twips / perCentimetre * 10000)); }

// One decimal behind the system's own sign; no digit before it below 1.
QString shownCentimetres(const Cur& size) {
    const qint64 tenths = qRound64(static_cast<double>(size.tenThousandths()) / 1000);
    const QString whole = tenths < 10 ? QString() : QString::number(tenths / 10);
    return whole + QLocale().decimalPoint() + QString::number(tenths % 10) + QStringLiteral(" cm");
}

void read(EnvelopePicture& picture) {
    const PictureStamp file = stampOf(picture.kepFajl);
    if (file == picture.readFrom) return;
    const PictureFile read = readPicture(picture.kepFajl, mostPrintedPixels);
    picture.picture = read.image;
    picture.pixels = read.pixels;
    picture.readFrom = file;
}

std::int16_t storedTwips(double twips) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<double>(std::round(twips), Limits::min(), Limits::max()));
}

void testLowerEdge(EnvelopePicture& picture) {
    const QString height = QString(picture.lbMagas).replace(u',', u'.');
    const double lowest = leadingNumber(picture.lbYpoz) + 10 * leadingNumber(height);
    const bool hangsOver = lowest > rowOf(picture.type).lowestMm;
    picture.lbFigyelem = hangsOver ? QStringLiteral("A kép alja lelóg a borítékról!") : QString();
}

} // namespace

void restorePicture(EnvelopePicture& picture, const Kepment& stored) {
    const QSizeF size(double{stored.Width.toFloat()}, double{stored.Height.toFloat()});
    picture.Image3 = QRectF(QPointF(stored.Left, stored.Top), size);
    picture.kepFajl = stored.kepFajl.trimmed();
    const double larger = std::max(size.width(), size.height());
    picture.HScroll1 = larger > leastScroll && larger <= largestStored ? qRound(larger) : leastScroll;
    picture.HScroll1Max = std::max(picture.HScroll1Max, picture.HScroll1);
    showPicturePosition(picture);
}

bool storePicture(const EnvelopePicture& picture, Kepment& stored) {
    if (!decltype(stored.kepFajl)::keeps(picture.kepFajl)) return false;
    stored.kepFajl.set(picture.kepFajl);
    stored.Left = storedTwips(picture.Image3.left());
    stored.Top = storedTwips(picture.Image3.top());
    stored.Width = Cur::fromTenThousandths(qRound64(picture.Image3.width() * 10000));
    stored.Height = Cur::fromTenThousandths(qRound64(picture.Image3.height() * 10000));
    return true;
}

void fitPicture(EnvelopePicture& picture) {
    const double side = picture.HScroll1;
    picture.Image3.setSize({side, side});
    if (picture.kepFajl.isEmpty()) return;
    read(picture);
    if (picture.picture.isNull()) return;
    QSizeF size = ownSize(picture.pixels); // compared with the twips of the square as bare numbers
    const double larger = std::max(size.width(), size.height());
    if (larger > side) {
        size *= side / larger;
        picture.Image3.setSize(size);
    }
    picture.kepSzeles = centimetres(size.width());
    picture.kepMagas = centimetres(size.height());
    picture.lbSzeles = shownCentimetres(picture.kepSzeles);
    picture.lbMagas = shownCentimetres(picture.kepMagas);
    picture.HScroll1Max = std::max(leastScroll, static_cast<int>(larger) - 1);
    picture.HScroll1 = std::min(picture.HScroll1, picture.HScroll1Max);
}

void showPicturePosition(EnvelopePicture& picture) { showPosition(picture, across); }

void showFoundPosition(EnvelopePicture& picture) { showPosition(picture, rowOf(picture.type).down); }

void pressPicture(EnvelopePicture& picture, QPointF at) {
    picture.kepMozog = true;
    picture.kepFogas = QPointF(at.toPoint());
}

void movePicture(EnvelopePicture& picture, QPointF at) {
    if (picture.kepMozog) picture.Image3.translate(at - picture.kepFogas);
    testLowerEdge(picture);
    showPicturePosition(picture);
}

void releasePicture(EnvelopePicture& picture) {
    picture.kepMozog = false;
    testLowerEdge(picture);
}

QPointF twipsOf(const EnvelopePicture& picture, QPointF mm) {
    return {mm.x() * across, mm.y() * rowOf(picture.type).down};
}

QRectF pictureOnEnvelope(const EnvelopePicture& picture) {
    const double down = rowOf(picture.type).down;
    const QRectF& box = picture.Image3;
    const QPointF place(box.x() / across, box.y() / down);
    if (picture.picture.isNull()) return {place, QSizeF(box.width() / across, box.height() / down)};
    const auto mm = [](const Cur& cm) { return static_cast<double>(cm.tenThousandths()) / 1000; };
    return {place, QSizeF(mm(picture.kepSzeles), mm(picture.kepMagas))};
}
