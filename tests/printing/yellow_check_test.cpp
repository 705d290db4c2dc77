#include "printing/yellow_check.h"

#include "check_fixture.h"

#include <QRegularExpression>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

YellowCheckTab filledTab() {
    YellowCheckTab tab;
    tab.txOsszeg = u" 12345 "_s;
    std::tie(tab.txtSzoveg21, tab.txtSzoveg11) = std::tuple(u"Tizenkettőezer-"_s, u"háromszáznegyvenöt"_s);
    std::tie(tab.txNev, tab.txCim1, tab.txCim2) = std::tuple(u"  Kiss Éva "_s, u" Őrbottyán "_s, u" Fő út 2. "_s);
    std::tie(tab.txIrszam, tab.txBefizAzonosito) = std::tuple(u"2162  "_s, u"AZ-1"_s);
    std::tie(tab.txtJogcim1, tab.txtJogcim2, tab.txtFizHatIdo) =
        std::tuple(u"jogcím 1"_s, u"jogcím 2"_s, u"Fiz.Hat: május"_s);
    std::tie(tab.Kozlemeny1, tab.Kozlemeny2, tab.txtKozl3sor[0]) =
        std::tuple(u"közlemény 1"_s, u"közlemény 2"_s, u" harmadik "_s);
    return tab;
}

const PageSetup uprightSheet{2, 27, {}};
const PageSetup sidewaysSheet{1, 9, QSizeF(210, 105)};

class YellowCheck : public CheckTest {
protected:
    FormTabs tabs;
    YellowCheckTab& tab = tabs.yellowCheck = filledTab();

    using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);
    const std::array<Routine, 2> singles{PrintAlloCsekk, PrintFekvoCsekk};

    void addFullClient(const QString& name, int amount, const TwinRec& twin = blankTwin()) const {
        ClientRec client = clientNamed(name, amount);
        client.Azonosito.set(u"KÓD 7");
        client.FizHatIdo.set(u"június 1.");
        addClient(client, twin);
    }
    PrintDesk unattended() const { return {desk.device, desk.prompts, desk.folder, false}; }
    PrintOutcome upright(const std::vector<int>& selected) {
        return PrintCsAlloCsekk(unattended(), tabs, {{}, selected});
    }
    PrintOutcome sideways(const std::vector<int>& selected) { return PrintCsFekvoCsekk(desk, tabs, {{}, selected}); }
};

TEST_F(YellowCheck, Tab) {
    const PrintOutcome outcome = PrintAlloCsekk(desk, tabs, {});
    EXPECT_EQ(std::tuple(outcome.pages, outcome.device, outcome.trouble), std::tuple(1, u"Masodik"_s, QString()));
    EXPECT_EQ(lastJob().printer, 1);
    EXPECT_EQ(lastJob().job.title, u"sarga-csekk"_s);
    EXPECT_EQ(lastSetup(), uprightSheet);
    EXPECT_EQ(page(), "25 7 A|***12345***; 90 7 A|***12345***; 160 7 T|közlemény 1; 160 11 T|harmadik; "
                      "160 15 T|közlemény 2; 10 17 T|*Tizenkettőezer-; 10 23 T|háromszáznegyvenöt*; "
                      "75 17 T|*Tizenkettőezer-; 75 23 T|háromszáznegyvenöt*; 87 40 A|AZ-1; 32 33 T|jogcím 1; "
                      "32 37 T|harmadik; 32 41 T|jogcím 2; 32 45 T|Fiz.Hat: május; 10 54 T|Kiss Éva; "
                      "10 58 T|ŐRBOTTYÁN; 10 62 T|Fő út 2.; 10 68 T|2162  ; 145 54 T|Kiss Éva; 145 58 T|ŐRBOTTYÁN; "
                      "145 62 T|Fő út 2.; 145 68 T|2162  ");

    tab.txtSzoveg11.clear();
    tab.chkBefAzonMasolasa = true;
    PrintFekvoCsekk(desk, tabs, {});
    EXPECT_EQ(lastSetup(), sidewaysSheet);
    EXPECT_EQ(page(), "15 6 A|***12345***; 80 6 A|***12345***; 150 5 T|közlemény 1; 150 9 T|harmadik; "
                      "150 13 T|közlemény 2; 2 15 T|*Tizenkettőezer-*; 68 15 T|*Tizenkettőezer-*; 80 40 A|AZ-1; "
                      "25 33 T|jogcím 1; 25 37 T|harmadik; 25 41 T|AZ-1; 25 45 T|Fiz.Hat: május; 5 52 T|Kiss Éva; "
                      "5 56 T|ŐRBOTTYÁN; 5 60 T|Fő út 2.; 5 68 T|2162  ; 140 52 T|Kiss Éva; 140 56 T|ŐRBOTTYÁN; "
                      "140 60 T|Fő út 2.; 140 68 T|2162  ");
}

