#pragma once

#include "clients/address_search.h"
#include "clients/clients_changed.h"
#include "controls/dialog.h"
#include "prompts/prompts.h"

#include <QElapsedTimer>

#include <functional>
#include <span>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The entry of one client, new or stored, beside the main window, not modal. ENTER in an address box looks the address
// up, in the others it goes to the next box; it never presses a button. The number of the client that is modified
// moves together with the texts of the boxes: a save can't put one client's texts on another. Folder and prompts must
// outlive it.
class frmFelvet : public Dialog {
    Q_OBJECT
public:
    // `numbersStand` answers whether record numbers still name whom they named, and tells the clerk if not.
    frmFelvet(const ProgramFolder& folder, Prompts& prompts, std::function<bool()> numbersStand, QWidget* parent);

    // Opens with empty boxes. While a new client is half typed, it only comes to the front.
    void openToAdd();
    // Opens with the texts that the main window shows of client `number`. While a new client is half typed, it asks.
    void openToModify(int number, const ClientEntry& shown);
    // A click in the list fills the boxes too, unless a new client is half typed.
    void clientClicked(int number, const ClientEntry& stored);
    // The numbers of the clients have changed: there is nobody to modify until the next click.
    void forgetClient() { number_ = 0; }
    // Fills in a row of the list that offered() told of.
    void choose(qint64 record);
    // That choice is over: back to the boxes. An ENTER that follows at once belonged to it.
    void endChoice();

Q_SIGNALS:
    // A client has been stored.
    void changed(const ClientsChanged& change);
    // For the status line.
    void said(const QString& text);
    // The addresses to choose from; without hits there is nothing to choose.
    void offered(const AddressChoice& choice);

protected:
    void place() override;

private:
    enum class FelvetelMod { add, modify }; // felvetelMod
    struct Box;

    QWidget* buildBoxes();
    void connectBox(const Box& box);
    void openIn(FelvetelMod mode);
    void takeFocus();
    bool isHalfTyped() const { return isVisible() && mode_ == FelvetelMod::add && isTouched_; }

    ClientEntry entry() const;
    void fill(const ClientEntry& entry);
    void showFound(const ClientEntry& entry);
    QLineEdit& box(QString ClientEntry::*text) const;

    void chkKulfCim_Click();
    void stayOnTop(bool onTop);
    void enterPressed(const Box& box);
    void lookUp(const Box& box);

    void cmdRogzites_Click();
    void add();
    void modify();
    bool confirms(const QString& title, const QString& what);
    void tellStored(const QString& what, qint64 number, const QString& name);

    static std::span<const Box> boxes();

    const ProgramFolder& folder_;
    Prompts& prompts_;
    std::function<bool()> numbersStand_;
    FelvetelMod mode_ = FelvetelMod::add;
    int number_ = 0;         // of the client whose texts the boxes hold
    bool isTouched_ = false; // the clerk has put something in since the boxes were filled
    AddressChoice choice_;
    QElapsedTimer sinceChoice_;
    QString foundStreet_; // what a search wrote: not a bare street name, so not to be searched again
    std::vector<QLineEdit*> edits_;
    std::vector<QLabel*> labels_;
    QGroupBox* frame_;
    QCheckBox* foreign_;
    QCheckBox* again_;
    QPushButton* store_;
};
