#include "mainwindow/stationery_page.h"
#include "settings/envelope_label_settings.h"
#include "window_fixture.h"

#include <QAbstractItemView>
#include <QFile>
#include <QRegularExpression>

namespace {

class WindowForms : public WindowTest {
protected:
    void SetUp() override { openWith({clientNamed(QStringLiteral("Kiss Anna"), 1500)}); }
};

TEST_F(WindowForms, MirrorsShowWhatPrintsAndTakeNoTyping) {
    const std::tuple<int, const char*, const char*> mirrors[] = {
        {0, "txtSzoveg21", "txtSzoveg22"},
        {0, "txtSzoveg11", "txtSzoveg12"},
        {0, "txtKozl3sor_0", "txtKozl3sor_1"},
        {0, "txNev", "Text1_1"},
        {0, "txCim1", "Text1_0"},
        {0, "txCim2", "Text1_2"},
        {0, "txIrszam", "Text1_3"},
        {6, "RtxtSzoveg21", "RtxtSzoveg12"},
        {6, "RtxtSzoveg11", "RtxtSzoveg22"},
        {6, "RlbNev", "txtNev"},
        {6, "RlbHelys", "txtHelys"},
        {6, "RlbCim", "txtCim"},
        {6, "RlbIrsz", "txtIrsz"},
    };
    for (const auto& [tab, typed, mirror] : mirrors) {
        SCOPED_TRACE(mirror);
        goTo(tab);
        type(typed, QStringLiteral("átírva"));
        EXPECT_EQ(text(mirror), "átírva");
        type(mirror, QStringLiteral("semmi"));
        EXPECT_EQ(text(mirror), "átírva");
        EXPECT_FALSE(find(mirror).focusPolicy() & Qt::TabFocus);
    }
}

TEST_F(WindowForms, AnAmountThatItsWordsCantAgreeWithIsShown) {
    const std::tuple<int, const char*, const char*> boxes[] = {
        {0, "txOsszeg", "Összeg (F2)"}, {6, "RtxOsszeg", "Összeg (F2)"}, {7, "txUosszeg", "Utánvételi összeg (F2)"}};
    for (const auto& [tab, name, tooltip] : boxes) {
        goTo(tab);
        auto& box = find(name);
        const auto colour = [&box] { return box.grab().toImage().pixelColor(box.width() / 2, box.height() / 2); };
        for (const char* typed : {"1500", "12a", "12.5", "1500"}) {
            type(name, QString::fromLatin1(typed));
            const bool agrees = typed == std::string("1500");
            const bool red = colour().red() > colour().green() + 20;
            EXPECT_EQ(red, !agrees) << name << typed;
            const std::string differs = "A számjegyek és a betűs összeg eltér: a betűs összeg ";
            const std::string read = typed == std::string("12a") ? "12." : "13.";
            EXPECT_EQ(box.toolTip().toStdString(), agrees ? tooltip : differs + read);
        }
    }
}

TEST_F(WindowForms, EnterGoesToTheNextBoxOfThePage) {
    const std::pair<int, std::vector<const char*>> pages[] = {
        {0, {"txOsszeg", "txtSzoveg21", "txtSzoveg11", "Kozlemeny1", "txtKozl3sor_0"}},
        {0, {"txCim2", "txIrszam", "txOsszeg"}},
        {2, {"txCim3_2", "txUtanvet", "txtFeladov1"}}, // past the hidden declared value
        {6, {"txtIrszHatul", "RcsekkKozlemenyHatul_0", "RcsekkKozlemenyHatul_1"}}};
    goTo(6);
    press("cmdOldalCsere");
    for (const auto& [tab, boxes] : pages) {
        goTo(tab);
        find(boxes.front()).setFocus();
        for (const char* box : boxes) {
            EXPECT_EQ(window->focusWidget(), &find(box)) << box;
            QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        }
    }
    EXPECT_TRUE(service.delivered.empty());
}

TEST_F(WindowForms, PaperIsLightOnADarkDesktop) {
    QPalette dark(QColor(50, 50, 50), QColor(30, 30, 30));
    dark.setColor(QPalette::Base, Qt::black);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(dark);
    open();
    for (const auto* page : window->findChildren<StationeryPage*>())
        for (const auto* part : page->findChildren<QWidget*>()) {
            const QPalette& colours = part->palette();
            EXPECT_GT(colours.color(QPalette::Base).lightness(), 200) << part->objectName().toStdString();
            EXPECT_LT(colours.color(QPalette::WindowText).lightness(), 50) << part->objectName().toStdString();
        }
    const auto* list = find<QComboBox>("Kozlemeny1").view();
    EXPECT_GT(list->palette().color(QPalette::Base).lightness(), 200);
    QApplication::setPalette(before);
}

TEST(StationeryPage, ScalesThePictureWhileItsSizeChangesAndReadsItAgainOnceItRests) {
    const TestFolder folder;
    const auto store = [&](const QColor& colour) {
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(colour);
        EXPECT_TRUE(picture.save(folder.folder().file(QStringLiteral("kep.png"))));
    };
    StationeryPage page(folder, QSizeF(50, 50));
    const auto shownAt = [&](int size) {
        page.resize(size, size);
        return page.grab().toImage().pixelColor(size - 3, size - 3);
    };
    store(Qt::red);
    page.setPicture(QStringLiteral("kep.png"));
    page.show();
    EXPECT_EQ(shownAt(200), QColor(Qt::red));
    store(Qt::blue);
    EXPECT_EQ(shownAt(300), QColor(Qt::red));
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownAt(300) == QColor(Qt::blue); }));
    page.hide(); // nobody drags it there
    store(Qt::green);
    page.resize(200, 200);
    page.show();
    EXPECT_EQ(shownAt(200), QColor(Qt::green));
}

