#include "printing/pen.h"
#include "support/recording_service.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

class PenTest : public testing::Test {
protected:
    TestFolder files;
    RecordingService service;
    ScriptedPrompts prompts;
    PrintDevice device{service};
    PrintDesk desk{device, prompts, files};

    Pen pen(FailureWay way) { return {desk, way, QStringLiteral("form")}; }

    static void writeTwoPages(Pen& pen, const QString& secondFont, int secondSize = 20) {
        pen.SetFont(QStringLiteral("Arial CE"), 10);
        pen.PlaceText(1, 2, QStringLiteral("first"));
        pen.EndForm(FormEnd::page);
        pen.SetFont(secondFont, secondSize);
        pen.PlaceText(3, 4, QStringLiteral("second"));
        pen.EndForm(FormEnd::job);
    }
};

const QString errorDescription = QStringLiteral("Érvénytelen tulajdonságérték");

TEST_F(PenTest, FailureWays) {
    const QString errorBox = QStringLiteral("Hiba kódszáma: 380\n%1\n").arg(errorDescription);
    const QString otherBox = QStringLiteral("%1\nHibakód száma : 380").arg(errorDescription);
    struct Row {
        FailureWay way;
        bool fallbackKnown;
        QString title, text; // of the box, empty for none
        QString secondPage;  // empty if the job is dropped
    };
    const Row rows[] = {
        {FailureWay::message, true, QStringLiteral("! HIBA !"), errorBox, {}},
        {FailureWay::silent, true, {}, {}, {}},
        {FailureWay::passOver, true, {}, {}, QStringLiteral("3.00 4.00 20 Arial CE|second")},
        {FailureWay::fallbackFont, true, {}, {}, QStringLiteral("3.00 4.00 20 Times New Roman|second")},
        {FailureWay::fallbackFont, false, QStringLiteral("!  H I B A  ! "), otherBox, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.way));
        service.delivered.clear();
        service.knownFonts = {QStringLiteral("Arial CE")};
        if (row.fallbackKnown) service.knownFonts << QStringLiteral("Times New Roman");
        prompts.told.clear();
        Pen pen = this->pen(row.way);
        writeTwoPages(pen, QStringLiteral("Nincs ilyen"));

        const bool dropped = row.secondPage.isEmpty();
        EXPECT_EQ(pen.stopped(), dropped);
        EXPECT_EQ(service.delivered.empty(), dropped);
        EXPECT_EQ(pen.outcome().pages, dropped ? 0 : 2);
        if (!dropped) {
            EXPECT_EQ(placedTexts(service.delivered[0].job.pages.at(1)), QStringList(row.secondPage));
        }
        ASSERT_EQ(prompts.told.size(), row.title.isEmpty() ? 0U : 1U);
        if (!row.title.isEmpty()) {
            EXPECT_EQ(prompts.told[0].title, row.title);
            EXPECT_EQ(prompts.told[0].text, row.text);
        }
    }
}

TEST_F(PenTest, DroppedJobLeavesNothingToTheNextOne) {
    Pen failing = pen(FailureWay::silent);
    writeTwoPages(failing, QStringLiteral("Arial CE"), 0);
    EXPECT_EQ(failing.outcome().trouble, errorDescription);
    Pen next = pen(FailureWay::silent);
    writeTwoPages(next, QStringLiteral("Arial CE"));
    ASSERT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(service.delivered[0].job.pages.size(), 2U);
    EXPECT_EQ(next.outcome().device, QStringLiteral("PDF fájl"));
    EXPECT_EQ(next.outcome().trouble, QString());
}

TEST_F(PenTest, RefusedDeliveryTakesTheFailureWay) {
    service.refuseWith = 482;
    for (const FailureWay way : {FailureWay::message, FailureWay::silent, FailureWay::passOver}) {
        Pen pen = this->pen(way);
        writeTwoPages(pen, QStringLiteral("Arial CE"));
        EXPECT_EQ(pen.outcome().pages, 0);
        EXPECT_FALSE(pen.outcome().trouble.isEmpty());
    }
    ASSERT_EQ(prompts.told.size(), 1U);
    EXPECT_EQ(prompts.told[0].icon, Icon::warning);
    EXPECT_TRUE(prompts.told[0].text.startsWith(QStringLiteral("Hiba kódszáma: 482\n")));
}

TEST_F(PenTest, SelectsThePrinterOfTheSettings) {
    struct Row {
        bool systemDefault;
        TrackDefault track;
        std::int16_t number;
        int expected; // -1: the routine fails
    };
    // Device 0 is in force before.
    const Row rows[] = {
        {false, TrackDefault::leave, 1, 1}, {false, TrackDefault::set, 1, 1},   {false, TrackDefault::leave, 3, -1},
        {false, TrackDefault::set, -1, -1}, {true, TrackDefault::leave, 99, 0}, {true, TrackDefault::set, 99, 2},
    };
    for (const Row& row : rows) {
        service.delivered.clear();
        device.setCurrentPrinter(0);
        auto set = zeroRecord<Set>();
        set.opPrinter_1 = row.systemDefault;
        set.lbPrintNo = row.number;
        Pen pen = this->pen(FailureWay::silent);
        pen.SelectPrinter(set, row.track);
        writeTwoPages(pen, QStringLiteral("Arial CE"));
        EXPECT_EQ(service.delivered.empty() ? -1 : service.delivered[0].printer, row.expected);
    }
}

TEST_F(PenTest, HeldTextsShareALineAndTheNextRowIsOneLineOfTheFormerFontDown) {
    Pen pen = this->pen(FailureWay::silent);
    pen.SetFont(QStringLiteral("Arial CE"), 10);
    pen.PlaceHold(10, 20, QStringLiteral("a"));
    pen.PlaceHold(50, {}, QStringLiteral("b"));
    pen.PlaceText(10, 30, QStringLiteral("c"));
    pen.SetFont(QStringLiteral("Arial CE"), 20, Weight::bold);
    pen.PlaceNext(11, QStringLiteral("d"));
    pen.SkipLine();
    pen.PlaceNext(12, QStringLiteral("e"));
    pen.EndForm(FormEnd::job);
    const PrintedPage& page = service.delivered.at(0).job.pages.at(0);
    EXPECT_EQ(placedTexts(page).join(u'\n').toStdString(), "10.00 20.00 10 Arial CE|a\n"
                                                           "50.00 20.00 10 Arial CE|b\n"
                                                           "10.00 30.00 10 Arial CE|c\n"
                                                           "11.00 34.00 20 Arial CE|d\n"
                                                           "0.00 42.00 20 Arial CE| \n"
                                                           "12.00 50.00 20 Arial CE|e");
    EXPECT_TRUE(std::get<PlacedText>(page.items.back()).font.bold);
}

} // namespace
