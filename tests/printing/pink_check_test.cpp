#include "printing/pink_check.h"

#include "check_fixture.h"
#include "printing/yellow_check.h"

using namespace Qt::Literals::StringLiterals;

namespace {

PinkCheckTab filledTab() {
    PinkCheckTab tab;
    tab.RtxOsszeg = u"500"_s;
    std::tie(tab.RtxtSzoveg21, tab.RtxtSzoveg12) = std::tuple(u"Ötszáz"_s, u"csak a képernyőre"_s);
    std::tie(tab.RtxNev, tab.RtxCim) = std::tuple(u" Küldő Kft. "_s, u" 1024 Budapest, Fő utca 1. "_s);
    std::tie(tab.RlbNev, tab.RlbHelys, tab.RlbCim, tab.RlbIrsz) =
        std::tuple(u"Címzett Zrt. "_s, u"Győr "_s, u"Duna út 9. "_s, u"9021  "_s);
    std::tie(tab.txtNevHatul, tab.txtHelysHatul, tab.txtCimHatul, tab.txtIrszHatul) =
        std::tuple(u"Hátsó Név "_s, u"Pécs"_s, u"Tér 3."_s, u"7621  "_s);
    tab.RcsekkKozlemenyHatul = {u" egy"_s, u"kettő "_s, QString(), u"négy"_s};
    return tab;
}

const PageSetup uprightSheet{2, 27, {}};

class PinkCheck : public CheckTest {
protected:
    FormTabs tabs;
    PinkCheckTab& tab = tabs.pinkCheck = filledTab();

    PinkCheck() {
        layout.txRcsekkNev.set(u"Állandó Bt.");
        layout.txRcsekkHelyseg.set(u"Szeged");
        layout.txRcsekkCim.set(u"Tisza u. 5.");
        layout.txRcsekkIrszam.set(u"6720");
        storeSettings();
        addClient(clientNamed(u"Nagy Áron"_s, 1234567));
        addClient(clientNamed(u"Nulla Ödön"_s, 0));
    }

    using Batch = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);
    PrintOutcome print(Batch batch, const std::vector<int>& selected) {
        prompts.printerChoices = {PrinterChoice{1, 1}};
        return batch(desk, tabs, {{}, selected});
    }
};

TEST_F(PinkCheck, BothSidesOfTheTab) {
    EXPECT_EQ(PrintAlloRCsekk(desk, tabs, {}).pages, 1);
    EXPECT_EQ(lastJob().job.title, u"rozsaszin-csekk"_s);
    EXPECT_EQ(lastSetup(), uprightSheet);
    EXPECT_EQ(page(), "15 7 A|***500***; 80 7 A|***500***; 80 36 A|***500***; 11 17 T|*Ötszáz*; 75 46 T|*Ötszáz*; "
                      "75 15 T|Küldő Kft.; 75 19 T|1024 Budapest, Fő utca 1.; 9 61 T|Címzett Zrt.; 9 65 T|Győr; "
                      "9 69 T|Duna út 9.; 9 77 T|9021; 147 61 T|Címzett Zrt.; 147 65 T|Győr; 147 69 T|Duna út 9.; "
                      "147 77 T|9021");

    tab.RtxtSzoveg11 = u"alsó"_s;
    PrintFekvoRCsekk(desk, tabs, {});
    EXPECT_EQ(lastSetup(), PageSetup());
    EXPECT_EQ(page(), "5 4 A|***500***; 70 4 A|***500***; 70 33 A|***500***; 3 15 T|*Ötszáz; 3 22 T|alsó*; "
                      "68 44 T|*Ötszáz; 68 51 T|alsó*; 70 13 T|Küldő Kft.; 75 17 T|1024 Budapest, Fő utca 1.; "
                      "5 58 T|Címzett Zrt.; 5 62 T|Győr; 5 66 T|Duna út 9.; 5 74 T|9021; 140 58 T|Címzett Zrt.; "
                      "140 62 T|Győr; 140 66 T|Duna út 9.; 140 74 T|9021");

    tab.side = Side::back;
    PrintAlloRCsekk(desk, tabs, {});
    EXPECT_EQ(page(), "86 61 T|Hátsó Név; 86 65 T|Pécs; 86 69 T|Tér 3.; 0 73 T| ; 91 77 T|7621; 79 5 T|egy; "
                      "79 9 T|kettő; 79 17 T|négy");
    EXPECT_EQ(lastSetup(), uprightSheet);

    PrintFekvoRCsekk(desk, tabs, {});
    EXPECT_EQ(page(), "78 59 T|Hátsó Név; 78 63 T|Pécs; 78 67 T|Tér 3.; 0 71 T| ; 83 75 T|7621; 71 3 T|egy; "
                      "71 7 T|kettő; 71 15 T|négy");
    EXPECT_EQ(lastSetup(), PageSetup());
}

