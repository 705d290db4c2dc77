#pragma once

#include "settings/setup/setup_dialog.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

// What stands in a box, as the user sees it; a tick or an option is "1" or "0".
inline QString shownText(const QWidget& box) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&box)) return QString::number(button->isChecked());
    if (const auto* combo = qobject_cast<const QComboBox*>(&box)) return combo->currentText();
    return qobject_cast<const QLineEdit*>(&box)->text();
}

inline void typeInto(QWidget& box, const QString& text) {
    if (auto* button = qobject_cast<QAbstractButton*>(&box)) return button->setChecked(text == u"1");
    if (auto* combo = qobject_cast<QComboBox*>(&box)) return combo->setEditText(text);
    qobject_cast<QLineEdit*>(&box)->setText(text);
}

// The boxes of a page or dialog: what has a control's name and isn't a part of another widget or a push button.
inline std::vector<QWidget*> boxesOf(const QWidget& page) {
    std::vector<QWidget*> boxes;
    for (QWidget* widget : page.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^(?!qt_).+"))))
        if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget) ||
            (qobject_cast<QAbstractButton*>(widget) && qobject_cast<QAbstractButton*>(widget)->isCheckable()))
            boxes.push_back(widget);
    return boxes;
}

// A setup dialog over a folder, with everything found by its control name.
class OpenedSetup {
public:
    explicit OpenedSetup(const TestFolder& folder, int setupOldal = 0) : dialog(folder, prompts, fonts, setupOldal) {}

    ScriptedPrompts prompts;
    const DeviceFonts fonts{{QStringLiteral("Arial CE"), QStringLiteral("Times New Roman CE")},
                            [this](const QString& name) { return fonts.names.contains(name); }};
    frmSetup dialog;

    template<class Widget = QWidget>
    Widget& widget(const char* name) {
        auto* found = dialog.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    QString text(const char* name) { return shownText(widget(name)); }
    void type(const char* name, const QString& text) { typeInto(widget(name), text); }
    void press(const char* name, Answer answer) {
        prompts.answers.push_back(answer);
        widget<QAbstractButton>(name).click();
    }
};
