#include "platform/qt_prompts.h"

#include "platform/printer_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

// Runs `act` on the dialog that opens next. If it doesn't close it, the dialog is rejected, so that no test hangs.
template<class Dialog>
void onNext(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
        if (dialog->isVisible()) dialog->reject();
    });
}

void press(QWidget& widget, int key) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

QStringList captionsOf(const QMessageBox& box) {
    QStringList captions;
    for (const QAbstractButton* button : box.buttons())
        captions.append(button->text());
    captions.sort();
    return captions;
}

QPushButton* button(QWidget& dialog, const QString& caption) {
    for (QPushButton* each : dialog.findChildren<QPushButton*>())
        if (each->text() == caption) return each;
    return nullptr;
}

const Message question{Icon::question, u" FIGYELEM "_s, u"A<b>B</b> & Tsa\nMehet?"_s};

} // namespace

TEST(QtPrompts, aBoxShowsWhatItWasGiven) {
    QtPrompts prompts;
    const std::pair<Icon, QMessageBox::Icon> icons[] = {
        {Icon::none, QMessageBox::NoIcon},       {Icon::information, QMessageBox::Information},
        {Icon::question, QMessageBox::Question}, {Icon::warning, QMessageBox::Warning},
        {Icon::critical, QMessageBox::Critical},
    };
    for (const auto& row : icons) {
        onNext<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.icon(), row.second);
            EXPECT_EQ(box.windowTitle(), question.title);
            EXPECT_EQ(box.text(), question.text);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(captionsOf(box), QStringList(u"OK"_s));
            press(box, Qt::Key_Escape);
            EXPECT_FALSE(box.isVisible());
        });
        prompts.tell({row.first, question.title, question.text});
    }
}

