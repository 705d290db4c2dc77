#include "printing/pink_check.h"

#include "printing/check_forms.h"
#include "printing/form_routine.h"
#include "printing/form_text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct PinkCheckFront : Party { // the party is the addressee
    QString amount, words1, words2;
    QString senderName, senderAddress;
};

struct PinkCheckBack : Party { // the party is the sender
    QString notice1, notice2, notice3, notice4;
};

Party addresseeOf(const PinkCheckTab& tab) {
    return {trimmed(tab.RlbNev), trimmed(tab.RlbHelys), trimmed(tab.RlbCim), trimmed(tab.RlbIrsz)};
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
    static_cast<Party&>(page) = clientSends ? addresseeOf(tab) : partyOf(client);
    page.amount = starred(QString::number(client.Osszegek[0]));
    page.words1 = rows.row1;
    page.words2 = rows.row2;
    Party sender = clientSends ? partyOf(client) : fixedParty(layout);
    page.senderName = sender.name;
    sender.postcode = clientSends ? client.Irsz.stored() : layout.txRcsekkIrszam.stored(); // padding included
    page.senderAddress = addressLine(sender, u","_s);
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
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x1, {10, 0}, &L::RcsekkTextosszeg_y1, {3, 0}).flag(Printed::amount),
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x2, {10, 0}).flag(Printed::amount),
    Front::hold(&F::amount, &L::RcsekkTextosszeg_x2, {10, 0}, &L::RcsekkTextosszeg_y2, {3, 0}).flag(Printed::amount),
    Front::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2),
    // Both rows of words hang on one y field.
    Front::text(&F::words1, &L::RcsekkTextCsSzoveg_x1, {8, 0}, &L::RcsekkTextCsSzoveg_y1, {5, 3}).flag(Printed::words),
    Front::text(&F::words2, &L::RcsekkTextCsSzoveg_x1, {8, 0}, &L::RcsekkTextCsSzoveg_y1, {11, 10})
        .flag(Printed::words),
    Front::text(&F::words1, &L::RcsekkTextCsSzoveg_x2, {7, 0}, &L::RcsekkTextCsSzoveg_y2, {3, 1}).flag(Printed::words),
    Front::text(&F::words2, &L::RcsekkTextCsSzoveg_x2, {7, 0}, &L::RcsekkTextCsSzoveg_y2, {9, 8}).flag(Printed::words),
    Front::text(&F::senderName, &L::RcsekkTextFelado_x, {5, 0}, &L::RcsekkTextFelado_y, {3, 1}).flag(Printed::name),
    Front::skip().flag(Printed::name, false),
    Front::next(&F::senderAddress, &L::RcsekkTextFelado_x, {5, 5}).flag(Printed::address),
    // The addressee always prints, in the upright batch as large as the amounts.
    Front::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret1).only({Run::uprightBatch}),
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
    Back::next(&B::postcode, &L::txRcsekkFeladoHatoldal_x, Offset(9, 1).inBatch(4, 1)),
    Back::text(&B::notice1, &L::txRcsekkKozlemHatoldal_x, {4, -4}, &L::txRcsekkKozlemHatoldal_y, {-2, -4}),
    Back::next(&B::notice2, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
    Back::next(&B::notice3, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
    Back::next(&B::notice4, &L::txRcsekkKozlemHatoldal_x, {4, -4}),
};

// Both sides of every run print alike, but for the page and what the summary counts.
FormRoutine routineFor(Run run, Side side) {
    FormRoutine routine{.run = run,
                        .jobTitle = u"rozsaszin-csekk",
                        .failureWay = FailureWay::message,
                        .noun = u"csekk",
                        .printsAmount = side == Side::front,
                        .asksForPrinter = true};
    if (isUpright(run)) routine.page = dlLandscape;
    if (run == Run::sideways && side == Side::back) routine.page = {1, {}, {}}; // else sideways it is left as it is
    return routine;
}

void printFront(Pen& pen, const Set& set, const PinkCheckFront& page, const SetRcsekk& layout, Run run) {
    printItems(pen, frontItems, page, layout, checkOptions(pen, set, run));
    if (page.isEmpty()) pen.Note(u"A címzett adatai üresek."_s);
}

PrintOutcome printTab(const PrintDesk& desk, const PinkCheckTab& tab, Run run) {
    const auto layout = readRecord<SetRcsekk>(desk.folder);
    return printOne(desk, routineFor(run, tab.side), [&](Pen& pen, const Set& set) {
        if (tab.side == Side::back) return printItems(pen, backItems, backOfTab(tab), layout, {.run = run});
        printFront(pen, set, frontOfTab(tab), layout, run);
    });
}

PrintOutcome printBatch(const PrintDesk& desk, const PinkCheckTab& tab, const ListRows& rows, Side side, Run run) {
    const auto layout = readRecord<SetRcsekk>(desk.folder);
    return printEach(desk, routineFor(run, side), rows, [&](Pen& pen, const Set& set, const Client& record) {
        const ClientRec& client = record.client;
        if (side == Side::back)
            return printItems(pen, backItems, backOfClient(client, tab, layout), layout, {.run = run});
        const WordRows words =
            batchWords(desk.device, client.Osszegek[0], layout.cmbRcsekkSzovegBetuTipus, layout.TextRcsekkBetuMeret2);
        printFront(pen, set, frontOfClient(client, tab, layout, words), layout, run);
    });
}

} // namespace

PrintOutcome PrintAlloRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.pinkCheck, Run::upright);
}

PrintOutcome PrintFekvoRCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.pinkCheck, Run::sideways);
}

PrintOutcome PrintCsAlloRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.pinkCheck, rows, tabs.pinkCheck.side, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoRcsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.pinkCheck, rows, Side::front, Run::sidewaysBatch);
}
