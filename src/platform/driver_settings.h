#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QPrinter;
class QWidget;

// What a printer's driver can be told beyond the page, such as the tray that preprinted forms come from: bytes as the
// driver keeps them, for that printer alone.

// Whether the platform has a dialog of the driver for them.
bool hasDriverDialog();

// Shows that dialog, with what was chosen before; empty: what the printer is set to. `before` if the user cancelled or
// the printer has no such dialog.
QByteArray askDriverSettings(const QString& printer, const QByteArray& before, QWidget* parent);

// Hands them to a printer; empty ones change nothing. What it gives has to live longer than the printer.
[[nodiscard]] std::shared_ptr<void> giveDriverSettings(const QByteArray& settings, QPrinter& printer);
