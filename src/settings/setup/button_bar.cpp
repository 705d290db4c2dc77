#include "settings/setup/button_bar.h"

#include <QEvent>
#include <QHBoxLayout>

ButtonBar::ButtonBar(QWidget* parent)
    : QWidget(parent)
    , lines_(new QHBoxLayout(this))
    , left_(new QHBoxLayout)
    , right_(new QHBoxLayout) {
    lines_->setContentsMargins(0, 0, 0, 0);
    lines_->addLayout(left_);
    lines_->addLayout(right_);
    left_->addStretch();
    right_->addStretch();
}

void ButtonBar::addLeft(QWidget* widget) { left_->insertWidget(left_->count() - 1, widget); }

void ButtonBar::addRight(QWidget* widget) { right_->addWidget(widget); }

QSize ButtonBar::minimumSizeHint() const {
    return {std::max(left_->minimumSize().width(), right_->minimumSize().width()), lines_->minimumSize().height()};
}

// A caption that changes may need another line as well.
bool ButtonBar::event(QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        const int needed = left_->minimumSize().width() + lines_->spacing() + right_->minimumSize().width();
        lines_->setDirection(width() < needed ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
    return QWidget::event(event);
}
