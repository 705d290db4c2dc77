#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// Whatever asks or tells the user goes through here, so that the logic needs no widget and a test can script the
// answers.

enum class Icon { none, information, question, warning, critical };

// A box with a title and plain text; lines are parted by '\n'. Titles differ in their blanks on purpose: never trim
// them.
struct Message {
    Icon icon = Icon::none;
    QString title;
    QString text;
    QString details = {}; // lines under the text that can be scrolled and copied from; empty for none
};

enum class Answer { yes, no };

// What the user picked in the print dialog: place in the device list from 0, copies from 1, and what the driver alone
// understands (a tray), empty where nothing was chosen.
struct PrinterChoice {
    int printer = 0;
    int copies = 1;
    QByteArray driverSettings = {};
};

class Prompts {
public:
    Prompts() = default;
    Prompts(const Prompts&) = delete;
    Prompts& operator=(const Prompts&) = delete;
    virtual ~Prompts() = default;

    // Shows a box with an OK button.
    virtual void tell(const Message& message) = 0;
    // Shows a box with "Igen" and "Nem"; `preset` is the default button. Closing the box by other means is a no.
    virtual Answer ask(const Message& message, Answer preset = Answer::yes) = 0;
    // Path of an existing file, empty if the user cancelled. `filter` is a pattern such as "*.csv".
    virtual QString openFile(const QString& title, const QString& filter) = 0;
    // Path of a file to write, after the overwrite question; empty if the user cancelled.
    virtual QString saveFile(const QString& title, const QString& filter) = 0;
    // The print dialog, `current` preselected; `summary` says in a line or two what is about to print. Nothing if the
    // user cancelled.
    virtual std::optional<PrinterChoice> choosePrinter(const QStringList& printers, int current,
                                                       const QString& summary) = 0;
};