TEST_F(WindowForms, EnvelopeBoxesEndOnTheDrawnLines) {
    const std::pair<const char*, const char*> types[] = {
        {"OpB1", "BoritekC6.svg"}, {"OpB2", "BoritekC5.svg"}, {"OpB3", "BoritekC56.svg"}};
    const char* boxes[] = {"txtBoritekFeladoNev",    "txtBoritekFeladoCim1",  "txtBoritekFeladoCim2",
                           "txtBoritekFeladoIrSzam", "txtFelado5mezo",        "txtBoritekCimzettNev",
                           "txtBoritekCimzettNev2",  "txtBoritekCimzettCim1", "txtBoritekCimzettCim2"};
    goTo(3);
    const auto& page = find<StationeryPage>("Frame3");
    for (const auto& [option, file] : types) {
        press(option);
        QCoreApplication::processEvents();
        QFile drawing(QStringLiteral(TARLIMO_ASSETS "/stationery/") + QLatin1String(file));
        ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
        static const QRegularExpression line(QStringLiteral("<line [^>]*y1=\"([0-9.]+)\""));
        auto lines = line.globalMatch(QString::fromUtf8(drawing.readAll()));
        const double twoPixels = page.mmAt({0, 2}).y() - page.mmAt({0, 0}).y(); // a box ends on a whole one
        for (const char* name : boxes) {
            ASSERT_TRUE(lines.hasNext());
            const QWidget& box = find(name);
            const double bottom = page.mmAt(box.mapTo(&page, QPoint(0, box.height()))).y();
            EXPECT_NEAR(bottom, lines.next().captured(1).toDouble(), twoPixels) << file << name;
        }
        EXPECT_FALSE(lines.hasNext());
    }
}

TEST_F(WindowForms, FormsShrinkToThreeFifthsAndNoTickMakesThemHigher) {
    for (const auto* page : window->findChildren<StationeryPage*>())
        EXPECT_NEAR(page->minimumSizeHint().height(), page->sizeHint().height() * 0.6, 1);
    goTo(4);
    const QWidget& labels = *find<QTabWidget>("SSTab1").currentWidget();
    const int before = labels.minimumSizeHint().height();
    press("chkEgyediCimke");
    EXPECT_TRUE(shown("txEgyediCimke_4"));
    EXPECT_EQ(labels.minimumSizeHint().height(), before);
}

TEST_F(WindowForms, ALabelLineWithoutAFontSaysWhatItPrintsInAndStoresNothing) {
    goTo(4);
    clickRow(0);
    for (const auto& [box, hint] : {std::pair("ComboBetuTipus1_0", "Times New Roman CE"), {"ComboBetuSize_0", "12"}}) {
        EXPECT_EQ(text(box), "");
        EXPECT_EQ(find<QComboBox>(box).lineEdit()->placeholderText(), QLatin1String(hint));
    }
    EXPECT_EQ(find("lbNev1").font().pointSize(), 12);
    press("cmbBetutipusok");
    EXPECT_EQ(joined(prompts.told.back()), "! Rendben !| \nA betűtípusok mentése megtörtént...\n ");
    EXPECT_EQ(readRecord<Betutip>(files).ComboBetuTipus1[0].trimmed(), QString());
    EXPECT_EQ(readRecord<Betumeret>(files).ComboBetuSize[0], 0);
}

TEST_F(WindowForms, RulesReachTheClientInHandAndWhatIsTyped) {
    clickRow(0);
    goTo(7);
    press("chkCimzettCsereUlap");
    EXPECT_EQ(text("lbUNev").rfind("Kiss Anna", 0), 0U);
    goTo(5); // the bar code is the document's number
    press("chkVkod");
    type("txtIratKuldAzonosito", QStringLiteral("RL-9"));
    type("txtIratSzama", QStringLiteral(" 12/2024 "));
    EXPECT_EQ(text("lbVkod"), "12/2024");
}

} // namespace
