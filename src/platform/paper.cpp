#include "platform/paper.h"

#include <algorithm>

namespace {

constexpr qreal sheetTolerance = 1; // mm

QSizeF sizeOf(const QPageSize& size) { return size.size(QPageSize::Millimeter); }

qreal areaOf(const QPageSize& size) { return sizeOf(size).width() * sizeOf(size).height(); }

QPageSize standardSheet(int paperCode) {
    switch (paperCode) {
    case 27:
        return QPageSize(QPageSize::EnvelopeDL);
    case 28:
        return QPageSize(QPageSize::EnvelopeC5);
    default:
        return QPageSize(QPageSize::A4);
    }
}

} // namespace

QPageLayout pageOf(const PageSetup& setup) {
    // A size of the form's own stays portrait even if it is wider than tall: landscape would turn it.
    const QPageSize size = setup.sizeMm
                               ? QPageSize(*setup.sizeMm, QPageSize::Millimeter, QString(), QPageSize::ExactMatch)
                               : standardSheet(setup.paperSize);
    const bool sideways = !setup.sizeMm && setup.orientation == 2;
    QPageLayout page(size, sideways ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(),
                     QPageLayout::Millimeter);
    page.setMode(QPageLayout::FullPageMode);
    return page;
}

bool sameSheet(const QPageSize& a, const QPageSize& b) {
    const QSizeF difference = sizeOf(a) - sizeOf(b);
    return qAbs(difference.width()) <= sheetTolerance && qAbs(difference.height()) <= sheetTolerance;
}

QPageSize nextLarger(const QPageSize& wanted, const QList<QPageSize>& sizes) {
    QPageSize best = wanted;
    for (const QPageSize& size : sizes) {
        const QSizeF room = sizeOf(size) - sizeOf(wanted);
        const bool holds = room.width() >= -sheetTolerance && room.height() >= -sheetTolerance;
        // Sheets of the inch system are passed over: offices here have none to load.
        const bool loadable = size.definitionUnits() != QPageSize::Inch;
        if (!holds || !loadable || sameSheet(size, wanted)) continue;
        if (best == wanted || areaOf(size) < areaOf(best)) best = size;
    }
    return best;
}

QPageSize sheetFor(const QPageSize& wanted, const PaperOffer& offer) {
    if (offer.anySize) return wanted;
    const auto same = std::find_if(offer.sizes.begin(), offer.sizes.end(),
                                   [&](const QPageSize& size) { return sameSheet(size, wanted); });
    return same != offer.sizes.end() ? *same : nextLarger(wanted, offer.sizes);
}
