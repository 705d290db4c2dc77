#include "joined_texts.h"
#include "mainwindow/print_dispatch.h"
#include "printing/check_fixture.h"
#include "settings/envelope_label_settings.h"
#include "settings/receipt_layouts.h"

namespace {

class PrintDispatch : public CheckTest {
protected:
    PrintDispatch() {
        for (const char16_t* name : {u"Kiss Anna", u"Nagy Béla", u"Ács Dóra"})
            addClient(clientNamed(QString::fromUtf16(name), 1500));
        tabs.yellowCheck.txNev = QStringLiteral("Kiss Anna");
        tabs.yellowCheck.txOsszeg = QStringLiteral("1500");
        tabs.returnReceipt.txNev2 = tabs.cashOnDelivery.txUNev = QStringLiteral("Kiss Anna");
        tabs.envelope.txtBoritekCimzettNev = QStringLiteral("Kiss Anna");
        files.store(SetTerti::factory());
        tabs.postingReceipt.txNev3 = tabs.documentReceipt.txtIratCimzettNev = tabs.yellowCheck.txNev;
        files.store(SetFveveny::factory());
        files.store(SetIrat2::factory());
        files.store(boritek::firstRun());
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
        const bool across = setup.orientation == 2;
        const char* paper = setup.sizeMm                      ? " own "
                            : setup.paperSize == 27 && across ? " DL "
                            : setup.paperSize == 28           ? (across ? " C5 " : " C5 upright ")
                                                              : " A4 ";
        return job.title.toStdString() + paper + std::to_string(job.pages.size());
    }

