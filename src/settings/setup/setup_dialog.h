#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"
#include "settings/setup/device_fonts.h"

class QTabWidget;
class SetupPage;
struct SetupContext;

// "Beállítások": every printing position, font and size, a page for each form. A page stores by its own buttons only;
// closing the dialog stores nothing, and so the tab of a page says while something in it isn't stored. Show it with
// exec().
class frmSetup : public Dialog {
    Q_OBJECT
public:
    // `setupOldal` is the page to open on, 0 to 6; any other opens the first.
    frmSetup(const ProgramFolder& folder, Prompts& prompts, const DeviceFonts& fonts, int setupOldal,
             QWidget* parent = nullptr);

private:
    void addPages(const SetupContext& context);

    QTabWidget* SSTab1_;
};
