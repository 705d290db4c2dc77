#pragma once

#include "prompts/prompts.h"

#include <QDialog>

class QComboBox;
class QSpinBox;

// Asks for a device and the number of copies. Our own, since the toolkit's print dialog speaks another language and
// knows only the printers of the system: this one serves every device of the list alike.
class PrinterDialog : public QDialog {
    Q_OBJECT

public:
    // `current` is preselected; beyond the list nothing is, and the dialog cannot be accepted before a choice.
    // `summary` says what is about to print; empty, there is no line for it.
    PrinterDialog(const QStringList& printers, int current, const QString& summary, QWidget* parent = nullptr);

    PrinterChoice choice() const;

private:
    QComboBox* printer_;
    QSpinBox* copies_;
};
