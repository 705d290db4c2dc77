#include "bare_print.h"

#include <QFontMetricsF>
#include <QPdfWriter>

#include <algorithm>

namespace {

constexpr int dotsPerInch = 1200; // what a QPdfWriter begins with
constexpr double dotsPerMm = dotsPerInch / 25.4;

void draw(QPainter& painter, const std::vector<QFont>& fonts, const BareText& text) {
    painter.setFont(fonts[text.font]);
    painter.drawText(text.baseline, text.text);
}

void draw(QPainter& painter, const std::vector<QFont>& /*fonts*/, const BarePicture& picture) {
    painter.drawImage(picture.box, picture.picture);
}

} // namespace

BareJob::BareJob(const PrintJob& job) {
    for (const PrintedPage& page : job.pages) {
        std::vector<BareItem>& items = pages_.emplace_back();
        for (const PlacedItem& item : page.items)
            items.push_back(std::visit([this](const auto& placed) { return BareItem(bare(placed)); }, item));
    }
}

void BareJob::print(const QString& path) const {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QSizeF(220, 110), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        if (page > 0) writer.newPage();
        for (const BareItem& item : pages_[page])
            std::visit([&](const auto& drawn) { draw(painter, fonts_, drawn); }, item);
    }
}

BareText BareJob::bare(const PlacedText& placed) {
    const std::size_t font = numberOf(placed.font);
    const QPointF topLeft = QPointF(placed.x, placed.y) * dotsPerMm;
    return {font, topLeft + QPointF(0, QFontMetricsF(fonts_[font]).ascent()), placed.text};
}

BarePicture BareJob::bare(const PlacedPicture& placed) {
    const QSizeF size(placed.width, placed.height);
    return {{QPointF(placed.x, placed.y) * dotsPerMm, size * dotsPerMm}, placed.picture};
}

std::size_t BareJob::numberOf(const Font& font) {
    const auto place = std::find(known_.begin(), known_.end(), font);
    const auto number = static_cast<std::size_t>(place - known_.begin());
    if (place != known_.end()) return number;
    known_.push_back(font);
    QFont& made = fonts_.emplace_back(FontBook().familyFor(font.name).value_or(QString()));
    made.setPixelSize(qRound(font.size * dotsPerInch / 72));
    return number;
}
