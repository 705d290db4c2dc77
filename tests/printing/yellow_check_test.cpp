#include "printing/yellow_check.h"

#include "check_fixture.h"

namespace {

YellowCheckTab filledTab() {
    YellowCheckTab tab;
    tab.txOsszeg = QStringLiteral(" 12345 ");
    tab.txtSzoveg21 = QStringLiteral("Tizenkettőezer-");
    tab.txtSzoveg11 = QStringLiteral("háromszáznegyvenöt");
    tab.txNev = QStringLiteral("  Kiss Éva ");
    tab.txCim1 = QStringLiteral(" Őrbottyán ");
    tab.txCim2 = QStringLiteral(" Fő út 2. ");
    tab.txIrszam = QStringLiteral("2162  ");
    tab.txBefizAzonosito = QStringLiteral("AZ-1");
    tab.txtJogcim1 = QStringLiteral("jogcím 1");
    tab.txtJogcim2 = QStringLiteral("jogcím 2");
    tab.Kozlemeny1 = QStringLiteral("közlemény 1");
    tab.Kozlemeny2 = QStringLiteral("közlemény 2");
    tab.txtKozl3sor[0] = QStringLiteral(" harmadik ");
    tab.txtFizHatIdo = QStringLiteral("Fiz.Hat: május");
    return tab;
}

ClientRec fullClient(const QString& name, int amount) {
    ClientRec client = clientNamed(name, amount);
    client.Azonosito.set(u"KÓD 7");
    client.FizHatIdo.set(u"június 1.");
    return client;
}

class YellowCheck : public CheckTest {
protected:
    YellowCheckTab tab = filledTab();

    using Routine = PrintOutcome (*)(const PrintDesk&, const YellowCheckTab&);
    const std::array<Routine, 2> singles{PrintAlloCsekk, PrintFekvoCsekk};

    PrintOutcome upright(const std::vector<int>& selected) {
        return PrintCsAlloCsekk(desk, tab, {{}, selected}, PrintDialog::skip);
    }
    PrintOutcome sideways(const std::vector<int>& selected) { return PrintCsFekvoCsekk(desk, tab, {{}, selected}); }
};

TEST_F(YellowCheck, UprightTab) {
    const PrintOutcome outcome = PrintAlloCsekk(desk, tab);
    EXPECT_EQ(outcome.pages, 1);
    EXPECT_EQ(outcome.device, QStringLiteral("Masodik"));
    EXPECT_EQ(outcome.trouble, QString());
    EXPECT_EQ(lastJob().printer, 1);
    EXPECT_EQ(lastJob().job.title, QStringLiteral("sarga-csekk"));
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{2, 27, {}}));
    EXPECT_EQ(page(), "25 7 A|***12345***; 90 7 A|***12345***; 160 7 T|közlemény 1; 160 11 T|harmadik; "
                      "160 15 T|közlemény 2; 10 17 T|*Tizenkettőezer-; 10 23 T|háromszáznegyvenöt*; "
                      "75 17 T|*Tizenkettőezer-; 75 23 T|háromszáznegyvenöt*; 87 40 A|AZ-1; 32 33 T|jogcím 1; "
                      "32 37 T|harmadik; 32 41 T|jogcím 2; 32 45 T|Fiz.Hat: május; 10 54 T|Kiss Éva; "
                      "10 58 T|ŐRBOTTYÁN; 10 62 T|Fő út 2.; 10 68 T|2162  ; 145 54 T|Kiss Éva; 145 58 T|ŐRBOTTYÁN; "
                      "145 62 T|Fő út 2.; 145 68 T|2162  ");
}

TEST_F(YellowCheck, SidewaysTab) {
    tab.txtSzoveg11.clear();
    tab.chkBefAzonMasolasa = true;
    PrintFekvoCsekk(desk, tab);
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{1, 9, QSizeF(210, 105)}));
    EXPECT_EQ(page(), "15 6 A|***12345***; 80 6 A|***12345***; 150 5 T|közlemény 1; 150 9 T|harmadik; "
                      "150 13 T|közlemény 2; 2 15 T|*Tizenkettőezer-*; 68 15 T|*Tizenkettőezer-*; 80 40 A|AZ-1; "
                      "25 33 T|jogcím 1; 25 37 T|harmadik; 25 41 T|AZ-1; 25 45 T|Fiz.Hat: május; 5 52 T|Kiss Éva; "
                      "5 56 T|ŐRBOTTYÁN; 5 60 T|Fő út 2.; 5 68 T|2162  ; 140 52 T|Kiss Éva; 140 56 T|ŐRBOTTYÁN; "
                      "140 60 T|Fő út 2.; 140 68 T|2162  ");
}

