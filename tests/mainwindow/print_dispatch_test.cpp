#include "joined_texts.h"
#include "mainwindow/print_dispatch.h"
#include "printing/check_fixture.h"
#include "settings/receipt_layouts.h"

namespace {

class PrintDispatch : public CheckTest {
protected:
    PrintDispatch() {
        for (const char16_t* name : {u"Kiss Anna", u"Nagy Béla", u"Ács Dóra"})
            addClient(clientNamed(QString::fromUtf16(name), 1500));
        tabs.yellowCheck.txNev = QStringLiteral("Kiss Anna");
        tabs.yellowCheck.txOsszeg = QStringLiteral("1500");
        tabs.postingReceipt.txNev3 = tabs.documentReceipt.txtIratCimzettNev = tabs.yellowCheck.txNev;
        files.store(SetFveveny::factory());
        files.store(SetIrat2::factory());
    }
    PrintOutcome print(Tab tab, Feed feed, Press press) {
        return dispatchPrint(desk, tabs, {tab, press, feed}, rows, QStringLiteral("Kiss Anna"));
    }
    // Why nothing printed.
    std::string trouble(Tab tab, Feed feed, Press press) {
        const PrintOutcome outcome = print(tab, feed, press);
        EXPECT_EQ(outcome.pages, 0);
        return outcome.trouble.toStdString();
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
        Tab tab;
        Press press;
        Feed feed;
        const char* printed;
        std::size_t dialogs;
    } routes[] = {{Tab::yellowCheck, Press::single, Feed::upright, "sarga-csekk DL 1", 0},
                  {Tab::yellowCheck, Press::single, Feed::sideways, "sarga-csekk own 1", 0},
                  {Tab::yellowCheck, Press::batch, Feed::upright, "sarga-csekk DL 2", 1},
                  {Tab::yellowCheck, Press::batch, Feed::sideways, "sarga-csekk own 2", 0},
                  {Tab::postingReceipt, Press::single, Feed::upright, "feladoveveny DL 1", 0},
                  {Tab::postingReceipt, Press::single, Feed::sideways, "feladoveveny own 1", 0},
                  {Tab::postingReceipt, Press::batch, Feed::upright, "feladoveveny DL 2", 0},
                  {Tab::postingReceipt, Press::batch, Feed::sideways, "feladoveveny own 2", 0},
                  {Tab::documentReceipt, Press::single, Feed::upright, "irat-tertiveveny DL 1", 0},
                  {Tab::documentReceipt, Press::single, Feed::sideways, "irat-tertiveveny own 1", 0},
                  {Tab::documentReceipt, Press::batch, Feed::upright, "irat-tertiveveny DL 2", 0},
                  {Tab::documentReceipt, Press::batch, Feed::sideways, "irat-tertiveveny own 2", 0},
                  {Tab::pinkCheck, Press::single, Feed::upright, "rozsaszin-csekk DL 1", 0},
                  {Tab::pinkCheck, Press::single, Feed::sideways, "rozsaszin-csekk A4 1", 0},
                  {Tab::pinkCheck, Press::batch, Feed::upright, "rozsaszin-csekk DL 2", 1},
                  {Tab::pinkCheck, Press::batch, Feed::sideways, "rozsaszin-csekk A4 2", 1}};
    for (const auto& route : routes) {
        prompts.printerChoices.assign(route.dialogs, PrinterChoice{0, 1});
        ASSERT_GT(print(route.tab, route.feed, route.press).pages, 0) << route.printed;
        EXPECT_EQ(lastPrinted(), route.printed);
        EXPECT_TRUE(prompts.printerChoices.empty());
    }
}

TEST_F(PrintDispatch, WhatPrintsNothingSaysWhyAndShowsNoBox) {
    EXPECT_EQ(trouble(Tab::label, Feed::sideways, Press::batch), "Ez a nyomtatvány így nem nyomtatható.");
    for (const char* amount : {"", "abc", "0", "x1500"}) {
        tabs.yellowCheck.txOsszeg = QString::fromLatin1(amount);
        for (const Feed feed : {Feed::upright, Feed::sideways})
            EXPECT_EQ(trouble(Tab::yellowCheck, feed, Press::single), "Az összeg üres vagy nulla.") << amount;
    }
    EXPECT_TRUE(service.delivered.empty() && prompts.told.empty());
    EXPECT_EQ(print(Tab::pinkCheck, Feed::upright, Press::single).pages, 1); // the pink check has no such test
    // Nor has a batch, which takes the clients' amounts.
    EXPECT_EQ(print(Tab::yellowCheck, Feed::sideways, Press::batch).pages, 2);
}

TEST_F(PrintDispatch, ASearchedTextIsNoNameUntilTheClerkSaysSo) {
    tabs.yellowCheck.Check1 = true;
    EXPECT_EQ(print(Tab::yellowCheck, Feed::upright, Press::single).pages, 1); // it is the name that was clicked
    tabs.yellowCheck.txNev = QStringLiteral("kov");
    for (const Tab tab : {Tab::yellowCheck, Tab::pinkCheck}) {
        prompts.answers = {Answer::no, Answer::yes};
        EXPECT_EQ(trouble(tab, Feed::upright, Press::single), "A nyomtatást nem kérted.");
        EXPECT_EQ(print(tab, Feed::upright, Press::single).pages, 1);
        EXPECT_EQ(::joined(prompts.asked.back()),
                  " FIGYELEM |A név mezőben a keresett szöveg áll: ''kov''\n\nMehet a nyomtatás ezzel a névvel?");
        EXPECT_EQ(prompts.presets.back(), Answer::no);
    }
    print(Tab::yellowCheck, Feed::sideways, Press::batch); // prints clients, not the box
    tabs.yellowCheck.Check1 = false;
    print(Tab::yellowCheck, Feed::sideways, Press::single);
    EXPECT_EQ(prompts.asked.size(), 4U);
}

TEST_F(PrintDispatch, UnexpectedBatchesAreAskedForFirst) {
    const std::string all = "Az automatikus nyomtatás be van kapcsolva,\nezért a lista MIND a 3 ügyfelének csekkje ki "
                            "lesz nyomtatva!\n\nMehet a nyomtatás?";
    const std::string front = "Fekvő csoportos nyomtatásnál csak a csekk első oldala nyomtatható!\n\nMehet az első "
                              "oldal nyomtatása?";
    const struct {
        Tab tab;
        Feed feed;
        std::int16_t autoPrint;
        Side side;
        std::vector<int> selected;
        std::string question; // empty for none
        std::size_t pages;
    } batches[] = {{Tab::yellowCheck, Feed::upright, 1, Side::front, {1, 3}, all, 3},
                   {Tab::yellowCheck, Feed::upright, 1, Side::front, {}, all, 3},
                   {Tab::yellowCheck, Feed::upright, 1, Side::front, {1, 2, 3}, {}, 3},
                   {Tab::yellowCheck, Feed::upright, 0, Side::front, {1, 3}, {}, 2},
                   {Tab::yellowCheck, Feed::sideways, 1, Side::front, {1, 3}, {}, 2}, // goes by the selection anyway
                   {Tab::pinkCheck, Feed::upright, 1, Side::back, {1, 3}, {}, 2},
                   {Tab::pinkCheck, Feed::sideways, 0, Side::back, {1, 3}, front, 2},
                   {Tab::pinkCheck, Feed::sideways, 1, Side::front, {1, 3}, {}, 2}};
    for (int number = 0; const auto& batch : batches) {
        SCOPED_TRACE(++number);
        set.chkAutoPrint = batch.autoPrint;
        storeSettings();
        tabs.pinkCheck.side = batch.side;
        rows.selected = batch.selected;
        if (!batch.question.empty()) {
            prompts.answers = {Answer::no, Answer::yes};
            EXPECT_EQ(trouble(batch.tab, batch.feed, Press::batch), "A nyomtatást nem kérted.");
            EXPECT_EQ(::joined(prompts.asked.back()), " FIGYELEM |" + batch.question);
            EXPECT_EQ(prompts.presets.back(), Answer::no);
        }
        if (batch.tab == Tab::pinkCheck || batch.feed == Feed::upright) prompts.printerChoices = {PrinterChoice{0, 1}};
        ASSERT_GT(print(batch.tab, batch.feed, Press::batch).pages, 0);
        EXPECT_EQ(lastJob().job.pages.size(), batch.pages);
        EXPECT_EQ(service.delivered.size(), static_cast<std::size_t>(number)); // none for a no
        EXPECT_TRUE(prompts.answers.empty());
    }
}

} // namespace