TEST_F(YellowCheck, Batch) {
    set.chkFizHat = true;
    storeSettings();
    TwinRec twin = blankTwin();
    twin.Kozl3Sor.set(u" saját sor");
    addClient(clientNamed(u"Nem kért"_s));
    addFullClient(u"Nagy Áron"_s, 1234567, twin);
    addFullClient(u"Nulla Ödön"_s, 0);
    EXPECT_EQ(upright({3, 2}).pages, 2);
    ASSERT_EQ(lastJob().job.pages.size(), 2U);
    EXPECT_EQ(lastSetup(), uprightSheet);
    EXPECT_EQ(page(1), "25 7 A|***1234567***; 90 7 A|***1234567***; 160 7 T|közlemény 1; 160 11 T|saját sor; "
                       "160 15 T|közlemény 2; 10 17 T|*Egymilliókettőszázharmincnégyezer-; "
                       "10 23 T|ötszázhatvanhét*; 75 17 T|*Egymilliókettőszázharmincnégyezer-; "
                       "75 23 T|ötszázhatvanhét*; 87 40 A|KÓD 7; 32 33 T|jogcím 1; 32 37 T|saját sor; "
                       "32 41 T|jogcím 2; 32 45 T|Fiz.Hat: június 1.; 10 54 T|Nagy Áron; 10 58 T|BUDAPEST; "
                       "10 62 T|Fő utca 1.; 10 68 T|1024  ; 145 54 T|Nagy Áron; 145 58 T|BUDAPEST; "
                       "145 62 T|Fő utca 1.; 145 68 T|1024  ");
    // Without an amount neither digits nor words print, all else does.
    EXPECT_EQ(lines(0).first().toStdString(), "160 7 T|közlemény 1");
    EXPECT_EQ(page(0, u"*"_s), "");
    EXPECT_EQ(page(0, u"Nulla"_s), "10 54 T|Nulla Ödön; 145 54 T|Nulla Ödön");

    set.chkFizHat = false;
    storeSettings();
    addFullClient(u"Kis Béla"_s, 700);
    EXPECT_EQ(sideways({4}).pages, 1);
    EXPECT_EQ(lastSetup(), sidewaysSheet);
    EXPECT_EQ(page(), "15 6 A|***700***; 80 6 A|***700***; 150 5 T|közlemény 1; 150 13 T|közlemény 2; "
                      "2 15 T|*hétszáz*; 68 15 T|*hétszáz*; 80 40 A|KÓD 7; 25 33 T|jogcím 1; 25 41 T|jogcím 2; "
                      "5 53 T|Kis Béla; 5 57 T|BUDAPEST; 5 61 T|Fő utca 1.; 5 68 T|1024  ; 140 53 T|Kis Béla; "
                      "140 57 T|BUDAPEST; 140 61 T|Fő utca 1.; 140 68 T|1024  ");
}

TEST_F(YellowCheck, FlagsLeaveTheirRowsOut) {
    expectRowsGone({{0, {1, 2}},
                    {1, {6, 7, 8, 9}},
                    {3, {16, 17, 18, 20, 21, 22}},
                    {4, {3, 4, 5}},
                    {5, {11, 12, 13, 14}},
                    {6, {}},
                    {7, {10}}},
                   [this] { PrintAlloCsekk(desk, tabs, {}); });
}