TEST_F(YellowCheck, UprightBatch) {
    set.chkFizHat = true;
    storeSettings();
    TwinRec twin = blankTwin();
    twin.Kozl3Sor.set(u" saját sor");
    addClient(clientNamed(QStringLiteral("Nem kért")));
    addClient(fullClient(QStringLiteral("Nagy Áron"), 1234567), twin);
    addClient(fullClient(QStringLiteral("Nulla Ödön"), 0));
    const PrintOutcome outcome = upright({3, 2});
    EXPECT_EQ(outcome.pages, 2);
    ASSERT_EQ(lastJob().job.pages.size(), 2U);
    EXPECT_EQ(lastJob().job.pages[1].setup, (PageSetup{2, 27, {}}));
    EXPECT_EQ(page(1), "25 7 A|***1234567***; 90 7 A|***1234567***; 160 7 T|közlemény 1; 160 11 T|saját sor; "
                       "160 15 T|közlemény 2; 10 17 T|*Egymilliókettőszázharmincnégyezer-; "
                       "10 23 T|ötszázhatvanhét*; 75 17 T|*Egymilliókettőszázharmincnégyezer-; "
                       "75 23 T|ötszázhatvanhét*; 87 40 A|KÓD 7; 32 33 T|jogcím 1; 32 37 T|saját sor; "
                       "32 41 T|jogcím 2; 32 45 T|Fiz.Hat: június 1.; 10 54 T|Nagy Áron; 10 58 T|BUDAPEST; "
                       "10 62 T|Fő utca 1.; 10 68 T|1024  ; 145 54 T|Nagy Áron; 145 58 T|BUDAPEST; "
                       "145 62 T|Fő utca 1.; 145 68 T|1024  ");
    // Without an amount neither digits nor words print, all else does.
    EXPECT_EQ(lines(0).first().toStdString(), "160 7 T|közlemény 1");
    EXPECT_TRUE(lines(0).filter(QStringLiteral("*")).isEmpty());
    EXPECT_TRUE(lines(0).contains(QStringLiteral("145 54 T|Nulla Ödön")));
}

TEST_F(YellowCheck, SidewaysBatch) {
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    EXPECT_EQ(sideways({1}).pages, 1);
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{1, 9, QSizeF(210, 105)}));
    EXPECT_EQ(page(), "15 6 A|***700***; 80 6 A|***700***; 150 5 T|közlemény 1; 150 13 T|közlemény 2; "
                      "2 15 T|*hétszáz*; 68 15 T|*hétszáz*; 80 40 A|KÓD 7; 25 33 T|jogcím 1; 25 41 T|jogcím 2; "
                      "5 53 T|Nagy Áron; 5 57 T|BUDAPEST; 5 61 T|Fő utca 1.; 5 68 T|1024  ; 140 53 T|Nagy Áron; "
                      "140 57 T|BUDAPEST; 140 61 T|Fő utca 1.; 140 68 T|1024  ");
}

TEST_F(YellowCheck, FlagsLeaveTheirRowsOut) {
    PrintAlloCsekk(desk, tab);
    const QStringList all = lines();
    const std::pair<std::size_t, std::vector<int>> rows[] = {
        {0, {1, 2}}, {1, {6, 7, 8, 9}}, {3, {16, 17, 18, 20, 21, 22}}, {4, {3, 4, 5}}, {5, {11, 12, 13, 14}},
        {6, {}},     {7, {10}},
    };
    for (const auto& [flag, gone] : rows) {
        set.chkNyomtatando.fill(true);
        set.chkNyomtatando[flag] = false;
        storeSettings();
        QStringList expected = all;
        for (auto row = gone.rbegin(); row != gone.rend(); ++row)
            expected.removeAt(*row - 1);
        PrintAlloCsekk(desk, tab);
        EXPECT_EQ(page(), joined(expected));
    }
}

