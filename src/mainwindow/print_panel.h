#pragma once

#include "mainwindow/tab_rows.h"
#include "printing/print_desk.h"

#include <QGroupBox>

class PrintButton;
class QComboBox;
class QLabel;
class QRadioButton;
class SamplePicture;

// Frame1: the two print buttons, of which one is visible at a time, the feed with its sample picture, and the choice of
// the device, which is stored in Set.dat at once.
class PrintPanel : public QGroupBox {
    Q_OBJECT
public:
    PrintPanel(const ProgramFolder& folder, Prompts& prompts, QWidget* parent = nullptr);

    // The device list, and which of it is the system's default.
    void offerPrinters(const QStringList& printers, int systemDefault);
    // Restores the stored choice: the printer of the kept name wherever it stands in the list now, without one the
    // number, which is a place in the list. A printer that is gone is told once and leaves the box without selection,
    // and so does a number out of range.
    void restorePrinter(int lbPrintNo);
    void selectDevice(bool systemDefault);
    bool isSystemDefault() const;

    Feed feed() const;
    // The form in view decides the sample picture; one without a sideways feed goes upright.
    void showTab(const TabRow& tab);

    // One form, or a batch for `clients` of them, which the button names.
    void showButton(bool batch, int clients = 0);
    void setButtonsEnabled(bool enabled);
    // Presses the button in view.
    void pressByKey();

Q_SIGNALS:
    void deviceSelected();
    void printPressed();
    void batchPressed();

private:
    QLayout* buildFeeds();
    QWidget* buildDeviceChoice();
    void showSample();
    void showPrinter(int place);
    void storePrinter(int place);
    void storeDevice();
    template<class Change>
    void store(Change change);
    void showDeviceName();

    const ProgramFolder& folder_;
    Prompts& prompts_;
    PrintButton* print_;
    PrintButton* batch_;
    QRadioButton* upright_;
    QRadioButton* sideways_;
    SamplePicture* sample_;
    QRadioButton* chosenDevice_;
    QRadioButton* systemDevice_;
    QComboBox* printers_;
    QLabel* printNo_;
    QLabel* deviceName_; // where the next press prints
    QString defaultName_;
    const TabRow* sampleOf_ = &tabRows[0]; // tab in view
};
