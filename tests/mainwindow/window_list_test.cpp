#include "window_fixture.h"

#include <QHeaderView>

namespace {

class WindowList : public WindowTest {
protected:
    void openWithFour() { openNamed({u"Kiss Anna", u"Nagy Béla", u"Kiss Éva", u"Ács Dóra"}); }
    void clickHeader(int column) const {
        QHeaderView& header = *list().header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 20, header.height() / 2});
    }
    // The print button on view and the count beside the list.
    std::string buttons() const {
        return (shown("cmdPrint") ? "single " : "") + std::string(shown("cmdCsPrint") ? "batch " : "") +
               text("lbKijelolve");
    }
};

TEST_F(WindowList, AClickPoursTheClientWhateverElseIsSelected) {
    openNamed({u"Anna", u"Béla", u"Dóra"});
    const auto key = [&](Qt::Key code, Qt::KeyboardModifiers modifiers) { QTest::keyClick(&list(), code, modifiers); };
    const struct {
        std::function<void()> act;
        int client;
        const char *payer, *rows, *buttons;
    } steps[] = {{[&] { clickRow(0); }, 1, "Anna", "[Anna]|Béla|Dóra", "single "},
                 {[&] { clickRow(1, Qt::ControlModifier); }, 2, "Béla", "[Anna]|[Béla]|Dóra", "batch 2"},
                 {[&] { clickRow(0, Qt::ControlModifier); }, 1, "Anna", "Anna|[Béla]|Dóra", "single "},
                 {[&] { clickRow(2, Qt::ShiftModifier); }, 3, "Dóra", "[Anna]|[Béla]|[Dóra]", "batch 3"},
                 {[&] { key(Qt::Key_Up, {}); }, 2, "Béla", "Anna|[Béla]|Dóra", "single "},
                 {[&] { key(Qt::Key_A, Qt::ControlModifier); }, 2, "Béla", "[Anna]|[Béla]|[Dóra]", "batch 3"},
                 {[&] { key(Qt::Key_Home, {}); }, 1, "Anna", "[Anna]|Béla|Dóra", "single "},
                 // Another mouse button must not mark a row whose client isn't on the forms.
                 {[&] { clickRow(2, {}, Qt::RightButton); }, 1, "Anna", "[Anna]|Béla|Dóra", "single "}};
    for (const auto& step : steps) {
        step.act();
        for (const char* box : {"txNev", "Text1_1", "txNev2", "txNev3", "txtBoritekCimzettNev"})
            EXPECT_EQ(text(box), step.payer) << box;
        EXPECT_EQ(rows(), step.rows);
        EXPECT_EQ(buttons(), step.buttons);
        EXPECT_EQ(window->rekordszam(), step.client);
    }
    EXPECT_TRUE(enabled("cmdDel"));
    goTo(4); // labels have no batch
    clickRow(1, Qt::ControlModifier);
    EXPECT_EQ(buttons(), "single ");
}

TEST_F(WindowList, HeaderSortsAndTheBoxAloneDecidesTheOrder) {
    openWithFour();
    clickRow(1);
    for (int click = 0; click < 3; ++click) {
        clickHeader(0);
        EXPECT_EQ(rows(), "[Nagy Béla]|Kiss Éva|Kiss Anna|Ács Dóra") << click;
    }
    press("chkListaSorren");
    EXPECT_EQ(rows(), "Ács Dóra|Kiss Anna|Kiss Éva|[Nagy Béla]");
    clickRow(0);
    EXPECT_EQ(text("txNev"), "Ács Dóra"); // by the row's number, not its place
    clickHeader(2);
    EXPECT_EQ(rows(2), "     1|     2|     3|[     4]");
    press("cmdBeolvas"); // takes the selection, and nothing else
    EXPECT_EQ(rows(2), "1|2|3|4");
    EXPECT_EQ(text("txNev"), "Ács Dóra");
    EXPECT_EQ(window->rekordszam(), 4);
}

