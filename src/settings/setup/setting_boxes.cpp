#include "settings/setup/setting_boxes.h"

#include "controls/entry_combo.h"

#include <QCheckBox>
#include <QLineEdit>

QValidator::State PointValidator::validate(QString& input, int&) const {
    input.replace(u',', u'.');
    return Acceptable;
}

namespace {

QLineEdit* makeNumberBox(QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setValidator(new PointValidator(box));
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("-0000.0000")));
    return box;
}

QLineEdit* makeTextBox(const BoxLook& look, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setMaxLength(look.maxLength);
    const int letters = std::min(look.maxLength, 25);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * (letters + 3));
    return box;
}

QComboBox* makeFontBox(const QStringList& fonts, QWidget* parent) {
    auto* box = new EntryCombo(parent);
    box->setMinimumContentsLength(16);
    box->setMaxVisibleItems(20);
    box->offer(fonts);
    return box;
}

QWidget* makeUnnamedBox(const BoxLook& look, const QStringList& fonts, QWidget* parent) {
    switch (look.kind) {
    case BoxKind::font:
        return makeFontBox(fonts, parent);
    case BoxKind::tick:
        return new QCheckBox(QString::fromUtf16(look.label), parent);
    case BoxKind::text:
        return makeTextBox(look, parent);
    case BoxKind::number:
        break;
    }
    return makeNumberBox(parent);
}

} // namespace

QWidget* makeBox(const BoxLook& look, const QStringList& fonts, QWidget* parent) {
    QWidget* box = makeUnnamedBox(look, fonts, parent);
    box->setObjectName(QString::fromLatin1(look.name));
    box->setToolTip(QString::fromUtf16(look.toolTip));
    return box;
}

QString boxText(const QWidget& box) {
    if (const auto* tickBox = qobject_cast<const QCheckBox*>(&box)) return field_text::showTick(tickBox->isChecked());
    if (const auto* fontBox = qobject_cast<const QComboBox*>(&box)) return fontBox->currentText();
    return qobject_cast<const QLineEdit*>(&box)->text();
}

void setBoxText(QWidget& box, const QString& text) {
    if (auto* tickBox = qobject_cast<QCheckBox*>(&box)) return tickBox->setChecked(field_text::isTicked(text));
    if (auto* fontBox = qobject_cast<EntryCombo*>(&box)) return fontBox->showText(text);
    qobject_cast<QLineEdit*>(&box)->setText(text);
}
