#include "joined_texts.h"
#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/yellow_check_rules.h"
#include "support/recording_service.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

SetRcsekk fixedParty() {
    SetRcsekk set = SetRcsekk::factory();
    set.cmbRcsekkSzovegBetuTipus.set(u"Times New Roman CE");
    set.TextRcsekkBetuMeret2 = 10;
    set.txRcsekkNev.set(u"Állandó Kft.");
    set.txRcsekkHelyseg.set(u"Győr");
    set.txRcsekkCim.set(u"Baross út 2.");
    set.txRcsekkIrszam.set(u"902");
    set.txtBankNum.set(u"11111111-22222222");
    set.txtBankNeve.set(u"Első Bank");
    set.txtBankIrsz.set(u"1051");
    return set;
}

// A character is size / 10 mm wide here, so a row of 45 mm takes 45 characters of 10 points.
class CheckRules : public testing::Test {
protected:
    RecordingService service;
    PrintDevice device{service};
};

struct Amount {
    const char* typed;
    int size;          // points of the measure
    std::string words; // upper line and lower line
    const char16_t* font = u"Times New Roman CE";
};

TEST_F(CheckRules, AmountsAreWordedAndFitted) {
    const auto settings = [](const Amount& amount) {
        Set set = Set::factory();
        set.ComboBetuTipus2.set(amount.font);
        set.TextBetuMeret2 = static_cast<std::int16_t>(amount.size);
        return set;
    };
    const auto yellow = [&](const Amount& amount) {
        YellowCheckTab tab;
        tab.txtSzoveg21 = tab.txtSzoveg11 = QStringLiteral("régi");
        tab.txOsszeg = QLatin1String(amount.typed);
        txOsszeg_Change(tab, settings(amount), device);
        return joined({tab.txtSzoveg21, tab.txtSzoveg11});
    };
    const auto pink = [&](const Amount& amount) {
        PinkCheckTab tab;
        tab.RtxtSzoveg12 = tab.RtxtSzoveg22 = QStringLiteral("régi");
        tab.RtxOsszeg = QLatin1String(amount.typed);
        RtxOsszeg_Change(tab, fixedParty(), device);
        const std::string words = joined({tab.RtxtSzoveg21, tab.RtxtSzoveg11});
        // The copies, the upper line's first. An empty box leaves them; typing into it later sets them anew.
        EXPECT_EQ(joined({tab.RtxtSzoveg12, tab.RtxtSzoveg22}), words == "|" ? "régi|régi" : words);
        return words;
    };
    const auto cashOnDelivery = [&](const Amount& amount) {
        CashOnDeliveryTab tab;
        tab.txUosszeg = QLatin1String(amount.typed);
        txUosszeg_Change(tab, settings(amount), device);
        return joined({tab.lbosszegBetuvel1, tab.lbosszegBetuvel2});
    };
    const std::pair<std::function<std::string(const Amount&)>, std::vector<Amount>> forms[] = {
        {yellow,
         {{"", 10, "|"},
          {"abc", 10, "|"},
          {"0500", 10, "Ötszáz|"},
          {"999", 100, "Kilencszázkilencvenkilenc|"}, // nothing to part, however wide
          {"1000", 10, "Egyezer-|"},
          {"12a", 10, "Tizenkettő|"},
          {"12 500", 10, "Tizenkettőezer-ötszáz|"},
          {"12345", 20, "Tizenkettőezer-|háromszáznegyvenöt"},
          {"123456789", 15, "MAX BEÍRHATÓ ÖSSZEG:99.999.999|"}, // 30 characters are just 45 mm
          {"123456789", 16, "MAX BEÍRHATÓ ÖSSZEG:|99.999.999"},
          {"12345", 0, "Tizenkettőezer-háromszáznegyvenöt|"}, // can't be measured, as the next one
          {"1234567", 10, "Egymilliókettőszázharmincnégyezer-ötszázhatvanhét|", u"Nincs ilyen"}}},
        {pink,
         {{"1234567", 10, "Egymilliókettőszázharmincnégyezer-|ötszázhatvanhét"},
          {"10000000", 10, "MAX BEÍRHATÓ ÖSSZEG:9.999.999|"},
          {"", 10, "|"}}},
        {cashOnDelivery,
         {{"", 10, "**|"},
          {"700", 10, "*hétszáz*|"},
          {"700", 100, "*|hétszáz*"},
          {"12345", 20, "*Tizenkettőezer-|háromszáznegyvenöt*"},
          // 49 characters: too wide for a check, not for this form
          {"1234567", 10, "*Egymilliókettőszázharmincnégyezer-ötszázhatvanhét*|"},
          {"99999999999", 10, "*MAX BEÍRHATÓ ÖSSZEG:9.999.999*|"}}}};
    for (const auto& [words, amounts] : forms)
        for (const Amount& amount : amounts)
            EXPECT_EQ(words(amount), amount.words) << amount.typed << ' ' << amount.size;
    EXPECT_TRUE(service.delivered.empty());
}

