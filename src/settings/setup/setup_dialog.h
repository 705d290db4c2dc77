#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

class QTabWidget;

// "Beállítások": every printing position, font and size, a page for each form. A page stores by its own buttons only;
// closing the dialog stores nothing. Show it with exec().
class frmSetup : public Dialog {
    Q_OBJECT
public:
    // `fonts` are those of the current print device. `setupOldal` is the page to open on, 0 to 6; one that isn't there
    // opens the first.
    frmSetup(const ProgramFolder& folder, Prompts& prompts, const QStringList& fonts, int setupOldal,
             QWidget* parent = nullptr);

private:
    void addPages(const ProgramFolder& folder, Prompts& prompts, const QStringList& fonts, int setupOldal);

    QTabWidget* SSTab1_;
};
