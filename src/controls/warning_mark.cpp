#include "controls/warning_mark.h"

#include <QEvent>

namespace {

// A tint of red that the letters stand out from, be the palette light or dark.
QColor warningTint(const QColor& base) {
    const auto mixed = [](int from, int to) { return (7 * from + 3 * to) / 10; };
    return {mixed(base.red(), 255), mixed(base.green(), 64), mixed(base.blue(), 64)};
}

} // namespace

WarningMark::WarningMark(QLineEdit* box) : QObject(box), box_(box) { box->installEventFilter(this); }

void WarningMark::show(const QString& warning) {
    if (warning == warning_) return;
    if (warning_.isEmpty()) ownTip_ = box_->toolTip();
    warning_ = warning;
    box_->setToolTip(warning.isEmpty() ? ownTip_ : warning);
    colour();
}

// Over the palette of the moment, which may turn dark while the box is marked.
void WarningMark::colour() {
    QPalette own;
    if (!warning_.isEmpty())
        own.setColor(QPalette::Base, warningTint(box_->parentWidget()->palette().color(QPalette::Base)));
    box_->setPalette(own);
}

bool WarningMark::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) colour();
    return QObject::eventFilter(watched, event);
}
