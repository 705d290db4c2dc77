#include "printing/pink_check.h"

#include "check_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

PinkCheckTab filledTab() {
    PinkCheckTab tab;
    tab.RtxOsszeg = u"500"_s;
    std::tie(tab.RtxtSzoveg21, tab.RtxtSzoveg11, tab.RtxtSzoveg12) =
        std::tuple(u"Ötszáz"_s, u"alsó"_s, u"csak a képernyőre"_s);
    std::tie(tab.RtxNev, tab.RtxCim) = std::tuple(u" Küldő Kft. "_s, u" 1024 Budapest, Fő utca 1. "_s);
    std::tie(tab.RlbNev, tab.RlbHelys, tab.RlbCim, tab.RlbIrsz) =
        std::tuple(u"Címzett Zrt. "_s, u"Győr "_s, u"Duna út 9. "_s, u"9021  "_s);
    std::tie(tab.txtNevHatul, tab.txtHelysHatul, tab.txtCimHatul, tab.txtIrszHatul) =
        std::tuple(u"Hátsó Név "_s, u"Pécs"_s, u"Tér 3."_s, u"7621  "_s);
    tab.RcsekkKozlemenyHatul = {u" egy"_s, u"kettő "_s, QString(), u"négy"_s};
    return tab;
}

class PinkCheck : public CheckTest {
protected:
    PinkCheckTab& tab = tabs.pinkCheck = filledTab();

    PinkCheck() {
        desk.attended = false;
        layout.txRcsekkNev.set(u"Állandó Bt.");
        layout.txRcsekkHelyseg.set(u"Szeged");
        layout.txRcsekkCim.set(u"Tisza u. 5.");
        layout.txRcsekkIrszam.set(u"6720");
        storeSettings();
        addClient(clientNamed(u"Nagy Áron"_s, 1234567));
        addClient(clientNamed(u"Nulla Ödön"_s, 0));
    }
};

TEST_F(PinkCheck, BothSidesOfTheTab) {
    EXPECT_EQ(print(PrintAlloRCsekk).trouble, QString());
    EXPECT_EQ(page(), "15 7 A|***500***; 80 7 A|***500***; 80 36 A|***500***; 11 17 T|*Ötszáz; 11 23 T|alsó*; "
                      "75 46 T|*Ötszáz; 75 52 T|alsó*; 75 15 T|Küldő Kft.; 75 19 T|1024 Budapest, Fő utca 1.; "
                      "9 61 T|Címzett Zrt.; 9 65 T|Győr; 9 69 T|Duna út 9.; 9 77 T|9021; 147 61 T|Címzett Zrt.; "
                      "147 65 T|Győr; 147 69 T|Duna út 9.; 147 77 T|9021");
    tab.side = Side::back;
    print(PrintAlloRCsekk);
    EXPECT_EQ(page(), "86 61 T|Hátsó Név; 86 65 T|Pécs; 86 69 T|Tér 3.; 0 73 T| ; 91 77 T|7621; 79 5 T|egy; "
                      "79 9 T|kettő; 79 17 T|négy");
    print(PrintFekvoRCsekk);
    EXPECT_EQ(page(), "78 59 T|Hátsó Név; 78 63 T|Pécs; 78 67 T|Tér 3.; 0 71 T| ; 83 75 T|7621; 71 3 T|egy; "
                      "71 7 T|kettő; 71 15 T|négy");
}

TEST_F(PinkCheck, ClientsSendToTheAddresseeOfTheTabOrAreSentToByTheStoredSender) {
    print(PrintCsAlloRcsekk);
    // The addressee in the size of the amounts, with lines of 4.8 mm.
    EXPECT_EQ(joined(lines(0).filter(u"12 Times"_s).first(4)),
              "9 61 12 Times New Roman CE|Címzett Zrt.; 9 65.80 12 Times New Roman CE|Győr; "
              "9 70.60 12 Times New Roman CE|Duna út 9.; 9 77 12 Times New Roman CE|9021");
    EXPECT_EQ(page(0, u"75 1"_s), "75 15 T|Nagy Áron; 75 19 T|1024   Budapest,Fő utca 1.");
    // An amount of 0 prints as such.
    EXPECT_EQ(page(1, u"*"_s), "15 7 A|***0***; 80 7 A|***0***; 80 36 A|***0***; 11 17 T|**; 75 46 T|**");

    tab.opAllando = FixedParty::sender;
    tab.side = Side::back; // on view, but sideways only fronts are printed
    print(PrintCsFekvoRcsekk, {2, 1});
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
    desk.attended = true;
    prompts.printerChoices = {PrinterChoice{1, 1}, PrinterChoice{1, 1}};
    EXPECT_EQ(print(PrintCsAlloRcsekk).trouble, QString());
    EXPECT_EQ(prompts.summaries.back(), u"2 csekk"_s) << "amounts are on the front";
    EXPECT_EQ(page(1), "86 61 T|Nulla Ödön; 86 65 T|Budapest; 86 69 T|Fő utca 1.; 0 73 T| ; 86 77 T|1024; "
                       "79 5 T|egy; 79 9 T|kettő; 79 17 T|négy");
    tab.opAllando = FixedParty::sender;
    print(PrintCsAlloRcsekk);
    EXPECT_EQ(page(1, u"86 "_s), "86 61 T|Állandó Bt.; 86 65 T|Szeged; 86 69 T|Tisza u. 5.; 86 77 T|6720");
}

TEST_F(PinkCheck, FlagsLeaveTheirRowsOut) {
    expectRowsGone({{0, {1, 2, 3}}, {1, {4, 5, 6, 7}}, {3, {9}}, {4, {}}, {5, {}}, {6, {}}, {7, {}}}, PrintAlloRCsekk);
    storeAllFlagsBut(2); // an empty line below the second row of words, the address moves along
    print(PrintAlloRCsekk);
    EXPECT_TRUE(lines().contains(u"0 56 T| "_s));
    EXPECT_TRUE(lines().contains(u"75 60 T|1024 Budapest, Fő utca 1."_s));
    set.chkNyomtatando.fill(false); // the addressee prints without any
    set.chkNyomtatando[6] = true;   // keeps the ticks, prints nothing
    storeSettings();
    const PrintOutcome outcome = print(PrintAlloRCsekk);
    EXPECT_EQ(outcome.pages, 1);
    EXPECT_EQ(outcome.trouble, u"A Beállításokban egyetlen nyomtatandó adat sincs kipipálva!"_s);
}

TEST_F(PinkCheck, AnEmptyAddresseePrintsAndIsTold) {
    const QString told = u"A címzett adatai üresek."_s;
    EXPECT_EQ(print(PrintCsAlloRcsekk, {1}).trouble, QString());
    tab.RlbNev = tab.RlbHelys = tab.RlbCim = u"  "_s;
    EXPECT_EQ(print(PrintAlloRCsekk).trouble, QString());
    tab.RlbIrsz.clear();
    for (const Routine routine : {PrintAlloRCsekk, PrintCsAlloRcsekk}) { // a batch with the fixed addressee
        const PrintOutcome outcome = print(routine, {1});
        EXPECT_EQ(std::tuple(outcome.pages, outcome.trouble), std::tuple(1, told));
    }
    tab.opAllando = FixedParty::sender;
    EXPECT_EQ(print(PrintCsFekvoRcsekk).trouble, QString());
    addClient(zeroRecord<ClientRec>());
    EXPECT_EQ(print(PrintCsFekvoRcsekk, {1, 3}).trouble, told);
    tab.side = Side::back;
    EXPECT_EQ(print(PrintCsAlloRcsekk, {3}).trouble, QString());
}

} // namespace
