#include "printing/pink_check.h"

#include "check_fixture.h"

namespace {

PinkCheckTab filledTab() {
    PinkCheckTab tab;
    tab.RtxOsszeg = QStringLiteral("500");
    tab.RtxtSzoveg21 = QStringLiteral("Ötszáz");
    tab.RtxtSzoveg12 = QStringLiteral("csak a képernyőre");
    tab.RtxNev = QStringLiteral(" Küldő Kft. ");
    tab.RtxCim = QStringLiteral(" 1024 Budapest, Fő utca 1. ");
    tab.RlbNev = QStringLiteral("Címzett Zrt. ");
    tab.RlbHelys = QStringLiteral("Győr ");
    tab.RlbCim = QStringLiteral("Duna út 9. ");
    tab.RlbIrsz = QStringLiteral("9021  ");
    tab.txtNevHatul = QStringLiteral("Hátsó Név ");
    tab.txtHelysHatul = QStringLiteral("Pécs");
    tab.txtCimHatul = QStringLiteral("Tér 3.");
    tab.txtIrszHatul = QStringLiteral("7621  ");
    tab.RcsekkKozlemenyHatul = {QStringLiteral(" egy"), QStringLiteral("kettő "), QString(), QStringLiteral("négy")};
    return tab;
}

class PinkCheck : public CheckTest {
protected:
    PinkCheckTab tab = filledTab();

    PinkCheck() {
        layout.txRcsekkNev.set(u"Állandó Bt.");
        layout.txRcsekkHelyseg.set(u"Szeged");
        layout.txRcsekkCim.set(u"Tisza u. 5.");
        layout.txRcsekkIrszam.set(u"6720");
        storeSettings();
        addClient(clientNamed(QStringLiteral("Nagy Áron"), 1234567));
        addClient(clientNamed(QStringLiteral("Nulla Ödön"), 0));
    }

    PrintOutcome upright(const std::vector<int>& selected) {
        prompts.printerChoices = {PrinterChoice{1, 1}};
        return PrintCsAlloRcsekk(desk, tab, {{}, selected});
    }
    PrintOutcome sideways(const std::vector<int>& selected) {
        prompts.printerChoices = {PrinterChoice{1, 1}};
        return PrintCsFekvoRcsekk(desk, tab, {{}, selected});
    }
};

TEST_F(PinkCheck, UprightFrontOfTheTab) {
    const PrintOutcome outcome = PrintAlloRCsekk(desk, tab);
    EXPECT_EQ(outcome.pages, 1);
    EXPECT_EQ(lastJob().job.title, QStringLiteral("rozsaszin-csekk"));
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{2, 27, {}}));
    EXPECT_EQ(page(), "15 7 A|***500***; 80 7 A|***500***; 80 36 A|***500***; 11 17 T|*Ötszáz*; 75 46 T|*Ötszáz*; "
                      "75 15 T|Küldő Kft.; 75 19 T|1024 Budapest, Fő utca 1.; 9 61 T|Címzett Zrt.; 9 65 T|Győr; "
                      "9 69 T|Duna út 9.; 9 77 T|9021; 147 61 T|Címzett Zrt.; 147 65 T|Győr; 147 69 T|Duna út 9.; "
                      "147 77 T|9021");
}

TEST_F(PinkCheck, SidewaysFrontOfTheTab) {
    tab.RtxtSzoveg11 = QStringLiteral("alsó");
    PrintFekvoRCsekk(desk, tab);
    EXPECT_EQ(lastJob().job.pages[0].setup, PageSetup());
    EXPECT_EQ(page(), "5 4 A|***500***; 70 4 A|***500***; 70 33 A|***500***; 3 15 T|*Ötszáz; 3 22 T|alsó*; "
                      "68 44 T|*Ötszáz; 68 51 T|alsó*; 70 13 T|Küldő Kft.; 75 17 T|1024 Budapest, Fő utca 1.; "
                      "5 58 T|Címzett Zrt.; 5 62 T|Győr; 5 66 T|Duna út 9.; 5 74 T|9021; 140 58 T|Címzett Zrt.; "
                      "140 62 T|Győr; 140 66 T|Duna út 9.; 140 74 T|9021");
}

