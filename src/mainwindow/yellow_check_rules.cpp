#include "mainwindow/yellow_check_rules.h"

#include "mainwindow/tab_words.h"
#include "printing/yellow_check.h"

void txOsszeg_Change(YellowCheckTab& tab, const Set& set, PrintDevice& device) {
    const WordLines words =
        fitForTab(azaz_rutin(tab.txOsszeg), tab.txOsszeg, device, set.ComboBetuTipus2.trimmed(), set.TextBetuMeret2);
    tab.txtSzoveg21 = words.upper;
    tab.txtSzoveg11 = words.lower;
}

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
    tab.txBefizAzonosito = payer.Azonosito.trimmed();
    tab.txtKozl3sor[0] = client.twin.Kozl3Sor.trimmed();
    showDeadline(tab, payer, set);
    if (tab.chkBefAzonMasolasa) chkBefAzonMasolasa_Click(tab);
}
