#include "mainwindow/print_dispatch.h"

#include "printing/amount_in_words.h"
#include "printing/document_receipt.h"
#include "printing/pink_check.h"
#include "printing/posting_receipt.h"
#include "printing/yellow_check.h"
#include "prompts/titles.h"
#include "records/record_file.h"
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
constexpr Routine notBuilt = nullptr; // the form can't be printed yet

// Labels have one feed and no batch: their one button prints all that is ticked.
constexpr Route routes[] = {
    {Tab::yellowCheck, single, upright, PrintAlloCsekk},
    {Tab::yellowCheck, single, sideways, PrintFekvoCsekk},
    {Tab::yellowCheck, batch, upright, PrintCsAlloCsekk},
    {Tab::yellowCheck, batch, sideways, PrintCsFekvoCsekk},
    {Tab::returnReceipt, single, upright, notBuilt},
    {Tab::returnReceipt, single, sideways, notBuilt},
    {Tab::returnReceipt, batch, upright, notBuilt},
    {Tab::returnReceipt, batch, sideways, notBuilt},
    {Tab::postingReceipt, single, upright, PrintAlloFelado},
    {Tab::postingReceipt, single, sideways, PrintFekvoFelado},
    {Tab::postingReceipt, batch, upright, PrintCsAlloFelado},
    {Tab::postingReceipt, batch, sideways, PrintCsFekvoFelado},
    {Tab::envelope, single, upright, notBuilt},
    {Tab::envelope, single, sideways, notBuilt},
    {Tab::envelope, batch, upright, notBuilt},
    {Tab::envelope, batch, sideways, notBuilt},
    {Tab::label, single, upright, notBuilt},
    {Tab::documentReceipt, single, upright, PrintAlloIrat},
    {Tab::documentReceipt, single, sideways, PrintFekvoIrat},
    {Tab::documentReceipt, batch, upright, PrintCsAlloIrat},
    {Tab::documentReceipt, batch, sideways, PrintCsFekvoIrat},
    {Tab::pinkCheck, single, upright, PrintAlloRCsekk},
    {Tab::pinkCheck, single, sideways, PrintFekvoRCsekk},
    {Tab::pinkCheck, batch, upright, PrintCsAlloRcsekk},
    {Tab::pinkCheck, batch, sideways, PrintCsFekvoRcsekk},
    {Tab::cashOnDelivery, single, upright, notBuilt},
    {Tab::cashOnDelivery, single, sideways, notBuilt},
    {Tab::cashOnDelivery, batch, upright, notBuilt},
    {Tab::cashOnDelivery, batch, sideways, notBuilt},
};
static_assert(std::size(routes) == 29);

Routine routineFor(const PrintRequest& request) {
    const auto route = std::find_if(std::begin(routes), std::end(routes), [&](const Route& r) {
        return r.tab == request.tab && r.press == request.press && r.feed == request.feed;
    });
    return route == std::end(routes) ? notBuilt : route->print;
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

bool isBatchMeant(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request, const ListRows& rows) {
    if (request.tab == Tab::yellowCheck && request.feed == upright && rows.selected.size() < rows.all.size() &&
        readRecord<Set>(desk.folder).chkAutoPrint != 0)
        return confirms(desk.prompts,
                        u"Az automatikus nyomtatás be van kapcsolva,\nezért a lista MIND %1 ügyfelének "
                        "csekkje ki lesz nyomtatva!\n\nMehet a nyomtatás?"_s.arg(withArticle(rows.all.size())));
    if (request.tab == Tab::pinkCheck && request.feed == sideways && tabs.pinkCheck.side == Side::back)
        return confirms(desk.prompts, u"Fekvő csoportos nyomtatásnál csak a csekk első oldala nyomtatható!\n\nMehet az "
                                      "első oldal nyomtatása?"_s);
    return true;
}

PrintOutcome nothing(const QString& why) { return {0, {}, why}; }

} // namespace

PrintOutcome dispatchPrint(const PrintDesk& desk, const FormTabs& tabs, const PrintRequest& request,
                           const ListRows& rows, const QString& shownName) {
    const Routine print = routineFor(request);
    if (print == notBuilt) return nothing(u"Ez a nyomtatvány így nem nyomtatható."_s);
    if (request.tab == Tab::yellowCheck && request.press == single && amountOf(tabs.yellowCheck.txOsszeg) == 0)
        return nothing(u"Az összeg üres vagy nulla."_s);
    const bool meant = request.press == single ? isSingleMeant(desk, tabs.yellowCheck, shownName)
                                               : isBatchMeant(desk, tabs, request, rows);
    if (!meant) return nothing(u"A nyomtatást nem kérted."_s);
    return print(desk, tabs, rows);
}
