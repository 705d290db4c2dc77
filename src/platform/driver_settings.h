#pragma once

#include <QByteArray>
#include <QString>

class QPrinter;
class QWidget;

// What a printer's driver can be told beyond the page, such as the tray that preprinted forms come from: bytes as the
// driver keeps them, for that printer alone.

// Whether the platform has a dialog of the driver for them.
bool hasDriverDialog();

// Shows that dialog, with what was chosen before; empty: what the printer is set to. `before` if the user cancelled or
// the printer has no such dialog.
QByteArray askDriverSettings(const QString& printer, const QByteArray& before, QWidget* parent);

// Hands them to a printer for as long as this lives, which has to be longer than the printer. Empty ones change
// nothing.
class DriverSettings {
public:
    explicit DriverSettings(const QByteArray& settings);
    DriverSettings(const DriverSettings&) = delete;
    DriverSettings& operator=(const DriverSettings&) = delete;
    ~DriverSettings();
    void applyTo(QPrinter& printer) const;

private:
    void* memory_ = nullptr; // as the platform keeps them
};
