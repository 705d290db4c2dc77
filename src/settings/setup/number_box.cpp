#include "settings/setup/number_box.h"

#include <QEvent>
#include <QRegularExpression>
#include <QValidator>

namespace {

class PointValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override {
        input.replace(u',', u'.');
        return Acceptable;
    }
};

// Where the reader of the stored types finds a number.
bool beginsWithNumber(const QString& text) {
    static const QRegularExpression number(QStringLiteral("^ *[-+]?\\.?[0-9]"));
    return number.match(text).hasMatch();
}

// A tint of red that the letters stand out from, be the palette light or dark.
QColor warningTint(const QColor& base) {
    const auto mixed = [](int from, int to) { return (7 * from + 3 * to) / 10; };
    return {mixed(base.red(), 255), mixed(base.green(), 64), mixed(base.blue(), 64)};
}

} // namespace

NumberBox::NumberBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new PointValidator(this));
    setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0000.0000")));
    connect(this, &QLineEdit::textChanged, this, &NumberBox::mark);
}

void NumberBox::mark() {
    const bool marked = !beginsWithNumber(text());
    if (marked == marked_) return;
    marked_ = marked;
    if (marked) ownTip_ = toolTip();
    setToolTip(marked ? QStringLiteral("Nem szám: 0 lesz belőle") : ownTip_);
    colour();
}

// Over the palette of the moment, which may turn dark while the box is marked.
void NumberBox::colour() {
    QPalette own;
    if (marked_) own.setColor(QPalette::Base, warningTint(parentWidget()->palette().color(QPalette::Base)));
    setPalette(own);
}

void NumberBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colour();
}
