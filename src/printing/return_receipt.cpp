#include "printing/return_receipt.h"

#include "printing/form_routine.h"
#include "printing/form_text.h"
#include "printing/item_table.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The tab with trimmed texts, and the return address as stored, at full length.
struct ReturnReceiptPage : ReturnReceiptTab {
    QString returnName, returnLine1, returnLine2, returnPostcode;
};

using Page = ReturnReceiptPage;

Page pageOfTab(const ReturnReceiptTab& tab, const SetTerti& layout) {
    Page page{tab, layout.txtTertiVisszakuldNev.stored(), layout.txtTertiVisszakuldCim1.stored(),
              layout.txtTertiVisszakuldCim2.stored(), layout.txtTertiVisszakuldIrsz.stored()};
    for (QString* text : {&page.txNev2, &page.txCim2_1, &page.txCim2_2, &page.txtTertiPosta, &page.txtTertiDatum,
                          &page.txKudemenyAzonosito, &page.txUgyfelAzonosito, &page.txUgyfelSajatJelzese})
        *text = trimmed(*text);
    return page;
}

Page pageOfClient(const Client& client, const ReturnReceiptTab& tab, const SetTerti& layout) {
    Page page = pageOfTab(tab, layout);
    const Party addressee = partyOf(client.client);
    page.txNev2 = addressee.name;
    page.txCim2_1 = addressee.postcode + u' ' + addressee.settlement;
    page.txCim2_2 = addressee.street;
    page.txKudemenyAzonosito = client.twin.KuldemenyAzonosito.trimmed();
    page.txUgyfelAzonosito = client.client.Azonosito.trimmed();
    page.txUgyfelSajatJelzese = client.twin.SajatJelzes.trimmed();
    return page;
}

using L = SetTerti;
using Row = Item<ReturnReceiptPage, SetTerti>;

constexpr Row domesticMark(bool Page::*ticked, Row::At x) {
    return Row::tick(ticked, x, {127, 20}, &L::txtTertiPipa_y, {50, 0});
}

constexpr Row domesticItems[] = {
    Row::font(&L::cmbTertiBetuTipus, &L::txtTertiBetuMeret).weight(Weight::normal),
    Row::text(&Page::txNev2, &L::txtTertiCimzett_x, {108, 0}, &L::txtTertiCimzett_y, {50, 0}),
    Row::next(&Page::txCim2_1, &L::txtTertiCimzett_x, {108, 0}),
    Row::next(&Page::txCim2_2, &L::txtTertiCimzett_x, {108, 0}),
    // Office and date stand in the item identifier's column, the office near the addressee's line.
    Row::text(&Page::txtTertiPosta, &L::txtTertiKuldemAzonosito_x, {108, 0}, &L::txtTertiCimzett_y, {49, 0}),
    Row::text(&Page::txtTertiDatum, &L::txtTertiKuldemAzonosito_x, {108, 0}, &L::txtTertiFelKelte_y, {46, 0}),
    Row::text(&Page::txKudemenyAzonosito, &L::txtTertiKuldemAzonosito_x, {108, 0}, &L::txtTertiKuldemAzonosito_y,
              {47, 0}),
    Row::text(&Page::txUgyfelAzonosito, &L::txtTertiUgyfazonosito_x, {108, 0}, &L::txtTertiUgyfazonosito_y, {49, 0}),
    Row::text(&Page::txUgyfelSajatJelzese, &L::txtTertiUgyfSajatJel_x, {108, 0}, &L::txtTertiUgyfSajatJel_y, {49, 0}),
    Row::text(&Page::returnName, &L::txtTertiVisszakuld_x, {108, 0}, &L::txtTertiVisszakuld_y, {47, 0}),
    Row::next(&Page::returnLine1, &L::txtTertiVisszakuld_x, {108, 0}),
    Row::next(&Page::returnLine2, &L::txtTertiVisszakuld_x, {108, 0}),
    Row::next(&Page::returnPostcode, &L::txtTertiVisszakuld_x, {108, 0}),
    domesticMark(&Page::chkTPri, &L::txtTertiPipaPri_x),
    domesticMark(&Page::chkTSk, &L::txtTertiPipaSk_x),
    domesticMark(&Page::chkTUv, &L::txtTertiPipaUv_x),
};