TEST_F(YellowCheck, EmptyLineTakesThePlaceOfTheName) {
    set.chkNyomtatando[2] = false;
    storeSettings();
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    // Height of the two empty lines: the row's own in the upright single routine, else where the pen stands: below the
    // (empty) deadline row and below the first postcode.
    const auto heights = [&] { return lines().filter(QStringLiteral("| ")).join(u';').toStdString(); };
    PrintAlloCsekk(desk, tab);
    EXPECT_EQ(heights(), "0 54 T| ;0 54 T| ");
    EXPECT_TRUE(lines().contains(QStringLiteral("145 58 T|ŐRBOTTYÁN")));
    PrintFekvoCsekk(desk, tab);
    EXPECT_EQ(heights(), "0 49 T| ;0 72 T| ");
    upright({1});
    EXPECT_EQ(heights(), "0 49 T| ;0 72 T| ");
    EXPECT_TRUE(lines().contains(QStringLiteral("10 53 T|BUDAPEST")));
    sideways({1});
    EXPECT_EQ(heights(), "0 49 T| ;0 72 T| ");
}

TEST_F(YellowCheck, CorrectionMovesUprightChecksOnly) {
    set.TextVkorrekcio = -3;
    set.Textosszeg_x1 = Cur::fromText(u"12.3456");
    storeSettings();
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    const auto firstX = [&] { return std::get<PlacedText>(lastJob().job.pages[0].items[0]).x; };
    PrintAlloCsekk(desk, tab);
    EXPECT_EQ(firstX(), 19.3456F);
    EXPECT_TRUE(lines().contains(QStringLiteral("142 68 T|2162  ")));
    upright({1});
    EXPECT_EQ(firstX(), 19.3456F);
    PrintFekvoCsekk(desk, tab);
    EXPECT_EQ(firstX(), 12.3456F);
    sideways({1});
    EXPECT_EQ(firstX(), 12.3456F);
}

TEST_F(YellowCheck, PouredDeadlineIsEachClientsOwn) {
    set.chkFizHat = true;
    storeSettings();
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    addClient(clientNamed(QStringLiteral("Kis Béla"), 700));
    struct Row {
        QString kozlemeny2, poured;
        bool fizHat;
        const char *first, *second; // second notice row of the two pages
    };
    const QString clicked = QStringLiteral("Fiz.Hat: valakié");
    const Row rows[] = {
        {clicked, clicked, true, "150 13 T|Fiz.Hat: június 1.", "150 13 T|Fiz.Hat: "},
        {QStringLiteral("gépelt"), clicked, true, "150 13 T|gépelt", "150 13 T|gépelt"},
        {clicked, clicked, false, "", ""},
        {QString(), QString(), true, "", ""},
    };
    for (const Row& row : rows) {
        tab.Kozlemeny2 = row.kozlemeny2;
        tab.pouredDeadline = row.poured;
        set.chkFizHat = row.fizHat;
        storeSettings();
        sideways({1, 2});
        EXPECT_EQ(lines(0).filter(QStringLiteral("150 13 T|")).join(u';').toStdString(), row.first);
        EXPECT_EQ(lines(1).filter(QStringLiteral("150 13 T|")).join(u';').toStdString(), row.second);
    }
}

TEST_F(YellowCheck, EmptyTabIsRejected) {
    tab.txNev = QStringLiteral("   ");
    for (const Routine routine : singles) {
        const PrintOutcome outcome = routine(desk, tab);
        EXPECT_EQ(outcome.pages, 0);
        EXPECT_FALSE(outcome.trouble.isEmpty());
    }
    EXPECT_TRUE(service.delivered.empty());
    ASSERT_EQ(prompts.told.size(), 2U);
    EXPECT_EQ(prompts.told[1].title, QStringLiteral("!  H I B A  ! "));
    EXPECT_EQ(prompts.told[1].text, QStringLiteral(" Nincs kijelölve ügyfél a listáról..."));
}