TEST_F(YellowCheck, EmptyLineTakesThePlaceOfTheNameAndCorrectionMovesUprightChecksOnly) {
    set.TextVkorrekcio = -3;
    set.Textosszeg_x1 = Cur::fromText(u"12.3456");
    storeAllFlagsBut(2);
    addFullClient(u"Nagy Áron"_s, 700);
    // The empty lines stand at the row's own height in the upright single routine, else where the pen stands: below the
    // (empty) deadline row and below the first postcode.
    const std::tuple<std::function<void()>, float, const char*, const char*> rows[] = {
        {[this] { PrintAlloCsekk(desk, tabs, {}); }, 19.3456F, "0 54 T| ; 0 54 T| ",
         "7 58 T|ŐRBOTTYÁN; 142 58 T|ŐRBOTTYÁN"},
        {[this] { PrintFekvoCsekk(desk, tabs, {}); }, 12.3456F, "0 49 T| ; 0 72 T| ",
         "5 53 T|ŐRBOTTYÁN; 140 76 T|ŐRBOTTYÁN"},
        {[this] { upright({1}); }, 19.3456F, "0 49 T| ; 0 72 T| ", "7 53 T|BUDAPEST; 142 76 T|BUDAPEST"},
        {[this] { sideways({1}); }, 12.3456F, "0 49 T| ; 0 72 T| ", "5 53 T|BUDAPEST; 140 76 T|BUDAPEST"},
    };
    for (const auto& [print, firstX, empty, addresses] : rows) {
        print();
        EXPECT_EQ(std::get<PlacedText>(lastJob().job.pages[0].items[0]).x, firstX);
        EXPECT_EQ(page(0, u"| "_s), empty);
        EXPECT_EQ(joined(lines().filter(QRegularExpression(u"RBOTT|BUDAP"_s))), addresses);
    }
}

TEST_F(YellowCheck, PouredDeadlineIsEachClientsOwn) {
    addFullClient(u"Nagy Áron"_s, 700);
    addClient(clientNamed(u"Kis Béla"_s, 700));
    const QString clicked = u"Fiz.Hat: valakié"_s;
    // What stands in the row and what was poured into it, chkFizHat, the second notice rows of the two pages
    const std::tuple<QString, QString, bool, const char*> rows[] = {
        {clicked, clicked, true, "150 13 T|Fiz.Hat: június 1.; 150 13 T|Fiz.Hat: "},
        {u"gépelt"_s, clicked, true, "150 13 T|gépelt; 150 13 T|gépelt"},
        {clicked, clicked, false, ""},
        {QString(), QString(), true, ""},
    };
    for (const auto& [kozlemeny2, poured, fizHat, notices] : rows) {
        std::tie(tab.Kozlemeny2, tab.pouredDeadline) = std::tie(kozlemeny2, poured);
        set.chkFizHat = fizHat;
        storeSettings();
        sideways({1, 2});
        EXPECT_EQ(joined((lines(0) + lines(1)).filter(u"150 13 T|"_s)), notices);
    }
}

TEST_F(YellowCheck, UprightBatchAsksForThePrinterAndTakesAllRowsWhenAutomatic) {
    addFullClient(u"Nagy Áron"_s, 700);
    const ListRows rows{{1}, {1}};
    prompts.printerChoices = {PrinterChoice{0, 3}, std::nullopt};
    EXPECT_EQ(PrintCsAlloCsekk(desk, tabs, rows).device, u"Elso"_s);
    EXPECT_EQ(std::tuple(lastJob().printer, lastJob().job.copies), std::tuple(0, 3));
    EXPECT_EQ(lastSetup(), uprightSheet);

    const PrintOutcome cancelled = PrintCsAlloCsekk(desk, tabs, rows);
    EXPECT_EQ(std::tuple(cancelled.pages, cancelled.trouble), std::tuple(0, u"A nyomtatás megszakítva."_s));
    ASSERT_EQ(prompts.told.size(), 1U);
    EXPECT_EQ(prompts.told[0].text, u"Hiba kódszáma: 32755\nA nyomtatás megszakítva.\n"_s);

    sideways({1});
    EXPECT_EQ(std::tuple(lastJob().printer, lastJob().job.copies), std::tuple(1, 1));
    EXPECT_EQ(prompts.printDialogs, 2);

    // An empty selection: still the dialog, but no page, no message, and the choice is forgotten.
    prompts.printerChoices = {PrinterChoice{0, 3}};
    EXPECT_EQ(PrintCsAlloCsekk(desk, tabs, {{1}, {}}).pages, 0);
    EXPECT_EQ(sideways({}).trouble, u"Nincs kijelölt ügyfél."_s);
    EXPECT_EQ(service.delivered.size(), 2U);
    EXPECT_EQ(prompts.told.size(), 1U);
    EXPECT_EQ(device.currentPrinter(), 1);

    set.chkAutoPrint = 1;
    storeSettings();
    EXPECT_EQ(PrintCsAlloCsekk(unattended(), tabs, {{1, 1}, {1}}).pages, 2);
    EXPECT_EQ(PrintCsFekvoCsekk(desk, tabs, {{1, 1}, {1}}).pages, 1);
    EXPECT_EQ(prompts.printDialogs, 3);
}

