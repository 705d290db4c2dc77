#include "printing/yellow_check.h"

#include "printing/check_forms.h"
#include "printing/form_routine.h"
#include "printing/form_text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct YellowCheckPage {
    bool hasAmount = true;
    QString amount, words1, words2;
    QString notice1, noticeThird, notice2;
    QString identifier;
    QString title1, title2, deadline;
    QString name, settlement, street, postcode;
};

void setWords(YellowCheckPage& page, const WordRows& rows) {
    page.words1 = rows.row1;
    page.words2 = rows.row2;
}

YellowCheckPage pageOfTab(const YellowCheckTab& tab) {
    YellowCheckPage page;
    page.amount = starred(trimmed(tab.txOsszeg));
    setWords(page, rowsOfTab(tab.txtSzoveg21, tab.txtSzoveg11));
    page.notice1 = tab.Kozlemeny1;
    page.noticeThird = trimmed(tab.txtKozl3sor[0]);
    page.notice2 = tab.Kozlemeny2;
    page.identifier = tab.txBefizAzonosito;
    page.title1 = tab.txtJogcim1;
    page.title2 = tab.chkBefAzonMasolasa ? page.identifier : tab.txtJogcim2;
    page.deadline = tab.txtFizHatIdo;
    page.name = trimmed(tab.txNev);
    page.settlement = trimmed(tab.txCim1).toUpper();
    page.street = trimmed(tab.txCim2);
    page.postcode = tab.txIrszam;
    return page;
}

// A deadline that the last click poured into the second notice row is that client's; every page takes its own, or none
// where deadlines have been switched off since. A text that the clerk typed there is meant for all.
QString noticeInBatch(const YellowCheckTab& tab, const Set& set, const ClientRec& client) {
    const bool poured = !tab.Kozlemeny2.isEmpty() && tab.Kozlemeny2 == tab.pouredDeadline;
    if (!poured) return tab.Kozlemeny2;
    return set.chkFizHat ? deadlineText(set, client) : QString();
}

YellowCheckPage pageOfClient(const Client& record, const YellowCheckTab& tab, const Set& set) {
    const ClientRec& client = record.client;
    YellowCheckPage page;
    page.hasAmount = client.Osszegek[0] != 0;
    page.amount = starred(QString::number(client.Osszegek[0]));
    page.notice1 = tab.Kozlemeny1;
    page.noticeThird = record.twin.Kozl3Sor.trimmed();
    page.notice2 = noticeInBatch(tab, set, client);
    page.identifier = client.Azonosito.trimmed();
    page.title1 = tab.txtJogcim1;
    page.title2 = tab.chkBefAzonMasolasa ? page.identifier : tab.txtJogcim2;
    if (set.chkFizHat) page.deadline = deadlineText(set, client);
    page.name = client.Nev.trimmed();
    page.settlement = client.Helyseg.trimmed().toUpper();
    page.street = client.Cim.trimmed();
    page.postcode = client.Irsz.stored();
    return page;
}

using Page = YellowCheckPage;
using Row = Item<YellowCheckPage, Set>;

// Name rows: mm below the field.
constexpr Offset nameDy = Offset(4, 2).inBatch(4, 3);

