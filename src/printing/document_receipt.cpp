#include "printing/document_receipt.h"

#include "printing/form_routine.h"
#include "printing/form_text.h"
#include "printing/item_table.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct DocumentReceiptPage : Party { // the party is the addressee
    QString return1, return2, return3, return4;
    QString sender1, sender2, sender3;
    QString number, kind, enclosure; // the bar code is the number as well
    QString notice, postOffice, itemIdentifier;
};

// What a batch takes from the tab too.
DocumentReceiptPage pageForAll(const DocumentReceiptTab& tab) {
    DocumentReceiptPage page;
    page.notice = trimmed(tab.txtIratErtesites);
    page.postOffice = trimmed(tab.txtIratFelvPosta);
    page.itemIdentifier = trimmed(tab.txtIratKuldAzonosito);
    return page;
}

DocumentReceiptPage pageOfTab(const DocumentReceiptTab& tab) {
    DocumentReceiptPage page = pageForAll(tab);
    static_cast<Party&>(page) = {trimmed(tab.txtIratCimzettNev), trimmed(tab.txtIratCimzettHelyseg),
                                 trimmed(tab.txtIratCimzettUtca), trimmed(tab.txtIratCimzettIrszam)};
    page.return1 = trimmed(tab.lbIratFeladoNev);
    page.return2 = trimmed(tab.lbIratFeladoCim1);
    page.return3 = trimmed(tab.lbIratFeladoCim2);
    page.sender1 = trimmed(tab.txtIratFelado[0]);
    page.sender2 = trimmed(tab.txtIratFelado[1]);
    page.sender3 = trimmed(tab.txtIratFelado[2]);
    page.number = trimmed(tab.txtIratSzama);
    page.kind = trimmed(tab.txtIratFajtaja);
    page.enclosure = trimmed(tab.txtIratMelleklet);
    return page;
}

// Both addresses are the return address of the settings, with the postcode in another place.
DocumentReceiptPage pageOfClient(const Client& record, const DocumentReceiptTab& tab, const SetTerti& address) {
    DocumentReceiptPage page = pageForAll(tab);
    static_cast<Party&>(page) = partyOf(record.client);
    page.return1 = page.sender1 = address.txtTertiVisszakuldNev.trimmed();
    page.return2 = address.txtTertiVisszakuldCim1.trimmed();
    page.return3 = page.sender3 = address.txtTertiVisszakuldCim2.trimmed();
    page.return4 = address.txtTertiVisszakuldIrsz.trimmed();
    page.sender2 = page.return4 + u' ' + page.return2;
    page.number = record.twin.IratSzama.trimmed();
    page.kind = record.twin.IratFajtaja.trimmed();
    page.enclosure = record.twin.IratMelleklet.trimmed();
    return page;
}

using P = DocumentReceiptPage;
using L = SetIrat2;
using Row = Item<DocumentReceiptPage, SetIrat2>;

struct Printed { // what the tab's boxes switch on
    enum Flag { returnAddress, sender, barCode };
};

constexpr Offset dx = {55, 20};
constexpr Offset dy = {0, -3};

