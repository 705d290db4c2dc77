#include "mainwindow/picture_box.h"

#include "controls/named.h"

#include <QFile>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int mostShownPixels = 1600; // of the longer side: more than the box has on a screen, and quick to scale

// A cursor file gives its hot spot at byte 10, left and top in two bytes each. The toolkit reads the picture alone.
QCursor moveCursor(const QString& path) {
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QPixmap picture(path);
    if (bytes.size() < 14 || picture.isNull()) return Qt::SizeAllCursor;
    const auto number = [&](int at) { return static_cast<uchar>(bytes[at]) + 256 * static_cast<uchar>(bytes[at + 1]); };
    return QCursor(picture, number(10), number(12));
}

} // namespace

PictureBox::PictureBox(const ProgramFolder& folder) : folder_(folder) {
    named(this, "Image3");
    setAccessibleName(QStringLiteral("Kép a borítékon, a nyilakkal mozgatható"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void PictureBox::setPicture(const QImage& picture) {
    if (std::exchange(shown_, picture.cacheKey()) == picture.cacheKey()) return;
    const bool large = std::max(picture.width(), picture.height()) > mostShownPixels;
    picture_ = large ? picture.scaled(mostShownPixels, mostShownPixels, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                     : picture;
    scaled_ = {};
    update();
}

void PictureBox::enterEvent(QEnterEvent* /*event*/) {
    setCursor(moveCursor(folder_.file(QStringLiteral("H_move.cur"))));
}

void PictureBox::mousePressEvent(QMouseEvent* event) { Q_EMIT pressed(event->position()); }

void PictureBox::mouseMoveEvent(QMouseEvent* event) { Q_EMIT moved(event->position()); }

void PictureBox::mouseReleaseEvent(QMouseEvent* /*event*/) { Q_EMIT released(); }

void PictureBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return Q_EMIT nudged({-1, 0});
    case Qt::Key_Right:
        return Q_EMIT nudged({1, 0});
    case Qt::Key_Up:
        return Q_EMIT nudged({0, -1});
    case Qt::Key_Down:
        return Q_EMIT nudged({0, 1});
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (picture_.isNull())
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("kép"));
    else
        painter.drawPixmap(rect(), scaledPicture());
    painter.setPen(QPen(hasFocus() ? palette().highlight().color() : Qt::gray, 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// Made once for a size, so that dragging only moves it.
const QPixmap& PictureBox::scaledPicture() {
    const QSize dots = size() * devicePixelRatioF();
    if (scaled_.size() != dots)
        scaled_ = QPixmap::fromImage(picture_.scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return scaled_;
}