TEST(QtPrompts, detailsCanBeCopiedFromTheirBox) {
    QtPrompts prompts;
    onNext<QDialog>([](QDialog& dialog) {
        auto* details = dialog.findChild<QPlainTextEdit*>();
        ASSERT_NE(details, nullptr);
        EXPECT_EQ(details->toPlainText(), u"1. sor\n2. sor"_s);
        EXPECT_TRUE(details->isReadOnly() && (details->textInteractionFlags() & Qt::TextSelectableByKeyboard));
        press(*button(dialog, u"OK"_s), Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    prompts.tell({Icon::information, u"Cím"_s, u"Két sor"_s, u"1. sor\n2. sor"_s});
}

TEST(QtPrompts, onlyThePressedYesIsAYes) {
    QtPrompts prompts;
    const auto yes = [](QMessageBox& box) { button(box, u"Igen"_s)->click(); };
    const auto no = [](QMessageBox& box) { button(box, u"Nem"_s)->click(); };
    const auto escape = [](QMessageBox& box) { press(box, Qt::Key_Escape); };
    const auto enter = [](QMessageBox& box) { press(box, Qt::Key_Return); };
    const struct {
        Answer preset;
        std::function<void(QMessageBox&)> act;
        Answer expected;
    } cases[] = {
        {Answer::yes, yes, Answer::yes},
        {Answer::no, yes, Answer::yes},
        {Answer::yes, no, Answer::no},
        {Answer::yes, escape, Answer::no},
        {Answer::yes, &QMessageBox::close, Answer::no},
        {Answer::yes, enter, Answer::yes},
        {Answer::no, enter, Answer::no},
    };
    for (const auto& c : cases) {
        onNext<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(captionsOf(box), QStringList({u"Igen"_s, u"Nem"_s}));
            c.act(box);
            EXPECT_FALSE(box.isVisible());
        });
        EXPECT_EQ(prompts.ask(question, c.preset), c.expected) << &c - cases;
    }
}

TEST(QtPrompts, thePrintDialogAnswersWithDeviceAndCopies) {
    QtPrompts prompts;
    const QStringList printers{u"Elso"_s, u"Masodik"_s, u"PDF fájl"_s};
    onNext<QDialog>([&](QDialog& dialog) {
        auto* combo = dialog.findChild<QComboBox*>(u"printer"_s);
        EXPECT_EQ(dialog.windowTitle(), u"Nyomtatás"_s);
        EXPECT_EQ(combo->count(), 3);
        EXPECT_EQ(combo->currentIndex(), 1);
        EXPECT_EQ(dialog.findChild<QSpinBox*>(u"copies"_s)->value(), 1);
        combo->setCurrentIndex(2);
        dialog.findChild<QSpinBox*>(u"copies"_s)->setValue(100);
        button(dialog, u"OK"_s)->click();
    });
    const PrinterChoice choice = prompts.choosePrinter(printers, 1, u"9 csekk"_s).value();
    EXPECT_EQ(std::tuple(choice.printer, choice.copies), std::tuple(2, 99));

    onNext<QDialog>([](QDialog& dialog) { button(dialog, u"Mégse"_s)->click(); });
    EXPECT_FALSE(prompts.choosePrinter(printers, 0, {}).has_value());

    onNext<QDialog>([](QDialog& dialog) { EXPECT_FALSE(button(dialog, u"OK"_s)->isEnabled()); });
    EXPECT_FALSE(prompts.choosePrinter(printers, 3, {}).has_value());
}

TEST(PrinterDialog, whatTheDriverWasToldHoldsForItsPrinter) {
    QStringList asked;
    PrinterDialog dialog({u"Elso"_s, u"Masodik"_s, u"PDF fájl"_s}, 0, {},
                         [&](const QString& name, const QByteArray& before, QWidget*) {
                             asked << name + u'/' + QString::fromLatin1(before);
                             return before + "tray";
                         });
    auto* properties = dialog.findChild<QPushButton*>(u"properties"_s);
    properties->click();
    properties->click();
    EXPECT_EQ(dialog.choice().driverSettings, "traytray");
    dialog.findChild<QComboBox*>()->setCurrentIndex(1);
    EXPECT_EQ(dialog.choice().driverSettings, "") << "of another printer";
    properties->click();
    EXPECT_EQ(asked.join(u' ').toStdString(), "Elso/ Elso/tray Masodik/");
    dialog.findChild<QComboBox*>()->setCurrentIndex(2);
    EXPECT_FALSE(properties->isEnabled()) << "a file has no driver";
}

TEST(QtPrompts, fileDialogsAnswerWithThePathOrNothing) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"minta.csv"_s);
    QtPrompts prompts(folder.path());
    // The name as typed, then Enter on the accepting button.
    const auto pick = [](const QString& name, const QString& accept) {
        return [=](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Cím"_s);
            EXPECT_EQ(dialog.labelText(QFileDialog::Reject), u"Mégse"_s);
            dialog.findChild<QLineEdit*>()->setText(name);
            ASSERT_NE(button(dialog, accept), nullptr);
            button(dialog, accept)->click();
        };
    };
    onNext<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path(), folder.path());
        EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(folder.path())), u"Mappa"_s);
        press(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(prompts.openFile(u"Cím"_s, u"*.csv"_s), QString());

    onNext<QFileDialog>(pick(folder.filePath(u"minta"_s), u"Mentés"_s));
    EXPECT_EQ(prompts.saveFile(u"Cím"_s, u"*.csv"_s), path);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    onNext<QFileDialog>(pick(path, u"Megnyitás"_s));
    EXPECT_EQ(prompts.openFile(u"Cím"_s, u"*.csv"_s), path);

    // A file that is there is overwritten only after a yes.
    for (const bool overwrite : {true, false}) {
        onNext<QFileDialog>([&](QFileDialog& dialog) {
            onNext<QMessageBox>([overwrite](QMessageBox& box) {
                if (!overwrite) onNext<QFileDialog>([](QFileDialog& again) { again.reject(); });
                button(box, overwrite ? u"Igen"_s : u"Nem"_s)->click();
            });
            pick(path, u"Mentés"_s)(dialog);
        });
        EXPECT_EQ(prompts.saveFile(u"Cím"_s, u"*.csv"_s), overwrite ? path : QString());
    }
}
