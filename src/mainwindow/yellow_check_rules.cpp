#include "mainwindow/yellow_check_rules.h"

#include "mainwindow/tab_words.h"
#include "printing/yellow_check.h"

void txOsszeg_Change(YellowCheckTab& tab, const Set& set, PrintDevice& device) {
    const WordLines words =
        fitForTab(azaz_rutin(tab.txOsszeg), tab.txOsszeg, device, set.ComboBetuTipus2.trimmed(), set.TextBetuMeret2);
    tab.txtSzoveg21 = words.upper;
    tab.txtSzoveg11 = words.lower;
    tab.lbOsszeg = tab.txOsszeg;
    txtSzoveg21_Change(tab);
    txtSzoveg11_Change(tab);
}

void txtSzoveg21_Change(YellowCheckTab& tab) { tab.txtSzoveg22 = tab.txtSzoveg21; }

void txtSzoveg11_Change(YellowCheckTab& tab) { tab.txtSzoveg12 = tab.txtSzoveg11; }

void txNev_Change(YellowCheckTab& tab) { tab.Text1[1] = tab.txNev; }

void txCim1_Change(YellowCheckTab& tab) { tab.Text1[0] = tab.txCim1; }

void txCim2_Change(YellowCheckTab& tab) { tab.Text1[2] = tab.txCim2; }

void txIrszam_Change(YellowCheckTab& tab) { tab.Text1[3] = tab.txIrszam; }

void chkBefAzonMasolasa_Click(YellowCheckTab& tab) {
    tab.txtJogcim2 = tab.chkBefAzonMasolasa ? tab.txBefizAzonosito : QString();
}

namespace {

void showDeadline(YellowCheckTab& tab, const ClientRec& client, const Set& set) {
    if (set.chkFizHat) {
        tab.pouredDeadline = deadlineText(set, client);
        tab.txtFizHatIdo = tab.pouredDeadline;
        tab.Kozlemeny2 = tab.pouredDeadline;
    } else if (!tab.pouredDeadline.isEmpty() && tab.txtFizHatIdo == tab.pouredDeadline) {
        // Deadlines have been switched off since the last click: that client's must not print as this one's. The notice
        // stays on view; a batch still knows it by the poured text and leaves it out.
        tab.txtFizHatIdo.clear();
    }
}

} // namespace

void showClient(YellowCheckTab& tab, const Client& client, const Set& set) {
    const ClientRec& payer = client.client;
    tab.txNev = payer.Nev.trimmed();
    tab.txNev_2 = payer.Nev2.trimmed();
    tab.txCim1 = payer.Helyseg.trimmed();
    tab.txCim2 = payer.Cim.trimmed();
    tab.txIrszam = payer.Irsz.stored();
    txNev_Change(tab);
    txCim1_Change(tab);
    txCim2_Change(tab);
    txIrszam_Change(tab);
    tab.txBefizAzonosito = payer.Azonosito.trimmed();
    tab.txtKozl3sor.fill(client.twin.Kozl3Sor.trimmed());
    showDeadline(tab, payer, set);
    if (tab.chkBefAzonMasolasa) chkBefAzonMasolasa_Click(tab);
}