std::string sender(const PinkCheckTab& tab) {
    return joined({tab.RtxNev, tab.RtxCim, tab.txtNevHatul, tab.txtHelysHatul, tab.txtCimHatul, tab.txtIrszHatul});
}

std::string addressee(const PinkCheckTab& tab) { return joined({tab.RlbNev, tab.RlbHelys, tab.RlbCim, tab.RlbIrsz}); }

TEST_F(CheckRules, FixedPartyTakesItsSideAndEmptiesTheOther) {
    const std::string asAddressee = "Állandó Kft.|Győr|Baross út 2.|902~4";
    const std::string asSender = "Állandó Kft.|902  Győr, Baross út 2.|Állandó Kft.|Győr|Baross út 2.|902~4";
    const std::string noSender = "|||||", noAddressee = "|||";
    PinkCheckTab tab;
    showClient(tab, clientNamed(QStringLiteral("Kiss Anna")));
    const std::string client = sender(tab);
    reload(tab, fixedParty());
    EXPECT_EQ(addressee(tab), asAddressee);
    EXPECT_EQ(sender(tab), client); // the client stays when the tab is shown
    opAllando_Click(tab, fixedParty());
    EXPECT_EQ(addressee(tab), asAddressee);
    EXPECT_EQ(sender(tab), noSender);

    tab.opAllando = FixedParty::sender;
    opAllando_Click(tab, fixedParty());
    EXPECT_EQ(sender(tab), asSender);
    EXPECT_EQ(addressee(tab), noAddressee);
    showClient(tab, clientNamed(QStringLiteral("Kiss Anna")));
    reload(tab, fixedParty());
    EXPECT_EQ(sender(tab), asSender);
    EXPECT_EQ(tab.RlbNev.trimmed(), QStringLiteral("Kiss Anna"));
}

std::string payee(const CashOnDeliveryTab& tab) {
    return joined({tab.lbUNev, tab.lbUCim, tab.lbUHelyseg, tab.lbUIrszam});
}

TEST_F(CheckRules, SwappedPartiesSurviveTheReloadAndComeBackAsStored) {
    SetRcsekk set = fixedParty();
    const ClientRec client = clientNamed(QStringLiteral("Kiss Anna"));
    for (const bool address : {false, true}) {
        const char* fixed =
            address ? "Állandó Kft.|Baross út 2.|Győr|902~4" : "Állandó Kft.|11111111-22222222|Első Bank|1051";
        set.opULapCizett_0 = address;
        CashOnDeliveryTab tab;
        reload(tab, set);
        EXPECT_EQ(payee(tab), fixed);

        tab.chkCimzettCsereUlap = true;
        chkCimzettCsereUlap_Click(tab, client, set);
        EXPECT_EQ(joined({tab.txUNev, tab.txUCim, tab.lbUNev.trimmed()}),
                  "Állandó Kft.|902 , Győr, Baross út 2.|Kiss Anna");
        const std::string swapped = payee(tab);
        reload(tab, set);
        EXPECT_EQ(payee(tab), swapped);

        tab.chkCimzettCsereUlap = false;
        chkCimzettCsereUlap_Click(tab, client, set);
        EXPECT_EQ(payee(tab), fixed); // the bank account doesn't turn into an address
        EXPECT_EQ(tab.txUNev.trimmed(), QStringLiteral("Kiss Anna"));
    }
}

TEST_F(CheckRules, IdentifierIsCopiedAndTakenBack) {
    YellowCheckTab tab;
    tab.txBefizAzonosito = QStringLiteral("AZ-1");
    for (const bool copied : {true, false}) {
        tab.chkBefAzonMasolasa = copied;
        chkBefAzonMasolasa_Click(tab);
        EXPECT_EQ(tab.txtJogcim2, copied ? tab.txBefizAzonosito : QString());
    }
}

TEST_F(CheckRules, DeadlineFollowsTheClientAndSparesTypedTexts) {
    Set set = Set::factory();
    Client first{clientNamed(QStringLiteral("A")), blankTwin()}, second = first;
    first.client.FizHatIdo.set(u"2024.05.01");
    YellowCheckTab tab;
    tab.Kozlemeny2 = QStringLiteral("kézzel");
    set.chkFizHat = false;
    showClient(tab, first, set);
    EXPECT_EQ(tab.Kozlemeny2, QStringLiteral("kézzel"));

    set.chkFizHat = true;
    showClient(tab, first, set);
    for (const QString& deadline : {tab.txtFizHatIdo, tab.Kozlemeny2, tab.pouredDeadline})
        EXPECT_EQ(deadline, QStringLiteral("Fiz.Hat: 2024.05.01"));
    showClient(tab, second, set);
    EXPECT_EQ(tab.txtFizHatIdo, QStringLiteral("Fiz.Hat: "));

    showClient(tab, first, set);
    set.chkFizHat = false;
    showClient(tab, second, set); // the first client's deadline must not print for the second
    EXPECT_EQ(tab.txtFizHatIdo, QString());
    tab.txtFizHatIdo = QStringLiteral("kézzel");
    showClient(tab, second, set);
    EXPECT_EQ(tab.txtFizHatIdo, QStringLiteral("kézzel"));
}

} // namespace
