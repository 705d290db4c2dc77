#pragma once

#include "controls/dialog.h"

#include <functional>

// Name, version and a sentence; the button for the system information tool is there only if the platform has one.
class frmAbout : public Dialog {
    Q_OBJECT
public:
    explicit frmAbout(const std::function<void()>& openSystemInformation, QWidget* parent = nullptr);
};
