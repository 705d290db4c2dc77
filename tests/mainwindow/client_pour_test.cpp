#include "mainwindow/client_pour.h"
#include "support/recording_service.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

struct Control {
    const char* name;
    const QString& shown;
    QString expected;
};

void expectShown(std::initializer_list<Control> controls) {
    for (const Control& control : controls)
        EXPECT_EQ(control.shown.toStdString(), control.expected.toStdString()) << control.name;
}

QString padded(const char16_t* text, int width) { return QString::fromUtf16(text).leftJustified(width); }

class ClientPour : public testing::Test {
protected:
    ClientPour() {
        settings.set.TextBetuMeret2 = 10;
        settings.pink.cmbRcsekkSzovegBetuTipus.set(u"Times New Roman CE");
        settings.pink.txRcsekkNev.set(u"Állandó Kft.");
    }
    void pour(const Client& client) { pourClient(tabs, client, settings, device); }

    static Client domestic() {
        Client client{clientNamed(QStringLiteral("Kovács Éva"), 1500), blankTwin()};
        client.client.Nev2.set(u"II. emelet");
        client.client.Osszegek[3] = 2500;
        client.client.Azonosito.set(u"AZ-77");
        client.twin.Kozl3Sor.set(u"harmadik sor");
        client.twin.IratFajtaja.set(u"végzés");
        client.twin.IratSzama.set(u"12/2024");
        client.twin.IratMelleklet.set(u"1 db");
        client.twin.SajatJelzes.set(u"SJ-1");
        client.twin.KuldemenyAzonosito.set(u"RL123");
        return client;
    }
    static Client foreign() {
        Client client{clientNamed(QStringLiteral("Hans Müller")), blankTwin()};
        client.client.Nev2.set(u"Hauptstrasse 5");
        client.client.Helyseg.set(u"D-10115 Berlin");
        client.client.Cim.set(u"Németország");
        client.client.Irsz.set(u"");
        client.client.Kulfoldi = true;
        return client;
    }

    RecordingService service;
    PrintDevice device{service};
    FormTabs tabs;
    PourSettings settings{Set::factory(), SetRcsekk::factory()};
};

