#pragma once

#include "printing/print_desk.h"

#include <QGroupBox>

class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;

// Frame1: the two print buttons, of which one is visible at a time, the feed with its sample picture, and the choice of
// the device, which is stored in Set.dat at once.
class PrintPanel : public QGroupBox {
    Q_OBJECT
public:
    PrintPanel(const ProgramFolder& folder, QWidget* parent = nullptr);

    // The device list, and which of it is the system's default.
    void offerPrinters(const QStringList& printers, int systemDefault);
    // Restores the stored choice without storing it again; a number out of range leaves the box without selection.
    void showPrinter(int lbPrintNo);
    void selectDevice(bool systemDefault);
    bool isSystemDefault() const;

    Feed feed() const;
    // The form in view decides the sample picture; labels (tab 4) feed upright only.
    void showTab(int tab);

    // One form, or a batch for several clients with their number beside the button.
    void showButton(bool batch);
    // Enabled again, the button in view takes the focus back.
    void setButtonsEnabled(bool enabled);

Q_SIGNALS:
    void deviceSelected();
    void printPressed();
    void batchPressed();

private:
    QWidget* buildDeviceChoice();
    void showSample();
    void storeDevice();
    void showDeviceName();

    const ProgramFolder& folder_;
    QPushButton* print_;
    QPushButton* batch_;
    QRadioButton* upright_;
    QRadioButton* sideways_;
    QLabel* sample_;
    QRadioButton* chosenDevice_;
    QRadioButton* systemDevice_;
    QComboBox* printers_;
    QLabel* printNo_;
    QLabel* deviceName_; // where the next press prints
    QString defaultName_;
    int tab_ = 0;
};
