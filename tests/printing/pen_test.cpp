#include "printing/pen.h"

#include "check_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class PenTest : public CheckTest {
protected:
    Pen pen(FailureWay way) { return {desk, way, u"form"_s}; }

    static void writeTwoPages(Pen& pen, const QString& secondFont) {
        pen.SetFont(u"Arial CE"_s, 10);
        pen.PlaceText(1, 2, u"first"_s);
        pen.EndForm(FormEnd::page);
        pen.SetFont(secondFont, 20);
        pen.PlaceText(3, 4, u"second"_s);
        pen.EndForm(FormEnd::job);
    }
    PrintOutcome printTwoPages(FailureWay way, const QString& secondFont) {
        Pen pen = this->pen(way);
        writeTwoPages(pen, secondFont);
        return pen.outcome();
    }
};

TEST_F(PenTest, AFontThatALaterPageLacksDropsTheJobOrIsDoneWithout) {
    const std::pair<FailureWay, QStringList> rows[] = {
        // the second page, if there is any
        {FailureWay::message, {}},
        {FailureWay::silent, {}},
        {FailureWay::passOver, {u"3.00 4.00 20 Arial CE|second"_s}},
        {FailureWay::fallbackFont, {u"3.00 4.00 20 Times New Roman|second"_s}},
    };
    for (const auto& [way, secondPage] : rows) {
        SCOPED_TRACE(static_cast<int>(way));
        service.delivered.clear();
        const PrintOutcome outcome = printTwoPages(way, u"Nincs ilyen"_s);
        EXPECT_EQ(outcome.pages, secondPage.isEmpty() ? 0 : 2);
        EXPECT_EQ(outcome.trouble, u"A betűtípus nem használható: Nincs ilyen, 20 pont"_s);
        ASSERT_EQ(service.delivered.empty(), secondPage.isEmpty());
        for (const auto& [job, printer] : service.delivered)
            EXPECT_EQ(placedTexts(job.pages.at(1)), secondPage);
        const PrintOutcome next = printTwoPages(way, u"Arial CE"_s);
        EXPECT_EQ(std::pair(next.pages, next.trouble), std::pair(2, QString()));
    }
}

TEST_F(PenTest, AJobTakesNothingOverFromTheOneBefore) {
    const auto leaveALot = [this] {
        Pen pen = this->pen(FailureWay::silent);
        pen.OpenForm(dlLandscape);
        pen.SetFont(u"Arial CE"_s, 20, Weight::bold);
        device.setFontItalic(true);
        pen.PlaceHold(1, 2, u"x"_s);
        pen.EndForm(FormEnd::job);
        device.setCurrentY(99);
    };
    const auto printed = [&](FirstPage first) {
        leaveALot();
        Pen pen(desk, FailureWay::passOver, u"form"_s, first);
        pen.SetFont(u"Nincs ilyen"_s, 0); // passed over
        pen.PlaceNext(0, u"x"_s);
        pen.EndForm(FormEnd::job);
        return service.delivered.back().job.pages.back();
    };
    const PageSetup ownPage, envelope{2, 27, {}};
    const std::pair<FirstPage, PageSetup> rows[] = {{FirstPage::ownPage, ownPage}, {FirstPage::asLeft, envelope}};
    for (const auto& [first, setup] : rows) {
        const PrintedPage page = printed(first);
        EXPECT_EQ(page.setup, setup);
        const auto& text = std::get<PlacedText>(page.items.at(0));
        EXPECT_EQ(text.font, (Font{u"Times New Roman CE"_s, 12}));
        EXPECT_EQ(text.y, 0.0F);
    }
    service.knownFonts = {u"Arial CE"_s};
    leaveALot();
    EXPECT_EQ(Pen(desk, FailureWay::silent, u"form"_s).outcome().pages, 0);
    EXPECT_EQ(device.font().name, QString());
    leaveALot(); // measures upright letters, whatever was printed last
    Pen(device).TextWidth(u"Arial CE"_s, 10, u"x"_s);
    EXPECT_EQ(device.font(), (Font{u"Arial CE"_s, 10}));
}

TEST_F(PenTest, ARefusedJobSaysWhyNoPageCameOut) {
    service.refuseWith = 482;
    Pen noted = pen(FailureWay::silent);
    noted.Note(u"hiányos"_s);
    writeTwoPages(noted, u"Arial CE"_s);
    EXPECT_EQ(noted.outcome().trouble, u"A nyomtató nem fogadja a munkát."_s);
}

} // namespace
