#include "printing/cash_on_delivery.h"

#include "check_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Routine = PrintOutcome (*)(const PrintDesk&, const FormTabs&, const ListRows&);
constexpr Routine routines[] = {PrintAlloULap, PrintFekvoULap, PrintCsAlloUlap, PrintCsFekvoUlap};

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
    FormTabs tabs;
    CashOnDeliveryTab& tab = tabs.cashOnDelivery = filledTab();

    CashOnDelivery() {
        files.store(SetUlap::factory());
        tabs.yellowCheck.txNev = u"Valaki"_s;
        for (qint64 number = 0; const int amount : {1234567, 0, 10000000})
            files.store(clientNamed(u"Nagy Áron"_s, amount), ++number);
    }
    PrintOutcome print(Routine routine, const std::vector<int>& selected = {1, 2, 3}) {
        return routine(desk, tabs, {{}, selected});
    }
};

TEST_F(CashOnDelivery, BothSidesOfTheTab) {
    EXPECT_EQ(print(PrintAlloULap).pages, 1);
    EXPECT_EQ(lastJob().job.title, u"utanveteli-lap"_s);
    EXPECT_EQ(lastSetup(), (PageSetup{2, 27, {}}));
    EXPECT_EQ(page(), "75 8 A|***500***; 75 38 A|***500***; 119 1 24 Arial CE|X; 119 11 24 Arial CE|X; "
                      "72 16 T|Cél Zrt.; 72 20 T|9021 Győr, Duna út 9.; 73 47 T|*ötszáz*; 144 63 T|Állandó Bt.; "
                      "144 67 T|Szeged; 144 71 T|Tisza u. 5.; 144 75 T|6720");
    print(PrintFekvoULap);
    EXPECT_EQ(lastSetup(), PageSetup());
    EXPECT_EQ(page(), "36 5 A|***500***; 36 35 A|***500***; 81 0 24 Arial CE|X; 81 8 24 Arial CE|X; "
                      "31 14 T|Cél Zrt.; 31 18 T|9021 Győr, Duna út 9.; 35 45 T|*ötszáz*; 105 61 T|Állandó Bt.; "
                      "105 65 T|Szeged; 105 69 T|Tisza u. 5.; 105 73 T|6720");

    tab.side = Side::back;
    print(PrintAlloULap);
    EXPECT_EQ(page(), "144 64 T|Hátsó Név; 144 68 T|Pécs; 144 72 T|Tér 3.; 144 76 T|7621");
    print(PrintFekvoULap);
    EXPECT_EQ(page(), "106 62 T|Hátsó Név; 106 66 T|Pécs; 106 70 T|Tér 3.; 106 74 T|7621");
}

TEST_F(CashOnDelivery, ABatchPrintsItsClientsWithThePayeeOfTheTab) {
    tab.chkCimzettCsereUlap = true; // rules the tab alone
    EXPECT_EQ(print(PrintCsAlloUlap).pages, 3);
    EXPECT_EQ(lastSetup(), (PageSetup{2, 27, {}}));
    EXPECT_EQ(unpadded(0), "75 8 A|***1234567***; 75 38 A|***1234567***; 119 1 24 Arial CE|X; 119 11 24 Arial CE|X; "
                           "72 16 T|Nagy Áron; 72 20 T|1024   Budapest, Fő utca 1.; "
                           "73 47 T|*Egymilliókettőszázharmincnégyezer-; 73 51 T|ötszázhatvanhét*; "
                           "144 63 T|Állandó Bt.; 144 67 T|Szeged; 144 71 T|Tisza u. 5.; 144 75 T|6720");
    EXPECT_EQ(page(2, u"*"_s),
              "75 8 A|***10000000***; 75 38 A|***10000000***; 73 47 T|*MAX BEÍRHATÓ ÖSSZEG:9.999.999*");

    std::tie(tab.chkUtanvetR, set.TextBetuMeret2) = std::tuple(false, 9); // the font of the measure: one row is enough
    storeSettings();
    EXPECT_EQ(print(PrintCsFekvoUlap).pages, 3);
    EXPECT_EQ(lastSetup(), (PageSetup{1, 27, QSizeF(150, 105)}));
    EXPECT_EQ(unpadded(0), "36 5 A|***1234567***; 36 35 A|***1234567***; 81 9 24 Arial CE|X; 31 14 T|Nagy Áron; "
                           "31 18 T|1024   Budapest, Fő utca 1.; "
                           "36 45 T|*Egymilliókettőszázharmincnégyezer-ötszázhatvanhét*; 105 61 T|Állandó Bt.; "
                           "105 65 T|Szeged; 105 69 T|Tisza u. 5.; 105 73 T|6720");
    tab.chkUtanvetR = true;
    tab.chkUtanvetEL = false;
    print(PrintCsFekvoUlap);
    // Without an amount the rest of the form is there.
    EXPECT_EQ(unpadded(1), "81 1 24 Arial CE|X; 31 14 T|Nagy Áron; 31 18 T|1024   Budapest, Fő utca 1.; "
                           "105 61 T|Állandó Bt.; 105 65 T|Szeged; 105 69 T|Tisza u. 5.; 105 73 T|6720");

    tab.side = Side::back;
    print(PrintCsFekvoUlap);
    EXPECT_EQ(unpadded(0), "106 62 T|Nagy Áron; 106 66 T|Budapest; 106 70 T|Fő utca 1.; 106 74 T|1024");
    print(PrintCsAlloUlap);
    EXPECT_EQ(unpadded(2), "144 64 T|Nagy Áron; 144 68 T|Budapest; 144 72 T|Fő utca 1.; 144 76 T|1024");
    EXPECT_FALSE(files.has(QString::fromLatin1(TwinRec::fileName))); // not even looked into
}

TEST_F(CashOnDelivery, WhatDropsAJob) {
    tabs.yellowCheck.txNev = u"  "_s; // the name on the yellow check, not the one that would print
    for (const Routine routine : {PrintAlloULap, PrintFekvoULap})
        EXPECT_EQ(print(routine).trouble, u"Nincs kijelölve ügyfél a listáról..."_s);
    ASSERT_EQ(prompts.told.size(), 2U);
    EXPECT_EQ(prompts.told[0].title + prompts.told[0].text, u"!  H I B A  !  Nincs kijelölve ügyfél a listáról..."_s);

    tabs.yellowCheck.txNev = u"Valaki"_s;
    EXPECT_EQ(print(PrintCsAlloUlap, {1, 40000}).pages, 0);
    set.lbPrintNo = 7;
    storeSettings();
    for (const Routine routine : routines)
        EXPECT_EQ(print(routine).trouble, u"Az index kívül esik a tartományon"_s);
    EXPECT_EQ(prompts.told.size(), 2U); // errors are silent
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(CashOnDelivery, DamagedFilesNeverBringItDown) {
    for (const char* name : {SetUlap::fileName, SetRcsekk::fileName})
        printWithDamaged(name, 394, [this] {
            for (const Side side : {Side::front, Side::back}) {
                tab.side = side;
                for (const Routine routine : routines)
                    print(routine, {1, 32767});
            }
        });
}

} // namespace
