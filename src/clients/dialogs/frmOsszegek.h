#pragma once

#include "clients/client_amounts.h"
#include "controls/dialog.h"
#include "prompts/prompts.h"

class QLabel;
class QLineEdit;
class QPushButton;
class ReportList;

// The amounts that are kept for one client. Each change is stored at once, on the record as it is at that moment. Show
// it with exec(); folder and prompts must outlive it.
class frmOsszegek : public Dialog {
    Q_OBJECT
public:
    frmOsszegek(const ProgramFolder& folder, Prompts& prompts, int rekordszam, QWidget* parent);

    // Reads the client and shows the amounts. Runs at the opening and after each change.
    void Beolvas();

Q_SIGNALS:
    // The client as last read.
    void amountsRead(const Client& client);
    // For the status line.
    void said(const QString& text);

private:
    void layOut();
    void text1Changed(const QString& text);
    void enterPressed();
    void pickRow();
    void cmdRogzit_Click();
    void cmdModosit_Click();
    void cmdTorol_Click();
    bool isInRange(qint64 forints);
    void finish(AmountStored stored, const QString& what);

    const ProgramFolder& folder_;
    Prompts& prompts_;
    int rekordszam_;
    int osszegSor_ = 0; // slot of the row last clicked
    QString lastAdded_; // the text that ENTER stored: a second ENTER doesn't store it again
    QLabel* lbNev_;
    QLabel* lbCim_;
    ReportList* list_;
    QLineEdit* text1_;
    QPushButton* cmdRogzit_;
    QPushButton* cmdModosit_;
    QPushButton* cmdTorol_;
};