TEST_F(YellowCheck, DialogOfTheUprightBatch) {
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    const ListRows rows{{1}, {1}};
    prompts.printerChoices = {PrinterChoice{0, 3}, std::nullopt};
    EXPECT_EQ(PrintCsAlloCsekk(desk, tab, rows).device, QStringLiteral("Elso"));
    EXPECT_EQ(lastJob().printer, 0);
    EXPECT_EQ(lastJob().job.copies, 3);
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{2, 27, {}}));

    const PrintOutcome cancelled = PrintCsAlloCsekk(desk, tab, rows);
    EXPECT_EQ(cancelled.pages, 0);
    EXPECT_EQ(cancelled.trouble, QStringLiteral("A nyomtatás megszakítva."));
    ASSERT_EQ(prompts.told.size(), 1U);
    EXPECT_EQ(prompts.told[0].text, QStringLiteral("Hiba kódszáma: 32755\nA nyomtatás megszakítva.\n"));

    sideways({1});
    EXPECT_EQ(lastJob().printer, 1);
    EXPECT_EQ(lastJob().job.copies, 1);
    EXPECT_EQ(prompts.printDialogs, 2);

    // An empty selection: still the dialog, but no page, no message, and the choice is forgotten.
    prompts.printerChoices = {PrinterChoice{0, 3}};
    EXPECT_EQ(PrintCsAlloCsekk(desk, tab, {{1}, {}}).pages, 0);
    EXPECT_EQ(sideways({}).trouble, QString());
    EXPECT_EQ(service.delivered.size(), 2U);
    EXPECT_EQ(prompts.told.size(), 1U);
    EXPECT_EQ(device.currentPrinter(), 1);
}

TEST_F(YellowCheck, AutomaticPrintingTakesAllRowsUpright) {
    set.chkAutoPrint = 1;
    storeSettings();
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    addClient(fullClient(QStringLiteral("Kis Béla"), 800));
    const ListRows rows{{2, 1}, {1}};
    EXPECT_EQ(PrintCsAlloCsekk(desk, tab, rows, PrintDialog::skip).pages, 2);
    EXPECT_EQ(PrintCsFekvoCsekk(desk, tab, rows).pages, 1);
    EXPECT_EQ(prompts.printDialogs, 0);
}

TEST_F(YellowCheck, NumberThatIsNoRecordNumberDropsTheJob) {
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    for (const int number : {0, -1, 32768}) {
        EXPECT_EQ(upright({1, number}).pages, 0);
        EXPECT_EQ(sideways({1, number}).trouble, QStringLiteral("Túlcsordulás"));
    }
    EXPECT_TRUE(service.delivered.empty());
    ASSERT_EQ(prompts.told.size(), 3U); // the upright ones
    EXPECT_EQ(prompts.told[0].text, QStringLiteral("Hiba kódszáma: 6\nTúlcsordulás\n"));
}

TEST_F(YellowCheck, NeverWrittenSettingsPrintNothingAndSayWhy) {
    set = zeroRecord<Set>();
    storeSettings();
    const PrintOutcome outcome = PrintAlloCsekk(desk, tab);
    EXPECT_EQ(outcome.pages, 0);
    EXPECT_EQ(outcome.trouble, QStringLiteral("A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"));
    EXPECT_TRUE(service.delivered.empty());
    EXPECT_TRUE(prompts.told.empty());
}

TEST_F(YellowCheck, DamagedFilesNeverBringItDown) {
    addClient(fullClient(QStringLiteral("Nagy Áron"), 700));
    for (const char byte : {'\xff', '\0', '9'}) {
        for (const qsizetype length : {0, 1, 547, 548, 2000}) {
            damage(Set::fileName, byte, length);
            damage(TwinRec::fileName, byte, length);
            for (const Routine routine : singles)
                routine(desk, tab);
            upright({1});
            sideways({1, 2, 32767});
        }
    }
    // Usable fonts, and the rest of the record as bad as can be.
    std::memset(static_cast<void*>(&set), 0xff, sizeof set);
    set.ComboBetuTipus1.set(u"Arial CE");
    set.ComboBetuTipus2.set(u"Arial CE");
    set.TextBetuMeret1 = 32767;
    set.TextBetuMeret2 = 1;
    storeSettings();
    damage(ClientRec::fileName, '\xff', 271);
    EXPECT_EQ(PrintAlloCsekk(desk, tab).pages, 1);
    EXPECT_EQ(upright({1}).pages, 0); // all rows: none were given
    EXPECT_EQ(sideways({1}).pages, 1);
}

} // namespace
