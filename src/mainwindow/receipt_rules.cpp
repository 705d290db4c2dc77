#include "mainwindow/receipt_rules.h"

namespace {

// What the client doesn't have leaves the field as it is.
void setUnlessEmpty(QString& field, const QString& text) {
    if (!text.isEmpty()) field = text;
}

void copySender(DocumentReceiptTab& tab) {
    tab.txtIratFelado = {tab.lbIratFeladoNev, tab.lbIratFeladoCim1, tab.lbIratFeladoCim2};
}

QString postcodeAndLine(const SetTerti& set) {
    return set.txtTertiVisszakuldIrsz.trimmed() + u' ' + set.txtTertiVisszakuldCim1.stored();
}

} // namespace

PostalLines postalLines(const ClientRec& client) {
    const QString name = client.Nev.trimmed();
    const QString settlement = client.Helyseg.trimmed();
    const QString last = client.Cim.trimmed();
    if (client.Kulfoldi) return {name, client.Nev2.trimmed() + QStringLiteral(", ") + settlement, last, {}};
    const QString postcode = client.Irsz.stored();
    return {name, postcode + u' ' + settlement, last, postcode};
}

void showClient(PostingReceiptTab& tab, const PostalLines& address) {
    tab.txNev3 = address.name;
    tab.txCim3_1 = address.line1;
    tab.txCim3_2 = address.line2;
}

void reload(PostingReceiptTab& tab, const SetFveveny& set) {
    tab.lbSajatNev = set.txtFeladovevenyFeladoNev.stored();
    tab.lbSajatCim1 = set.txtFeladovevenyFeladoCim1.stored();
    tab.lbSajatCim2 = set.txtFeladovevenyFeladoCim2.stored();
}

void showClient(ReturnReceiptTab& tab, const Client& client, const PostalLines& address) {
    tab.txUgyfelAzonosito = client.client.Azonosito.trimmed();
    tab.txNev2 = address.name;
    tab.txCim2_1 = address.line1;
    tab.txCim2_2 = address.line2;
    setUnlessEmpty(tab.txKudemenyAzonosito, client.twin.KuldemenyAzonosito.trimmed());
    setUnlessEmpty(tab.txUgyfelSajatJelzese, client.twin.SajatJelzes.trimmed());
}

void opBelfold_Click(ReturnReceiptTab& tab, const SetTerti& set) {
    tab.lbSajatNev2 = set.txtTertiVisszakuldNev.stored();
    tab.lbSajatCim2_2 = set.txtTertiVisszakuldCim2.stored();
    if (tab.foreign) {
        tab.lbSajatCim2_1 = set.txtTertiVisszakuldCim1.stored();
        tab.lbSajatIrsz = set.txtTertiVisszakuldIrsz.stored();
        return;
    }
    tab.lbSajatCim2_1 = postcodeAndLine(set);
    tab.lbSajatIrsz.clear();
    tab.chkLevel = false;
    tab.chkKCsomag = false;
}

void showClient(DocumentReceiptTab& tab, const Client& client, const PostalLines& address) {
    const ClientRec& addressee = client.client;
    tab.txtIratCimzettNev = addressee.Nev.stored();
    tab.txtIratCimzettHelyseg = addressee.Kulfoldi ? address.line1 : addressee.Helyseg.stored();
    tab.txtIratCimzettIrszam = address.postcode;
    tab.txtIratCimzettUtca = addressee.Kulfoldi ? address.line2 : addressee.Cim.stored();
    tab.txtIratFajtaja = client.twin.IratFajtaja.trimmed();
    tab.txtIratSzama = client.twin.IratSzama.trimmed();
    tab.txtIratMelleklet = client.twin.IratMelleklet.trimmed();
}

void reload(DocumentReceiptTab& tab, const SetTerti& set) {
    tab.lbIratFeladoNev = set.txtTertiVisszakuldNev.stored();
    tab.lbIratFeladoCim1 = postcodeAndLine(set);
    tab.lbIratFeladoCim2 = set.txtTertiVisszakuldCim2.stored();
    if (tab.chkVisszaCimPrint[2]) copySender(tab);
}

void chkVisszaCimPrint_Click(DocumentReceiptTab& tab) {
    if (tab.chkVisszaCimPrint[2])
        copySender(tab);
    else
        tab.txtIratFelado.fill({});
}
