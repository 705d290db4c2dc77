#include "overlay.h"

#include "platform/paper.h"

#include <QPainter>

namespace {

constexpr double pixelsPerMm = 6;

QPointF placeOfForm(QSizeF sheet, QSizeF form, Feed feed) {
    if (feed == Feed::upright) return {sheet.width() - form.width(), (sheet.height() - form.height()) / 2};
    return {std::max(0.0, (sheet.width() - form.width()) / 2), 0};
}

} // namespace

QImage layOver(const PrintedPage& page, const QImage& stationery, QSizeF form, Feed feed, FontBook& fonts) {
    const QSizeF sheet = pageOf(page.setup).fullRect(QPageLayout::Millimeter).size();
    const QPointF corner = placeOfForm(sheet, form, feed);
    const QSizeF whole = sheet.expandedTo({corner.x() + form.width(), corner.y() + form.height()});
    QImage image((whole * pixelsPerMm).toSize(), QImage::Format_RGB32);
    image.fill(QColor(225, 225, 225));
    QPainter painter(&image);
    painter.scale(pixelsPerMm, pixelsPerMm);
    painter.fillRect(QRectF(QPointF(), sheet), Qt::white);
    painter.drawImage(QRectF(corner, form), stationery);
    painter.scale(1 / paperUnitsPerMm, 1 / paperUnitsPerMm);
    painter.setPen(QColor(0, 0, 160));
    for (const PlacedItem& item : page.items) {
        const auto* text = std::get_if<PlacedText>(&item);
        if (text == nullptr) continue;
        const FontBook::Face& face = fonts.face(text->font);
        painter.setFont(face.font);
        painter.drawText(QPointF(text->x, text->y) * paperUnitsPerMm + QPointF(0, face.metrics.ascent()), text->text);
    }
    return image;
}
