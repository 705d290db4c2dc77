#include "mainwindow/cash_on_delivery_rules.h"

#include "printing/amount_in_words.h"

#include <algorithm>
#include <limits>

namespace {

constexpr float wordRowMm = 55;

QString comma() { return QStringLiteral(", "); }

// The clipped amount is far above what can be put in words, so it still reads as too large.
std::int32_t clipped(std::int64_t amount) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(amount, Limits::min(), Limits::max()));
}

} // namespace

void showClient(CashOnDeliveryTab& tab, const ClientRec& client, const PostalLines& address, const SetRcsekk& set) {
    if (tab.chkCimzettCsereUlap) {
        tab.txUNev = set.txRcsekkNev.trimmed();
        tab.txUCim =
            set.txRcsekkIrszam.stored() + comma() + set.txRcsekkHelyseg.trimmed() + comma() + set.txRcsekkCim.trimmed();
        tab.lbUNev = client.Nev.stored();
        tab.lbUCim = client.Cim.stored();
        tab.lbUHelyseg = client.Helyseg.stored();
        tab.lbUIrszam = client.Irsz.stored();
    } else {
        tab.txUNev = client.Nev.stored();
        tab.txUCim = address.line1 + comma() + address.line2;
    }
    tab.lbUNevHatul = client.Nev.stored();
    tab.lbUHelysegHatul = address.line1;
    tab.lbUCimHatul = address.line2;
    tab.lbUIrszamHatul = address.postcode;
}

void reload(CashOnDeliveryTab& tab, const SetRcsekk& set) {
    if (tab.chkCimzettCsereUlap) return;
    tab.lbUNev = set.txRcsekkNev.trimmed();
    if (set.opULapCizett_0) {
        tab.lbUCim = set.txRcsekkCim.trimmed();
        tab.lbUHelyseg = set.txRcsekkHelyseg.trimmed();
        tab.lbUIrszam = set.txRcsekkIrszam.stored();
    } else {
        tab.lbUCim = set.txtBankNum.trimmed();
        tab.lbUHelyseg = set.txtBankNeve.trimmed();
        tab.lbUIrszam = set.txtBankIrsz.stored();
    }
}

void chkCimzettCsereUlap_Click(CashOnDeliveryTab& tab, const ClientRec& client, const SetRcsekk& set) {
    showClient(tab, client, postalLines(client), set);
    reload(tab, set);
}

void txUosszeg_Change(CashOnDeliveryTab& tab, const Set& set, PrintDevice& device) {
    const WordRows rows = fitForForm(azaz1(clipped(amountOf(tab.txUosszeg))), device, set.ComboBetuTipus2.trimmed(),
                                     set.TextBetuMeret2, wordRowMm);
    tab.lbosszegBetuvel1 = rows.row1;
    tab.lbosszegBetuvel2 = rows.row2;
}

void cmdUtanvetOdalCsere_Click(CashOnDeliveryTab& tab) {
    tab.side = tab.side == Side::front ? Side::back : Side::front;
}
