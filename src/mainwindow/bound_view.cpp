#include "mainwindow/bound_view.h"

#include "controls/entry_combo.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

void BoundView::setName(QWidget* widget, const char* name, const char* tooltip) {
    widget->setObjectName(QLatin1String(name));
    // Tooltips are plain text: a name like "A<B" must not turn one into markup.
    if (*tooltip != '\0') widget->setToolTip(QString::fromUtf8(tooltip).toHtmlEscaped());
}

QGroupBox* BoundView::frame(const char* name, const char* caption) {
    auto* box = new QGroupBox(QString::fromUtf8(caption));
    setName(box, name);
    return box;
}

void BoundView::showValues() {
    for (const auto& show : shows_)
        show();
}

void BoundView::onShow(std::function<void()> show) { shows_.push_back(std::move(show)); }

QLineEdit* BoundView::bindText(QString& value, const char* name, const char* tooltip) {
    auto* box = new QLineEdit;
    setName(box, name, tooltip);
    connect(box, &QLineEdit::textChanged, this, [this, &value, box](const QString& text) {
        value = text;
        Q_EMIT edited(box->objectName());
    });
    onShow([&value, box] {
        if (box->text() == value) return;
        const QSignalBlocker block(box);
        box->setText(value);
        box->setCursorPosition(0);
    });
    return box;
}

EntryCombo* BoundView::bindCombo(QString& value, const QStringList& entries, const char* name, const char* tooltip) {
    auto* box = new EntryCombo;
    setName(box, name, tooltip);
    connect(box, &QComboBox::editTextChanged, this, [this, &value, box](const QString& text) {
        if (text == value) return; // a chosen entry may come twice
        value = text;
        Q_EMIT edited(box->objectName());
    });
    onShow([&value, &entries, box, offered = QStringList()]() mutable {
        if (offered != entries) box->offer(offered = entries);
        if (box->currentText() == value) return;
        const QSignalBlocker block(box);
        box->setEditText(value);
    });
    return box;
}

QLabel* BoundView::bindLabel(const QString& value, const char* name, const char* tooltip) {
    auto* label = new QLabel;
    setName(label, name, tooltip);
    label->setTextFormat(Qt::PlainText);
    onShow([&value, label] { label->setText(value); });
    return label;
}

QAbstractButton* BoundView::bindCheck(bool& value, const char* name, const QString& caption, const char* tooltip) {
    auto* box = new QCheckBox(caption);
    setName(box, name, tooltip);
    connect(box, &QCheckBox::toggled, this, [this, &value, box](bool ticked) {
        value = ticked;
        Q_EMIT edited(box->objectName());
    });
    onShow([&value, box] {
        const QSignalBlocker block(box);
        box->setChecked(value);
    });
    return box;
}

QAbstractButton* BoundView::bindOption(const char* name, const QString& caption, std::function<bool()> isThis,
                                       std::function<void()> choose) {
    auto* option = new QRadioButton(caption);
    setName(option, name);
    connect(option, &QRadioButton::toggled, this, [this, option, choose = std::move(choose)](bool on) {
        if (!on) return;
        choose();
        Q_EMIT edited(option->objectName());
    });
    onShow([option, isThis = std::move(isThis)] {
        if (!isThis() || option->isChecked()) return;
        const QSignalBlocker block(option);
        option->setChecked(true);
    });
    return option;
}

void BoundView::setShown(std::initializer_list<const char*> names, bool shown) {
    for (const char* child : names)
        findChild<QWidget*>(QLatin1String(child))->setVisible(shown);
}
