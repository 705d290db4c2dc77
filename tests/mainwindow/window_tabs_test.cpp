#include "mainwindow/stationery_page.h"
#include "settings/envelope_label_settings.h"
#include "settings/receipt_layouts.h"
#include "window_fixture.h"

namespace {

using WindowTabs = WindowTest;

TEST_F(WindowTabs, EachTabSetsButtonsFeedAndSample) {
    openWith({clientNamed(QStringLiteral("Anna")), clientNamed(QStringLiteral("Béla"))});
    const struct {
        const char *caption, *upright, *sideways;
        bool keepsBatch;
    } tabs[] = {{"Sárga csekk", "csekkkepallo.jpg", "csekkkepfekvo.jpg", true},
                {"Tértivevény ", "Tertikepallo.jpg", "Tertikepfekvo.jpg", true},
                {"Feladóvevény ", "Feladokepallo.jpg", "Feladokepfekvo.jpg", false},
                {"Boríték címző", "Boritekkepallo.jpg", "Boritekkepfekvo.jpg", true},
                {" Etikett nyomtató", "cimkekep.jpg", nullptr, false},
                {"Térti Irathoz", "Iratkepallo.jpg", "Iratkepfekvo.jpg", false},
                {"Rózsaszín csekk", "RcsekkkepAllo.jpg", "RcsekkkepFekvo.jpg", true},
                {"Utánvételi lap", "UtanveteliLapAllo.jpg", "UtanveteliLapfekvo.jpg", false}};
    const std::string missing = "Hiányzó kép:\n"; // the folder holds no pictures, and the sample names the file
    for (int number = 0; const auto& tab : tabs) {
        SCOPED_TRACE(tab.caption);
        goTo(0);
        clickRow(0);
        clickRow(1, Qt::ControlModifier);
        press("OpOrientacioFekvo");
        goTo(number);
        EXPECT_EQ(find<QTabWidget>("SSTab1").tabText(number).toStdString(), tab.caption);
        EXPECT_EQ(set().SSTab1Tab, number);
        EXPECT_EQ(shown("cmdCsPrint"), tab.keepsBatch);
        EXPECT_EQ(shown("cmdPrint"), !tab.keepsBatch);
        EXPECT_EQ(text("lbKijelolve"), "2");
        const bool hasSideways = tab.sideways != nullptr;
        EXPECT_EQ(enabled("OpOrientacioFekvo"), hasSideways);
        EXPECT_EQ(ticked("OpOrientacioFekvo"), hasSideways);
        EXPECT_EQ(text("Picture2"), missing + (hasSideways ? tab.sideways : tab.upright));
        press("OpOrientacioAllo");
        EXPECT_EQ(text("Picture2"), missing + tab.upright);
        ++number;
    }
    goTo(4);
    goTo(1);
    EXPECT_TRUE(enabled("OpOrientacioFekvo") && ticked("OpOrientacioAllo")); // upright stays
    goTo(6);
    choose("mnuSetup", [](const QWidget& dialog) {
        const auto* pages = dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
        EXPECT_EQ(pages->tabText(pages->currentIndex()), QStringLiteral("Rózsaszín csekk"));
    });
}

template<class Rec, auto field>
void storeName(const ProgramFolder& folder, const QString& name) {
    updateRecord<Rec>(folder, [&](Rec& set) { (set.*field).set(name); });
}

TEST_F(WindowTabs, AClickOnTheTabShowsTheSenderAsStored) {
    open();
    const struct {
        int tab;
        const char* control;
        void (*store)(const ProgramFolder&, const QString&);
    } senders[] = {{1, "lbSajatNev2", storeName<SetTerti, &SetTerti::txtTertiVisszakuldNev>},
                   {2, "lbSajatNev", storeName<SetFveveny, &SetFveveny::txtFeladovevenyFeladoNev>},
                   {3, "txtBoritekFeladoNev", storeName<boritek, &boritek::txtBoritekFeladoNev>},
                   {5, "lbIratFeladoNev", storeName<SetTerti, &SetTerti::txtTertiVisszakuldNev>},
                   {6, "RlbNev", storeName<SetRcsekk, &SetRcsekk::txRcsekkNev>},
                   {7, "lbUNev", storeName<SetRcsekk, &SetRcsekk::txRcsekkNev>}};
    for (const auto& sender : senders) {
        goTo(0);
        for (const char* name : {"Kovács Kft.", "Szűcs Bt."}) { // coming from another tab, and the tab in view
            sender.store(files, QString::fromUtf8(name));
            goTo(sender.tab);
            EXPECT_EQ(text(sender.control).rfind(name, 0), 0U) << sender.tab << text(sender.control);
        }
    }
}

TEST_F(WindowTabs, FirstVisitOfTheLabelsStoresTheFallbacks) {
    open();
    goTo(4);
    const auto sheet = readRecord<CimkeSetup>(files);
    EXPECT_EQ(sheet.txtOszlop * 10 + sheet.txtSor, 26);
    EXPECT_EQ(sheet.txtSzeles.text(), QStringLiteral("105"));
    EXPECT_TRUE(prompts.told.empty());
    expectShown({"chkCimke1_1", "chkCimke1_12"}, true);
    expectShown({"chkCimke1_13", "chkCimke1_40"}, false);
}

TEST_F(WindowTabs, TwoFormsTurnTheirPage) {
    openWith({clientNamed(QStringLiteral("Anna"), 1500)});
    const struct {
        int tab;
        const char *button, *page;
        const char* captions[2]; // front, back
        const char* pictures[2];
        std::vector<const char*> front, back;
    } forms[] = {
        {6,
         "cmdOldalCsere",
         "Picture7",
         {"Csekk Hátoldala", "Csekk Első oldal"},
         {"RozsaszinCsekk.jpg", "RCsekkHatul.jpg"},
         {"RtxOsszeg", "RlbOsszeg", "lbOsszeg2", "RtxtSzoveg21", "RtxtSzoveg11", "RtxtSzoveg22", "RtxtSzoveg12",
          "RtxNev", "RtxCim", "RlbNev", "RlbCim", "RlbHelys", "RlbIrsz", "txtNev", "txtCim", "txtHelys", "txtIrsz"},
         {"txtNevHatul", "txtHelysHatul", "txtCimHatul", "txtIrszHatul", "RcsekkKozlemenyHatul_0",
          "RcsekkKozlemenyHatul_3"}},
        {7,
         "cmdUtanvetOdalCsere",
         "Picture6",
         {"Hátoldala", "Első oldal"},
         {"UtanveteliLap.jpg", "utanvetelihatulja.jpg"},
         {"txUosszeg", "txUNev", "txUCim", "lbUosszeg", "lbosszegBetuvel1", "lbosszegBetuvel2", "lbUNev", "lbUHelyseg",
          "lbUCim", "lbUIrszam", "lbUtXR", "chkUtanvetR", "chkUtanvetEL", "chkCimzettCsereUlap"},
         {"lbUNevHatul", "lbUHelysegHatul", "lbUCimHatul", "lbUIrszamHatul"}}};
    for (const auto& form : forms) {
        goTo(form.tab);
        if (form.tab == 7) press("chkUtanvetR"); // its mark comes back with the front, the other one doesn't
        for (const int side : {0, 1, 0}) {
            clickRow(0); // fills both sides and turns none
            expectShown(form.front, side == 0);
            expectShown(form.back, side == 1);
            expectShown({"opAllando_0", "opAllando_1"}, form.tab == 6);
            expectShown({"lbUtXEL"}, false);
            EXPECT_EQ(text(form.button), form.captions[side]);
            EXPECT_EQ(find<StationeryPage>(form.page).picture(), QLatin1String(form.pictures[side]));
            press(form.button);
        }
        EXPECT_EQ(text("txtHelysHatul"), "Budapest");
    }
}

TEST_F(WindowTabs, SwapOfThePartiesWorksOnTheClickedClient) {
    storeName<SetRcsekk, &SetRcsekk::txRcsekkNev>(files, QStringLiteral("Posta Kft."));
    openWith({clientNamed(QStringLiteral("Anna"))});
    goTo(7);
    clickRow(0);
    const auto expectParties = [&](const char* addressee, const char* payee) {
        EXPECT_EQ(text("txUNev").rfind(addressee, 0), 0U) << text("txUNev");
        EXPECT_EQ(text("lbUNev").rfind(payee, 0), 0U) << text("lbUNev");
    };
    expectParties("Anna", "Posta Kft.");
    press("chkCimzettCsereUlap");
    expectParties("Posta Kft.", "Anna");
    goTo(7); // the reload must not put the fixed party on both sides
    expectParties("Posta Kft.", "Anna");
    press("chkCimzettCsereUlap");
    expectParties("Anna", "Posta Kft.");
}

TEST_F(WindowTabs, ReturnReceiptChangesBetweenDomesticAndForeign) {
    open();
    goTo(1);
    for (const bool foreign : {false, true, false}) {
        press(foreign ? "opBelfold_1" : "opBelfold_0");
        expectShown({"chkLevel", "chkKCsomag", "lbSajatIrsz"}, foreign);
        expectShown({"txtTertiPosta", "txtTertiDatum", "txUgyfelAzonosito", "txUgyfelSajatJelzese"}, !foreign);
        const auto& page = find<StationeryPage>("Picture3");
        EXPECT_EQ(page.picture(), foreign ? QStringLiteral("KTerti.jpg") : QStringLiteral("Terti.jpg"));
        if (foreign) press("chkLevel");
        expectShown({"lbX_9"}, foreign); // unticked with its box, or it would print unseen
    }
}

TEST_F(WindowTabs, TicksShowWhatBelongsToThem) {
    open();
    const struct {
        int tab;
        const char* box;
        std::vector<const char*> belonging;
    } ticks[] = {{2, "chkSK", {"lbX_0"}},
                 {2, "chkPRI", {"lbX_1"}},
                 {2, "chkPL", {"lbX_2"}},
                 {2, "chkLEGI", {"lbX_3"}},
                 {2, "chk5", {"lbX_4"}},
                 {2, "chk6", {"lbX_5"}},
                 {2, "chkErtek", {"txErtek", "lbFt_0"}},
                 {1, "chkTPri", {"lbX_6"}},
                 {1, "chkTSk", {"lbX_7"}},
                 {1, "chkTUv", {"lbX_8"}},
                 {1, "chkLevel", {"lbX_9"}},
                 {1, "chkKCsomag", {"lbX_10"}},
                 {7, "chkUtanvetEL", {"lbUtXEL"}},
                 {7, "chkUtanvetR", {"lbUtXR"}},
                 {3, "chkFelado", {"txtBoritekFeladoNev", "txtBoritekFeladoIrSzam", "chkFKFNev", "chkFKFIrsz"}},
                 {3, "chkCimzett", {"txtBoritekCimzettNev", "txtBoritekCimzettNev2", "chkFKCIrsz"}},
                 {4, "chkEgyediCimke", {"keretEgyediCimke", "txEgyediCimke_4"}}};
    for (const auto& tick : ticks) {
        SCOPED_TRACE(tick.box);
        goTo(tick.tab);
        if (tick.tab == 1) press("opBelfold_1"); // two of the boxes are on the foreign form alone
        const bool before = ticked(tick.box);
        for (const bool now : {before, !before, before}) {
            if (now != ticked(tick.box)) press(tick.box);
            expectShown(tick.belonging, now);
        }
    }
    goTo(2);
    press("chkErtek");
    EXPECT_EQ(window->focusWidget(), &find("txErtek"));
    goTo(5);
    press("chkVisszaCimPrint_2");
    press("chkVisszaCimPrint_2");
    EXPECT_EQ(window->focusWidget(), &find("txtIratFelado_0"));
}

TEST_F(WindowTabs, StubMirrorsThePayer) {
    open();
    const struct {
        const char *box, *copy;
    } mirrors[] = {{"txNev", "Text1_1"},    {"txCim1", "Text1_0"},          {"txCim2", "Text1_2"},
                   {"txIrszam", "Text1_3"}, {"txtSzoveg21", "txtSzoveg22"}, {"txtSzoveg11", "txtSzoveg12"}};
    for (const auto& mirror : mirrors) {
        type(mirror.box, QStringLiteral("Ősz Űr"));
        EXPECT_EQ(text(mirror.copy), "Ősz Űr") << mirror.copy;
    }
}

} // namespace