constexpr Row items[] = {
    Row::font(&L::cmbIratTertiBetuTipus, &L::txtIratTertiBetuMeret),
    Row::text(&P::name, &L::txtIratTertiCimzett_x, dx, &L::txtIratTertiCimzett_y, dy),
    Row::next(&P::settlement, &L::txtIratTertiCimzett_x, dx),
    Row::next(&P::street, &L::txtIratTertiCimzett_x, dx),
    Row::next(&P::postcode, &L::txtIratTertiCimzett_x, dx),
    Row::text(&P::return1, &L::txtIratTertiFelado_x, dx, &L::txtIratTertiFelado_y, dy).flag(Printed::returnAddress),
    Row::next(&P::return2, &L::txtIratTertiFelado_x, dx).flag(Printed::returnAddress),
    Row::next(&P::return3, &L::txtIratTertiFelado_x, dx).flag(Printed::returnAddress),
    Row::next(&P::return4, &L::txtIratTertiFelado_x, dx).flag(Printed::returnAddress), // empty on the tab
    // The sender has no field of its own and hangs 15 mm above the document number.
    Row::text(&P::sender1, &L::txtIratTertiIratszam_x, dx, &L::txtIratTertiIratszam_y, {-15, -18})
        .flag(Printed::sender),
    Row::next(&P::sender2, &L::txtIratTertiIratszam_x, dx).flag(Printed::sender),
    Row::next(&P::sender3, &L::txtIratTertiIratszam_x, dx).flag(Printed::sender),
    Row::font(&L::cmbVkodBetutipus, &L::txtVkodMeret).flag(Printed::barCode),
    Row::text(&P::number, &L::txtIratTertiIratkuldAzon_x, {60, 25}, &L::txtIratTertiIratkuldAzon_y, {5, 2})
        .flag(Printed::barCode),
    Row::font(&L::cmbIratTertiBetuTipus, &L::txtIratTertiBetuMeret),
    Row::text(&P::number, &L::txtIratTertiIratszam_x, dx, &L::txtIratTertiIratszam_y, dy),
    Row::text(&P::kind, &L::txtIratTertiIratfajta_x, dx, &L::txtIratTertiIratfajta_y, dy),
    Row::text(&P::enclosure, &L::txtIratTertiIratmelleklet_x, dx, &L::txtIratTertiIratmelleklet_y, dy),
    Row::text(&P::notice, &L::txtIratTertiIratotthagy_x, dx, &L::txtIratTertiIratotthagy_y, dy),
    Row::text(&P::postOffice, &L::txtIratTertiIratposta_x, dx, &L::txtIratTertiIratposta_y, dy),
    Row::text(&P::itemIdentifier, &L::txtIratTertiIratkuldAzon_x, dx, &L::txtIratTertiIratkuldAzon_y, dy),
};

constexpr FormRoutine routineFor(Run run) {
    FormRoutine routine{.run = run,
                        .jobTitle = u"irat-tertiveveny",
                        .failureWay = FailureWay::passOver,
                        .page = dlLandscape,
                        .opensPerClient = true,
                        .takesClientsOut = true};
    if (run == Run::sideways) routine.page = {1, {}, QSizeF(105, 165)};
    if (run == Run::sidewaysBatch) routine.page = {1, 27, QSizeF(105, 165)};
    return routine;
}

PrintOptions optionsFor(const DocumentReceiptTab& tab, Run run) {
    PrintOptions options{.run = run};
    options.flags[Printed::returnAddress] = tab.chkVisszaCimPrint[0];
    options.flags[Printed::sender] = tab.chkVisszaCimPrint[1];
    options.flags[Printed::barCode] = tab.chkVkod;
    return options;
}

void printPage(Pen& pen, const PrintDevice& device, const DocumentReceiptPage& page, const SetIrat2& layout,
               const PrintOptions& options) {
    if (options.flags[Printed::barCode] && !device.knowsFont(layout.cmbVkodBetutipus.stored()))
        pen.Note(u"A vonalkód helyén csak a szám áll, mert a vonalkód betűtípusa hiányzik."_s);
    printItems(pen, items, page, layout, options);
}

PrintOutcome printTab(const PrintDesk& desk, const DocumentReceiptTab& tab, Run run) {
    const auto layout = readRecord<SetIrat2>(desk.folder);
    return printOne(desk, routineFor(run), [&](Pen& pen, const Set& /*set*/) {
        printPage(pen, desk.device, pageOfTab(tab), layout, optionsFor(tab, run));
    });
}

PrintOutcome printBatch(const PrintDesk& desk, const DocumentReceiptTab& tab, const ListRows& rows, Run run) {
    const auto address = readRecord<SetTerti>(desk.folder);
    const auto layout = readRecord<SetIrat2>(desk.folder);
    return printEach(desk, routineFor(run), rows, [&](Pen& pen, const Set& /*set*/, const Client& record) {
        printPage(pen, desk.device, pageOfClient(record, tab, address), layout, optionsFor(tab, run));
    });
}

} // namespace

PrintOutcome PrintAlloIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.documentReceipt, Run::upright);
}

PrintOutcome PrintFekvoIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.documentReceipt, Run::sideways);
}

PrintOutcome PrintCsAlloIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.documentReceipt, rows, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoIrat(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.documentReceipt, rows, Run::sidewaysBatch);
}
