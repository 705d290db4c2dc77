#include "mainwindow/status_line.h"
#include "settings/other_settings.h"
#include "settings/receipt_layouts.h"
#include "window_fixture.h"

#include <QProgressBar>
#include <QPushButton>

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
                   {[&] { press("opPrinter_1"); }, 1, true, 2}, // an option stays selected
                   {[&] { press("opPrinter_0"); }, 1, false, 1},
                   {[&] { press("opPrinter_0"); }, 1, false, 1}};
    for (const auto& choice : choices) {
        choice.act();
        expectTicked("opPrinter_1", choice.systemDefault);
        expectTicked("opPrinter_0", !choice.systemDefault);
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

TEST_F(WindowPrint, PrintedClientsLeaveTheListIfTheSettingsSaySo) {
    files.store(SetFveveny::factory());
    Set stored = set();
    stored.chkPrintDel = 1;
    files.store(stored);
    for (const auto& [tab, left] : {std::pair(0, "[Kiss Anna]|[Nagy Béla]"), std::pair(2, "")}) {
        goTo(tab);
        clickRow(0);
        clickRow(1, Qt::ControlModifier);
        if (tab == 0) prompts.printerChoices = {PrinterChoice{1, 1}};
        press("cmdCsPrint");
        EXPECT_EQ(service.delivered.back().job.pages.size(), 2U);
        EXPECT_EQ(rows(), left);
    }
    EXPECT_TRUE(printed(0, "Kiss Anna") && printed(1, "Nagy Béla"));
    EXPECT_EQ(status(), "2 oldal kinyomtatva: Elso. 2 sor levéve a listáról. ");
    EXPECT_EQ(text("lbKijelolve"), "");
    press("cmdCsPrint"); // nobody is selected any more
    EXPECT_EQ(status(), "Nem készült nyomat. Nincs kijelölt ügyfél.");
    press("cmdBeolvas");
    EXPECT_EQ(rows(), "Kiss Anna|Nagy Béla");
}

TEST_F(WindowPrint, OnePressIsOneJob) {
    const auto jobs = [&] { return std::exchange(service.delivered, {}).size(); };
    auto& button = find<QPushButton>("cmdPrint");
    press("cmdPrint");
    EXPECT_EQ(jobs(), 1U);
    press("cmdPrint"); // the events of a double click, with the two below
    QTest::mouseDClick(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(jobs(), 1U);
    for (const std::size_t expected : {1U, 0U}) { // at once again: no job
        QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(jobs(), expected);
    }
    // What comes in while a job is handed over is dropped, whoever it was meant for.
    service.whileDelivering = [&] {
        const QPointF middle = button.rect().center();
        const QPointF global = button.mapToGlobal(middle);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(&button,
                                        new QMouseEvent(type, middle, global, Qt::LeftButton, Qt::LeftButton, {}));
        QCoreApplication::postEvent(&list(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, {}));
    };
    press("cmdPrint");
    QCoreApplication::processEvents();
    EXPECT_EQ(jobs(), 1U);
    EXPECT_EQ(window->rekordszam(), 1);
}

TEST_F(WindowPrint, AfterAPrintTheKeysGoWhereTheyWent) {
    for (const char* name : {"ListView1", "txtJogcim1", "cmdPrint"}) {
        find(name).setFocus();
        press("cmdPrint");
        EXPECT_EQ(window->focusWidget(), &find(name)) << name;
        QTest::keyClick(window->focusWidget(), Qt::Key_Down);
        EXPECT_FALSE(set().opPrinter_1);
    }
    EXPECT_EQ(service.delivered.size(), 3U);
}

TEST_F(WindowPrint, StatusLineOpensThePdfAndForgetsItForTheNextClient) {
    lastPdf = QStringLiteral("/mappa/nyomtatas/2026 <1>.pdf");
    press("opPrinter_1"); // the PDF device is the system's default
    press("cmdPrint");
    EXPECT_EQ(status(), "1 oldal kinyomtatva: /mappa/nyomtatas/2026 <1>.pdf. ");
    auto& shownText = find<QLabel>("lbAllapot");
    EXPECT_TRUE(shownText.text().contains(u"href=\"/mappa/nyomtatas/2026 &lt;1&gt;.pdf\""));
    Q_EMIT shownText.linkActivated(lastPdf);
    EXPECT_EQ(opened, QStringList(lastPdf));
    clickRow(1);
    EXPECT_EQ(status(), "");
    for (const char* amount : {"12.50", "1500x", "12.500"}) {
        type("txOsszeg", QString::fromLatin1(amount));
        press("cmdPrint");
        const bool agrees = status().ends_with(". ");
        EXPECT_EQ(agrees, std::string(amount) == "12.500") << status();
    }
    goTo(6); // nobody is the addressee there, which must not hide the other trouble
    type("RtxOsszeg", QStringLiteral("12.5"));
    press("cmdPrint");
    EXPECT_TRUE(status().ends_with("A címzett adatai üresek. Az összeg számjegyei és betűi nem egyeznek: 12.5"))
        << status();
    press("cmdOldalCsere");
    press("cmdPrint"); // no amount on the back
    EXPECT_EQ(status().find("Az összeg"), std::string::npos) << status();
}

TEST_F(WindowPrint, TheLabelTabShowsWhatItHasCounted) {
    goTo(4);                         // fixes a sheet of 2 x 6
    prompts.answers = {Answer::yes}; // to the device of the settings
    press("cmdPrint");
    EXPECT_EQ(text("lbKinyomottCimkeNum"), "1");
    clickRow(1, Qt::ControlModifier);
    press("cmdPrint");
    EXPECT_EQ(text("lbKinyomottCimkeNum"), "3");
    EXPECT_TRUE(printed(0, "Kiss Anna") && printed(0, "Nagy Béla"));
    EXPECT_EQ(status(), "1 oldal kinyomtatva: Elso. ");
}

// Half a second of nothing has to pass before a bar is shown at all.
TEST_F(WindowPrint, LongWorkShowsItselfAndOnlyItsCancelIsServed) {
    QStatusBar owner;
    StatusLine line;
    line.show();
    WorkInProgress work(owner, line);
    const auto runUntilShown = [&](WorkInProgress::Cancel cancel) {
        bool goesOn = true;
        while (goesOn && !line.findChild<QProgressBar*>()->isVisible())
            goesOn = work.step(1, 2, QStringLiteral("1. lap / 2…"), cancel);
        EXPECT_EQ(line.currentMessage(), QStringLiteral("1. lap / 2…"));
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        return goesOn;
    };
    const std::function<void()> cancels[] = {
        [&] { QTest::mouseClick(line.cancelButton(), Qt::LeftButton); },
        [&] { QTest::keyClick(&find("txNev"), Qt::Key_Escape); },
    };
    for (const auto& cancel : cancels) {
        const WorkInProgress::Turn turn(work);
        EXPECT_TRUE(runUntilShown(WorkInProgress::Cancel::possible));
        press("cmdPrint");
        QTest::keyClick(&find("txNev"), Qt::Key_X);
        EXPECT_TRUE(work.step(1, 2, {}, WorkInProgress::Cancel::possible));
        cancel();
        EXPECT_FALSE(work.step(1, 2, {}, WorkInProgress::Cancel::possible));
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    const WorkInProgress::Turn turn(work);
    runUntilShown(WorkInProgress::Cancel::impossible);
    EXPECT_FALSE(line.cancelButton()->isVisible());
    QTest::keyClick(&find("txNev"), Qt::Key_Escape);
    EXPECT_TRUE(work.step(1, 2, {}, WorkInProgress::Cancel::impossible));
    EXPECT_TRUE(service.delivered.empty());
    EXPECT_EQ(text("txNev"), "Kiss Anna");
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

TEST_F(WindowPrint, ThePostingListTakesTheSelectedClients) {
    clickRow(1, Qt::ControlModifier);
    prompts.answers = {Answer::yes}; // the device isn't the chosen one yet
    choose("mnuCimzettekNyomtatasa");
    EXPECT_EQ(status(), "1 oldal kinyomtatva: Elso. ");
    EXPECT_TRUE(printed(0, "Kiss Anna") && printed(0, "Nagy Béla"));
    EXPECT_EQ(rows(), "[Kiss Anna]|[Nagy Béla]");
}

TEST_F(WindowPrint, TheBlankPostingListOpensInTheSpreadsheetProgram) {
    auto set = zeroRecord<FjSet>();
    set.txtExcelUtvonal.set(u"/opt/a calc");
    files.store(set);
    choose("mnuUresFeladojegyzek");
    const QString workbook = files.folder().file(QStringLiteral("Feladójegyzéküres.xls"));
    EXPECT_EQ(started, (QStringList{QStringLiteral("/opt/a calc"), workbook}));
    startsPrograms = false;
    choose("mnuUresFeladojegyzek",
           [](const QWidget& dialog) { EXPECT_EQ(dialog.objectName(), QStringLiteral("frmFjSetup")); });
    EXPECT_EQ(joined(prompts.told.at(0)), "HIBA|Hibás az Excel útvonala...\nEllenőrízze a Beállításban!");
}

} // namespace
