#include "mainwindow/bound_view.h"

#include "controls/entry_combo.h"
#include "controls/named.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

QGroupBox* BoundView::frame(const char* name, const char* caption) {
    return named(new QGroupBox(QString::fromUtf8(caption)), name);
}

void BoundView::showValues() {
    for (const auto& show : shows_)
        show();
}

void BoundView::onShow(std::function<void()> show) { shows_.push_back(std::move(show)); }

void BoundView::carryOut(const QWidget* control) {
    const Edit edit = edits_[control];
    edit.rule();
    showValues();
    edit.step();
    Q_EMIT edited();
}

void BoundView::takesTyping(QWidget* box, const QLineEdit* typing) {
    boxes_.push_back(box);
    connect(typing, &QLineEdit::returnPressed, this, [this, box] { goOn(box); });
}

void BoundView::goOn(const QWidget* box) {
    auto next = std::find(boxes_.begin(), boxes_.end(), box);
    do
        if (++next == boxes_.end()) next = boxes_.begin();
    while (*next != box && !((*next)->isVisible() && (*next)->isEnabled()));
    (*next)->setFocus(Qt::TabFocusReason);
}

QLineEdit* BoundView::bindText(QString& value, const char* name, const char* tooltip) {
    auto* box = named(new QLineEdit, name, QString::fromUtf8(tooltip));
    connect(box, &QLineEdit::textChanged, this, [this, &value, box](const QString& text) {
        value = text;
        carryOut(box);
    });
    onShow([&value, box] {
        if (box->text() == value) return;
        const QSignalBlocker block(box);
        box->setText(value);
        box->setCursorPosition(0);
    });
    takesTyping(box, box);
    return box;
}

EntryCombo* BoundView::bindCombo(QString& value, const QStringList& entries, const char* name, const char* tooltip) {
    auto* box = named(new EntryCombo, name, QString::fromUtf8(tooltip));
    connect(box, &QComboBox::editTextChanged, this, [this, &value, box](const QString& text) {
        if (text == value) return; // a chosen entry may come twice
        value = text;
        carryOut(box);
    });
    onShow([&value, &entries, box, offered = QStringList()]() mutable {
        if (offered != entries) box->offer(offered = entries);
        if (box->currentText() == value) return;
        const QSignalBlocker block(box);
        box->setEditText(value);
    });
    takesTyping(box, box->lineEdit());
    return box;
}

QLabel* BoundView::bindLabel(const QString& value, const char* name, const char* tooltip) {
    auto* label = named(new QLabel, name, QString::fromUtf8(tooltip));
    label->setTextFormat(Qt::PlainText);
    onShow([&value, label] { label->setText(value); });
    return label;
}

QAbstractButton* BoundView::bindCheck(bool& value, const char* name, const QString& caption, const char* tooltip) {
    auto* box = named(new QCheckBox(caption), name, QString::fromUtf8(tooltip));
    connect(box, &QCheckBox::toggled, this, [this, &value, box](bool ticked) {
        value = ticked;
        carryOut(box);
    });
    onShow([&value, box] {
        const QSignalBlocker block(box);
        box->setChecked(value);
    });
    return box;
}

QAbstractButton* BoundView::bindOption(const char* name, const QString& caption, std::function<bool()> isThis,
                                       std::function<void()> choose, const char* tooltip) {
    auto* option = named(new QRadioButton(caption), name, QString::fromUtf8(tooltip));
    connect(option, &QRadioButton::toggled, this, [this, option, choose = std::move(choose)](bool on) {
        if (!on) return;
        choose();
        carryOut(option);
    });
    onShow([option, isThis = std::move(isThis)] {
        if (!isThis() || option->isChecked()) return;
        const QSignalBlocker block(option);
        option->setChecked(true);
    });
    return option;
}

QScrollBar* BoundView::bindScroll(int& value, int minimum, const int& maximum, const char* name, const char* tooltip) {
    auto* bar = named(new QScrollBar(Qt::Horizontal), name, QString::fromUtf8(tooltip));
    bar->setFocusPolicy(Qt::StrongFocus);
    connect(bar, &QScrollBar::valueChanged, this, [this, &value, bar](int moved) {
        value = moved;
        carryOut(bar);
    });
    onShow([&value, minimum, &maximum, bar] {
        const QSignalBlocker block(bar); // a new range may move the value
        bar->setRange(minimum, maximum);
        bar->setValue(value);
    });
    return bar;
}

QPushButton* BoundView::bindButton(const char* name, const QString& caption) {
    auto* button = named(new QPushButton(caption), name);
    connect(button, &QPushButton::clicked, this, [this, button] { carryOut(button); });
    return button;
}
