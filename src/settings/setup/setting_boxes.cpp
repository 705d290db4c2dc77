#include "settings/setup/setting_boxes.h"

#include "controls/entry_combo.h"
#include "controls/named.h"
#include "settings/setup/number_box.h"

#include <QCheckBox>
#include <QRadioButton>

namespace {

QWidget* makeNumberBox(const BoxLook&, const QStringList&, QWidget* parent) { return new NumberBox(parent); }

QWidget* makeTextBox(const BoxLook& look, const QStringList&, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setMaxLength(look.maxLength);
    const int letters = std::min(look.maxLength, 25);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * (letters + 3));
    return box;
}

QWidget* makeFontBox(const BoxLook&, const QStringList& fonts, QWidget* parent) {
    auto* box = new EntryCombo(parent);
    box->setMinimumContentsLength(16);
    box->setMaxVisibleItems(20);
    box->offer(fonts);
    return box;
}

template<class Button>
QWidget* makeButtonBox(const BoxLook& look, const QStringList&, QWidget* parent) {
    return new Button(QString::fromUtf16(look.label), parent);
}

QString lineText(const QWidget& box) { return static_cast<const QLineEdit&>(box).text(); }
void showLine(QWidget& box, const QString& text) { static_cast<QLineEdit&>(box).setText(text); }
void onLineEdit(QWidget& box, std::function<void()> edited) {
    QObject::connect(&static_cast<QLineEdit&>(box), &QLineEdit::textChanged, &box, std::move(edited));
}

QString comboText(const QWidget& box) { return static_cast<const EntryCombo&>(box).currentText(); }
void showCombo(QWidget& box, const QString& text) { static_cast<EntryCombo&>(box).showText(text); }
void onComboEdit(QWidget& box, std::function<void()> edited) {
    QObject::connect(&static_cast<EntryCombo&>(box), &QComboBox::editTextChanged, &box, std::move(edited));
}

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

const BoxKind numberBox{makeNumberBox, lineText, showLine, onLineEdit};
const BoxKind textBox{makeTextBox, lineText, showLine, onLineEdit, true, true};
const BoxKind fontBox{makeFontBox, comboText, showCombo, onComboEdit, true, true};
const BoxKind tickBox{makeButtonBox<QCheckBox>, buttonText, showButton, onButtonEdit, false};
const BoxKind optionBox{makeButtonBox<QRadioButton>, buttonText, showButton, onButtonEdit, false};

QWidget* makeBox(const BoxLook& look, const QStringList& fonts, QWidget* parent) {
    return named(look.kind->make(look, fonts, parent), look.name, QString::fromUtf16(look.toolTip));
}
