#pragma once

#include "controls/entry_combo.h"
#include "controls/warning_mark.h"
#include "settings/setup/device_fonts.h"

class QLabel;

// A font name, picked or typed, and a line of text that shows what the font looks like. A name that the print device
// doesn't know stays, but is marked.
class FontBox : public EntryCombo {
    Q_OBJECT
public:
    FontBox(const DeviceFonts& fonts, QWidget* parent);

    // No signal.
    void showFont(const QString& name);
    // The line of text, which the layout puts beside the box.
    QLabel* sample() const { return sample_; }

private:
    void follow();

    std::function<bool(const QString&)> knows_;
    WarningMark* mark_;
    QLabel* sample_;
};
