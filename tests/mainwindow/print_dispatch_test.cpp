#include "joined_texts.h"
#include "mainwindow/print_dispatch.h"
#include "printing/check_fixture.h"

namespace {

class PrintDispatch : public CheckTest {
protected:
    PrintDispatch() {
        for (const char16_t* name : {u"Kiss Anna", u"Nagy Béla", u"Ács Dóra"})
            addClient(clientNamed(QString::fromUtf16(name), 1500));
        tabs.yellowCheck.txNev = QStringLiteral("Kiss Anna");
        tabs.yellowCheck.txOsszeg = QStringLiteral("1500");
    }
    std::optional<PrintOutcome> print(int tab, Feed feed, Press press) {
        return dispatchPrint(desk, tabs, tab, feed, press, rows);
    }
    // Form, page and number of pages of the last job; DL is the envelope lying across.
    std::string lastPrinted() const {
        const PrintJob& job = lastJob().job;
        const PageSetup& setup = job.pages.front().setup;
        const bool envelope = setup.paperSize == 27 && setup.orientation == 2;
        const char* paper = setup.sizeMm ? " own " : envelope ? " DL " : " A4 ";
        return job.title.toStdString() + paper + std::to_string(job.pages.size());
    }

    FormTabs tabs;
    ListRows rows{{1, 2, 3}, {1, 3}};
};

TEST_F(PrintDispatch, TabFeedAndButtonFindTheRoutine) {
    const struct {
        int tab;
        Press press;
        Feed feed;
        const char* printed;
        std::size_t dialogs;
    } routes[] = {{0, Press::single, Feed::upright, "sarga-csekk DL 1", 0},
                  {0, Press::single, Feed::sideways, "sarga-csekk own 1", 0},
                  {0, Press::batch, Feed::upright, "sarga-csekk DL 2", 1},
                  {0, Press::batch, Feed::sideways, "sarga-csekk own 2", 0},
                  {6, Press::single, Feed::upright, "rozsaszin-csekk DL 1", 0},
                  {6, Press::single, Feed::sideways, "rozsaszin-csekk A4 1", 0},
                  {6, Press::batch, Feed::upright, "rozsaszin-csekk DL 2", 1},
                  {6, Press::batch, Feed::sideways, "rozsaszin-csekk A4 2", 1}};
    for (const auto& route : routes) {
        prompts.printerChoices.assign(route.dialogs, PrinterChoice{0, 1});
        ASSERT_TRUE(print(route.tab, route.feed, route.press)) << route.printed;
        EXPECT_EQ(lastPrinted(), route.printed);
        EXPECT_TRUE(prompts.printerChoices.empty());
    }
}

TEST_F(PrintDispatch, NothingToPrintIsSilent) {
    for (const int tab : {1, 2, 3, 4, 5, 7, 8, -1}) // forms that aren't built
        for (const Feed feed : {Feed::upright, Feed::sideways})
            for (const Press press : {Press::single, Press::batch})
                EXPECT_FALSE(print(tab, feed, press)) << tab;
    for (const char* amount : {"", "abc", "0", "x1500"}) {
        tabs.yellowCheck.txOsszeg = QString::fromLatin1(amount);
        EXPECT_FALSE(print(0, Feed::upright, Press::single)) << amount;
        EXPECT_FALSE(print(0, Feed::sideways, Press::single)) << amount;
    }
    EXPECT_TRUE(service.delivered.empty() && prompts.told.empty());
    EXPECT_TRUE(print(6, Feed::upright, Press::single)); // the pink check has no such test
    EXPECT_TRUE(print(0, Feed::sideways, Press::batch)); // nor has a batch, which takes the clients' amounts
    EXPECT_EQ(service.delivered.size(), 2U);
}

TEST_F(PrintDispatch, UnexpectedBatchesAreAskedForFirst) {
    const std::string all = "Az automatikus nyomtatás be van kapcsolva,\nezért a lista MIND a 3 ügyfelének csekkje ki "
                            "lesz nyomtatva!\n\nMehet a nyomtatás?";
    const std::string front = "Fekvő csoportos nyomtatásnál csak a csekk első oldala nyomtatható!\n\nMehet az első "
                              "oldal nyomtatása?";
    const struct {
        int tab;
        Feed feed;
        std::int16_t autoPrint;
        Side side;
        std::vector<int> selected;
        std::string question; // empty for none
        std::size_t pages;
    } batches[] = {
        {0, Feed::upright, 1, Side::front, {1, 3}, all, 3},   {0, Feed::upright, 1, Side::front, {}, all, 3},
        {0, Feed::upright, 1, Side::front, {1, 2, 3}, {}, 3}, {0, Feed::upright, 0, Side::front, {1, 3}, {}, 2},
        {0, Feed::sideways, 1, Side::front, {1, 3}, {}, 2}, // goes by the selection anyway
        {6, Feed::upright, 1, Side::back, {1, 3}, {}, 2},     {6, Feed::sideways, 0, Side::back, {1, 3}, front, 2},
        {6, Feed::sideways, 1, Side::front, {1, 3}, {}, 2}};
    for (int number = 0; const auto& batch : batches) {
        SCOPED_TRACE(++number);
        set.chkAutoPrint = batch.autoPrint;
        storeSettings();
        tabs.pinkCheck.side = batch.side;
        rows.selected = batch.selected;
        if (!batch.question.empty()) {
            prompts.answers = {Answer::no, Answer::yes};
            EXPECT_FALSE(print(batch.tab, batch.feed, Press::batch));
            EXPECT_EQ(::joined(prompts.asked.back()), " FIGYELEM |" + batch.question);
            EXPECT_EQ(prompts.presets.back(), Answer::no);
        }
        if (batch.tab == 6 || batch.feed == Feed::upright) prompts.printerChoices = {PrinterChoice{0, 1}};
        ASSERT_TRUE(print(batch.tab, batch.feed, Press::batch));
        EXPECT_EQ(lastJob().job.pages.size(), batch.pages);
        EXPECT_EQ(service.delivered.size(), static_cast<std::size_t>(number)); // none for a no
        EXPECT_TRUE(prompts.answers.empty());
    }
}

} // namespace
