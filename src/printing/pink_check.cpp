#include "printing/pink_check.h"

#include "printing/check_batch.h"
#include "settings/check_layouts.h"

namespace {

struct Party {
    QString name, settlement, street, postcode;
};

struct PinkCheckFront : Party { // the party is the addressee
    QString amount, words1, words2;
    QString senderName, senderAddress;
};

struct PinkCheckBack : Party { // the party is the sender
    QString notice1, notice2, notice3, notice4;
};

Party partyOf(const ClientRec& client) {
    return {client.Nev.trimmed(), client.Helyseg.trimmed(), client.Cim.trimmed(), client.Irsz.trimmed()};
}

Party fixedParty(const SetRcsekk& layout) {
    return {layout.txRcsekkNev.trimmed(), layout.txRcsekkHelyseg.trimmed(), layout.txRcsekkCim.trimmed(),
            layout.txRcsekkIrszam.trimmed()};
}

Party addresseeOf(const PinkCheckTab& tab) {
    return {trimmed(tab.RlbNev), trimmed(tab.RlbHelys), trimmed(tab.RlbCim), trimmed(tab.RlbIrsz)};
}

// Postcode as stored, padding included; no blank behind the comma.
QString addressLine(const QString& postcode, const Party& party) {
    return postcode + u' ' + party.settlement + u',' + party.street;
}

PinkCheckFront frontOfTab(const PinkCheckTab& tab) {
    PinkCheckFront page;
    static_cast<Party&>(page) = addresseeOf(tab);
    page.amount = starred(tab.RtxOsszeg);
    const WordRows rows = rowsOfTab(tab.RtxtSzoveg21, tab.RtxtSzoveg11);
    page.words1 = rows.row1;
    page.words2 = rows.row2;
    page.senderName = trimmed(tab.RtxNev);
    page.senderAddress = trimmed(tab.RtxCim);
    return page;
}

PinkCheckFront frontOfClient(const ClientRec& client, const PinkCheckTab& tab, const SetRcsekk& layout,
                             const WordRows& rows) {
    PinkCheckFront page;
    const bool clientSends = tab.opAllando == FixedParty::addressee;
    const Party sender = clientSends ? partyOf(client) : fixedParty(layout);
    static_cast<Party&>(page) = clientSends ? addresseeOf(tab) : partyOf(client);
    page.amount = starred(QString::number(client.Osszegek[0]));
    page.words1 = rows.row1;
    page.words2 = rows.row2;
    page.senderName = sender.name;
    page.senderAddress = addressLine(clientSends ? client.Irsz.stored() : layout.txRcsekkIrszam.stored(), sender);
    return page;
}

PinkCheckBack backFor(const Party& sender, const PinkCheckTab& tab) {
    PinkCheckBack page;
    static_cast<Party&>(page) = sender;
    page.notice1 = trimmed(tab.RcsekkKozlemenyHatul[0]);
    page.notice2 = trimmed(tab.RcsekkKozlemenyHatul[1]);
    page.notice3 = trimmed(tab.RcsekkKozlemenyHatul[2]);
    page.notice4 = trimmed(tab.RcsekkKozlemenyHatul[3]);
    return page;
}

PinkCheckBack backOfTab(const PinkCheckTab& tab) {
    return backFor(
        {trimmed(tab.txtNevHatul), trimmed(tab.txtHelysHatul), trimmed(tab.txtCimHatul), trimmed(tab.txtIrszHatul)},
        tab);
}

PinkCheckBack backOfClient(const ClientRec& client, const PinkCheckTab& tab, const SetRcsekk& layout) {
    return backFor(tab.opAllando == FixedParty::addressee ? partyOf(client) : fixedParty(layout), tab);
}

using L = SetRcsekk;
using F = PinkCheckFront;
using Front = Item<PinkCheckFront, SetRcsekk>;

constexpr Front frontItems[] = {
    Front::font(&L::cmbRcsekkNumBetuTipus, &L::TextRcsekkBetuMeret1),
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x1, {10, 0}, &L::RcsekkTextosszeg_y1, {3, 0}).flag(0),
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x2, {10, 0}).flag(0),
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x2, {10, 0}, &L::RcsekkTextosszeg_y2, {3, 0}).flag(0),
    Front::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2),
    // Both rows of words hang on one y field.
    Front::text(&F::words1, &L::RcsekkTextCsSzoveg_x1, {8, 0}, &L::RcsekkTextCsSzoveg_y1, {5, 3}).flag(1),
    Front::text(&F::words2, &L::RcsekkTextCsSzoveg_x1, {8, 0}, &L::RcsekkTextCsSzoveg_y1, {11, 10}).flag(1),
    Front::text(&F::words1, &L::RcsekkTextCsSzoveg_x2, {7, 0}, &L::RcsekkTextCsSzoveg_y2, {3, 1}).flag(1),
    Front::text(&F::words2, &L::RcsekkTextCsSzoveg_x2, {7, 0}, &L::RcsekkTextCsSzoveg_y2, {9, 8}).flag(1),
    Front::text(&F::senderName, &L::RcsekkTextFelado_x, {5, 0}, &L::RcsekkTextFelado_y, {3, 1}).flag(2).orSkipLine(),
    Front::next(&F::senderAddress, &L::RcsekkTextFelado_x, {5, 5}).flag(3),
    // The addressee always prints, in the upright batch as large as the amounts.
    Front::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2, &L::TextRcsekkBetuMeret1),
    Front::text(&F::name, &L::RcsekkTextcim_x1, {4, 0}, &L::RcsekkTextcim_y, {0, -3}),
    Front::next(&F::settlement, &L::RcsekkTextcim_x1, {4, 0}),
    Front::next(&F::street, &L::RcsekkTextcim_x1, {4, 0}),
    Front::text(&F::postcode, &L::RcsekkTextcim_x1, {4, 0}, &L::RcsekkTextirsz_y, {0, -3}),
    Front::text(&F::name, &L::RcsekkTextcim_x2, {7, 0}, &L::RcsekkTextcim2_y, {0, -3}),
    Front::next(&F::settlement, &L::RcsekkTextcim_x2, {7, 0}),
    Front::next(&F::street, &L::RcsekkTextcim_x2, {7, 0}),
    Front::text(&F::postcode, &L::RcsekkTextcim_x2, {7, 0}, &L::RcsekkTextirsz2_y, {0, -3}),
};

