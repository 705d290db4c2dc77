#include "printing/yellow_check.h"

#include "check_fixture.h"

#include <QRegularExpression>

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

class YellowCheck : public CheckTest {
protected:
    YellowCheckTab& tab = tabs.yellowCheck = filledTab();

    YellowCheck() { desk.attended = false; }
    void addFullClient(const QString& name, int amount, const TwinRec& twin = blankTwin()) const {
        ClientRec client = clientNamed(name, amount);
        client.Azonosito.set(u"KÓD 7");
        client.FizHatIdo.set(u"június 1.");
        addClient(client, twin);
    }
};

TEST_F(YellowCheck, TabAndClientFillTheSameBoxes) {
    EXPECT_EQ(print(PrintAlloCsekk).trouble, QString());
    EXPECT_EQ(page(), "25 7 A|***12345***; 90 7 A|***12345***; 160 7 T|közlemény 1; 160 11 T|harmadik; "
                      "160 15 T|közlemény 2; 10 17 T|*Tizenkettőezer-; 10 23 T|háromszáznegyvenöt*; "
                      "75 17 T|*Tizenkettőezer-; 75 23 T|háromszáznegyvenöt*; 87 40 A|AZ-1; 32 33 T|jogcím 1; "
                      "32 37 T|harmadik; 32 41 T|jogcím 2; 32 45 T|Fiz.Hat: május; 10 54 T|Kiss Éva; "
                      "10 58 T|ŐRBOTTYÁN; 10 62 T|Fő út 2.; 10 68 T|2162  ; 145 54 T|Kiss Éva; 145 58 T|ŐRBOTTYÁN; "
                      "145 62 T|Fő út 2.; 145 68 T|2162  ");
    set.chkFizHat = true;
    storeSettings();
    TwinRec twin = blankTwin();
    twin.Kozl3Sor.set(u" saját sor");
    addClient(clientNamed(u"Nem kért"_s));
    addFullClient(u"Nagy Áron"_s, 1234567, twin);
    addFullClient(u"Nulla Ödön"_s, 0);
    EXPECT_EQ(print(PrintCsFekvoCsekk, {3, 2}).pages, 2);
    EXPECT_EQ(page(1), "15 6 A|***1234567***; 80 6 A|***1234567***; 150 5 T|közlemény 1; 150 9 T|saját sor; "
                       "150 13 T|közlemény 2; 2 15 T|*Egymilliókettőszázharmincnégyezer-; "
                       "2 22 T|ötszázhatvanhét*; 68 15 T|*Egymilliókettőszázharmincnégyezer-; "
                       "68 22 T|ötszázhatvanhét*; 80 40 A|KÓD 7; 25 33 T|jogcím 1; 25 37 T|saját sor; "
                       "25 41 T|jogcím 2; 25 45 T|Fiz.Hat: június 1.; 5 53 T|Nagy Áron; 5 57 T|BUDAPEST; "
                       "5 61 T|Fő utca 1.; 5 68 T|1024  ; 140 53 T|Nagy Áron; 140 57 T|BUDAPEST; "
                       "140 61 T|Fő utca 1.; 140 68 T|1024  ");
    // Without an amount neither digits nor words print, all else does.
    EXPECT_EQ(lines(0).first().toStdString(), "150 5 T|közlemény 1");
    EXPECT_EQ(page(0, u"*"_s), "");
    EXPECT_EQ(page(0, u"Nulla"_s), "5 53 T|Nulla Ödön; 140 53 T|Nulla Ödön");

    set.chkFizHat = false;
    tab.chkBefAzonMasolasa = true;
    storeSettings();
    print(PrintCsAlloCsekk, {2}); // the name at a height of its own in each run
    EXPECT_EQ(page(0, u"Nagy"_s) + page(0, u" 41 T"_s) + page(0, u" 45 T"_s),
              "10 54 T|Nagy Áron; 145 54 T|Nagy Áron32 41 T|KÓD 7");
    print(PrintFekvoCsekk);
    EXPECT_EQ(page(0, u"Kiss"_s) + page(0, u" 41 T"_s), "5 52 T|Kiss Éva; 140 52 T|Kiss Éva25 41 T|AZ-1");
}

TEST_F(YellowCheck, FlagsLeaveTheirRowsOut) {
    expectRowsGone({{0, {1, 2}},
                    {1, {6, 7, 8, 9}},
                    {3, {16, 17, 18, 20, 21, 22}},
                    {4, {3, 4, 5}},
                    {5, {11, 12, 13, 14}},
                    {6, {}},
                    {7, {10}}},
                   PrintAlloCsekk);
}

TEST_F(YellowCheck, EmptyLineTakesThePlaceOfTheNameAndCorrectionMovesUprightChecksOnly) {
    set.TextVkorrekcio = -3;
    set.Textosszeg_x1 = Cur::fromText(u"12.3456");
    storeAllFlagsBut(2);
    addFullClient(u"Nagy Áron"_s, 700);
    // The empty lines stand at the row's own height in the upright single routine, else where the pen stands: below the
    // (empty) deadline row and below the first postcode.
    const std::tuple<Routine, float, const char*, const char*> rows[] = {
        {PrintAlloCsekk, 19.3456F, "0 54 T| ; 0 54 T| ", "7 58 T|ŐRBOTTYÁN; 142 58 T|ŐRBOTTYÁN"},
        {PrintFekvoCsekk, 12.3456F, "0 49 T| ; 0 72 T| ", "5 53 T|ŐRBOTTYÁN; 140 76 T|ŐRBOTTYÁN"},
        {PrintCsAlloCsekk, 19.3456F, "0 49 T| ; 0 72 T| ", "7 53 T|BUDAPEST; 142 76 T|BUDAPEST"},
        {PrintCsFekvoCsekk, 12.3456F, "0 49 T| ; 0 72 T| ", "5 53 T|BUDAPEST; 140 76 T|BUDAPEST"},
    };
    for (const auto& [routine, firstX, empty, addresses] : rows) {
        print(routine, {1});
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
        print(PrintCsFekvoCsekk);
        EXPECT_EQ(joined((lines(0) + lines(1)).filter(u"150 13 T|"_s)), notices);
    }
}

} // namespace
