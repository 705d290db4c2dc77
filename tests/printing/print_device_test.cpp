#include "printing/print_device.h"
#include "support/recording_service.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class PrintDeviceTest : public testing::Test {
protected:
    RecordingService service;
    PrintDevice device{service};

    PrintDeviceTest() {
        device.setFontName(u"Arial CE"_s);
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
        write(u"x"_s);
        device.EndDoc();
        return service.delivered.back().job.pages.front().setup;
    }
};

TEST_F(PrintDeviceTest, FontErrorsLeaveTheFont) {
    EXPECT_EQ(errorOf([&] { device.setFontName(u"Nincs ilyen"_s); }), 380);
    EXPECT_EQ(errorOf([&] { device.setFontName(u"   "_s); }), 380);
    for (const float size : {0.0F, -1.0F, 0.5F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { device.setFontSize(size); }), 380) << size;
    EXPECT_EQ(device.font(), (Font{u"Arial CE"_s, 10}));
    device.setFontName(u"Times New Roman CE       "_s);
    EXPECT_EQ(device.font().name, u"Times New Roman CE"_s);
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
    device.setCurrentPrinter(0);
    EXPECT_EQ(setupNow(), PageSetup());

    write(u"first"_s);
    device.setOrientation(2); // counts from the next page on
    write(u"still the first page"_s);
    device.NewPage();
    EXPECT_EQ(setupNow().orientation, 1);
    EXPECT_EQ(service.delivered.back().job.pages.at(1).setup.orientation, 2);
}

TEST_F(PrintDeviceTest, TheDeviceIsTheDefaultOneTheCurrentOneOrTheJobsOwn) {
    const auto printerNow = [&] { return setupNow(), service.delivered.back().printer; };
    EXPECT_EQ(printerNow(), 2); // a new device follows the system's default
    device.setCurrentPrinter(0);
    EXPECT_EQ(printerNow(), 0);
    device.setTrackDefault(true);
    service.systemDefault = 1;
    EXPECT_EQ(printerNow(), 1);
    device.setCurrentPrinter(2); // ends the following
    for (const int beyond : {-1, 3}) {
        EXPECT_EQ(errorOf([&] { device.setCurrentPrinter(beyond); }), 9);
        EXPECT_EQ(errorOf([&] { device.useForThisJob(beyond, 1); }), 9);
    }
    for (const bool killed : {false, true}) {
        device.setTitle(u"form"_s);
        device.useForThisJob(1, 3);
        EXPECT_EQ(device.deviceName(), u"Masodik"_s);
        write(u"x"_s);
        killed ? device.KillDoc() : device.EndDoc();
    }
    setupNow();
    ASSERT_EQ(service.delivered.size(), 5U);
    const auto& [chosen, next] = std::tie(service.delivered[3], service.delivered[4]);
    EXPECT_EQ(std::tuple(chosen.printer, chosen.job.copies, chosen.job.title), std::tuple(1, 3, u"form"_s));
    EXPECT_EQ(std::tuple(next.printer, next.job.copies, next.job.title), std::tuple(2, 1, u"Tarlimo"_s));
}

} // namespace
