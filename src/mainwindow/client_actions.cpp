#include "mainwindow/client_actions.h"

#include "clients/dialogs/address_list.h"
#include "clients/dialogs/frmOsszegek.h"
#include "mainwindow/client_zone.h"
#include "prompts/messages.h"

#include <QStackedWidget>

ClientActions::ClientActions(const Desk& desk)
    : desk_(desk)
    , addresses_(new AddressList)
    , entry_(new frmFelvet(
          desk.folder, desk.prompts, [this] { return desk_.clients.checkFile(); }, &desk.window)) {
    desk.pane.addWidget(addresses_);
    connect(entry_, &frmFelvet::changed, this, &ClientActions::changed);
    connect(entry_, &frmFelvet::said, this, &ClientActions::said);
    connect(entry_, &frmFelvet::offered, this, &ClientActions::showAddresses);
    connect(entry_, &QDialog::finished, this, &ClientActions::closed);
    connect(addresses_, &AddressList::tried, entry_, &frmFelvet::choose);
    connect(addresses_, &AddressList::ended, this, [this] {
        showAddresses({});
        entry_->endChoice();
    });
}

// The dialog opens with what the window shows, typed corrections included; of the two values that no tab shows, with
// the stored ones.
void ClientActions::cmdModosit_Click() {
    ClientEntry shown = entryOf(desk_.selected.record);
    const YellowCheckTab& check = desk_.tabs.yellowCheck;
    shown.txBefizetoNeve = check.txNev;
    shown.txEtkezo = check.txNev_2;
    shown.txBefizetoCim1 = check.txCim1;
    shown.txBefizetoCim2 = check.txCim2;
    shown.txBefizetoIrsz = check.txIrszam;
    shown.txBefizAnonosito = check.txBefizAzonosito;
    entry_->openToModify(desk_.selected.rekordszam, shown);
}

void ClientActions::cmdOsszegek_Click() {
    if (!readClient(desk_.folder, desk_.selected.rekordszam)) return desk_.prompts.tell(messages::nobodyPicked());
    frmOsszegek dialog(desk_.folder, desk_.prompts, desk_.selected.rekordszam, &desk_.window);
    connect(&dialog, &frmOsszegek::said, this, &ClientActions::said);
    connect(&dialog, &frmOsszegek::amountsRead, this, [this](const Client& client) {
        desk_.selected.record = client;
        desk_.tabs.yellowCheck.amounts = offeredAmounts(client.client);
        Q_EMIT amountsRead();
    });
    dialog.Beolvas();
    dialog.exec();
    Q_EMIT closed();
}

void ClientActions::clientClicked() {
    entry_->clientClicked(desk_.selected.rekordszam, entryOf(desk_.selected.record));
}

void ClientActions::clientsChanged(const ClientsChanged& change) {
    if (change.movesNumbers()) entry_->forgetClient();
}

void ClientActions::showAddresses(const AddressChoice& choice) {
    const bool hasHits = !choice.hits.empty();
    desk_.pane.setCurrentIndex(hasHits ? desk_.pane.indexOf(addresses_) : 0);
    if (!hasHits) return;
    addresses_->offer(choice);
    desk_.window.activateWindow();
}
