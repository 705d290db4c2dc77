#include "mainwindow/print_button.h"

#include <QApplication>
#include <QStyleOptionButton>

PrintButton::PrintButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    setFocusPolicy(Qt::TabFocus);
}

void PrintButton::setNote(const QString& note) {
    note_ = note;
    updateGeometry();
    update();
}

void PrintButton::pressByKey() {
    if (isVisible() && isEnabled() && !repeatsAKey()) click();
}

QSize PrintButton::sizeHint() const {
    constexpr int leastHeight = 34;
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, text, this).expandedTo({0, leastHeight});
}

bool PrintButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut && repeatsAKey()) return true;
    return QPushButton::event(event);
}

// The second press of a double click; its release finds no button down and clicks nothing.
void PrintButton::mouseDoubleClickEvent(QMouseEvent* /*event*/) {}

void PrintButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (!note_.isEmpty()) option->text += u'\n' + note_;
}

bool PrintButton::repeatsAKey() {
    const bool repeats = sinceKey_.isValid() && sinceKey_.elapsed() < QApplication::doubleClickInterval();
    sinceKey_.start();
    return repeats;
}
