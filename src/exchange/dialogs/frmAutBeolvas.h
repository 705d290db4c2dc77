#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

class FolderChooser;
class QCheckBox;
class QLineEdit;
class QRadioButton;

// What the watched folder is and what becomes of its files, stored in Set.dat by `cmdMent` alone. The folder is typed
// or picked; a stored one that isn't there stays in the box until another is picked. Folder and prompts must outlive
// it. Show it with exec().
class frmAutBeolvas : public Dialog {
    Q_OBJECT
public:
    frmAutBeolvas(const ProgramFolder& folder, Prompts& prompts, QWidget* parent = nullptr);

private:
    void layOut();
    void load();
    void cmdMent_Click();

    const ProgramFolder& folder_;
    Prompts& prompts_;
    QCheckBox* chkAutBeolvas_;
    QLineEdit* txtAutBeolvas_;
    FolderChooser* chooser_;
    QRadioButton* append_;    // opHozzafüzes(0)
    QRadioButton* overwrite_; // opHozzafüzes(1)
    QCheckBox* chkAutoPrint_;
};
