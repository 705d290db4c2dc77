#include "overlay.h"

#include "platform/paper.h"

#include <QPainter>

namespace {

constexpr double pixelsPerMm = 6;

} // namespace

QImage layOver(const PrintedPage& page, const QImage& stationery, const QRectF& form, FontBook& fonts) {
    const QSizeF sheet = pageOf(page.setup).fullRect(QPageLayout::Millimeter).size();
    const QSizeF whole = sheet.expandedTo({form.right(), form.bottom()});
    QImage image((whole * pixelsPerMm).toSize(), QImage::Format_RGB32);
    image.fill(QColor(225, 225, 225));
    QPainter painter(&image);
    painter.scale(pixelsPerMm, pixelsPerMm);
    painter.fillRect(QRectF(QPointF(), sheet), Qt::white);
    painter.drawImage(form, stationery);
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
