#include "mainwindow/print_dispatch.h"

#include "printing/amount_in_words.h"
#include "printing/pink_check.h"
#include "printing/yellow_check.h"
#include "prompts/titles.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <algorithm>

namespace {

constexpr int yellowTab = 0;
constexpr int pinkTab = 6;

using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);

struct Route {
    int tab;
    Press press;
    Feed feed;
    Routine print;
};

// Every form that can be printed. A tab and feed without a row prints nothing: the families that aren't built yet, and
// labels, which have one feed and no batch.
constexpr Route routes[] = {
    {yellowTab, Press::single, Feed::upright, PrintAlloCsekk},
    {yellowTab, Press::single, Feed::sideways, PrintFekvoCsekk},
    {yellowTab, Press::batch, Feed::upright, PrintCsAlloCsekk},
    {yellowTab, Press::batch, Feed::sideways, PrintCsFekvoCsekk},
    {pinkTab, Press::single, Feed::upright, PrintAlloRCsekk},
    {pinkTab, Press::single, Feed::sideways, PrintFekvoRCsekk},
    {pinkTab, Press::batch, Feed::upright, PrintCsAlloRcsekk},
    {pinkTab, Press::batch, Feed::sideways, PrintCsFekvoRcsekk},
};

bool confirms(Prompts& prompts, const QString& text) {
    return prompts.ask({Icon::question, titles::warning, text}, Answer::no) == Answer::yes;
}

// What a clerk would not expect of the press, asked before anything prints.
bool isMeant(const PrintDesk& desk, const FormTabs& tabs, const Route& route, const ListRows& rows) {
    if (route.press == Press::single) return true;
    if (route.tab == yellowTab && route.feed == Feed::upright && rows.selected.size() < rows.all.size() &&
        readRecord<Set>(desk.folder).chkAutoPrint != 0)
        return confirms(desk.prompts,
                        QStringLiteral("Az automatikus nyomtatás be van kapcsolva,\nezért a lista MIND a %1 "
                                       "ügyfelének csekkje ki lesz nyomtatva!\n\nMehet a nyomtatás?")
                            .arg(rows.all.size()));
    if (route.tab == pinkTab && route.feed == Feed::sideways && tabs.pinkCheck.side == Side::back)
        return confirms(desk.prompts,
                        QStringLiteral("Fekvő csoportos nyomtatásnál csak a csekk első oldala nyomtatható!\n\nMehet az "
                                       "első oldal nyomtatása?"));
    return true;
}

} // namespace

std::optional<PrintOutcome> dispatchPrint(const PrintDesk& desk, const FormTabs& tabs, int tab, Feed feed, Press press,
                                          const ListRows& rows) {
    const auto route = std::find_if(std::begin(routes), std::end(routes),
                                    [&](const Route& r) { return r.tab == tab && r.press == press && r.feed == feed; });
    if (route == std::end(routes)) return std::nullopt;
    if (tab == yellowTab && press == Press::single && amountOf(tabs.yellowCheck.txOsszeg) == 0) return std::nullopt;
    if (!isMeant(desk, tabs, *route, rows)) return std::nullopt;
    return route->print(desk, tabs, rows);
}
