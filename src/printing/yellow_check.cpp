#include "printing/yellow_check.h"

#include "printing/check_batch.h"
#include "prompts/titles.h"

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

// Name rows: mm below the field, in the order of the feeds.
constexpr Offset nameDy{4, 4, 2, 3};

constexpr Row yellowCheckItems[] = {
    Row::font(&Set::ComboBetuTipus1, &Set::TextBetuMeret1),
    Row::hold(&Page::amount, &Set::Textosszeg_x1, {10, 0}, &Set::Textosszeg_y, {1, 0}).flag(0).when(&Page::hasAmount),
    Row::hold(&Page::amount, &Set::Textosszeg_x2, {10, 0}).flag(0).when(&Page::hasAmount),
    Row::font(&Set::ComboBetuTipus2, &Set::TextBetuMeret2),
    Row::text(&Page::notice1, &Set::Textkozlemeny_x, {10, 0}, &Set::Textkozlemeny_y, {2, 0}).flag(4),
    Row::next(&Page::noticeThird, &Set::Textkozlemeny_x, {10, 0}).flag(4),
    Row::next(&Page::notice2, &Set::Textkozlemeny_x, {10, 0}).flag(4),
    Row::text(&Page::words1, &Set::TextCsSzoveg_x1, {8, 0}, &Set::TextCsSzoveg_y1, {2, 0}).flag(1),
    Row::text(&Page::words2, &Set::TextCsSzoveg_x1, {8, 0}, &Set::TextCsSzoveg_y2, {1, 0}).flag(1),
    Row::text(&Page::words1, &Set::TextCsSzoveg_x2, {7, 0}, &Set::TextCsSzoveg_y1, {2, 0}).flag(1),
    Row::text(&Page::words2, &Set::TextCsSzoveg_x2, {7, 0}, &Set::TextCsSzoveg_y2, {1, 0}).flag(1),
    Row::font(&Set::ComboBetuTipus1, &Set::TextBetuMeret1),
    Row::text(&Page::identifier, &Set::TextBefizAzon_x, {7, 0}, &Set::TextBefizAzon_y, {0, 0}).flag(7),
    Row::font(&Set::ComboBetuTipus2, &Set::TextBetuMeret2),
    Row::text(&Page::title1, &Set::Textjogcim_x, {7, 0}, &Set::Textjogcim_y, {0, 0}).flag(5),
    Row::next(&Page::noticeThird, &Set::Textjogcim_x, {7, 0}).flag(5),
    Row::next(&Page::title2, &Set::Textjogcim_x, {7, 0}).flag(5),
    Row::next(&Page::deadline, &Set::Textjogcim_x, {7, 0}).flag(5),
    Row::text(&Page::name, &Set::Textcim_x1, {5, 0}, &Set::Textcim_y, nameDy).flag(2).orSkipLine(FormRun::upright),
    Row::next(&Page::settlement, &Set::Textcim_x1, {5, 0}).flag(3),
    Row::next(&Page::street, &Set::Textcim_x1, {5, 0}).flag(3),
    Row::text(&Page::postcode, &Set::Textcim_x1, {5, 0}, &Set::Textirsz_y, {0, 0}).flag(3),
    Row::text(&Page::name, &Set::Textcim_x2, {5, 0}, &Set::Textcim_y, nameDy).flag(2).orSkipLine(FormRun::upright),
    Row::next(&Page::settlement, &Set::Textcim_x2, {5, 0}).flag(3),
    Row::next(&Page::street, &Set::Textcim_x2, {5, 0}).flag(3),
    Row::text(&Page::postcode, &Set::Textcim_x2, {5, 0}, &Set::Textirsz_y, {0, 0}).flag(3),
};

QString jobTitle() { return QStringLiteral("sarga-csekk"); }

PageRequest pageRequest(FormRun feed) { return isUpright(feed) ? dlLandscape : PageRequest{1, {}, QSizeF(210, 105)}; }

Sheet yellowSheet(Pen& pen, const Set& set, FormRun feed) {
    Sheet sheet = checkSheet(pen, set, feed);
    if (isUpright(feed)) sheet.extraX = set.TextVkorrekcio;
    return sheet;
}

PrintOutcome printTab(const PrintDesk& desk, const YellowCheckTab& tab, FormRun feed) {
    Pen pen(desk, FailureWay::silent, jobTitle());
    pen.StartFromA4();
    if (trimmed(tab.txNev).isEmpty()) {
        pen.Reject({Icon::none, titles::formError, QStringLiteral(" Nincs kijelölve ügyfél a listáról...")});
        return pen.outcome();
    }
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set, TrackDefault::set);
    const Sheet sheet = yellowSheet(pen, set, feed);
    pen.OpenForm(pageRequest(feed));
    printItems(pen, yellowCheckItems, pageOfTab(tab), set, sheet);
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}

void printBatch(Pen& pen, const PrintDesk& desk, const YellowCheckTab& tab, const Set& set,
                const std::vector<int>& numbers, FormRun feed) {
    const Sheet sheet = yellowSheet(pen, set, feed);
    printClients(pen, desk.folder, numbers, [&](const Client& client) {
        YellowCheckPage page = pageOfClient(client, tab, set);
        if (page.hasAmount) {
            const std::int32_t azazOsszeg = client.client.Osszegek[0];
            setWords(page, batchWords(desk.device, azazOsszeg, set.ComboBetuTipus2, set.TextBetuMeret2));
        }
        pen.OpenForm(pageRequest(feed));
        printItems(pen, yellowCheckItems, page, set, sheet);
    });
    pen.EndForm(FormEnd::job);
}

} // namespace

PrintOutcome PrintAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.yellowCheck, FormRun::upright);
}

PrintOutcome PrintFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& /*rows*/) {
    return printTab(desk, tabs.yellowCheck, FormRun::sideways);
}

PrintOutcome PrintCsAlloCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    Pen pen(desk, FailureWay::message, jobTitle());
    pen.StartFromA4();
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set);
    if (desk.attended) pen.ShowPrinter();
    printBatch(pen, desk, tabs.yellowCheck, set, set.chkAutoPrint != 0 ? rows.all : rows.selected,
               FormRun::uprightBatch);
    return pen.outcome();
}

PrintOutcome PrintCsFekvoCsekk(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    Pen pen(desk, FailureWay::silent, jobTitle());
    pen.StartFromA4();
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set);
    printBatch(pen, desk, tabs.yellowCheck, set, rows.selected, FormRun::sidewaysBatch);
    return pen.outcome();
}

QString deadlineText(const Set& set, const ClientRec& client) {
    return set.txtFizHat.trimmed() + u' ' + client.FizHatIdo.trimmed();
}