TEST_F(PinkCheck, UprightBatchWithAFixedAddressee) {
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1, 2}).pages, 2);
    ASSERT_EQ(lastJob().job.pages.size(), 2U);
    // The addressee comes from the tab's labels, in the size of the amounts, B: lines of 4.8 mm.
    const QString first = QString::fromStdString(page(0)).replace(u"12 Times New Roman CE"_s, u"B"_s);
    EXPECT_EQ(first.toStdString(),
              "15 7 A|***1234567***; 80 7 A|***1234567***; 80 36 A|***1234567***; "
              "11 17 T|*Egymilliókettőszázharmincnégyezer-; 11 23 T|ötszázhatvanhét*; "
              "75 46 T|*Egymilliókettőszázharmincnégyezer-; 75 52 T|ötszázhatvanhét*; 75 15 T|Nagy Áron; "
              "75 19 T|1024   Budapest,Fő utca 1.; 9 61 B|Címzett Zrt.; 9 65.80 B|Győr; 9 70.60 B|Duna út 9.; "
              "9 77 B|9021; 147 61 B|Címzett Zrt.; 147 65.80 B|Győr; 147 70.60 B|Duna út 9.; 147 77 B|9021");
    EXPECT_EQ(prompts.summaries.back(), u"2 csekk, ebből 1 összeg nélkül"_s);
    // An amount of 0 prints as such.
    EXPECT_EQ(page(1, u"*"_s), "15 7 A|***0***; 80 7 A|***0***; 80 36 A|***0***; 11 17 T|**; 75 46 T|**");
    EXPECT_EQ(page(1, u"Nulla"_s), "75 15 T|Nulla Ödön");
}

TEST_F(PinkCheck, SidewaysBatchWithAFixedSenderPrintsTheFrontWhateverIsOnView) {
    tab.opAllando = FixedParty::sender;
    tab.side = Side::back;
    EXPECT_EQ(print(PrintCsFekvoRcsekk, {2, 1}).pages, 2);
    EXPECT_EQ(lastSetup(), PageSetup());
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
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1, 2}).trouble, QString());
    EXPECT_EQ(prompts.summaries.back(), u"2 csekk"_s);
    EXPECT_EQ(page(1), "86 61 T|Nulla Ödön; 86 65 T|Budapest; 86 69 T|Fő utca 1.; 0 73 T| ; 86 77 T|1024; "
                       "79 5 T|egy; 79 9 T|kettő; 79 17 T|négy");

    tab.opAllando = FixedParty::sender;
    print(PrintCsAlloRcsekk, {1, 2});
    EXPECT_EQ(lines(0)[0].toStdString(), "86 61 T|Állandó Bt.");
    EXPECT_EQ(page(0), page(1));
}

TEST_F(PinkCheck, FlagsLeaveTheirRowsOut) {
    const auto print = [this] { PrintAlloRCsekk(desk, tabs, {}); };
    expectRowsGone({{0, {1, 2, 3}}, {1, {4, 5}}, {3, {7}}, {4, {}}, {5, {}}, {6, {}}, {7, {}}}, print);
    storeAllFlagsBut(2); // an empty line below the (empty) second row of words, the address moves along
    print();
    EXPECT_TRUE(lines().contains(u"0 56 T| "_s));
    EXPECT_TRUE(lines().contains(u"75 60 T|1024 Budapest, Fő utca 1."_s));
    set.chkNyomtatando.fill(false); // the addressee prints without any
    set.chkNyomtatando[6] = true;   // keeps the ticks, prints nothing
    storeSettings();
    const PrintOutcome outcome = PrintAlloRCsekk(desk, tabs, {});
    EXPECT_EQ(outcome.pages, 1);
    EXPECT_EQ(outcome.trouble, u"A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"_s);
}

