#include "mainwindow/pink_check_rules.h"

#include "mainwindow/tab_words.h"
#include "printing/form_text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// On the front the sender's address is one line, on the back it is in parts.
void setSender(PinkCheckTab& tab, const Party& party, const QString& addressLine) {
    tab.RtxNev = party.name;
    tab.RtxCim = addressLine;
    tab.txtNevHatul = party.name;
    tab.txtHelysHatul = party.settlement;
    tab.txtCimHatul = party.street;
    tab.txtIrszHatul = party.postcode;
}

void setAddressee(PinkCheckTab& tab, const Party& party) {
    tab.RlbNev = party.name;
    tab.RlbHelys = party.settlement;
    tab.RlbCim = party.street;
    tab.RlbIrsz = party.postcode;
}

} // namespace

void RtxOsszeg_Change(PinkCheckTab& tab, const SetRcsekk& set, PrintDevice& device) {
    const WordLines words = fitForTab(Razaz_rutin(tab.RtxOsszeg), tab.RtxOsszeg, device,
                                      set.cmbRcsekkSzovegBetuTipus.trimmed(), set.TextRcsekkBetuMeret2);
    tab.RtxtSzoveg21 = words.upper;
    tab.RtxtSzoveg11 = words.lower;
    if (!words.upper.isEmpty()) copyWords(tab);
}

void copyWords(PinkCheckTab& tab) {
    // Here 1 is the upper line and 2 the lower one, against the names of the words themselves.
    tab.RtxtSzoveg12 = tab.RtxtSzoveg21;
    tab.RtxtSzoveg22 = tab.RtxtSzoveg11;
}

void opAllando_Click(PinkCheckTab& tab, const SetRcsekk& set) {
    reload(tab, set);
    if (tab.opAllando == FixedParty::addressee)
        setSender(tab, {}, {});
    else
        setAddressee(tab, {});
}

void reload(PinkCheckTab& tab, const SetRcsekk& set) {
    Party fixed = fixedParty(set);
    fixed.postcode = set.txRcsekkIrszam.stored();
    if (tab.opAllando == FixedParty::addressee)
        setAddressee(tab, fixed);
    else
        setSender(tab, fixed, addressLine(fixed, u", "_s));
}

void showClient(PinkCheckTab& tab, const ClientRec& client) {
    const Party party{client.Nev.stored(), client.Helyseg.trimmed(), client.Cim.stored(), client.Irsz.stored()};
    if (tab.opAllando == FixedParty::addressee)
        setSender(tab, party, addressLine(party, u", "_s));
    else
        setAddressee(tab, party);
}

void cmdOldalCsere_Click(PinkCheckTab& tab) { tab.side = tab.side == Side::front ? Side::back : Side::front; }
