#include "mainwindow/stationery_page.h"

#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double naturalPixelsPerMm = 3.86;
constexpr double leastScale = 0.6;

} // namespace

StationeryPage::StationeryPage(const ProgramFolder& folder, QSizeF sizeMm, QWidget* parent)
    : QWidget(parent)
    , folder_(folder)
    , sizeMm_(sizeMm) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    sizeChanges_.setSingleShot(true);
    sizeChanges_.setInterval(150);
    connect(&sizeChanges_, &QTimer::timeout, this, [this] { update(); });
}

void StationeryPage::setPicture(const QString& fileName, QSizeF sizeMm) {
    if (fileName == fileName_ && sizeMm == sizeMm_) return;
    fileName_ = fileName;
    sizeMm_ = sizeMm;
    readFor_ = QSize();
    for (const Placed& placed : placed_)
        layOut(placed);
    update();
}

void StationeryPage::place(QWidget* child, QRectF mm, double letterMm) {
    const auto known =
        std::find_if(placed_.begin(), placed_.end(), [child](const Placed& p) { return p.child == child; });
    const Placed placed{child, mm, letterMm};
    if (known == placed_.end()) {
        placed_.push_back(placed);
        child->setParent(this);
        style_.dress(child);
    } else {
        *known = placed;
    }
    layOut(placed);
}

QSize StationeryPage::sizeHint() const { return (sizeMm_ * naturalPixelsPerMm).toSize(); }

QSize StationeryPage::minimumSizeHint() const { return (sizeMm_ * naturalPixelsPerMm * leastScale).toSize(); }

double StationeryPage::pixelsPerMm() const {
    return std::max(0.1, std::min(width() / sizeMm_.width(), height() / sizeMm_.height()));
}

QRect StationeryPage::formRect() const {
    const QSize size = (sizeMm_ * pixelsPerMm()).toSize();
    return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void StationeryPage::layOut(const Placed& placed) const {
    const double scale = pixelsPerMm();
    QFont font = placed.child->font();
    // A line of text needs 1.17 times its size, or the accents of capitals are cut.
    const double fitting = std::floor(placed.mm.height() * scale / 1.17);
    const double readable = std::max(7.0, std::round(placed.letterMm * scale));
    font.setPixelSize(static_cast<int>(std::max(6.0, std::min(readable, fitting))));
    placed.child->setFont(font);
    const QRectF onPage(placed.mm.topLeft() * scale, placed.mm.size() * scale);
    placed.child->setGeometry(onPage.translated(formRect().topLeft()).toRect());
}

void StationeryPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (isVisible()) sizeChanges_.start();
    for (const Placed& placed : placed_)
        layOut(placed);
}

const QPixmap& StationeryPage::pictureOf(QSize size) {
    if (readFor_ == size || (!readFor_.isEmpty() && sizeChanges_.isActive())) return picture_;
    readFor_ = size;
    // Decoded at the size in view: that takes half the time of decoding the whole picture and scaling it down, and the
    // picture of the first tab is the largest single cost of a start.
    QImageReader reader(folder_.file(fileName_));
    reader.setScaledSize(size);
    picture_ = QPixmap::fromImage(reader.read());
    return picture_;
}

void StationeryPage::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect form = formRect();
    const QPixmap& picture = pictureOf(form.size() * devicePixelRatio());
    if (!picture.isNull()) {
        painter.drawPixmap(form, picture);
    } else {
        painter.fillRect(form, Qt::white);
        painter.setPen(Qt::gray);
        painter.drawText(form, Qt::AlignCenter, QStringLiteral("Hiányzó kép: ") + fileName_);
    }
    painter.setPen(QColor(0, 0, 0, 60));
    painter.drawRect(form.adjusted(0, 0, -1, -1));
}
