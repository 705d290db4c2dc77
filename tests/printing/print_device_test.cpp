#include "printing/print_device.h"
#include "support/recording_service.h"

#include <gtest/gtest.h>

namespace {

class PrintDeviceTest : public testing::Test {
protected:
    RecordingService service;
    PrintDevice device{service};

    void SetUp() override {
        device.setFontName(QStringLiteral("Arial CE"));
        device.setFontSize(10);
    }

    void write(const QString& text) { device.Print(text, LineEnd::yes); }

    template<class Step>
    static int errorOf(Step step) {
        try {
            step();
        } catch (const DeviceError& error) {
            return error.number;
        }
        return 0;
    }

    // The set-up of the page that a write begins now.
    PageSetup setupNow() {
        write(QStringLiteral("x"));
        device.EndDoc();
        return service.delivered.back().job.pages.front().setup;
    }
};

TEST_F(PrintDeviceTest, PenMovesBehindTheTextOrOneLineDown) {
    device.setCurrentX(20);
    device.setCurrentY(30);
    device.Print(QStringLiteral("abc"), LineEnd::no);
    EXPECT_FLOAT_EQ(device.CurrentX(), 23);
    EXPECT_FLOAT_EQ(device.CurrentY(), 30);
    device.Print(QString(), LineEnd::yes); // moves the pen, places nothing
    EXPECT_FLOAT_EQ(device.CurrentX(), 0);
    EXPECT_FLOAT_EQ(device.CurrentY(), 34); // the line of the font that was in force at the line end
    device.setFontSize(20);
    device.Print(QStringLiteral("d"), LineEnd::yes);
    EXPECT_FLOAT_EQ(device.CurrentY(), 42);
    device.EndDoc();
    ASSERT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(placedTexts(service.delivered[0].job.pages.at(0)),
              QStringList({QStringLiteral("20.00 30.00 10 Arial CE|abc"), QStringLiteral("0.00 34.00 20 Arial CE|d")}));
}

TEST_F(PrintDeviceTest, NoBlankPagesAndNoEmptyJobs) {
    device.EndDoc();
    device.NewPage();
    device.Print(QString(), LineEnd::yes);
    device.EndDoc();
    EXPECT_TRUE(service.delivered.empty());

    write(QStringLiteral("one"));
    device.NewPage();
    EXPECT_FLOAT_EQ(device.CurrentY(), 0);
    write(QStringLiteral("two"));
    device.NewPage();
    device.NewPage();
    EXPECT_EQ(device.pageCount(), 2);
    device.EndDoc();
    ASSERT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(service.delivered[0].job.pages.size(), 2U);
}

TEST_F(PrintDeviceTest, KillDocDropsTheWholeJob) {
    write(QStringLiteral("one"));
    device.NewPage();
    write(QStringLiteral("two"));
    device.KillDoc();
    device.EndDoc();
    EXPECT_TRUE(service.delivered.empty());
    EXPECT_EQ(device.pageCount(), 0);
}

TEST_F(PrintDeviceTest, RefusedJobEndsToo) {
    service.refuseWith = 482;
    write(QStringLiteral("refused"));
    EXPECT_EQ(errorOf([&] { device.EndDoc(); }), 482);
    service.refuseWith = 0;
    write(QStringLiteral("next"));
    device.EndDoc();
    ASSERT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(service.delivered[0].job.pages.size(), 1U);
}

TEST_F(PrintDeviceTest, FontErrorsLeaveTheFont) {
    EXPECT_EQ(errorOf([&] { device.setFontName(QStringLiteral("Nincs ilyen")); }), 380);
    EXPECT_EQ(errorOf([&] { device.setFontName(QStringLiteral("   ")); }), 380);
    for (const float size : {0.0F, -1.0F, 0.5F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { device.setFontSize(size); }), 380) << size;
    EXPECT_EQ(device.font(), (Font{QStringLiteral("Arial CE"), 10}));
    device.setFontName(QStringLiteral("Times New Roman CE       "));
    EXPECT_EQ(device.font().name, QStringLiteral("Times New Roman CE"));

    PrintDevice fresh(service);
    EXPECT_EQ(errorOf([&] { fresh.Print(QStringLiteral("x"), LineEnd::yes); }), 380);
    EXPECT_EQ(errorOf([&] { fresh.TextWidth(QStringLiteral("x")); }), 380);
    EXPECT_EQ(fresh.pageCount(), 0);
}

TEST_F(PrintDeviceTest, PageSetupLivesOnUntilADeviceIsSelected) {
    const QSizeF form(210, 105);
    device.setOrientation(2);
    device.setPaperSize(27);
    EXPECT_EQ(setupNow(), (PageSetup{2, 27, {}}));
    EXPECT_EQ(setupNow(), (PageSetup{2, 27, {}}));
    device.setSizeMm(210, 105);
    EXPECT_EQ(setupNow(), (PageSetup{1, 27, form}));
    device.setPaperSize(28);
    EXPECT_EQ(setupNow(), (PageSetup{1, 28, {}}));
    device.setSizeMm(210, 105);
    device.setSizeTwips(11910, 16790);
    EXPECT_EQ(setupNow(), PageSetup());
    device.setSizeTwips(1440, 2880);
    ASSERT_TRUE(setupNow().sizeMm);
    EXPECT_NEAR(setupNow().sizeMm->height(), 50.8, 0.001);
    device.setCurrentPrinter(0);
    EXPECT_EQ(setupNow(), PageSetup());
}

TEST_F(PrintDeviceTest, SetupCountsWhenThePageBegins) {
    write(QStringLiteral("first"));
    device.setOrientation(2);
    write(QStringLiteral("still the first page"));
    device.NewPage();
    write(QStringLiteral("second"));
    device.EndDoc();
    const auto& pages = service.delivered.at(0).job.pages;
    EXPECT_EQ(pages.at(0).setup.orientation, 1);
    EXPECT_EQ(pages.at(1).setup.orientation, 2);
}

TEST_F(PrintDeviceTest, DeviceOfAJob) {
    const auto printerNow = [&] {
        setupNow();
        return service.delivered.back().printer;
    };
    EXPECT_EQ(printerNow(), 2); // a new device follows the system's default
    device.setCurrentPrinter(0);
    EXPECT_EQ(printerNow(), 0);
    device.setTrackDefault(true);
    service.systemDefault = 1;
    EXPECT_EQ(printerNow(), 1);
    device.setCurrentPrinter(2); // ends the following
    EXPECT_EQ(printerNow(), 2);
    for (const int beyond : {-1, 3}) {
        EXPECT_EQ(errorOf([&] { device.setCurrentPrinter(beyond); }), 9);
        EXPECT_EQ(errorOf([&] { device.useForThisJob(beyond, 1); }), 9);
    }
    EXPECT_EQ(printerNow(), 2);
}

TEST_F(PrintDeviceTest, ChoiceAndTitleHoldForOneJob) {
    device.setCurrentPrinter(0);
    device.setOrientation(2);
    for (const bool killed : {false, true}) {
        device.setTitle(QStringLiteral("form"));
        device.useForThisJob(1, 3);
        EXPECT_EQ(device.deviceName(), QStringLiteral("Masodik"));
        write(QStringLiteral("x"));
        killed ? device.KillDoc() : device.EndDoc();
    }
    setupNow();
    ASSERT_EQ(service.delivered.size(), 2U);
    EXPECT_EQ(service.delivered[0].printer, 1);
    EXPECT_EQ(service.delivered[0].job.copies, 3);
    EXPECT_EQ(service.delivered[0].job.title, QStringLiteral("form"));
    EXPECT_EQ(service.delivered[0].job.pages[0].setup.orientation, 2);
    EXPECT_EQ(service.delivered[1].printer, 0);
    EXPECT_EQ(service.delivered[1].job.copies, 1);
    EXPECT_EQ(service.delivered[1].job.title, QStringLiteral("Tarlimo"));
}

} // namespace
