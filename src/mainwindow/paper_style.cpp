#include "mainwindow/paper_style.h"

#include "controls/colours.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr char doubtfulProperty[] = "doubtful";

QPalette paperPalette() {
    QPalette colours(QColor(0xf0, 0xf0, 0xf0), Qt::white); // buttons and paper: the toolkit works out the rest
    colours.setColor(QPalette::Highlight, focusColour);
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 110));
    return colours;
}

QColor ground(const QWidget* box, QStyle::State state) {
    if (box != nullptr && box->property(doubtfulProperty).toBool()) return {0xff, 0xcf, 0xcf};
    if (state & QStyle::State_ReadOnly) return {0xe2, 0xe2, 0xe2, 220};
    return {0xff, 0xff, 0xff, state & QStyle::State_HasFocus ? 255 : 200};
}

QRect arrowOf(QRect combo) {
    combo.setLeft(combo.left() + combo.width() - std::clamp(combo.height() * 4 / 5, 10, 22));
    return combo;
}

} // namespace

PaperStyle::PaperStyle() : QProxyStyle(QApplication::style()->name()) {}

void PaperStyle::dress(QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control)) combo->view(); // made when first asked for
    QList<QWidget*> parts = control->findChildren<QWidget*>();
    parts.prepend(control);
    for (QWidget* part : parts) {
        part->setStyle(this);
        part->setPalette(paperPalette()); // also the windows among them, which inherit none
        if (auto* box = qobject_cast<QLineEdit*>(part)) box->setFrame(false);
    }
}

void PaperStyle::setDoubtful(QLineEdit* box, bool doubtful) {
    if (box->property(doubtfulProperty).toBool() == doubtful) return;
    box->setProperty(doubtfulProperty, doubtful);
    box->update();
}

void PaperStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element != PE_PanelLineEdit) return QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->fillRect(option->rect, ground(widget, option->state));
    if (option->state & State_HasFocus)
        painter->fillRect(option->rect.adjusted(0, option->rect.height() - 1, 0, 0), focusColour);
}

void PaperStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
    if (control != CC_ComboBox) return QProxyStyle::drawComplexControl(control, option, painter, widget);
    const QRectF arrow = arrowOf(option->rect);
    const double half = arrow.width() / 4;
    const QPointF middle = arrow.center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(arrow, QColor(0, 0, 0, 18));
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0, 0, 0, 150));
    painter->drawPolygon(QPolygonF(
        {middle + QPointF(-half, -half / 2), middle + QPointF(half, -half / 2), middle + QPointF(0, half / 2 + 1)}));
    painter->restore();
}

QRect PaperStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const QRect arrow = arrowOf(option->rect);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) return arrow;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) return option->rect.adjusted(0, 0, -arrow.width(), 0);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int PaperStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool tick = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight ||
                      metric == PM_ExclusiveIndicatorWidth || metric == PM_ExclusiveIndicatorHeight;
    return tick && widget != nullptr ? std::min(usual, widget->height()) : usual;
}
