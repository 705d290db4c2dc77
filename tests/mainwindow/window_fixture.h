#pragma once

#include "joined_texts.h"
#include "mainwindow/frmTarlimo.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "support/recording_service.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <memory>

// A real main window on a folder of its own, worked with mouse and keys. Controls are found by their names, members of
// arrays as "Text1_1". The folder has factory layouts, so that checks print; text of 10 points is 1 mm a character.
class WindowTest : public testing::Test {
protected:
    // Lets a test look at the window while the print dialog is open.
    struct WindowPrompts : ScriptedPrompts {
        std::function<void()> whileChoosing = [] {};
        std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                                   const QString& summary) override {
            whileChoosing();
            return ScriptedPrompts::choosePrinter(printers, current, summary);
        }
    };

    // Lets a test act while a job is handed over.
    struct WindowService : RecordingService {
        std::function<void()> whileDelivering = [] {};
        void deliver(const PrintJob& job, int printer) override {
            whileDelivering();
            RecordingService::deliver(job, printer);
        }
    };

    TestFolder files;
    WindowService service;
    WindowPrompts prompts;
    QString lastPdf;
    QStringList opened;  // documents
    QStringList started; // programs and their arguments
    bool startsPrograms = true;
    std::unique_ptr<frmTarlimo> window;

    WindowTest() {
        files.store(Set::factory());
        files.store(SetRcsekk::factory());
    }

    // Starts the program on what lies in the folder; a second call is the next start.
    void open() {
        const auto start = [this](const QString& program, const QString& argument) {
            started << program << argument;
            return startsPrograms;
        };
        const WindowServices services{
            service, prompts, [this](const QString& path) { opened << path; }, [this] { return lastPdf; }, {}, start};
        window = std::make_unique<frmTarlimo>(files.folder(), services);
        window->show();
    }
    void openWith(std::initializer_list<ClientRec> clients) {
        for (const ClientRec& client : clients)
            files.store(client, clientCount(files) + 1);
        open();
    }
    // Their amounts are 100, 200 and so on.
    void openNamed(std::initializer_list<const char16_t*> names) {
        for (int number = 0; const char16_t* name : names) {
            ++number;
            files.store(clientNamed(QString::fromUtf16(name), number * 100), number);
        }
        open();
    }
    Set set() const { return readRecord<Set>(files); }

    template<class Widget = QWidget>
    Widget& find(const char* name) const {
        auto* found = window->findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    std::string status() const { return window->statusBar()->currentMessage().toStdString(); }
    // Reads a text box, combo, label or caption.
    std::string text(const char* name) const {
        const bool combo = window->findChild<QComboBox*>(QLatin1String(name)) != nullptr;
        return find(name).property(combo ? "currentText" : "text").toString().toStdString();
    }
    bool shown(const char* name) const { return find(name).isVisible(); }
    bool enabled(const char* name) const { return find(name).isEnabled(); }
    bool ticked(const char* name) const { return find<QAbstractButton>(name).isChecked(); }
    // Several controls, their names parted by blanks.
    void expectShown(const char* names, bool expected) const {
        for (const QByteArray& name : QByteArray(names).split(' '))
            EXPECT_EQ(shown(name.constData()), expected) << name.constData();
    }
    void expectTicked(const char* names, bool expected) const {
        for (const QByteArray& name : QByteArray(names).split(' '))
            EXPECT_EQ(ticked(name.constData()), expected) << name.constData();
    }

    // Types over what stands in a text box or combo. Not by keyClicks, which knows ASCII alone.
    void type(const char* name, const QString& letters) const {
        auto* combo = window->findChild<QComboBox*>(QLatin1String(name));
        QLineEdit& box = combo != nullptr ? *combo->lineEdit() : find<QLineEdit>(name);
        box.selectAll();
        if (letters.isEmpty()) QTest::keyClick(&box, Qt::Key_Delete);
        for (const QChar letter : letters)
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    void press(const char* name) const {
        auto& button = find<QAbstractButton>(name);
        EXPECT_TRUE(button.isVisible()) << name;
        // Check boxes and options react on their indicator, at the left.
        QTest::mouseClick(&button, Qt::LeftButton, {}, {std::min(6, button.width() / 2), button.height() / 2});
    }
    void goTo(int tab) const {
        QTabBar& bar = *find<QTabWidget>("SSTab1").tabBar();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
        QCoreApplication::processEvents(); // lays out what came into view
    }
    // The modal dialog that opens next is shown to `act` and closed.
    template<class Act>
    static void inNextDialog(Act act) {
        QTimer::singleShot(0, [act] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            dialog->close();
        });
    }
    void choose(const char* menuEntry) const { find<QAction>(menuEntry).trigger(); }
    template<class Act>
    void choose(const char* menuEntry, Act inDialog) const {
        inNextDialog(inDialog);
        choose(menuEntry);
    }
    // What was told since the last call, as "title|text#title|text".
    std::string told() {
        std::string texts;
        for (const Message& message : std::exchange(prompts.told, {}))
            texts += (texts.empty() ? "" : "#") + joined(message);
        return texts;
    }

    QTreeView& list() const { return find<QTreeView>("ListView1"); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) const {
        const QModelIndex index = list().model()->index(row, 0);
        ASSERT_TRUE(index.isValid()) << row;
        list().scrollTo(index);
        QTest::mouseClick(list().viewport(), button, modifiers, list().visualRect(index).center());
    }
    // One column of the list, rows parted by '|', the selected ones in brackets.
    std::string rows(int column = 0) const {
        QStringList texts;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            const QString cell = list().model()->index(row, column).data().toString();
            texts << (list().selectionModel()->isRowSelected(row) ? u'[' + cell + u']' : cell);
        }
        return texts.join(u'|').toStdString();
    }
};