TEST_F(WindowList, DeleteTakesRowsOutOfTheListAlone) {
    openWithFour();
    const QByteArray before = files.bytes(QStringLiteral("nevek1.dat"));
    for (const int row : {0, 2, 3})
        clickRow(row, Qt::ControlModifier);
    QTest::keyClick(&find("txNev_2"), Qt::Key_Delete); // not the list's key
    EXPECT_EQ(buttons(), "batch 3");
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(rows(), "Nagy Béla");
    EXPECT_EQ(text("lbKijelolve"), "");
    EXPECT_EQ(status(), "3 sor levéve a listáról, az adatbázisban megmaradtak");
    EXPECT_EQ(text("lbUgyfelekSzama"), "4 ügyfél");
    EXPECT_EQ(window->rekordszam(), 4);
    EXPECT_EQ(files.bytes(QStringLiteral("nevek1.dat")), before);
    press("cmdBeolvas");
    EXPECT_EQ(rows(), "Kiss Anna|Nagy Béla|Kiss Éva|Ács Dóra");
}

TEST_F(WindowList, KeysReachListSearchAmountAndReload) {
    openWithFour();
    goTo(6);
    const auto key = [&](Qt::Key code) { QTest::keyClick(window.get(), code); };
    key(Qt::Key_F2);
    EXPECT_EQ(window->focusWidget(), &find("RtxOsszeg"));
    goTo(0);
    type("txNev", QStringLiteral("xyz"));
    EXPECT_EQ(rows(), "Kiss Anna|Nagy Béla|Kiss Éva|Ács Dóra"); // its box isn't ticked
    goTo(6);
    key(Qt::Key_F3);
    EXPECT_EQ(window->focusWidget(), &find("txNev"));
    EXPECT_TRUE(shown("txNev") && ticked("Check1"));
    type("txNev", QStringLiteral("k"));
    QTest::keyClick(&find("txNev"), Qt::Key_Backspace);
    EXPECT_EQ(rows(2), "1|2|3|4");
    type("txNev", QStringLiteral("KISS"));
    EXPECT_EQ(rows(), "Kiss Anna|Kiss Éva");
    QTest::keyClick(&find("txNev"), Qt::Key_Down);
    EXPECT_EQ(window->focusWidget(), &list());
    EXPECT_EQ(rows(), "[Kiss Anna]");
    EXPECT_EQ(text("Text1_1"), "Kiss Anna");
    key(Qt::Key_F5);
    EXPECT_EQ(rows(2), "1|2|3|4");
    find("txCim1").setFocus();
    key(Qt::Key_F4);
    EXPECT_EQ(window->focusWidget(), &list());
    key(Qt::Key_F1);
    EXPECT_TRUE(opened.value(0).endsWith(QStringLiteral("/Csekk_adat_Import.htm")));
}

TEST_F(WindowList, RecordsBeyondTheHeldNumberCannotBePicked) {
    const ClientRec last = clientNamed(QStringLiteral("Kiss Anna"));
    files.store(last, 32767); // nameless clients come before
    files.store(last, 32768);
    open();
    clickRow(32766);
    clickRow(32767);
    EXPECT_EQ(window->rekordszam(), 32767);
    EXPECT_EQ(told(), "Figyelem!|A 32767. rekord utáni ügyfelek innen nem választhatók ki!");
}

TEST_F(WindowList, SearchingByAClickKeepsTheClickedClient) {
    openNamed({u"Kiss Anna", u"Nagy Béla", u"Kiss Anna", u"Nagy Béla"});
    clickRow(1);
    press("Check1");
    clickRow(2, Qt::ControlModifier); // its own click rebuilds the list and drops the other client
    EXPECT_EQ(rows(), "Kiss Anna|[Kiss Anna]");
    EXPECT_EQ(buttons(), "single ");
    EXPECT_EQ(window->rekordszam(), 3);
    EXPECT_EQ(text("txOsszeg"), "300"); // and not the last client that the search read
    EXPECT_EQ(text("txUosszeg"), "300");
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(rows(), "[Kiss Anna]|Kiss Anna");
    EXPECT_EQ(text("txOsszeg"), "100");
}

} // namespace