// Below the addressee an upright batch stands lower than a single form.
constexpr Offset foreignDy = Offset(47, 0).inBatch(50, 0);

constexpr Row foreignReturnLine(Row::TextOf text, int line) {
    return Row::text(text, &L::KTertiKulVissza_x, {138, 25},
                     Row::At(&L::KTertiKulVissza_y).plus(line, &L::KTertiKulVisszaSorem), foreignDy);
}

constexpr Row foreignMark(bool Page::*ticked, Row::At x, Row::At y) {
    return Row::tick(ticked, x, {138, 16}, y, foreignDy);
}

constexpr Row foreignItems[] = {
    Row::font(&L::cmbTertiBetuTipus, &L::txtTertiBetuMeret).weight(Weight::normal),
    Row::text(&Page::txNev2, &L::txtKTertiCimzett_x, {108, 20}, &L::txtKTertiCimzett_y, {47, 0}),
    Row::next(&Page::txCim2_1, &L::txtKTertiCimzett_x, {108, 20}),
    Row::next(&Page::txCim2_2, &L::txtKTertiCimzett_x, {108, 20}),
    Row::text(&Page::txKudemenyAzonosito, &L::KTertiKulAzon_x, {108, 25}, &L::KTertiKulAzon_y, {47, 0})
        .only({Run::upright, Run::sideways}),
    foreignReturnLine(&Page::returnName, 0),
    foreignReturnLine(&Page::returnLine1, 1),
    foreignReturnLine(&Page::returnLine2, 2),
    foreignReturnLine(&Page::returnPostcode, 3),
    foreignMark(&Page::chkTPri, &L::KTertiKulPri_x, &L::KTertiKulLevPriCsom_y),
    foreignMark(&Page::chkTSk, &L::KTertiKulAjanlottEsSK_x, &L::KTertiKulSK_y),
    foreignMark(&Page::chkTUv, &L::KTertiKulAjanlottEsSK_x, &L::KTertiKulAjanlott_y), // registered, on this form
    foreignMark(&Page::chkLevel, &L::KTertiKulAjanlottEsSK_x, &L::KTertiKulLevPriCsom_y),
    foreignMark(&Page::chkKCsomag, &L::txtKTertiCsomag_x, &L::KTertiKulLevPriCsom_y),
};

FormRoutine routineFor(Run run) {
    const bool tracks = run == Run::upright || run == Run::sidewaysBatch;
    return {.run = run,
            .jobTitle = u"tertiveveny",
            .failureWay = isUpright(run) ? FailureWay::passOver : FailureWay::silent,
            .page = isUpright(run) ? PageRequest{2, 9, {}} : PageRequest{{}, {}, QSizeF(165, 105)},
            .track = tracks ? TrackDefault::set : TrackDefault::leave,
            .opensPerClient = true};
}

void printPage(Pen& pen, const Page& page, const SetTerti& layout, Run run) {
    if (page.foreign) return printItems(pen, foreignItems, page, layout, {.run = run});
    printItems(pen, domesticItems, page, layout, {.run = run});
}

PrintOutcome printTab(const PrintDesk& desk, const ReturnReceiptTab& tab, Run run) {
    const auto layout = readRecord<SetTerti>(desk.folder);
    const auto print = [&](Pen& pen, const Set& /*set*/) { printPage(pen, pageOfTab(tab, layout), layout, run); };
    return printOne(desk, routineFor(run), print);
}

PrintOutcome printBatch(const PrintDesk& desk, const ReturnReceiptTab& tab, const ListRows& rows, Run run) {
    const auto layout = readRecord<SetTerti>(desk.folder);
    return printEach(desk, routineFor(run), rows, [&](Pen& pen, const Set& /*set*/, const Client& client) {
        printPage(pen, pageOfClient(client, tab, layout), layout, run);
    });
}

} // namespace

PrintOutcome PrintAlloTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.returnReceipt, Run::upright);
}

PrintOutcome PrintFekvoTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.returnReceipt, Run::sideways);
}

PrintOutcome PrintCsAlloTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.returnReceipt, rows, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoTerti(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.returnReceipt, rows, Run::sidewaysBatch);
}
