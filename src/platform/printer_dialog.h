#pragma once

#include "prompts/prompts.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QPushButton;
class QSpinBox;

// Asks for a device and the number of copies. Our own, since the toolkit's print dialog speaks another language and
// knows only the printers of the system: this one serves every device of the list alike.
class PrinterDialog : public QDialog {
    Q_OBJECT

public:
    // Shows the dialog of a printer's driver, with the settings chosen before; gives those that hold from then on.
    using AskDriver = std::function<QByteArray(const QString& printer, const QByteArray& before, QWidget* parent)>;

    // `current` is preselected; beyond the list nothing is, and the dialog cannot be accepted before a choice.
    // `summary` says what is about to print; empty, there is no line for it.
    // Without `askDriver` there is no button for it; the last device, a file, has no driver.
    PrinterDialog(const QStringList& printers, int current, const QString& summary, const AskDriver& askDriver = {},
                  QWidget* parent = nullptr);

    PrinterChoice choice() const;

private:
    QPushButton* driverButton(const AskDriver& askDriver);

    QComboBox* printer_;
    QSpinBox* copies_;
    QByteArray driverSettings_; // of the printer in the box
};