TEST_F(ClientPour, DomesticClientReachesEveryForm) {
    settings.set.chkFizHat = true;
    tabs.yellowCheck.chkBefAzonMasolasa = true;
    pour(domestic());
    const QString name = QStringLiteral("Kovács Éva"), town = QStringLiteral("Budapest"),
                  street = QStringLiteral("Fő utca 1."), line1 = QStringLiteral("1024   Budapest");
    const QString storedName = padded(u"Kovács Éva", 36), storedTown = padded(u"Budapest", 40),
                  storedStreet = padded(u"Fő utca 1.", 45), postcode = QStringLiteral("1024  ");
    const auto& yellow = tabs.yellowCheck;
    const auto& pink = tabs.pinkCheck;
    const auto& posting = tabs.postingReceipt;
    const auto& receipt = tabs.returnReceipt;
    const auto& envelope = tabs.envelope;
    const auto& document = tabs.documentReceipt;
    const auto& cash = tabs.cashOnDelivery;
    expectShown({
        {"txNev", yellow.txNev, name},
        {"txNev_2", yellow.txNev_2, QStringLiteral("II. emelet")},
        {"txCim1", yellow.txCim1, town},
        {"txCim2", yellow.txCim2, street},
        {"txIrszam", yellow.txIrszam, postcode},
        {"Text1(0)", yellow.Text1[0], town},
        {"Text1(1)", yellow.Text1[1], name},
        {"Text1(2)", yellow.Text1[2], street},
        {"Text1(3)", yellow.Text1[3], postcode},
        {"txBefizAzonosito", yellow.txBefizAzonosito, QStringLiteral("AZ-77")},
        {"txtJogcim2", yellow.txtJogcim2, QStringLiteral("AZ-77")},
        {"txtKozl3sor(0)", yellow.txtKozl3sor[0], QStringLiteral("harmadik sor")},
        {"txtKozl3sor(1)", yellow.txtKozl3sor[1], QStringLiteral("harmadik sor")},
        {"txtFizHatIdo", yellow.txtFizHatIdo, QStringLiteral("Fiz.Hat: ")},
        {"Kozlemeny2", yellow.Kozlemeny2, QStringLiteral("Fiz.Hat: ")},
        {"txOsszeg", yellow.txOsszeg, QStringLiteral("1500")},
        {"txtSzoveg21", yellow.txtSzoveg21, QStringLiteral("Egyezer-ötszáz")},
        {"RtxNev", pink.RtxNev, storedName},
        {"RtxCim", pink.RtxCim, postcode + QStringLiteral(" Budapest, ") + storedStreet},
        {"txtNevHatul", pink.txtNevHatul, storedName},
        {"txtHelysHatul", pink.txtHelysHatul, town},
        {"txtCimHatul", pink.txtCimHatul, storedStreet},
        {"txtIrszHatul", pink.txtIrszHatul, postcode},
        {"RlbNev", pink.RlbNev, QString()},
        {"RtxOsszeg", pink.RtxOsszeg, QStringLiteral("1500")},
        {"RtxtSzoveg12", pink.RtxtSzoveg12, QStringLiteral("Egyezer-ötszáz")},
        {"txNev3", posting.txNev3, name},
        {"txCim3_1", posting.txCim3_1, line1},
        {"txCim3_2", posting.txCim3_2, street},
        {"txUtanvet", posting.txUtanvet, QStringLiteral("1500")},
        {"txNev2", receipt.txNev2, name},
        {"txCim2_1", receipt.txCim2_1, line1},
        {"txCim2_2", receipt.txCim2_2, street},
        {"txUgyfelAzonosito", receipt.txUgyfelAzonosito, QStringLiteral("AZ-77")},
        {"txKudemenyAzonosito", receipt.txKudemenyAzonosito, QStringLiteral("RL123")},
        {"txUgyfelSajatJelzese", receipt.txUgyfelSajatJelzese, QStringLiteral("SJ-1")},
        {"txtBoritekCimzettNev", envelope.txtBoritekCimzettNev, name},
        {"txtBoritekCimzettNev2", envelope.txtBoritekCimzettNev2, QStringLiteral("II. emelet")},
        {"txtBoritekCimzettCim1", envelope.txtBoritekCimzettCim1, town},
        {"txtBoritekCimzettCim2", envelope.txtBoritekCimzettCim2, street},
        {"txtBoritekCimzettIrSzam", envelope.txtBoritekCimzettIrSzam, postcode},
        {"txtIratCimzettNev", document.txtIratCimzettNev, storedName},
        {"txtIratCimzettHelyseg", document.txtIratCimzettHelyseg, storedTown},
        {"txtIratCimzettIrszam", document.txtIratCimzettIrszam, postcode},
        {"txtIratCimzettUtca", document.txtIratCimzettUtca, storedStreet},
        {"txtIratFajtaja", document.txtIratFajtaja, QStringLiteral("végzés")},
        {"txtIratSzama", document.txtIratSzama, QStringLiteral("12/2024")},
        {"txtIratMelleklet", document.txtIratMelleklet, QStringLiteral("1 db")},
        {"txUNev", cash.txUNev, storedName},
        {"txUCim", cash.txUCim, QStringLiteral("1024   Budapest, Fő utca 1.")},
        {"lbUNev", cash.lbUNev, QString()},
        {"lbUNevHatul", cash.lbUNevHatul, storedName},
        {"lbUHelysegHatul", cash.lbUHelysegHatul, line1},
        {"lbUCimHatul", cash.lbUCimHatul, street},
        {"lbUIrszamHatul", cash.lbUIrszamHatul, postcode},
        {"txUosszeg", cash.txUosszeg, QStringLiteral("1500")},
        {"lbosszegBetuvel1", cash.lbosszegBetuvel1, QStringLiteral("*Egyezer-ötszáz*")},
        {"lbNev1", tabs.label.lbNev1, storedName},
        {"lbHelyseg", tabs.label.lbHelyseg, storedTown},
        {"lbCim", tabs.label.lbCim, storedStreet},
        {"lbIrsz", tabs.label.lbIrsz, postcode},
    });
    const QStringList offered{QStringLiteral("1500"), QStringLiteral("2500")};
    EXPECT_EQ(yellow.amounts, offered);
    EXPECT_EQ(pink.amounts, offered);
}

