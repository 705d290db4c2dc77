#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/yellow_check_rules.h"
#include "support/recording_service.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

const QString limitCaption = QStringLiteral("MAX BEÍRHATÓ ÖSSZEG:");

// With the recording service a character is size / 10 mm wide, so a row of 45 mm takes 45 characters of 10 points.
Set yellowSet(int size, const QString& font = QStringLiteral("Times New Roman CE")) {
    Set set = Set::factory();
    set.ComboBetuTipus2.set(font);
    set.TextBetuMeret2 = static_cast<std::int16_t>(size);
    return set;
}

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

class CheckRules : public testing::Test {
protected:
    RecordingService service;
    PrintDevice device{service};
};

struct Amount {
    const char16_t* typed;
    int size; // points of the measure
    QString upper;
    QString lower;
};

TEST_F(CheckRules, YellowAmountIsWordedAndFitted) {
    const Amount amounts[] = {
        {u"", 10, QString(), QString()},
        {u"0", 10, QString(), QString()},
        {u"abc", 10, QString(), QString()},
        {u"500", 10, QStringLiteral("Ötszáz"), QString()},
        {u"0500", 10, QStringLiteral("Ötszáz"), QString()},
        {u"999", 100, QStringLiteral("Kilencszázkilencvenkilenc"), QString()}, // nothing to part, however wide
        {u"1000", 10, QStringLiteral("Egyezer-"), QString()},
        {u"5000", 10, QStringLiteral("Ötezer-"), QString()},
        {u"12a", 10, QStringLiteral("Tizenkettő"), QString()},
        {u"12 500", 10, QStringLiteral("Tizenkettőezer-ötszáz"), QString()},
        {u"12345", 10, QStringLiteral("Tizenkettőezer-háromszáznegyvenöt"), QString()},
        {u"12345", 20, QStringLiteral("Tizenkettőezer-"), QStringLiteral("háromszáznegyvenöt")},
        {u"123456789", 15, limitCaption + QStringLiteral("99.999.999"), QString()}, // 30 characters are just 45 mm
        {u"123456789", 16, limitCaption, QStringLiteral("99.999.999")},
        {u"12345", 0, QStringLiteral("Tizenkettőezer-háromszáznegyvenöt"), QString()}, // can't be measured
    };
    for (const Amount& amount : amounts) {
        SCOPED_TRACE(QString::fromUtf16(amount.typed).toStdString() + " " + std::to_string(amount.size));
        YellowCheckTab tab;
        tab.txtSzoveg21 = tab.txtSzoveg11 = tab.txtSzoveg22 = tab.txtSzoveg12 = QStringLiteral("régi");
        tab.txOsszeg = QString::fromUtf16(amount.typed);
        txOsszeg_Change(tab, yellowSet(amount.size), device);
        EXPECT_EQ(tab.txtSzoveg21, amount.upper);
        EXPECT_EQ(tab.txtSzoveg11, amount.lower);
        EXPECT_EQ(tab.txtSzoveg22, amount.upper);
        EXPECT_EQ(tab.txtSzoveg12, amount.lower);
        EXPECT_EQ(tab.lbOsszeg, tab.txOsszeg);
    }
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(CheckRules, UnknownFontJoinsTheWords) {
    YellowCheckTab tab;
    tab.txOsszeg = QStringLiteral("1234567");
    txOsszeg_Change(tab, yellowSet(10, QStringLiteral("Nincs ilyen")), device);
    EXPECT_EQ(tab.txtSzoveg11, QString());
    EXPECT_TRUE(tab.txtSzoveg21.endsWith(QStringLiteral("ezer-ötszázhatvanhét")));
}

TEST_F(CheckRules, PinkAmountFillsItsCopiesByHand) {
    PinkCheckTab tab;
    tab.RtxOsszeg = QStringLiteral("1234567");
    RtxOsszeg_Change(tab, fixedParty(), device);
    EXPECT_EQ(tab.RtxtSzoveg21, QStringLiteral("Egymilliókettőszázharmincnégyezer-"));
    EXPECT_EQ(tab.RtxtSzoveg11, QStringLiteral("ötszázhatvanhét"));
    EXPECT_EQ(tab.RtxtSzoveg12, tab.RtxtSzoveg21); // the copy of the upper line
    EXPECT_EQ(tab.RtxtSzoveg22, tab.RtxtSzoveg11);
    EXPECT_EQ(tab.RlbOsszeg, tab.RtxOsszeg);
    EXPECT_EQ(tab.lbOsszeg2, tab.RtxOsszeg);

    tab.RtxOsszeg = QStringLiteral("10000000"); // eight digits
    RtxOsszeg_Change(tab, fixedParty(), device);
    EXPECT_EQ(tab.RtxtSzoveg12, limitCaption + QStringLiteral("9.999.999"));
    EXPECT_EQ(tab.RtxtSzoveg22, QString());

    const PinkCheckTab before = tab;
    tab.RtxOsszeg.clear();
    RtxOsszeg_Change(tab, fixedParty(), device);
    EXPECT_EQ(tab.RtxtSzoveg21 + tab.RtxtSzoveg11 + tab.RlbOsszeg + tab.lbOsszeg2, QString());
    EXPECT_EQ(tab.RtxtSzoveg12, before.RtxtSzoveg12); // typing into an empty box later sets it anew
}

TEST_F(CheckRules, CashOnDeliveryAmountStandsBetweenStars) {
    const Amount amounts[] = {
        {u"", 10, QStringLiteral("**"), QString()},
        {u"700", 10, QStringLiteral("*hétszáz*"), QString()},
        {u"700", 100, QStringLiteral("*"), QStringLiteral("hétszáz*")},
        {u"12345", 10, QStringLiteral("*Tizenkettőezer-háromszáznegyvenöt*"), QString()},
        {u"12345", 20, QStringLiteral("*Tizenkettőezer-"), QStringLiteral("háromszáznegyvenöt*")},
        // 49 characters: too wide for a check, not for this form
        {u"1234567", 10, QStringLiteral("*Egymilliókettőszázharmincnégyezer-ötszázhatvanhét*"), QString()},
        {u"99999999999", 10, QStringLiteral("*") + limitCaption + QStringLiteral("9.999.999*"), QString()},
    };
    for (const Amount& amount : amounts) {
        SCOPED_TRACE(QString::fromUtf16(amount.typed).toStdString() + " " + std::to_string(amount.size));
        CashOnDeliveryTab tab;
        tab.txUosszeg = QString::fromUtf16(amount.typed);
        txUosszeg_Change(tab, yellowSet(amount.size), device);
        EXPECT_EQ(tab.lbosszegBetuvel1, amount.upper);
        EXPECT_EQ(tab.lbosszegBetuvel2, amount.lower);
        EXPECT_EQ(tab.lbUosszeg, tab.txUosszeg);
    }
}

QStringList sender(const PinkCheckTab& tab) {
    return {tab.RtxNev, tab.RtxCim, tab.txtNevHatul, tab.txtHelysHatul, tab.txtCimHatul, tab.txtIrszHatul};
}

QStringList addressee(const PinkCheckTab& tab) {
    return {tab.RlbNev, tab.RlbHelys, tab.RlbCim, tab.RlbIrsz, tab.txtNev, tab.txtHelys, tab.txtCim, tab.txtIrsz};
}

TEST_F(CheckRules, FixedPartyTakesItsSideAndEmptiesTheOther) {
    const QString name = QStringLiteral("Állandó Kft."), town = QStringLiteral("Győr"),
                  street = QStringLiteral("Baross út 2."), postcode = QStringLiteral("902 ");
    const QStringList asAddressee{name, town, street, postcode, name, town, street, postcode};
    const QStringList asSender{name, QStringLiteral("902  Győr, Baross út 2."), name, town, street, postcode};
    const QStringList noSender(6), noAddressee(8);

    PinkCheckTab tab;
    showClient(tab, clientNamed(QStringLiteral("Kiss Anna")));
    const QStringList client = sender(tab);
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

QStringList payee(const CashOnDeliveryTab& tab) { return {tab.lbUNev, tab.lbUCim, tab.lbUHelyseg, tab.lbUIrszam}; }

TEST_F(CheckRules, SwappedPartiesSurviveTheReloadAndComeBackAsStored) {
    SetRcsekk set = fixedParty();
    const ClientRec client = clientNamed(QStringLiteral("Kiss Anna"));
    const QStringList byBank{QStringLiteral("Állandó Kft."), QStringLiteral("11111111-22222222"),
                             QStringLiteral("Első Bank"), QStringLiteral("1051")};
    const QStringList byAddress{QStringLiteral("Állandó Kft."), QStringLiteral("Baross út 2."), QStringLiteral("Győr"),
                                QStringLiteral("902 ")};
    for (const bool address : {false, true}) {
        const QStringList& fixed = address ? byAddress : byBank;
        set.opULapCizett_0 = address;
        CashOnDeliveryTab tab;
        reload(tab, set);
        EXPECT_EQ(payee(tab), fixed);

        tab.chkCimzettCsereUlap = true;
        chkCimzettCsereUlap_Click(tab, client, set);
        EXPECT_EQ(tab.txUNev, QStringLiteral("Állandó Kft."));
        EXPECT_EQ(tab.txUCim, QStringLiteral("902 , Győr, Baross út 2."));
        EXPECT_EQ(tab.lbUNev.trimmed(), QStringLiteral("Kiss Anna"));
        const QStringList swapped = payee(tab);
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
    tab.chkBefAzonMasolasa = true;
    chkBefAzonMasolasa_Click(tab);
    EXPECT_EQ(tab.txtJogcim2, QStringLiteral("AZ-1"));
    tab.chkBefAzonMasolasa = false;
    chkBefAzonMasolasa_Click(tab);
    EXPECT_EQ(tab.txtJogcim2, QString());
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
    EXPECT_EQ(tab.txtFizHatIdo, QStringLiteral("Fiz.Hat: 2024.05.01"));
    EXPECT_EQ(tab.Kozlemeny2, tab.txtFizHatIdo);
    EXPECT_EQ(tab.pouredDeadline, tab.txtFizHatIdo);
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
