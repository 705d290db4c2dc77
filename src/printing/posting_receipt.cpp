#include "printing/posting_receipt.h"

#include "printing/form_routine.h"
#include "printing/form_text.h"
#include "printing/item_table.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Page = PostingReceiptTab; // the form prints what the tab shows, and that alone
using L = SetFveveny;
using Row = Item<Page, L>;

Page pageOfTab(const PostingReceiptTab& tab) {
    Page page = tab;
    for (QString Page::*text :
         {&Page::txNev3, &Page::txCim3_1, &Page::txCim3_2, &Page::lbSajatNev, &Page::lbSajatCim1, &Page::lbSajatCim2,
          &Page::txErtek, &Page::txUtanvet, &Page::txtFeladov1, &Page::txtFeladov2})
        page.*text = trimmed(page.*text);
    return page;
}

Page pageOfClient(const ClientRec& client, const PostingReceiptTab& tab) {
    Page page = pageOfTab(tab);
    page.txNev3 = client.Nev.trimmed();
    page.txCim3_1 = client.Irsz.stored() + u' ' + client.Helyseg.trimmed(); // padding included
    page.txCim3_2 = client.Cim.trimmed();
    return page;
}

constexpr Offset dx = {32, 0};

// The free lines print at their fields; all else stands some mm higher on the upright page.
constexpr Offset partyDy = {-7, -1};
constexpr Offset amountDy = {-5, 0};

constexpr Row mark(bool Page::*ticked, Row::At x, Row::At y) { return Row::tick(ticked, x, dx, y, {-6, 0}); }

constexpr Row items[] = {
    Row::font(&L::cmbFeladovevenyBetuTipus, &L::txtFeladovevenyBetuMeret),
    Row::text(&Page::txNev3, &L::txtFeladovevenyCimzett_x, dx, &L::txtFeladovevenyCimzett_y, partyDy),
    Row::next(&Page::txCim3_1, &L::txtFeladovevenyCimzett_x, dx),
    Row::next(&Page::txCim3_2, &L::txtFeladovevenyCimzett_x, dx),
    Row::text(&Page::lbSajatNev, &L::txtFeladovevenyFelado_x, dx, &L::txtFeladovevenyFelado_y, partyDy),
    Row::next(&Page::lbSajatCim1, &L::txtFeladovevenyFelado_x, dx),
    Row::next(&Page::lbSajatCim2, &L::txtFeladovevenyFelado_x, dx),
    Row::text(&Page::txErtek, &L::txtFeladovevenyErtek_x, dx, &L::txtFeladovevenyErtek_y, amountDy),
    Row::text(&Page::txUtanvet, &L::txFeladovevenyUtanvet_x, dx, &L::txFeladovevenyUtanvet_y, amountDy),
    Row::size(&L::txtFeladovevenyBetuMeret2),
    Row::text(&Page::txtFeladov1, &L::txFeladovevenyUtanvetszoveg1_x, dx, &L::txFeladovevenyUtanvetszoveg1_y, {}),
    Row::text(&Page::txtFeladov2, &L::txFeladovevenyUtanvetszoveg2_x, dx, &L::txFeladovevenyUtanvetszoveg2_y, {}),
    Row::size(&L::txtFeladovevenyBetuMeret),
    // The kinds of item share the columns and rows of one grid.
    mark(&Page::chkAjanlott, &L::txFeladovevenyXAjanlott_x, &L::txFeladovevenyXAjanlott_y),
    mark(&Page::chkCsomag, &L::txFeladovevenyXTerti_x, &L::txFeladovevenyXCsomag_y),
    mark(&Page::chkTerti, &L::txFeladovevenyXTerti_x, &L::txFeladovevenyXAjanlott_y),
    mark(&Page::chkHivIrat, &L::txFeladovevenyXAjanlott_x, &L::txFeladovevenyXCsomag_y),
    mark(&Page::chkErtek, &L::txFeladovevenyXErtek_x, &L::txFeladovevenyXAjanlott_y),
    mark(&Page::chkSK, &L::txFeladovevenyXK1_x, &L::txFeladovevenyXK1_y),
    mark(&Page::chkPRI, &L::txFeladovevenyXK2_x, &L::txFeladovevenyXK1_y),
    mark(&Page::chkPL, &L::txFeladovevenyXK3_x, &L::txFeladovevenyXK1_y),
    mark(&Page::chkLEGI, &L::txFeladovevenyXK4_x, &L::txFeladovevenyXK1_y),
    mark(&Page::chk5, &L::txFeladovevenyXK5_x, &L::txFeladovevenyXK1_y),
    mark(&Page::chk6, &L::txFeladovevenyXK6_x, &L::txFeladovevenyXK1_y),
};

constexpr FormRoutine routineFor(Run run) {
    FormRoutine routine{.run = run,
                        .jobTitle = u"feladoveveny",
                        .failureWay = FailureWay::fallbackFont,
                        .page = dlLandscape,
                        .opensPerClient = true,
                        .takesClientsOut = true};
    if (isUpright(run)) return routine;
    routine.failureWay = FailureWay::silent;
    routine.page = {{}, {}, QSizeF(165, 120)};
    routine.track = TrackDefault::set;
    return routine;
}

void printPage(Pen& pen, const Page& page, const SetFveveny& layout, Run run) {
    printItems(pen, items, page, layout, {.run = run});
    // The tab shows the box of the value only while it is ticked, but the value prints.
    if (!page.chkErtek && !page.txErtek.isEmpty()) pen.Note(u"A rejtett érték is nyomtatva: "_s + page.txErtek);
}

PrintOutcome printTab(const PrintDesk& desk, const PostingReceiptTab& tab, Run run) {
    const auto layout = readRecord<SetFveveny>(desk.folder);
    return printOne(desk, routineFor(run),
                    [&](Pen& pen, const Set& /*set*/) { printPage(pen, pageOfTab(tab), layout, run); });
}

PrintOutcome printBatch(const PrintDesk& desk, const PostingReceiptTab& tab, const ListRows& rows, Run run) {
    const auto layout = readRecord<SetFveveny>(desk.folder);
    return printEach(desk, routineFor(run), rows, [&](Pen& pen, const Set& /*set*/, const Client& record) {
        printPage(pen, pageOfClient(record.client, tab), layout, run);
    });
}

} // namespace

PrintOutcome PrintAlloFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.postingReceipt, Run::upright);
}

PrintOutcome PrintFekvoFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.postingReceipt, Run::sideways);
}

PrintOutcome PrintCsAlloFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.postingReceipt, rows, Run::uprightBatch);
}

PrintOutcome PrintCsFekvoFelado(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, tabs.postingReceipt, rows, Run::sidewaysBatch);
}
