#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/program_folder.h"

class QLabel;
class QLineEdit;

// "Feladójegyzék beállítások": where the first name prints on the posting list, and the spreadsheet program that opens
// the blank one. Show it with exec().
class frmFjSetup : public Dialog {
    Q_OBJECT
public:
    frmFjSetup(const ProgramFolder& folder, Prompts& prompts, QWidget* parent = nullptr);

private:
    void build();
    void fill();
    void cmdTalloz_Click();
    void cmdMent_Click();
    bool refuses();
    void complain(QLineEdit* box, const QString& text);
    void store();

    const ProgramFolder& folder_;
    Prompts& prompts_;
    QLineEdit* txtBal_;
    QLineEdit* txtFelso_;
    QLineEdit* txtExcelUtvonal_;
    QLabel* saved_;
};