constexpr Row yellowCheckItems[] = {
    Row::font(&Set::ComboBetuTipus1, &Set::TextBetuMeret1),
    Row::hold(&Page::amount, &Set::Textosszeg_x1, {10, 0}, &Set::Textosszeg_y, {1, 0})
        .flag(Printed::amount)
        .when(&Page::hasAmount),
    Row::hold(&Page::amount, &Set::Textosszeg_x2, {10, 0}).flag(Printed::amount).when(&Page::hasAmount),
    Row::font(&Set::ComboBetuTipus2, &Set::TextBetuMeret2),
    Row::text(&Page::notice1, &Set::Textkozlemeny_x, {10, 0}, &Set::Textkozlemeny_y, {2, 0}).flag(Printed::notice),
    Row::next(&Page::noticeThird, &Set::Textkozlemeny_x, {10, 0}).flag(Printed::notice),
    Row::next(&Page::notice2, &Set::Textkozlemeny_x, {10, 0}).flag(Printed::notice),
    Row::text(&Page::words1, &Set::TextCsSzoveg_x1, {8, 0}, &Set::TextCsSzoveg_y1, {2, 0}).flag(Printed::words),
    Row::text(&Page::words2, &Set::TextCsSzoveg_x1, {8, 0}, &Set::TextCsSzoveg_y2, {1, 0}).flag(Printed::words),
    Row::text(&Page::words1, &Set::TextCsSzoveg_x2, {7, 0}, &Set::TextCsSzoveg_y1, {2, 0}).flag(Printed::words),
    Row::text(&Page::words2, &Set::TextCsSzoveg_x2, {7, 0}, &Set::TextCsSzoveg_y2, {1, 0}).flag(Printed::words),
    Row::font(&Set::ComboBetuTipus1, &Set::TextBetuMeret1),
    Row::text(&Page::identifier, &Set::TextBefizAzon_x, {7, 0}, &Set::TextBefizAzon_y, {0, 0})
        .flag(Printed::identifier),
    Row::font(&Set::ComboBetuTipus2, &Set::TextBetuMeret2),
    Row::text(&Page::title1, &Set::Textjogcim_x, {7, 0}, &Set::Textjogcim_y, {0, 0}).flag(Printed::title),
    Row::next(&Page::noticeThird, &Set::Textjogcim_x, {7, 0}).flag(Printed::title),
    Row::next(&Page::title2, &Set::Textjogcim_x, {7, 0}).flag(Printed::title),
    Row::next(&Page::deadline, &Set::Textjogcim_x, {7, 0}).flag(Printed::title),
    Row::text(&Page::name, &Set::Textcim_x1, {5, 0}, &Set::Textcim_y, nameDy).flag(Printed::name),
    Row::moveTo(&Set::Textcim_y, nameDy).flag(Printed::name, false).only({Run::upright}),
    Row::skip().flag(Printed::name, false),
    Row::next(&Page::settlement, &Set::Textcim_x1, {5, 0}).flag(Printed::address),
    Row::next(&Page::street, &Set::Textcim_x1, {5, 0}).flag(Printed::address),
    Row::text(&Page::postcode, &Set::Textcim_x1, {5, 0}, &Set::Textirsz_y, {0, 0}).flag(Printed::address),
    Row::text(&Page::name, &Set::Textcim_x2, {5, 0}, &Set::Textcim_y, nameDy).flag(Printed::name),
    Row::moveTo(&Set::Textcim_y, nameDy).flag(Printed::name, false).only({Run::upright}),
    Row::skip().flag(Printed::name, false),
    Row::next(&Page::settlement, &Set::Textcim_x2, {5, 0}).flag(Printed::address),
    Row::next(&Page::street, &Set::Textcim_x2, {5, 0}).flag(Printed::address),
    Row::text(&Page::postcode, &Set::Textcim_x2, {5, 0}, &Set::Textirsz_y, {0, 0}).flag(Printed::address),
};

constexpr auto jobTitle = u"sarga-csekk";
constexpr PageRequest ownPage{1, {}, QSizeF(210, 105)};

constexpr FormRoutine upright{.run = Run::upright,
                              .jobTitle = jobTitle,
                              .failureWay = FailureWay::silent,
                              .page = dlLandscape,
                              .track = TrackDefault::set};
constexpr FormRoutine sideways{.run = Run::sideways,
                               .jobTitle = jobTitle,
                               .failureWay = FailureWay::silent,
                               .page = ownPage,
                               .track = TrackDefault::set};
constexpr FormRoutine uprightBatch{.run = Run::uprightBatch,
                                   .jobTitle = jobTitle,
                                   .failureWay = FailureWay::message,
                                   .page = dlLandscape,
                                   .noun = u"csekk",
                                   .printsAmount = true,
                                   .asksForPrinter = true,
                                   .opensPerClient = true,
                                   .allRowsWhenAutomatic = true};
constexpr FormRoutine sidewaysBatch{.run = Run::sidewaysBatch,
                                    .jobTitle = jobTitle,
                                    .failureWay = FailureWay::silent,
                                    .page = ownPage,
                                    .noun = u"csekk",
                                    .printsAmount = true,
                                    .opensPerClient = true};

void printPage(Pen& pen, const Set& set, const YellowCheckPage& page, Run run) {
    PrintOptions options = checkOptions(pen, set, run);
    if (isUpright(run)) options.extraX = set.TextVkorrekcio;
    printItems(pen, yellowCheckItems, page, set, options);
}

PrintOutcome printTab(const PrintDesk& desk, const FormRoutine& routine, const YellowCheckTab& tab) {
    const auto print = [&](Pen& pen, const Set& set) { printPage(pen, set, pageOfTab(tab), routine.run); };
    return printOne(desk, routine, print, missingClient(tab));
}

PrintOutcome printBatch(const PrintDesk& desk, const FormRoutine& routine, const YellowCheckTab& tab,
                        const ListRows& rows) {
    return printEach(desk, routine, rows, [&](Pen& pen, const Set& set, const Client& client) {
        YellowCheckPage page = pageOfClient(client, tab, set);
        if (page.hasAmount)
            setWords(page, batchWords(desk.device, client.client.Osszegek[0], set.ComboBetuTipus2, set.TextBetuMeret2));
        printPage(pen, set, page, routine.run);
    });
}

} // namespace

PrintOutcome PrintAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, upright, tabs.yellowCheck);
}

PrintOutcome PrintFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, sideways, tabs.yellowCheck);
}

PrintOutcome PrintCsAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, uprightBatch, tabs.yellowCheck, rows);
}

PrintOutcome PrintCsFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    return printBatch(desk, sidewaysBatch, tabs.yellowCheck, rows);
}

QString deadlineText(const Set& set, const ClientRec& client) {
    return set.txtFizHat.trimmed() + u' ' + client.FizHatIdo.trimmed();
}
