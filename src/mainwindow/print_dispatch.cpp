#include "mainwindow/print_dispatch.h"

#include "printing/amount_in_words.h"
#include "printing/cash_on_delivery.h"
#include "printing/document_receipt.h"
#include "printing/envelope.h"
#include "printing/label_sheet.h"
#include "printing/pen.h"
#include "printing/pink_check.h"
#include "printing/posting_list.h"
#include "printing/posting_receipt.h"
#include "printing/return_receipt.h"
#include "printing/yellow_check.h"
#include "prompts/titles.h"
#include "records/client_database.h"
#include "settings/general_settings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);

struct Route {
    Tab tab;
    Press press;
    Feed feed;
    Routine print;
};

using enum Press;
using enum Feed;
constexpr Routine noRoutine = nullptr;

// Labels have one feed and no batch: their one button prints all that is ticked.
constexpr Route routes[] = {
    {Tab::yellowCheck, single, upright, PrintAlloCsekk},
    {Tab::yellowCheck, single, sideways, PrintFekvoCsekk},
    {Tab::yellowCheck, batch, upright, PrintCsAlloCsekk},
    {Tab::yellowCheck, batch, sideways, PrintCsFekvoCsekk},
    {Tab::returnReceipt, single, upright, PrintAlloTerti},
    {Tab::returnReceipt, single, sideways, PrintFekvoTerti},
    {Tab::returnReceipt, batch, upright, PrintCsAlloTerti},
    {Tab::returnReceipt, batch, sideways, PrintCsFekvoTerti},
    {Tab::postingReceipt, single, upright, PrintAlloFelado},
    {Tab::postingReceipt, single, sideways, PrintFekvoFelado},
    {Tab::postingReceipt, batch, upright, PrintCsAlloFelado},
    {Tab::postingReceipt, batch, sideways, PrintCsFekvoFelado},
    {Tab::envelope, single, upright, PrintAlloBoritek},
    {Tab::envelope, single, sideways, PrintFekvoBoritek},
    {Tab::envelope, batch, upright, PrintCsAlloBoritek},
    {Tab::envelope, batch, sideways, PrintCsFekvoBoritek},
    {Tab::label, single, upright, PrintAlloCimke},
    {Tab::documentReceipt, single, upright, PrintAlloIrat},
    {Tab::documentReceipt, single, sideways, PrintFekvoIrat},
    {Tab::documentReceipt, batch, upright, PrintCsAlloIrat},
    {Tab::documentReceipt, batch, sideways, PrintCsFekvoIrat},
    {Tab::pinkCheck, single, upright, PrintAlloRCsekk},
    {Tab::pinkCheck, single, sideways, PrintFekvoRCsekk},
    {Tab::pinkCheck, batch, upright, PrintCsAlloRcsekk},
    {Tab::pinkCheck, batch, sideways, PrintCsFekvoRcsekk},
    {Tab::cashOnDelivery, single, upright, PrintAlloULap},
    {Tab::cashOnDelivery, single, sideways, PrintFekvoULap},
    {Tab::cashOnDelivery, batch, upright, PrintCsAlloUlap},
    {Tab::cashOnDelivery, batch, sideways, PrintCsFekvoUlap},
};
static_assert(std::size(routes) == 29);

Routine routineFor(const PrintRequest& request) {
    const auto route = std::find_if(std::begin(routes), std::end(routes), [&](const Route& r) {
        return r.tab == request.tab && r.press == request.press && r.feed == request.feed;
    });
    return route == std::end(routes) ? noRoutine : route->print;
}

bool confirms(Prompts& prompts, const QString& text) {
    return prompts.ask({Icon::question, titles::warning, text}, Answer::no) == Answer::yes;
}

// The article of a number by its sound: "az egy", "az öt", "az ezer", but "a tíz", "a száz".
QString withArticle(std::size_t number) {
    const QString digits = QString::number(number);
    const bool vowel = digits.startsWith(u'5') || (digits.startsWith(u'1') && digits.size() % 3 == 1);
    return (vowel ? u"az "_s : u"a "_s) + digits;
}

bool isSingleMeant(const PrintDesk& desk, const YellowCheckTab& tab, const QString& shownName) {
    if (!tab.Check1 || trimBlanks(tab.txNev) == trimBlanks(shownName)) return true;
    return confirms(
        desk.prompts,
        u"A név mezőben a keresett szöveg áll: ''%1''\n\nMehet a nyomtatás ezzel a névvel?"_s.arg(tab.txNev));
}

QString wholeListQuestion(const PrintDesk& desk, const ListRows& rows) {
    if (rows.selected.size() >= rows.all.size() || readRecord<Set>(desk.folder).chkAutoPrint == 0) return {};
    return u"Az automatikus nyomtatás be van kapcsolva,\nezért a lista MIND %1 ügyfelének csekkje ki lesz "
           "nyomtatva!\n\nMehet a nyomtatás?"_s.arg(withArticle(rows.all.size()));
}

QString frontOnlyQuestion(const PinkCheckTab& tab) {
    if (tab.side == Side::front) return {};
    return u"Fekvő csoportos nyomtatásnál csak a csekk első oldala nyomtatható!\n\nMehet az első oldal nyomtatása?"_s;
}