TEST_F(PinkCheck, AnEmptyAddresseePrintsAndIsTold) {
    const QString told = u"A címzett adatai üresek."_s;
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1}).trouble, QString());
    tab.RlbNev = tab.RlbHelys = tab.RlbCim = u"  "_s;
    EXPECT_EQ(PrintAlloRCsekk(desk, tabs, {}).trouble, QString());
    tab.RlbIrsz.clear();
    for (const Batch single : {PrintAlloRCsekk, PrintFekvoRCsekk}) {
        const PrintOutcome outcome = single(desk, tabs, {});
        EXPECT_EQ(std::tuple(outcome.pages, outcome.trouble), std::tuple(1, told));
    }
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1, 2}).trouble, told); // the fixed addressee
    tab.opAllando = FixedParty::sender;
    EXPECT_EQ(print(PrintCsFekvoRcsekk, {1, 2}).trouble, QString());
    addClient(zeroRecord<ClientRec>());
    EXPECT_EQ(print(PrintCsFekvoRcsekk, {1, 3}).trouble, told);
    tab.side = Side::back;
    EXPECT_EQ(print(PrintCsAlloRcsekk, {3}).trouble, QString());
}

TEST_F(PinkCheck, TheDefaultPrinterBeginsWithItsOwnPage) {
    set.opPrinter_1 = true;
    storeSettings();
    for (const Batch sideways : {PrintFekvoRCsekk, PrintCsFekvoRcsekk}) {
        tabs.yellowCheck.txNev = u"Kiss Éva"_s;
        PrintAlloCsekk(desk, tabs, {});
        ASSERT_EQ(lastSetup(), uprightSheet);
        print(sideways, {1});
        EXPECT_EQ(lastSetup(), PageSetup());
        prompts.printerChoices.clear();
    }
}

TEST_F(PinkCheck, ErrorsAndCancelDropTheJobAndAreTold) {
    const auto toldText = [&] { return prompts.told.back().text.toStdString(); };
    prompts.printerChoices = {std::nullopt, std::nullopt};
    for (const Batch batch : {PrintCsAlloRcsekk, PrintCsFekvoRcsekk})
        EXPECT_EQ(batch(desk, tabs, {{}, {1}}).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 32755\nA nyomtatás megszakítva.\n");
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1, 40000}).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 6\nTúlcsordulás\n");
    set.lbPrintNo = 7;
    storeSettings();
    EXPECT_EQ(PrintAlloRCsekk(desk, tabs, {}).pages, 0);
    EXPECT_EQ(PrintFekvoRCsekk(desk, tabs, {}).pages, 0);
    EXPECT_EQ(toldText(), "Hiba kódszáma: 9\nAz index kívül esik a tartományon\n");
    EXPECT_EQ(prompts.told.size(), 5U);
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(PinkCheck, DamagedFilesNeverBringItDown) {
    printWithDamaged(SetRcsekk::fileName, 394, [this] {
        for (const Side side : {Side::front, Side::back}) {
            tab.side = side;
            PrintAlloRCsekk(desk, tabs, {});
            PrintFekvoRCsekk(desk, tabs, {});
            print(PrintCsAlloRcsekk, {1, 32767});
            print(PrintCsFekvoRcsekk, {1, 32767});
        }
    });
    std::memset(static_cast<void*>(&layout), 0xff, sizeof layout);
    layout.cmbRcsekkNumBetuTipus.set(u"Arial CE");
    layout.cmbRcsekkSzovegBetuTipus.set(u"Arial CE");
    layout.TextRcsekkBetuMeret1 = 1;
    layout.TextRcsekkBetuMeret2 = 32767;
    storeSettings();
    files.setBytes(QString::fromLatin1(ClientRec::fileName), QByteArray(271, '\xff'));
    tab.opAllando = FixedParty::sender;
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1}).pages, 1);
    tab.side = Side::front;
    EXPECT_EQ(print(PrintCsFekvoRcsekk, {1}).pages, 1);
}

} // namespace
