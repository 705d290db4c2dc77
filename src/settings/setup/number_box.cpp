#include "settings/setup/number_box.h"

#include "records/number_text.h"

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

QString warningFor(NumberRule rule, const QString& text) {
    if (rule == NumberRule::whole) return wholeI16(text) ? QString() : QStringLiteral("Ide csak egész szám írható");
    return beginsWithNumber(text) ? QString() : QStringLiteral("Nem szám: 0 lesz belőle");
}

} // namespace

NumberBox::NumberBox(NumberRule rule, QWidget* parent) : QLineEdit(parent), rule_(rule), mark_(new WarningMark(this)) {
    if (rule == NumberRule::leading) setValidator(new PointValidator(this));
    setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0000.0000")));
    connect(this, &QLineEdit::textChanged, this, &NumberBox::mark);
}

void NumberBox::mark() { mark_->show(warningFor(rule_, text())); }
