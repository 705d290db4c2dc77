#pragma once

#include "clients/clients_changed.h"
#include "clients/dialogs/frmFelvet.h"
#include "mainwindow/form_context.h"
#include "printing/form_tabs.h"

class AddressList;
class ClientZone;
class QStackedWidget;

// What a clerk does to one client: the entry dialog with the choice of addresses, and the dialog of amounts.
class ClientActions : public QObject {
    Q_OBJECT
public:
    // What the window has that the dialogs need; all of it outlives the actions. The pane shows the client list, and in
    // its place the addresses to choose from.
    struct Desk {
        const ProgramFolder& folder;
        Prompts& prompts;
        FormTabs& tabs;
        SelectedClient& selected;
        QWidget& window;
        QStackedWidget& pane;
        ClientZone& clients;
    };
    explicit ClientActions(const Desk& desk);

    void cmdRogzit_Click() { entry_->openToAdd(); }
    void cmdModosit_Click();
    void cmdOsszegek_Click();

    // The client in hand is another one.
    void clientClicked();
    void clientsChanged(const ClientsChanged& change);

Q_SIGNALS:
    void changed(const ClientsChanged& change);
    void said(const QString& text);
    // The amounts that the yellow check offers are others.
    void amountsRead();
    // A dialog has closed.
    void closed();

private:
    void showAddresses(const AddressChoice& choice);

    Desk desk_;
    AddressList* addresses_;
    frmFelvet* entry_;
};
