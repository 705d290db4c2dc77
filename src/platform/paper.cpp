#include "platform/paper.h"

#include <algorithm>

namespace {

constexpr qreal sheetTolerance = 1; // mm
constexpr qreal feedWidth = 210;    // mm, of an office printer: A4

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

// A narrow form runs through the middle of the feed, and its positions count from the edge of the feed: a page of the
// form's own width would cut off what stands at its right.
QPageSize sheetOfForm(const QSizeF& form) {
    return QPageSize(form.expandedTo({feedWidth, 0}), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

} // namespace

QPageLayout pageOf(const PageSetup& setup) {
    // A size of the form's own stays portrait even if it is wider than tall: landscape would turn it.
    const QPageSize size = setup.sizeMm ? sheetOfForm(*setup.sizeMm) : standardSheet(setup.paperSize);
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