TEST_F(ClientPour, ForeignClientHasNoPostcodeAndKeepsTypedIdentifiers) {
    tabs.pinkCheck.opAllando = FixedParty::sender;
    tabs.cashOnDelivery.chkCimzettCsereUlap = true;
    settings.pink.txRcsekkIrszam.set(u"9021");
    settings.pink.txRcsekkHelyseg.set(u"Győr");
    settings.pink.txRcsekkCim.set(u"Fő tér 1.");
    pour(domestic());
    pour(foreign());
    const QString line1 = QStringLiteral("Hauptstrasse 5, D-10115 Berlin"), country = QStringLiteral("Németország");
    const QString storedName = padded(u"Hans Müller", 36), blank6(6, u' ');
    expectShown({
        {"txIrszam", tabs.yellowCheck.txIrszam, blank6},
        {"RlbNev", tabs.pinkCheck.RlbNev, storedName},
        {"txtHelys", tabs.pinkCheck.txtHelys, QStringLiteral("D-10115 Berlin")},
        {"RlbIrsz", tabs.pinkCheck.RlbIrsz, blank6},
        {"RtxNev", tabs.pinkCheck.RtxNev, QString()},
        {"txCim3_1", tabs.postingReceipt.txCim3_1, line1},
        {"txCim3_2", tabs.postingReceipt.txCim3_2, country},
        {"txCim2_1", tabs.returnReceipt.txCim2_1, line1},
        {"txKudemenyAzonosito", tabs.returnReceipt.txKudemenyAzonosito, QStringLiteral("RL123")},
        {"txUgyfelSajatJelzese", tabs.returnReceipt.txUgyfelSajatJelzese, QStringLiteral("SJ-1")},
        {"txtBoritekCimzettIrSzam", tabs.envelope.txtBoritekCimzettIrSzam, QString()},
        {"txtIratCimzettNev", tabs.documentReceipt.txtIratCimzettNev, storedName},
        {"txtIratCimzettHelyseg", tabs.documentReceipt.txtIratCimzettHelyseg, line1},
        {"txtIratCimzettIrszam", tabs.documentReceipt.txtIratCimzettIrszam, QString()},
        {"txtIratCimzettUtca", tabs.documentReceipt.txtIratCimzettUtca, country},
        {"txtIratFajtaja", tabs.documentReceipt.txtIratFajtaja, QString()},
        {"txUNev", tabs.cashOnDelivery.txUNev, QStringLiteral("Állandó Kft.")},
        {"txUCim", tabs.cashOnDelivery.txUCim, QStringLiteral("9021, Győr, Fő tér 1.")},
        {"lbUNev", tabs.cashOnDelivery.lbUNev, storedName},
        {"lbUHelyseg", tabs.cashOnDelivery.lbUHelyseg, padded(u"D-10115 Berlin", 40)},
        {"lbUHelysegHatul", tabs.cashOnDelivery.lbUHelysegHatul, line1},
        {"lbUIrszamHatul", tabs.cashOnDelivery.lbUIrszamHatul, QString()},
        {"lbIrsz", tabs.label.lbIrsz, QString()},
    });
}

TEST_F(ClientPour, UnusableFirstAmountEmptiesEverythingButTheList) {
    pour(domestic());
    Client client = domestic();
    client.client.Osszegek[0] = 0;
    client.client.Osszegek[4] = 9999999;
    client.client.Osszegek[5] = -3;
    pour(client);
    EXPECT_EQ(tabs.yellowCheck.amounts, QStringList{QStringLiteral("2500")});
    const auto& yellow = tabs.yellowCheck;
    const auto& pink = tabs.pinkCheck;
    EXPECT_EQ(yellow.txOsszeg + yellow.lbOsszeg + yellow.txtSzoveg21 + yellow.txtSzoveg11 + yellow.txtSzoveg22 +
                  yellow.txtSzoveg12 + pink.RtxOsszeg + pink.RlbOsszeg + pink.lbOsszeg2 + pink.RtxtSzoveg21 +
                  pink.RtxtSzoveg11 + pink.RtxtSzoveg12 + pink.RtxtSzoveg22 + tabs.postingReceipt.txUtanvet +
                  tabs.cashOnDelivery.txUosszeg,
              QString());
    EXPECT_EQ(tabs.cashOnDelivery.lbosszegBetuvel1, QStringLiteral("**"));
}

TEST_F(ClientPour, WordsTypedForOneClientDontStayForTheNextWithTheSameAmount) {
    pour(domestic());
    tabs.yellowCheck.txtSzoveg21 = QStringLiteral("kézzel");
    tabs.pinkCheck.RtxtSzoveg21 = QStringLiteral("kézzel");
    tabs.cashOnDelivery.lbosszegBetuvel1 = QStringLiteral("kézzel");
    pour({clientNamed(QStringLiteral("Másik"), 1500), blankTwin()});
    EXPECT_EQ(tabs.yellowCheck.txtSzoveg21, QStringLiteral("Egyezer-ötszáz"));
    EXPECT_EQ(tabs.pinkCheck.RtxtSzoveg21, QStringLiteral("Egyezer-ötszáz"));
    EXPECT_EQ(tabs.cashOnDelivery.lbosszegBetuvel1, QStringLiteral("*Egyezer-ötszáz*"));
}

} // namespace