// With the parties swapped the payee's labels hold the client last clicked, and every front takes them.
QString samePayeeQuestion(const CashOnDeliveryTab& tab) {
    if (!tab.chkCimzettCsereUlap || tab.side == Side::back) return {};
    return u"A ''Címzettek cseréje'' be van kapcsolva, ezért minden lapon\n%1\nlesz a másik fél!\n\nMehet a "
           "nyomtatás?"_s.arg(trimBlanks(tab.lbUNev));
}

// What a clerk would not expect of this batch; empty for nothing.
QString batchQuestion(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request, const ListRows& rows) {
    if (request.tab == Tab::yellowCheck && request.feed == upright) return wholeListQuestion(desk, rows);
    if (request.tab == Tab::pinkCheck && request.feed == sideways) return frontOnlyQuestion(tabs.pinkCheck);
    if (request.tab == Tab::cashOnDelivery) return samePayeeQuestion(tabs.cashOnDelivery);
    return {};
}

// The batches whose address lines have no room for the street that a foreign client has in the second name.
bool leavesForeignStreetsOut(Tab tab) {
    return tab == Tab::returnReceipt || tab == Tab::postingReceipt || tab == Tab::documentReceipt;
}

void tellForeignStreets(const PrintDesk& desk, const ListRows& rows) {
    RecordFile<ClientRec> clients(desk.folder);
    const auto lost = std::count_if(rows.selected.begin(), rows.selected.end(), [&](int number) {
        const ClientRec client = clients.read(number);
        return client.Kulfoldi && !client.Nev2.trimmed().isEmpty();
    });
    if (lost == 0) return;
    desk.prompts.tell({Icon::information, titles::attention,
                       u"%1 külföldi címzett utcája a csoportos nyomtatásban nem szerepel!"_s.arg(lost)});
}

bool isBatchMeant(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request, const ListRows& rows) {
    if (leavesForeignStreetsOut(request.tab)) tellForeignStreets(desk, rows);
    const QString question = batchQuestion(desk, tabs, request, rows);
    return question.isEmpty() || confirms(desk.prompts, question);
}

bool isChosenDevice(const PrintDevice& device, const Set& set) {
    return set.opPrinter_1 ? device.followsDefault() : device.currentPrinter() == set.lbPrintNo;
}

// Labels and the posting list print on the device and the page that the last job has left; the questions are empty
// where these are as they should be.
QString labelSheetQuestion(const PrintDevice& device, const Set& set) {
    if (device.pageSetup() != PageSetup{})
        return u"A nyomtató beállítása nem álló A4-es lap.\n\nÁtállítsam álló A4-re a nyomtatás előtt?"_s;
    return isChosenDevice(device, set)
               ? QString()
               : u"A cimkék nem a beállított nyomtatóra kerülnének.\n\nÁtállítsam arra a nyomtatás előtt?"_s;
}

// The posting list turns the page across by itself.
QString postingListQuestion(const PrintDevice& device, const Set& set) {
    const PageSetup& page = device.pageSetup();
    const bool isA4 = !page.sizeMm && page.paperSize == PageSetup{}.paperSize;
    if (isA4 && isChosenDevice(device, set)) return {};
    return u"A nyomtató beállítása nem A4-es lap.\n\nÁtállítsam A4-re a nyomtatás előtt?"_s;
}

// Puts both in order if the clerk says so. The outcome's trouble tells that it failed.
PrintOutcome prepareSheet(const PrintDesk& desk, QString (*questionFor)(const PrintDevice&, const Set&)) {
    const auto set = readRecord<Set>(desk.folder);
    const QString question = questionFor(desk.device, set);
    if (question.isEmpty() || desk.prompts.ask({Icon::question, titles::warning, question}) == Answer::no) return {};
    Pen pen(desk, FailureWay::message, {}, FirstPage::asLeft);
    pen.SelectPrinter(set, TrackDefault::set);
    pen.OpenForm({1, 9, {}});
    return pen.outcome();
}

PrintOutcome nothing(const QString& why) { return {0, {}, why}; }

} // namespace

PrintOutcome dispatchPrint(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request,
                           const ListRows& rows, const QString& shownName) {
    const Routine print = routineFor(request);
    if (print == noRoutine) return nothing(u"Ez a nyomtatvány így nem nyomtatható."_s);
    if (request.tab == Tab::yellowCheck && request.press == single && amountOf(tabs.yellowCheck.txOsszeg) == 0)
        return nothing(u"Az összeg üres vagy nulla."_s);
    const bool meant = request.press == single ? isSingleMeant(desk, tabs.yellowCheck, shownName)
                                               : isBatchMeant(desk, tabs, request, rows);
    if (!meant) return nothing(u"A nyomtatást nem kérted."_s);
    const PrintOutcome prepared = request.tab == Tab::label ? prepareSheet(desk, labelSheetQuestion) : PrintOutcome();
    return prepared.trouble.isEmpty() ? print(desk, tabs, rows) : prepared;
}

PrintOutcome dispatchPostingList(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    const PrintOutcome prepared = rows.selected.empty() ? PrintOutcome() : prepareSheet(desk, postingListQuestion);
    return prepared.trouble.isEmpty() ? PrintFeladojegyzek(desk, tabs, rows) : prepared;
}