TEST_F(YellowCheck, OnlyASingleCheckFollowsTheDefaultPrinter) {
    addFullClient(u"Nagy Áron"_s, 700);
    set.opPrinter_1 = true;
    storeSettings();
    for (const Routine routine : {PrintAlloCsekk, PrintFekvoCsekk, PrintCsAlloCsekk, PrintCsFekvoCsekk}) {
        device.setCurrentPrinter(0);
        routine(unattended(), tabs, {{}, {1}});
        const bool single = routine == PrintAlloCsekk || routine == PrintFekvoCsekk;
        EXPECT_EQ(lastJob().printer, single ? 2 : 0);
    }
}

TEST_F(YellowCheck, WhatCannotBePrintedIsDroppedWhole) {
    addFullClient(u"Nagy Áron"_s, 700);
    for (const int number : {0, -1, 32768}) { // no record numbers
        EXPECT_EQ(upright({1, number}).pages, 0);
        EXPECT_EQ(sideways({1, number}).trouble, u"Túlcsordulás"_s);
    }
    ASSERT_EQ(prompts.told.size(), 3U); // the upright ones
    EXPECT_EQ(prompts.told[0].text, u"Hiba kódszáma: 6\nTúlcsordulás\n"_s);

    const FormTabs filled = std::exchange(tabs, {});
    tab.txNev = u"   "_s;
    for (const Routine routine : singles)
        EXPECT_FALSE(routine(desk, tabs, {}).trouble.isEmpty());
    ASSERT_EQ(prompts.told.size(), 5U);
    EXPECT_EQ(prompts.told[4].title, u"!  H I B A  ! "_s);
    EXPECT_EQ(prompts.told[4].text, u" Nincs kijelölve ügyfél a listáról..."_s);

    files.store(zeroRecord<Set>()); // as if never written
    EXPECT_EQ(PrintAlloCsekk(desk, filled, {}).trouble,
              u"A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"_s);
    EXPECT_EQ(prompts.told.size(), 5U);
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(YellowCheck, DamagedFilesNeverBringItDown) {
    addFullClient(u"Nagy Áron"_s, 700);
    printWithDamaged(Set::fileName, 548, [this] {
        for (const Routine routine : singles)
            routine(desk, tabs, {});
        upright({1});
        sideways({1, 2, 32767});
    });
    // Usable fonts, and the rest of the record as bad as can be.
    std::memset(static_cast<void*>(&set), 0xff, sizeof set);
    set.ComboBetuTipus1.set(u"Arial CE");
    set.ComboBetuTipus2.set(u"Arial CE");
    set.TextBetuMeret1 = 32767;
    set.TextBetuMeret2 = 1;
    storeSettings();
    files.setBytes(QString::fromLatin1(ClientRec::fileName), QByteArray(271, '\xff'));
    EXPECT_EQ(PrintAlloCsekk(desk, tabs, {}).pages, 1);
    EXPECT_EQ(upright({1}).pages, 0); // all rows: none were given
    EXPECT_EQ(sideways({1}).pages, 1);
}

} // namespace
