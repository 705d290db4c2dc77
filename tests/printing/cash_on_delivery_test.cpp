#include "printing/cash_on_delivery.h"

#include "check_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

CashOnDeliveryTab filledTab() {
    CashOnDeliveryTab tab;
    std::tie(tab.txUosszeg, tab.lbosszegBetuvel1) = std::tuple(u"500"_s, u"*ötszáz*"_s);
    std::tie(tab.txUNev, tab.txUCim) = std::tuple(u"Cél Zrt."_s, u"9021 Győr, Duna út 9."_s);
    std::tie(tab.lbUNev, tab.lbUHelyseg, tab.lbUCim, tab.lbUIrszam) =
        std::tuple(u"Állandó Bt."_s, u"Szeged"_s, u"Tisza u. 5."_s, u"6720"_s);
    std::tie(tab.lbUNevHatul, tab.lbUHelysegHatul, tab.lbUCimHatul, tab.lbUIrszamHatul) =
        std::tuple(u"Hátsó Név"_s, u"Pécs"_s, u"Tér 3."_s, u"7621"_s);
    tab.chkUtanvetR = tab.chkUtanvetEL = true;
    return tab;
}

class CashOnDelivery : public CheckTest {
protected:
    CashOnDeliveryTab& tab = tabs.cashOnDelivery = filledTab();

    CashOnDelivery() {
        files.store(SetUlap::factory());
        tabs.yellowCheck.txNev = u"Valaki"_s;
        for (qint64 number = 0; const int amount : {1234567, 0, 10000000})
            files.store(clientNamed(u"Nagy Áron"_s, amount), ++number);
    }
};

TEST_F(CashOnDelivery, BothSidesOfTheTab) {
    print(PrintAlloULap);
    EXPECT_EQ(page(), "75 8 A|***500***; 75 38 A|***500***; 119 1 24 Arial CE|X; 119 11 24 Arial CE|X; "
                      "72 16 T|Cél Zrt.; 72 20 T|9021 Győr, Duna út 9.; 73 47 T|*ötszáz*; 144 63 T|Állandó Bt.; "
                      "144 67 T|Szeged; 144 71 T|Tisza u. 5.; 144 75 T|6720");
    print(PrintFekvoULap); // the marks and the words have places of their own
    EXPECT_EQ(page(0, u"|X"_s) + page(0, u"|*öt"_s), "81 0 24 Arial CE|X; 81 8 24 Arial CE|X35 45 T|*ötszáz*");
    tab.side = Side::back;
    print(PrintAlloULap);
    EXPECT_EQ(page(), "144 64 T|Hátsó Név; 144 68 T|Pécs; 144 72 T|Tér 3.; 144 76 T|7621");
}

TEST_F(CashOnDelivery, ABatchPrintsItsClientsWithThePayeeOfTheTab) {
    tab.chkCimzettCsereUlap = true; // rules the tab alone
    print(PrintCsAlloUlap, {1, 2, 3});
    EXPECT_EQ(page(0, u"24 Arial"_s), "119 1 24 Arial CE|X; 119 11 24 Arial CE|X");
    EXPECT_EQ(page(2, u"*"_s),
              "75 8 A|***10000000***; 75 38 A|***10000000***; 73 47 T|*MAX BEÍRHATÓ ÖSSZEG:9.999.999*");

    print(PrintCsFekvoUlap);
    EXPECT_EQ(unpadded(0), "36 5 A|***1234567***; 36 35 A|***1234567***; 81 1 24 Arial CE|X; 81 9 24 Arial CE|X; "
                           "31 14 T|Nagy Áron; 31 18 T|1024   Budapest, Fő utca 1.; "
                           "36 45 T|*Egymilliókettőszázharmincnégyezer-; 36 49 T|ötszázhatvanhét*; "
                           "105 61 T|Állandó Bt.; 105 65 T|Szeged; 105 69 T|Tisza u. 5.; 105 73 T|6720");
    set.TextBetuMeret2 = 9; // the font of the measure: one row is enough
    storeSettings();
    for (const bool registered : {true, false}) {
        std::tie(tab.chkUtanvetR, tab.chkUtanvetEL) = std::tuple(registered, !registered);
        print(PrintCsFekvoUlap);
        EXPECT_EQ(page(0, u"45 T"_s), "36 45 T|*Egymilliókettőszázharmincnégyezer-ötszázhatvanhét*");
        EXPECT_EQ(page(0, u"|X"_s), registered ? "81 1 24 Arial CE|X" : "81 9 24 Arial CE|X");
    }
    // Without an amount the rest of the form is there.
    EXPECT_EQ(unpadded(1), "81 9 24 Arial CE|X; 31 14 T|Nagy Áron; 31 18 T|1024   Budapest, Fő utca 1.; "
                           "105 61 T|Állandó Bt.; 105 65 T|Szeged; 105 69 T|Tisza u. 5.; 105 73 T|6720");
    tab.side = Side::back;
    print(PrintCsFekvoUlap);
    EXPECT_EQ(unpadded(0), "106 62 T|Nagy Áron; 106 66 T|Budapest; 106 70 T|Fő utca 1.; 106 74 T|1024");
    EXPECT_FALSE(files.has(QString::fromLatin1(TwinRec::fileName))); // not even looked into
}

} // namespace