TEST_F(PinkCheck, BackOfTheTab) {
    tab.side = Side::back;
    PrintAlloRCsekk(desk, tab);
    EXPECT_EQ(page(), "86 61 T|Hátsó Név; 86 65 T|Pécs; 86 69 T|Tér 3.; 0 73 T| ; 91 77 T|7621; 79 5 T|egy; "
                      "79 9 T|kettő; 79 17 T|négy");
    EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{2, 27, {}}));

    PrintFekvoRCsekk(desk, tab);
    EXPECT_EQ(page(), "78 59 T|Hátsó Név; 78 63 T|Pécs; 78 67 T|Tér 3.; 0 71 T| ; 83 75 T|7621; 71 3 T|egy; "
                      "71 7 T|kettő; 71 15 T|négy");
    EXPECT_EQ(lastJob().job.pages[0].setup, PageSetup());
}

TEST_F(PinkCheck, UprightBatchWithAFixedAddressee) {
    EXPECT_EQ(upright({1, 2}).pages, 2);
    ASSERT_EQ(lastJob().job.pages.size(), 2U);
    // The addressee comes from the tab's labels, in the size of the amounts: lines of 4.8 mm.
    EXPECT_EQ(page(0), "15 7 A|***1234567***; 80 7 A|***1234567***; 80 36 A|***1234567***; "
                       "11 17 T|*Egymilliókettőszázharmincnégyezer-; 11 23 T|ötszázhatvanhét*; "
                       "75 46 T|*Egymilliókettőszázharmincnégyezer-; 75 52 T|ötszázhatvanhét*; 75 15 T|Nagy Áron; "
                       "75 19 T|1024   Budapest,Fő utca 1.; 9 61 12 Times New Roman CE|Címzett Zrt.; "
                       "9 65.80 12 Times New Roman CE|Győr; 9 70.60 12 Times New Roman CE|Duna út 9.; "
                       "9 77 12 Times New Roman CE|9021; 147 61 12 Times New Roman CE|Címzett Zrt.; "
                       "147 65.80 12 Times New Roman CE|Győr; 147 70.60 12 Times New Roman CE|Duna út 9.; "
                       "147 77 12 Times New Roman CE|9021");
    // An amount of 0 prints as such.
    EXPECT_EQ(lines(1).filter(QStringLiteral("***0***")).size(), 3);
    EXPECT_EQ(lines(1).filter(QStringLiteral("|**")).size(), 5);
    EXPECT_TRUE(lines(1).contains(QStringLiteral("75 15 T|Nulla Ödön")));
}

TEST_F(PinkCheck, SidewaysBatchWithAFixedSenderPrintsTheFrontWhateverIsOnView) {
    tab.opAllando = FixedParty::sender;
    tab.side = Side::back;
    EXPECT_EQ(sideways({2, 1}).pages, 2);
    EXPECT_EQ(lastJob().job.pages[1].setup, PageSetup());
    EXPECT_EQ(page(1), "5 4 A|***1234567***; 70 4 A|***1234567***; 70 33 A|***1234567***; "
                       "3 15 T|*Egymilliókettőszázharmincnégyezer-; 3 22 T|ötszázhatvanhét*; "
                       "68 44 T|*Egymilliókettőszázharmincnégyezer-; 68 51 T|ötszázhatvanhét*; 70 13 T|Állandó Bt.; "
                       "75 17 T|6720 Szeged,Tisza u. 5.; 5 58 T|Nagy Áron; 5 62 T|Budapest; 5 66 T|Fő utca 1.; "
                       "5 74 T|1024; 140 58 T|Nagy Áron; 140 62 T|Budapest; 140 66 T|Fő utca 1.; 140 74 T|1024");
}

TEST_F(PinkCheck, UprightBatchOfBacks) {
    tab.side = Side::back;
    set.chkNyomtatando.fill(false); // nothing of this rules the back
    storeSettings();
    EXPECT_EQ(upright({1, 2}).trouble, QString());
    EXPECT_EQ(page(1), "86 61 T|Nulla Ödön; 86 65 T|Budapest; 86 69 T|Fő utca 1.; 0 73 T| ; 86 77 T|1024; "
                       "79 5 T|egy; 79 9 T|kettő; 79 17 T|négy");

    tab.opAllando = FixedParty::sender;
    upright({1, 2});
    EXPECT_EQ(lines(0)[0].toStdString(), "86 61 T|Állandó Bt.");
    EXPECT_EQ(page(0), page(1));
}

