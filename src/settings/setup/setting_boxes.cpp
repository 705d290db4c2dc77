#include "settings/setup/setting_boxes.h"

#include "controls/named.h"
#include "settings/setup/font_box.h"
#include "settings/setup/number_box.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

namespace {

template<NumberRule rule>
QWidget* makeNumberBox(const BoxLook&, const DeviceFonts&, QWidget* parent) {
    return new NumberBox(rule, parent);
}

QWidget* makeTextBox(const BoxLook& look, const DeviceFonts&, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setMaxLength(look.maxLength);
    const int letters = std::min(look.maxLength, 25);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * (letters + 3));
    return box;
}

QWidget* makeFontBox(const BoxLook&, const DeviceFonts& fonts, QWidget* parent) { return new FontBox(fonts, parent); }

template<class Button>
QWidget* makeButtonBox(const BoxLook& look, const DeviceFonts&, QWidget* parent) {
    return new Button(QString::fromUtf16(look.label), parent);
}

QString lineText(const QWidget& box) { return static_cast<const QLineEdit&>(box).text(); }
void showLine(QWidget& box, const QString& text) { static_cast<QLineEdit&>(box).setText(text); }
void onLineEdit(QWidget& box, std::function<void()> edited) {
    QObject::connect(&static_cast<QLineEdit&>(box), &QLineEdit::textChanged, &box, std::move(edited));
}

QString fontText(const QWidget& box) { return static_cast<const FontBox&>(box).currentText(); }
void showFont(QWidget& box, const QString& text) { static_cast<FontBox&>(box).showFont(text); }
void onFontEdit(QWidget& box, std::function<void()> edited) {
    QObject::connect(&static_cast<FontBox&>(box), &QComboBox::editTextChanged, &box, std::move(edited));
}
QWidget* fontSample(const QWidget& box) { return static_cast<const FontBox&>(box).sample(); }

QString buttonText(const QWidget& box) {
    return field_text::showTick(static_cast<const QAbstractButton&>(box).isChecked());
}
void showButton(QWidget& box, const QString& text) {
    static_cast<QAbstractButton&>(box).setChecked(field_text::isTicked(text));
}
void onButtonEdit(QWidget& box, std::function<void()> edited) {
    QObject::connect(&static_cast<QAbstractButton&>(box), &QAbstractButton::toggled, &box, std::move(edited));
}

} // namespace

const BoxKind numberBox{makeNumberBox<NumberRule::leading>, lineText, showLine, onLineEdit};
const BoxKind wholeBox{makeNumberBox<NumberRule::whole>, lineText, showLine, onLineEdit};
const BoxKind textBox{makeTextBox, lineText, showLine, onLineEdit, true, true};
const BoxKind fontBox{makeFontBox, fontText, showFont, onFontEdit, true, true, fontSample};
const BoxKind tickBox{makeButtonBox<QCheckBox>, buttonText, showButton, onButtonEdit, false};
const BoxKind optionBox{makeButtonBox<QRadioButton>, buttonText, showButton, onButtonEdit, false};

QWidget* makeBox(const BoxLook& look, const DeviceFonts& fonts, QWidget* parent) {
    return named(look.kind->make(look, fonts, parent), look.name, QString::fromUtf16(look.toolTip));
}
