#include "printing/cash_on_delivery.h"

#include "printing/check_forms.h"
#include "printing/form_routine.h"
#include "printing/form_text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct CashOnDeliveryFront : Party { // the party is the payee
    QString amount, words1, words2;
    QString addresseeName, addresseeAddress;
    bool markR = false, markEL = false;
};

// The form's positions and the fonts, which are the pink check's.
struct Layout : SetUlap, SetRcsekk {};

Layout layoutIn(const ProgramFolder& folder) { return {readRecord<SetUlap>(folder), readRecord<SetRcsekk>(folder)}; }

Party storedParty(const ClientRec& client) {
    return {client.Nev.stored(), client.Helyseg.stored(), client.Cim.stored(), client.Irsz.stored()};
}

// What is the same on all pages of a batch.
CashOnDeliveryFront frontFor(const CashOnDeliveryTab& tab) {
    CashOnDeliveryFront page;
    static_cast<Party&>(page) = {tab.lbUNev, tab.lbUHelyseg, tab.lbUCim, tab.lbUIrszam};
    page.markR = tab.chkUtanvetR;
    page.markEL = tab.chkUtanvetEL;
    return page;
}

CashOnDeliveryFront frontOfTab(const CashOnDeliveryTab& tab) {
    CashOnDeliveryFront page = frontFor(tab);
    page.amount = starred(tab.txUosszeg);
    page.words1 = tab.lbosszegBetuvel1; // with its stars
    page.words2 = tab.lbosszegBetuvel2;
    page.addresseeName = tab.txUNev;
    page.addresseeAddress = tab.txUCim;
    return page;
}

CashOnDeliveryFront frontOfClient(const ClientRec& client, const CashOnDeliveryTab& tab, PrintDevice& device,
                                  const Set& set) {
    CashOnDeliveryFront page = frontFor(tab);
    if (const std::int32_t amount = client.Osszegek[0]; amount != 0) {
        const WordRows words = batchWords(device, amount, set.ComboBetuTipus2, set.TextBetuMeret2);
        page.amount = starred(QString::number(amount));
        page.words1 = words.row1;
        page.words2 = words.row2;
    }
    Party addressee = storedParty(client);
    addressee.settlement = client.Helyseg.trimmed();
    page.addresseeName = addressee.name;
    page.addresseeAddress = addressLine(addressee, u", "_s);
    return page;
}

Party backOfTab(const CashOnDeliveryTab& tab) {
    return {tab.lbUNevHatul, tab.lbUHelysegHatul, tab.lbUCimHatul, tab.lbUIrszamHatul};
}

using L = Layout;
using F = CashOnDeliveryFront;
using Front = Item<CashOnDeliveryFront, Layout>;

constexpr Offset amountDx(65, 26), amountDy(0, -3), markDx(62, 24);
constexpr int markPoints = 24;

constexpr Front frontItems[] = {
    Front::font(&L::cmbRcsekkNumBetuTipus, &L::TextRcsekkBetuMeret1),
    Front::text(&F::amount, &L::UlapTextosszeg_x, amountDx, &L::UlapTextosszeg_y1, amountDy),
    Front::text(&F::amount, &L::UlapTextosszeg_x, amountDx, &L::UlapTextosszeg_y2, amountDy),
    // Both marks hang on one pair of fields.
    Front::font(&L::cmbRcsekkNumBetuTipus, markPoints).when(&F::markR),
    Front::tick(&F::markR, &L::UlapRX_x, markDx, &L::UlapRX_y, Offset(-1, -2).inBatch(-1, -1)),
    Front::font(&L::cmbRcsekkNumBetuTipus, markPoints).when(&F::markEL),
    Front::tick(&F::markEL, &L::UlapRX_x, markDx, &L::UlapRX_y, Offset(9, 6).inBatch(9, 7)),
    Front::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2),
    Front::text(&F::addresseeName, &L::UlapTextFelado_x, {67, 26}, &L::UlapTextFelado_y, {-2, -4}),
    Front::next(&F::addresseeAddress, &L::UlapTextFelado_x, {67, 26}),
    Front::text(&F::words1, &L::UlapTextCsSzoveg_x, Offset(63, 25).inBatch(63, 26), &L::UlapTextCsSzoveg_y, {-2, -4}),
    Front::next(&F::words2, &L::UlapTextCsSzoveg_x, Offset(63, 25).inBatch(63, 26)),
    Front::text(&F::name, &L::UlapCim_x, {64, 25}, &L::UlapCim_y, {-1, -3}),
    Front::next(&F::settlement, &L::UlapCim_x, {64, 25}),
    Front::next(&F::street, &L::UlapCim_x, {64, 25}),
    Front::next(&F::postcode, &L::UlapCim_x, {64, 25}),
};

using Back = Item<Party, Layout>;

constexpr Back backItems[] = {
    Back::font(&L::cmbRcsekkSzovegBetuTipus, &L::TextRcsekkBetuMeret2),
    Back::text(&Party::name, &L::UlapKuldCim_x, {64, 26}, &L::UlapKuldCim_y, {-1, -3}),
    Back::next(&Party::settlement, &L::UlapKuldCim_x, {64, 26}),
    Back::next(&Party::street, &L::UlapKuldCim_x, {64, 26}),
    Back::next(&Party::postcode, &L::UlapKuldCim_x, {64, 26}),
};

FormRoutine routineFor(Run run) {
    FormRoutine routine{
        .run = run, .jobTitle = u"utanveteli-lap", .failureWay = FailureWay::silent, .readsTwin = false};
    if (isUpright(run)) routine.page = dlLandscape;
    if (run == Run::sidewaysBatch) routine.page = {{}, 27, QSizeF(150, 105)}; // a single one leaves it as it is
    return routine;
}

PrintOutcome printTab(const PrintDesk& desk, const FormTabs& tabs, Run run) {
    const CashOnDeliveryTab& tab = tabs.cashOnDelivery;
    const Layout layout = layoutIn(desk.folder);
    const auto print = [&](Pen& pen, const Set& /*set*/) {
        if (tab.side == Side::back) return printItems(pen, backItems, backOfTab(tab), layout, {.run = run});
        printItems(pen, frontItems, frontOfTab(tab), layout, {.run = run});
    };
    return printOne(desk, routineFor(run), print, missingClient(tabs.yellowCheck));
}

PrintOutcome printBatch(const PrintDesk& desk, const CashOnDeliveryTab& tab, const ListRows& rows, Run run) {
    const Layout layout = layoutIn(desk.folder);
    return printEach(desk, routineFor(run), rows, [&](Pen& pen, const Set& set, const Client& record) {
        const ClientRec& client = record.client;
        if (tab.side == Side::back) return printItems(pen, backItems, storedParty(client), layout, {.run = run});
        printItems(pen, frontItems, frontOfClient(client, tab, desk.device, set), layout, {.run = run});
    });
}

} // namespace

PrintOutcome PrintAlloULap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs, Run::upright);
}

PrintOutcome PrintFekvoULap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs, Run::sideways);
}

PrintOutcome PrintCsAlloUlap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.cashOnDelivery, rows, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoUlap(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.cashOnDelivery, rows, Run::sidewaysBatch);
}
