#include "mainwindow/stationery_page.h"
#include "settings/envelope_label_settings.h"
#include "settings/receipt_layouts.h"
#include "window_fixture.h"

namespace {

using WindowTabs = WindowTest;

TEST_F(WindowTabs, EachTabSetsButtonsFeedAndSample) {
    openNamed({u"Anna", u"Béla"});
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
        for (int clicks = 0; clicks < 2; ++clicks) // the second one changes nothing
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

TEST_F(WindowTabs, AClickOnTheTabShowsTheSenderAsStored) {
    open();
    const std::pair<int, const char*> senders[] = {
        {1, "lbSajatNev2"},     {2, "lbSajatNev"}, {3, "txtBoritekFeladoNev"},
        {5, "lbIratFeladoNev"}, {6, "RlbNev"},     {7, "lbUNev"}};
    for (const auto& [tab, control] : senders) {
        goTo(0);
        for (const char* name : {"Kovács Kft.", "Szűcs Bt."}) { // coming from another tab, and the tab in view
            const QString stored = QString::fromUtf8(name);
            updateRecord<SetTerti>(files, [&](SetTerti& set) { set.txtTertiVisszakuldNev.set(stored); });
            updateRecord<SetFveveny>(files, [&](SetFveveny& set) { set.txtFeladovevenyFeladoNev.set(stored); });
            updateRecord<boritek>(files, [&](boritek& set) { set.txtBoritekFeladoNev.set(stored); });
            updateRecord<SetRcsekk>(files, [&](SetRcsekk& set) { set.txRcsekkNev.set(stored); });
            goTo(tab);
            EXPECT_EQ(text(control).rfind(name, 0), 0U) << tab << text(control);
        }
    }
}

TEST_F(WindowTabs, TheTabInViewFollowsTheSetupDialog) {
    openNamed({u"Anna"});
    goTo(6);
    clickRow(0);
    type("RlbNev", QStringLiteral("kézzel"));
    choose("mnuSetup", [](const QWidget&) {});
    EXPECT_EQ(text("RlbNev"), "kézzel"); // nothing has changed there
    choose("mnuSetup", [this](const QWidget&) {
        updateRecord<SetRcsekk>(files, [](SetRcsekk& set) { set.txRcsekkNev.set(u"Új Kft."); });
    });
    EXPECT_EQ(text("RlbNev"), "Új Kft.");
    EXPECT_EQ(text("RtxNev").rfind("Anna", 0), 0U);
}

TEST_F(WindowTabs, TwoFormsTurnTheirPage) {
    openWith({clientNamed(QStringLiteral("Anna"), 1500)});
    const struct {
        int tab;
        const char *button, *page, *frontCaption, *backCaption, *frontPicture, *backPicture;
        const char *front, *back;
    } forms[] = {
        {6, "cmdOldalCsere", "Picture7", "Csekk Hátoldala", "Csekk Első oldal", "RozsaszinCsekk.jpg", "RCsekkHatul.jpg",
         "RtxOsszeg RlbOsszeg lbOsszeg2 RtxtSzoveg21 RtxtSzoveg11 RtxtSzoveg22 RtxtSzoveg12 RtxNev RtxCim "
         "RlbNev RlbCim RlbHelys RlbIrsz txtNev txtCim txtHelys txtIrsz",
         "txtNevHatul txtHelysHatul txtCimHatul txtIrszHatul RcsekkKozlemenyHatul_0 RcsekkKozlemenyHatul_3"},
        {7, "cmdUtanvetOdalCsere", "Picture6", "Hátoldala", "Első oldal", "UtanveteliLap.jpg", "utanvetelihatulja.jpg",
         "txUosszeg txUNev txUCim lbUosszeg lbosszegBetuvel1 lbosszegBetuvel2 lbUNev lbUHelyseg lbUCim "
         "lbUIrszam lbUtXR chkUtanvetR chkUtanvetEL chkCimzettCsereUlap",
         "lbUNevHatul lbUHelysegHatul lbUCimHatul lbUIrszamHatul"}};
    for (const auto& form : forms) {
        goTo(form.tab);
        if (form.tab == 7) press("chkUtanvetR"); // its mark comes back with the front, the other one doesn't
        for (const int side : {0, 1, 0}) {
            clickRow(0); // fills both sides and turns none
            expectShown(form.front, side == 0);
            expectShown(form.back, side == 1);
            expectShown("opAllando_0 opAllando_1", form.tab == 6);
            expectShown("lbUtXEL", false);
            EXPECT_EQ(text(form.button), side == 0 ? form.frontCaption : form.backCaption);
            const char* picture = side == 0 ? form.frontPicture : form.backPicture;
            EXPECT_EQ(find<StationeryPage>(form.page).picture(), QLatin1String(picture));
            press(form.button);
        }
        EXPECT_EQ(text("txtHelysHatul"), "Budapest");
    }
}

TEST_F(WindowTabs, TicksShowWhatBelongsToThem) {
    open();
    goTo(1);
    for (const bool foreign : {true, false, true}) { // stays foreign, for two of the boxes are on that form alone
        press(foreign ? "opBelfold_1" : "opBelfold_0");
        expectShown("chkLevel chkKCsomag lbSajatIrsz", foreign);
        expectShown("txtTertiPosta txtTertiDatum txUgyfelAzonosito txUgyfelSajatJelzese", !foreign);
        EXPECT_EQ(find<StationeryPage>("Picture3").picture(), QLatin1String(foreign ? "KTerti.jpg" : "Terti.jpg"));
    }
    const auto expectTick = [&](int tab, const char* box, const char* belonging) {
        SCOPED_TRACE(box);
        goTo(tab);
        const bool before = ticked(box);
        for (const bool now : {before, !before, before}) {
            if (now != ticked(box)) press(box);
            expectShown(belonging, now);
        }
    };
    const char* marked[] = {"chkSK",   "chkPRI", "chkPL",  "chkLEGI",  "chk5",      "chk6",
                            "chkTPri", "chkTSk", "chkTUv", "chkLevel", "chkKCsomag"};
    for (int mark = 0; const char* box : marked) {
        expectTick(mark < 6 ? 2 : 1, box, ("lbX_" + std::to_string(mark)).c_str());
        ++mark;
    }
    expectTick(7, "chkUtanvetEL", "lbUtXEL");
    expectTick(7, "chkUtanvetR", "lbUtXR");
    expectTick(2, "chkErtek", "txErtek lbFt_0");
    expectTick(3, "chkFelado", "txtBoritekFeladoNev txtBoritekFeladoIrSzam chkFKFNev chkFKFIrsz");
    expectTick(3, "chkCimzett", "txtBoritekCimzettNev txtBoritekCimzettNev2 chkFKCIrsz");
    expectTick(4, "chkEgyediCimke", "keretEgyediCimke txEgyediCimke_4");
    goTo(2);
    press("chkErtek");
    EXPECT_EQ(window->focusWidget(), &find("txErtek"));
    goTo(5);
    press("chkVisszaCimPrint_2");
    press("chkVisszaCimPrint_2");
    EXPECT_EQ(window->focusWidget(), &find("txtIratFelado_0"));
}

} // namespace