    FormTabs tabs;
    ListRows rows{{1, 2, 3}, {1, 3}};
};

TEST_F(PrintDispatch, TabFeedAndButtonFindTheRoutine) {
    // The pages of the single and the batch, each upright and sideways, and their print dialogs.
    const struct {
        Tab tab;
        const char *form, *printed[4];
        std::size_t dialogs[4];
    } forms[] = {
        {Tab::yellowCheck, "sarga-csekk", {"DL 1", "own 1", "DL 2", "own 2"}, {0, 0, 1, 0}},
        {Tab::postingReceipt, "feladoveveny", {"DL 1", "own 1", "DL 2", "own 2"}, {}},
        {Tab::documentReceipt, "irat-tertiveveny", {"DL 1", "own 1", "DL 2", "own 2"}, {}},
        {Tab::pinkCheck, "rozsaszin-csekk", {"DL 1", "A4 1", "DL 2", "A4 2"}, {0, 0, 1, 1}},
        {Tab::returnReceipt, "tertiveveny", {"A4 1", "own 1", "A4 2", "own 2"}, {}},
        {Tab::cashOnDelivery, "utanveteli-lap", {"DL 1", "A4 1", "DL 2", "own 2"}, {}},
        {Tab::envelope, "boritek", {"C5 1", "C5 upright 1", "C5 2", "C5 upright 2"}, {}},
    };
    for (const auto& form : forms) {
        for (const std::size_t way : {0U, 1U, 2U, 3U}) {
            SCOPED_TRACE(std::string(form.form) + ' ' + form.printed[way]);
            prompts.printerChoices.assign(form.dialogs[way], PrinterChoice{0, 1});
            const Press press = way < 2 ? Press::single : Press::batch;
            ASSERT_GT(print(form.tab, way % 2 == 0 ? Feed::upright : Feed::sideways, press).pages, 0);
            EXPECT_EQ(lastPrinted(), std::string(form.form) + ' ' + form.printed[way]);
            EXPECT_TRUE(prompts.printerChoices.empty());
        }
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
    const std::string payee = "A ''Címzettek cseréje'' be van kapcsolva, ezért minden lapon\nNagy Béla\nlesz a másik "
                              "fél!\n\nMehet a nyomtatás?";
    tabs.cashOnDelivery.lbUNev = QStringLiteral("Nagy Béla   ");
    const struct {
        Tab tab;
        Feed feed;
        std::int16_t autoPrint; // on the cash-on-delivery form: the parties are swapped
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
                   {Tab::pinkCheck, Feed::sideways, 1, Side::front, {1, 3}, {}, 2},
                   {Tab::cashOnDelivery, Feed::upright, 1, Side::front, {1, 3}, payee, 2},
                   {Tab::cashOnDelivery, Feed::sideways, 1, Side::front, {1, 3}, payee, 2},
                   {Tab::cashOnDelivery, Feed::upright, 1, Side::back, {1, 3}, {}, 2}, // has no payee
                   {Tab::cashOnDelivery, Feed::upright, 0, Side::front, {1, 3}, {}, 2}};
    for (int number = 0; const auto& batch : batches) {
        SCOPED_TRACE(++number);
        set.chkAutoPrint = batch.autoPrint;
        storeSettings();
        tabs.cashOnDelivery.chkCimzettCsereUlap = batch.autoPrint != 0;
        tabs.pinkCheck.side = tabs.cashOnDelivery.side = batch.side;
        rows.selected = batch.selected;
        if (!batch.question.empty()) {
            prompts.answers = {Answer::no, Answer::yes};
            EXPECT_EQ(trouble(batch.tab, batch.feed, Press::batch), "A nyomtatást nem kérted.");
            EXPECT_EQ(::joined(prompts.asked.back()), " FIGYELEM |" + batch.question);
            EXPECT_EQ(prompts.presets.back(), Answer::no);
        }
        const bool asks = batch.tab == Tab::pinkCheck || (batch.tab == Tab::yellowCheck && batch.feed == Feed::upright);
        if (asks) prompts.printerChoices = {PrinterChoice{0, 1}};
        ASSERT_GT(print(batch.tab, batch.feed, Press::batch).pages, 0);
        EXPECT_EQ(lastJob().job.pages.size(), batch.pages);
        EXPECT_EQ(service.delivered.size(), static_cast<std::size_t>(number)); // none for a no
        EXPECT_TRUE(prompts.answers.empty());
    }
}

TEST_F(PrintDispatch, ABatchTellsWhoseStreetItLeavesOut) {
    ClientRec foreigner = clientNamed(QStringLiteral("John"));
    foreigner.Kulfoldi = true;
    addClient(foreigner); // has no street to lose
    foreigner.Nev2.set(u"Fleet Street 1");
    addClient(foreigner);
    addClient(foreigner);
    rows.selected = {1, 4};
    EXPECT_EQ(print(Tab::returnReceipt, Feed::upright, Press::batch).pages, 2);
    rows.selected = {1, 4, 5, 6};
    EXPECT_EQ(print(Tab::returnReceipt, Feed::upright, Press::single).pages, 1);
    EXPECT_EQ(print(Tab::cashOnDelivery, Feed::upright, Press::batch).pages, 4);
    ASSERT_TRUE(prompts.told.empty());
    EXPECT_EQ(print(Tab::returnReceipt, Feed::sideways, Press::batch).pages, 4);
    EXPECT_EQ(::joined(prompts.told.at(0)),
              "Figyelem!|2 külföldi címzett utcája a csoportos nyomtatásban nem szerepel!");
}

TEST_F(PrintDispatch, LabelsAndPostingListAskForTheirPageOnTheChosenPrinter) {
    auto sheet = zeroRecord<CimkeSetup>();
    sheet.txtOszlop = sheet.txtSor = 2;
    files.store(sheet);
    const std::string page = "A nyomtató beállítása nem álló A4-es lap.\n\nÁtállítsam álló A4-re a nyomtatás előtt?";
    const std::string printer =
        "A cimkék nem a beállított nyomtatóra kerülnének.\n\nÁtállítsam arra a nyomtatás előtt?";
    const std::string listPage = "A nyomtató beállítása nem A4-es lap.\n\nÁtállítsam A4-re a nyomtatás előtt?";
    const auto printLabels = [&] { return print(Tab::label, Feed::upright, Press::single); };
    const auto printList = [&] { return dispatchPostingList(desk, tabs, rows); };
    const struct {
        bool ofList;
        bool systemDefault; // by the settings; else device 1
        std::function<void()> before;
        std::string question; // empty for none
        int asLeft, inOrder;  // devices that a no and a yes print on
    } states[] = {
        {false, false, [&] { device.setCurrentPrinter(1); }, {}, 1, 1},
        {false, false, [&] { device.setCurrentPrinter(0); }, printer, 0, 1},
        {false, false, [&] { device.setTrackDefault(true); }, printer, 2, 1},
        {false, true, [&] { device.setTrackDefault(true); }, {}, 2, 2},
        {false, true, [&] { device.setCurrentPrinter(1); }, printer, 1, 2},
        {false, false, [&] { print(Tab::envelope, Feed::upright, Press::single); }, page, 1, 1},
        {false, false, [&] { print(Tab::cashOnDelivery, Feed::sideways, Press::batch); }, page, 1, 1},
        {true, false, [&] { device.setCurrentPrinter(1); }, {}, 1, 1},
        {true, false, [&] { device.setOrientation(2); }, {}, 1, 1},
        {true, false, [&] { device.setCurrentPrinter(0); }, listPage, 0, 1},
        {true, false, [&] { device.setPaperSize(28); }, listPage, 1, 1},
        {true, false, [&] { device.setSizeMm(210, 105); }, listPage, 1, 1},
    };
    for (int number = 0; const auto& state : states) {
        SCOPED_TRACE(++number);
        for (const Answer answer : {Answer::no, Answer::yes}) {
            set.opPrinter_1 = state.systemDefault;
            storeSettings();
            state.before();
            PageSetup left = device.pageSetup();
            if (state.ofList) left.orientation = 2;
            if (!state.question.empty()) prompts.answers = {answer};
            ASSERT_EQ(state.ofList ? printList().pages : printLabels().pages, 1);
            EXPECT_TRUE(prompts.answers.empty());
            EXPECT_EQ(lastJob().printer, answer == Answer::yes ? state.inOrder : state.asLeft);
            const PageSetup inOrder = state.ofList ? PageSetup{2, 9, {}} : PageSetup();
            EXPECT_EQ(lastSetup(), answer == Answer::yes ? inOrder : left);
            if (state.question.empty()) continue;
            EXPECT_EQ(::joined(prompts.asked.back()), " FIGYELEM |" + state.question);
        }
    }
    device.setPaperSize(28);
    rows.selected.clear();
    EXPECT_EQ(printList().trouble, QStringLiteral("Nincs kijelölt ügyfél.")); // without a question
    set.lbPrintNo = 7;
    storeSettings();
    prompts.answers = {Answer::yes};
    EXPECT_EQ(printLabels().trouble, QStringLiteral("A kiválasztott nyomtató nem érhető el, válassz másikat!"));
    EXPECT_EQ(prompts.told.at(0).title, QStringLiteral("! HIBA !"));
}

} // namespace
