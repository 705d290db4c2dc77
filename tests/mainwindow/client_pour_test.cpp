#include "joined_texts.h"
#include "mainwindow/client_pour.h"
#include "support/recording_service.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

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
    const YellowCheckTab& yellow = tabs.yellowCheck;
    const PinkCheckTab& pink = tabs.pinkCheck;
    const PostingReceiptTab& posting = tabs.postingReceipt;
    const ReturnReceiptTab& receipt = tabs.returnReceipt;
    const EnvelopeTab& envelope = tabs.envelope;
    const DocumentReceiptTab& document = tabs.documentReceipt;
    const CashOnDeliveryTab& cash = tabs.cashOnDelivery;
    const LabelTab& label = tabs.label;
};

TEST_F(ClientPour, DomesticClientReachesEveryForm) {
    settings.set.chkFizHat = true;
    tabs.yellowCheck.chkBefAzonMasolasa = true;
    pour(domestic());
    EXPECT_EQ(joined({yellow.txNev, yellow.txNev_2, yellow.txCim1, yellow.txCim2, yellow.txIrszam}),
              "Kovács Éva|II. emelet|Budapest|Fő utca 1.|1024~6");
    EXPECT_EQ(joined({yellow.txBefizAzonosito, yellow.txtJogcim2, yellow.txtKozl3sor[0]}), "AZ-77|AZ-77|harmadik sor");
    EXPECT_EQ(joined({yellow.txtFizHatIdo, yellow.Kozlemeny2, yellow.txOsszeg, yellow.txtSzoveg21}),
              "Fiz.Hat:~9|Fiz.Hat:~9|1500|Egyezer-ötszáz");
    EXPECT_EQ(joined({pink.RtxNev, pink.RtxCim, pink.RlbNev, pink.RtxOsszeg, pink.RtxtSzoveg12}),
              "Kovács Éva~36|1024   Budapest, Fő utca 1.~62||1500|Egyezer-ötszáz");
    EXPECT_EQ(joined({pink.txtNevHatul, pink.txtHelysHatul, pink.txtCimHatul, pink.txtIrszHatul}),
              "Kovács Éva~36|Budapest|Fő utca 1.~45|1024~6");
    EXPECT_EQ(joined({posting.txNev3, posting.txCim3_1, posting.txCim3_2, posting.txUtanvet}),
              "Kovács Éva|1024   Budapest|Fő utca 1.|1500");
    EXPECT_EQ(joined({receipt.txNev2, receipt.txCim2_1, receipt.txCim2_2, receipt.txUgyfelAzonosito,
                      receipt.txKudemenyAzonosito, receipt.txUgyfelSajatJelzese}),
              "Kovács Éva|1024   Budapest|Fő utca 1.|AZ-77|RL123|SJ-1");
    EXPECT_EQ(joined({envelope.txtBoritekCimzettNev, envelope.txtBoritekCimzettNev2, envelope.txtBoritekCimzettCim1,
                      envelope.txtBoritekCimzettCim2, envelope.txtBoritekCimzettIrSzam}),
              "Kovács Éva|II. emelet|Budapest|Fő utca 1.|1024~6");
    EXPECT_EQ(joined({document.txtIratCimzettNev, document.txtIratCimzettHelyseg, document.txtIratCimzettIrszam,
                      document.txtIratCimzettUtca, document.txtIratFajtaja, document.txtIratSzama,
                      document.txtIratMelleklet}),
              "Kovács Éva~36|Budapest~40|1024~6|Fő utca 1.~45|végzés|12/2024|1 db");
    EXPECT_EQ(joined({cash.txUNev, cash.txUCim, cash.lbUNev, cash.txUosszeg, cash.lbosszegBetuvel1}),
              "Kovács Éva~36|1024   Budapest, Fő utca 1.||1500|*Egyezer-ötszáz*");
    EXPECT_EQ(joined({cash.lbUNevHatul, cash.lbUHelysegHatul, cash.lbUCimHatul, cash.lbUIrszamHatul}),
              "Kovács Éva~36|1024   Budapest|Fő utca 1.|1024~6");
    EXPECT_EQ(joined({label.lbNev1, label.lbHelyseg, label.lbCim, label.lbIrsz}),
              "Kovács Éva~36|Budapest~40|Fő utca 1.~45|1024~6");
    EXPECT_EQ(joined(yellow.amounts) + ' ' + joined(pink.amounts), "1500|2500 1500|2500");
}

