#pragma once

#include "settings/setup/setting_boxes.h"
#include "settings/setup/setup_dialog.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QPushButton>

#include <gtest/gtest.h>

// A setup dialog over a folder, with everything found by its control name.
class OpenedSetup {
public:
    explicit OpenedSetup(const TestFolder& folder, int setupOldal = 0) : dialog(folder, prompts, fonts, setupOldal) {}

    ScriptedPrompts prompts;
    const QStringList fonts{QStringLiteral("Arial CE"), QStringLiteral("Times New Roman CE")};
    frmSetup dialog;

    template<class Widget = QWidget>
    Widget& widget(const char* name) {
        auto* found = dialog.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    QString text(const char* name) { return boxText(widget(name)); }
    void type(const char* name, const QString& text) { setBoxText(widget(name), text); }
    void press(const char* name, Answer answer) {
        prompts.answers.push_back(answer);
        widget<QPushButton>(name).click();
    }
};

// A record in which no byte is a default: what a test doesn't expect to change shows when it does.
template<class Rec>
QByteArray strangeBytes() {
    return QByteArray(static_cast<qsizetype>(sizeof(Rec)), 'Z');
}