TEST_F(PinkCheck, FlagsLeaveTheirRowsOut) {
    PrintAlloRCsekk(desk, tab);
    const QStringList all = lines();
    const std::pair<std::size_t, std::vector<int>> rows[] = {
        {0, {1, 2, 3}}, {1, {4, 5}}, {3, {7}}, {4, {}}, {5, {}}, {6, {}}, {7, {}},
    };
    for (const auto& [flag, gone] : rows) {
        set.chkNyomtatando.fill(true);
        set.chkNyomtatando[flag] = false;
        storeSettings();
        QStringList expected = all;
        for (auto row = gone.rbegin(); row != gone.rend(); ++row)
            expected.removeAt(*row - 1);
        PrintAlloRCsekk(desk, tab);
        EXPECT_EQ(page(), joined(expected));
    }
    set.chkNyomtatando.fill(true);
    set.chkNyomtatando[2] = false; // an empty line below the (empty) second row of words, the address moves along
    storeSettings();
    PrintAlloRCsekk(desk, tab);
    EXPECT_TRUE(lines().contains(QStringLiteral("0 56 T| ")));
    EXPECT_TRUE(lines().contains(QStringLiteral("75 60 T|1024 Budapest, Fő utca 1.")));
}

TEST_F(PinkCheck, WithoutFlagsTheAddresseePrintsAndTheOutcomeSaysWhy) {
    set.chkNyomtatando.fill(false);
    storeSettings();
    const PrintOutcome outcome = PrintAlloRCsekk(desk, tab);
    EXPECT_EQ(outcome.pages, 1);
    EXPECT_EQ(outcome.trouble, QStringLiteral("A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"));
}

TEST_F(PinkCheck, ErrorsAndCancelDropTheJobAndAreTold) {
    const auto toldText = [&] { return prompts.told.back().text.toStdString(); };
    prompts.printerChoices = {std::nullopt, std::nullopt};
    EXPECT_EQ(PrintCsAlloRcsekk(desk, tab, {{}, {1}}).pages, 0);
    EXPECT_EQ(PrintCsFekvoRcsekk(desk, tab, {{}, {1}}).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 32755\nA nyomtatás megszakítva.\n");
    EXPECT_EQ(upright({1, 40000}).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 6\nTúlcsordulás\n");
    set.lbPrintNo = 7;
    storeSettings();
    EXPECT_EQ(PrintAlloRCsekk(desk, tab).pages, 0);
    EXPECT_EQ(PrintFekvoRCsekk(desk, tab).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 9\nAz index kívül esik a tartományon\n");
    EXPECT_EQ(prompts.told.size(), 5U);
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(PinkCheck, DamagedFilesNeverBringItDown) {
    for (const char byte : {'\xff', '\0', '9'}) {
        for (const qsizetype length : {0, 1, 393, 394, 2000}) {
            damage(SetRcsekk::fileName, byte, length);
            damage(TwinRec::fileName, byte, length);
            for (const Side side : {Side::front, Side::back}) {
                tab.side = side;
                PrintAlloRCsekk(desk, tab);
                PrintFekvoRCsekk(desk, tab);
                upright({1, 32767});
                sideways({1, 32767});
            }
        }
    }
    std::memset(static_cast<void*>(&layout), 0xff, sizeof layout);
    layout.cmbRcsekkNumBetuTipus.set(u"Arial CE");
    layout.cmbRcsekkSzovegBetuTipus.set(u"Arial CE");
    layout.TextRcsekkBetuMeret1 = 1;
    layout.TextRcsekkBetuMeret2 = 32767;
    storeSettings();
    damage(ClientRec::fileName, '\xff', 271);
    tab.opAllando = FixedParty::sender;
    EXPECT_EQ(upright({1}).pages, 1);
    tab.side = Side::front;
    EXPECT_EQ(sideways({1}).pages, 1);
}

} // namespace
