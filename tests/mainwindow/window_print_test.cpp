#include "window_fixture.h"

namespace {

class WindowPrint : public WindowTest {
protected:
    void SetUp() override {
        openWith({clientNamed(QStringLiteral("Kiss Anna"), 1500), clientNamed(QStringLiteral("Nagy Béla"), 2500)});
        clickRow(0);
    }
    // True if a page of the last job holds the text.
    bool printed(std::size_t page, const char* text) const {
        return !placedTexts(service.delivered.back().job.pages.at(page)).filter(QString::fromUtf8(text)).isEmpty();
    }
};

TEST_F(WindowPrint, NextPrintGoesToTheDeviceChosenLast) {
    const struct {
        std::function<void()> act;
        int lbPrintNo;
        bool systemDefault;
        int device;
    } choices[] = {{[] {}, 0, false, 0},
                   {[&] { QTest::keyClick(&find("Combo2"), Qt::Key_Down); }, 1, false, 1},
                   {[&] { press("opPrinter_1"); }, 1, true, 2},
                   {[&] { press("opPrinter_0"); }, 1, false, 1}};
    for (const auto& choice : choices) {
        choice.act();
        EXPECT_EQ(set().lbPrintNo, choice.lbPrintNo);
        EXPECT_EQ(set().opPrinter_1, choice.systemDefault);
        EXPECT_EQ(enabled("Combo2"), !choice.systemDefault);
        press("cmdPrint");
        EXPECT_EQ(service.delivered.back().printer, choice.device);
    }
    EXPECT_EQ(status(), "1 oldal kinyomtatva: Masodik. ");
}

TEST_F(WindowPrint, PrintDialogHoldsTheButtonsAndSparesTheNotice) {
    clickRow(1, Qt::ControlModifier);
    type("txNev", QStringLiteral("Javított Név")); // for a single check alone
    type("Kozlemeny1", QStringLiteral("köszönjük"));
    type("txtJogcim1", QStringLiteral("tagdíj"));
    prompts.whileChoosing = [&] { EXPECT_FALSE(enabled("cmdCsPrint") || enabled("cmdPrint")); };
    prompts.printerChoices = {PrinterChoice{1, 3}, std::nullopt};
    press("cmdCsPrint");
    ASSERT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(service.delivered[0].printer, 1);
    EXPECT_EQ(service.delivered[0].job.copies, 3);
    EXPECT_TRUE(printed(0, "Kiss Anna") && printed(1, "Nagy Béla"));
    EXPECT_TRUE(printed(1, "köszönjük") && printed(1, "tagdíj"));
    press("cmdCsPrint"); // cancelled
    EXPECT_EQ(service.delivered.size(), 1U);
    EXPECT_TRUE(enabled("cmdCsPrint"));
    EXPECT_EQ(text("Kozlemeny1") + text("txtJogcim1"), "köszönjüktagdíj");
}

TEST_F(WindowPrint, FailuresAreToldAndTheNextPressWorks) {
    service.refuseWith = 482;
    press("cmdPrint"); // the yellow check fails silently, but for the status line
    EXPECT_TRUE(prompts.told.empty());
    EXPECT_EQ(status().rfind("Nem készült nyomat. ", 0), 0U) << status();
    goTo(6);
    press("cmdPrint");
    EXPECT_EQ(prompts.told.size(), 1U);
    service.refuseWith = 0;
    press("cmdPrint");
    EXPECT_EQ(service.delivered.size(), 1U);
}

} // namespace