using B = PinkCheckBack;
using Back = Item<PinkCheckBack, SetRcsekk>;

constexpr Back backItems[] = {
    Back::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2),
    Back::text(&B::name, &L::txRcsekkFeladoHatoldal_x, {4, -4}, &L::txRcsekkFeladoHatoldal_y, {-4, -6}),
    Back::next(&B::settlement, &L::txRcsekkFeladoHatoldal_x, {4, -4}),
    Back::next(&B::street, &L::txRcsekkFeladoHatoldal_x, {4, -4}),
    Back::skip(),
    Back::next(&B::postcode, &L::txRcsekkFeladoHatoldal_x, {9, 4, 1, 1}),
    Back::text(&B::notice1, &L::txRcsekkKozlemHatoldal_x, {4, -4}, &L::txRcsekkKozlemHatoldal_y, {-2, -4}),
    Back::next(&B::notice2, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
    Back::next(&B::notice3, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
    Back::next(&B::notice4, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
};

QString jobTitle() { return QStringLiteral("rozsaszin-csekk"); }

// Sideways the page is left as it is, but that a single back stands upright on it.
PageRequest pageRequest(FormRun feed, Side side) {
    if (isUpright(feed)) return dlLandscape;
    return side == Side::back ? PageRequest{1, {}, {}} : PageRequest{};
}

PrintOutcome printTab(const PrintDesk& desk, const PinkCheckTab& tab, FormRun feed) {
    Pen pen(desk, FailureWay::message, jobTitle());
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set);
    const auto layout = readRecord<SetRcsekk>(desk.folder);
    pen.OpenForm(pageRequest(feed, tab.side));
    if (tab.side == Side::front) {
        const Sheet sheet = checkSheet(pen, set, feed);
        printItems(pen, frontItems, frontOfTab(tab), layout, sheet);
    } else {
        printItems(pen, backItems, backOfTab(tab), layout, Sheet{feed, {}, 0});
    }
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}

PrintOutcome printBatch(const PrintDesk& desk, const PinkCheckTab& tab, const std::vector<int>& numbers, Side side,
                        FormRun feed) {
    Pen pen(desk, FailureWay::message, jobTitle());
    pen.StartFromA4();
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set);
    const auto layout = readRecord<SetRcsekk>(desk.folder);
    pen.ShowPrinter();
    pen.OpenForm(pageRequest(feed, side));
    const Sheet sheet = side == Side::front ? checkSheet(pen, set, feed) : Sheet{feed, {}, 0};
    printClients(pen, desk.folder, numbers, [&](const Client& record) {
        const ClientRec& client = record.client;
        if (side == Side::back) return printItems(pen, backItems, backOfClient(client, tab, layout), layout, sheet);
        const WordRows rows =
            batchWords(desk.device, client.Osszegek[0], layout.cmbRcsekkSzovegBetuTipus, layout.TextRcsekkBetuMeret2);
        printItems(pen, frontItems, frontOfClient(client, tab, layout, rows), layout, sheet);
    });
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}

} // namespace

PrintOutcome PrintAlloRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.pinkCheck, FormRun::upright);
}

PrintOutcome PrintFekvoRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.pinkCheck, FormRun::sideways);
}

PrintOutcome PrintCsAlloRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.pinkCheck, rows.selected, tabs.pinkCheck.side, FormRun::uprightBatch);
}

PrintOutcome PrintCsFekvoRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.pinkCheck, rows.selected, Side::front, FormRun::sidewaysBatch);
}