TEST_F(ClientPour, ForeignClientHasNoPostcodeAndKeepsTypedIdentifiers) {
    tabs.pinkCheck.opAllando = FixedParty::sender;
    tabs.cashOnDelivery.chkCimzettCsereUlap = true;
    settings.pink.txRcsekkIrszam.set(u"9021");
    settings.pink.txRcsekkHelyseg.set(u"Győr");
    settings.pink.txRcsekkCim.set(u"Fő tér 1.");
    pour(domestic());
    pour(foreign());
    EXPECT_EQ(joined({yellow.txIrszam, envelope.txtBoritekCimzettIrSzam, label.lbIrsz}), "~6||");
    EXPECT_EQ(joined({pink.RlbNev, pink.RlbHelys, pink.RlbIrsz, pink.RtxNev}), "Hans Müller~36|D-10115 Berlin|~6|");
    EXPECT_EQ(joined({posting.txCim3_1, posting.txCim3_2}), "Hauptstrasse 5, D-10115 Berlin|Németország");
    EXPECT_EQ(joined({receipt.txCim2_1, receipt.txKudemenyAzonosito, receipt.txUgyfelSajatJelzese}),
              "Hauptstrasse 5, D-10115 Berlin|RL123|SJ-1");
    EXPECT_EQ(joined({document.txtIratCimzettNev, document.txtIratCimzettHelyseg, document.txtIratCimzettIrszam,
                      document.txtIratCimzettUtca, document.txtIratFajtaja}),
              "Hans Müller~36|Hauptstrasse 5, D-10115 Berlin||Németország|");
    EXPECT_EQ(joined({cash.txUNev, cash.txUCim, cash.lbUNev, cash.lbUHelyseg}),
              "Állandó Kft.|9021, Győr, Fő tér 1.|Hans Müller~36|D-10115 Berlin~40");
    EXPECT_EQ(joined({cash.lbUHelysegHatul, cash.lbUIrszamHatul}), "Hauptstrasse 5, D-10115 Berlin|");
}

TEST_F(ClientPour, UnusableFirstAmountEmptiesEverythingButTheList) {
    pour(domestic());
    Client client = domestic();
    client.client.Osszegek[0] = 0;
    client.client.Osszegek[4] = 9999999;
    client.client.Osszegek[5] = -3;
    pour(client);
    EXPECT_EQ(joined(yellow.amounts), "2500");
    EXPECT_EQ(yellow.txOsszeg + yellow.txtSzoveg21 + yellow.txtSzoveg11 + pink.RtxOsszeg + pink.RtxtSzoveg21 +
                  pink.RtxtSzoveg11 + pink.RtxtSzoveg12 + pink.RtxtSzoveg22 + posting.txUtanvet + cash.txUosszeg,
              QString());
    EXPECT_EQ(cash.lbosszegBetuvel1, QStringLiteral("**"));
}

TEST_F(ClientPour, WordsTypedForOneClientDontStayForTheNextWithTheSameAmount) {
    pour(domestic());
    tabs.yellowCheck.txtSzoveg21 = tabs.pinkCheck.RtxtSzoveg21 = tabs.cashOnDelivery.lbosszegBetuvel1 =
        QStringLiteral("kézzel");
    pour({clientNamed(QStringLiteral("Másik"), 1500), blankTwin()});
    EXPECT_EQ(joined({yellow.txtSzoveg21, pink.RtxtSzoveg21, cash.lbosszegBetuvel1}),
              "Egyezer-ötszáz|Egyezer-ötszáz|*Egyezer-ötszáz*");
}

} // namespace
