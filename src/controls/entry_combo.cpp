#include "controls/entry_combo.h"

#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

EntryCombo::EntryCombo(QWidget* parent) : SteadyCombo(parent) {
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void EntryCombo::offer(const QStringList& entries) {
    const QSignalBlocker block(this);
    const QSignalBlocker blockEdit(lineEdit());
    const QString text = currentText();
    clear();
    addItems(entries);
    setCurrentIndex(-1);
    setEditText(text);
}

void EntryCombo::showText(const QString& text) {
    const QSignalBlocker block(this);
    const QSignalBlocker blockEdit(lineEdit());
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void EntryCombo::lieOnPaper() {
    onPaper_ = true;
    lineEdit()->setFrame(false);
}

int EntryCombo::arrowWidth() const { return qBound(10, height() * 4 / 5, 22); }

void EntryCombo::resizeEvent(QResizeEvent* event) {
    SteadyCombo::resizeEvent(event);
    if (onPaper_) lineEdit()->setGeometry(0, 0, width() - arrowWidth(), height());
}

void EntryCombo::changeEvent(QEvent* event) {
    SteadyCombo::changeEvent(event);
    // The style sheet of the page keeps the inner box from following by itself.
    if (onPaper_ && event->type() == QEvent::FontChange) lineEdit()->setFont(font());
}

void EntryCombo::paintEvent(QPaintEvent* event) {
    if (!onPaper_) {
        SteadyCombo::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF arrow(width() - arrowWidth(), 0, arrowWidth(), height());
    painter.fillRect(arrow, QColor(0, 0, 0, 18));
    const double half = arrow.width() / 4;
    const QPointF middle = arrow.center();
    if (hasFocus()) painter.fillRect(QRectF(0, height() - 1, width(), 1), QColor(0x1f, 0x6f, 0xb5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawPolygon(QPolygonF(
        {middle + QPointF(-half, -half / 2), middle + QPointF(half, -half / 2), middle + QPointF(0, half / 2 + 1)}));
}

void SteadyCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }
