#include "printing/form_routine.h"

#include "check_fixture.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString stopped = u"A nyomtatást megszakítottad, egy lap sem készült."_s;

constexpr FailureWay allWays[] = {FailureWay::message, FailureWay::silent, FailureWay::passOver,
                                  FailureWay::fallbackFont};

class FormRoutineTest : public CheckTest {
protected:
    FormRoutine routine{.run = Run::uprightBatch,
                        .jobTitle = u"proba",
                        .failureWay = FailureWay::silent,
                        .page = dlLandscape,
                        .noun = u"lap"};

    FormRoutineTest() {
        for (const int amount : {1500, 0, 10000000, 9999999, 0, -3})
            addClient(clientNamed(u"Név %1"_s.arg(amount), amount));
    }

    PrintOutcome printNumbers(const std::vector<int>& numbers) {
        return printEach(desk, routine, {{6, 5}, numbers}, [](Pen& pen, const Set&, const Client& client) {
            pen.SetFont(u"Arial CE"_s, 10);
            pen.PlaceText(1, 1, client.client.Nev.trimmed());
        });
    }
    QString summaryOf(const std::vector<int>& numbers) {
        prompts.printerChoices = {PrinterChoice{0, 1}};
        printNumbers(numbers);
        return prompts.summaries.back();
    }
    static std::vector<int> upTo(int count) {
        std::vector<int> numbers(static_cast<std::size_t>(count));
        std::iota(numbers.begin(), numbers.end(), 1);
        return numbers;
    }
};

} // namespace

TEST_F(FormRoutineTest, TheDialogSaysWhatIsComing) {
    routine.asksForPrinter = true;
    EXPECT_EQ(summaryOf({1, 2, 3}), u"3 lap"_s);
    routine.printsAmount = true;
    const std::pair<std::vector<int>, QString> rows[] = {
        {{1, 4, 6}, u"3 lap"_s},
        {{1, 2, 5}, u"3 lap, ebből 2 összeg nélkül"_s},
        {{3}, u"1 lap, ebből 1 túl nagy összeggel"_s},
        {upTo(6), u"6 lap, ebből 2 összeg nélkül, 1 túl nagy összeggel"_s},
        {{}, u"0 lap"_s},
    };
    for (const auto& [numbers, summary] : rows)
        EXPECT_EQ(summaryOf(numbers).toStdString(), summary.toStdString());
    routine.allRowsWhenAutomatic = true;
    set.chkAutoPrint = 1;
    storeSettings();
    EXPECT_EQ(summaryOf({3}), u"2 lap, ebből 1 összeg nélkül"_s);
    desk.attended = false; // neither dialog nor question
    EXPECT_EQ(printNumbers({3}).pages, 2);
}

TEST_F(FormRoutineTest, ManyPagesWithoutADialogAreAskedFor) {
    EXPECT_EQ(printNumbers(upTo(19)).pages, 6); // the clients that there are: an empty name leaves no page
    prompts.answers = {Answer::no, Answer::yes};
    const PrintOutcome declined = printNumbers(upTo(20));
    EXPECT_EQ(std::tuple(declined.pages, declined.trouble), std::tuple(0, u"A nyomtatást nem kérted."_s));
    EXPECT_EQ(service.delivered.size(), 1U);
    EXPECT_EQ(printNumbers(upTo(20)).pages, 6);
    ASSERT_EQ(prompts.asked.size(), 2U);
    const Message& question = prompts.asked[0];
    EXPECT_EQ(std::tuple(question.icon, question.title, question.text, prompts.presets[0]),
              std::tuple(Icon::question, u" FIGYELEM "_s, u"20 oldal nyomtatása következik.\n\nMehet?"_s, Answer::yes));
    desk.attended = false;
    EXPECT_EQ(printNumbers(upTo(20)).pages, 6);
    EXPECT_TRUE(prompts.told.empty());
}

TEST_F(FormRoutineTest, TheUserStopsAJobAtAnyPageOfEitherStage) {
    const QStringList stages{u"w1/2"_s, u"w2/2"_s, u"h1/2"_s, u"h2/2"_s};
    for (const FailureWay way : allWays) {
        routine.failureWay = way;
        for (qsizetype last = 0; last <= stages.size(); ++last) {
            QStringList seen;
            desk.progress = [&](const PagesDone& pages) {
                const QString stage = pages.stage == PrintStage::writing ? u"w"_s : u"h"_s;
                seen << stage + u"%1/%2"_s.arg(pages.done).arg(pages.pages);
                EXPECT_TRUE(pages.canCancel);
                return seen.size() <= last;
            };
            service.delivered.clear();
            const PrintOutcome outcome = printNumbers({1, 4});
            const bool whole = last == stages.size();
            EXPECT_EQ(seen, whole ? stages : stages.first(last + 1));
            EXPECT_EQ(std::tuple(outcome.pages, outcome.trouble),
                      whole ? std::tuple(2, QString()) : std::tuple(0, stopped));
            EXPECT_EQ(service.delivered.size(), whole ? 1U : 0U);
            EXPECT_EQ(device.pageCount(), 0);
            service.deliver({u"x"_s, {PrintedPage{}}}, 0); // nobody listens any more
            EXPECT_EQ(seen.size(), whole ? stages.size() : last + 1);
        }
    }
    EXPECT_TRUE(prompts.told.empty());
}

TEST_F(FormRoutineTest, EmptyPagesAreNoneAndSaidSo) {
    EXPECT_EQ(printNumbers({7, 8}).trouble, u"A nyomtatandó adatok mind üresek."_s);
    EXPECT_TRUE(service.delivered.empty());
    printNumbers({7, 1, 8, 4});
    EXPECT_EQ(lastJob().job.pages.size(), 2U);
}

TEST_F(FormRoutineTest, ClientsAreTakenOutOnceKnownAndBeforeTheFirstPage) {
    int taken = 0;
    desk.takeSelectedOut = [&] { taken += device.pageCount() == 0 && service.delivered.empty() ? 1 : 100; };
    routine.takesClientsOut = true;
    const struct {
        const char* name;
        std::int16_t printDel, printer;
        int refuseWith;
        std::vector<int> numbers;
        int taken;
    } cases[] = {{"switched off", 0, 1, 0, {1}, 0},
                 {"all well", 1, 1, 0, {1, 4}, 1},
                 {"refused by the device", 1, 1, 482, {1}, 1},
                 {"no such printer", 1, 7, 0, {1}, 0},
                 {"no such number", 1, 1, 0, {-1}, 0},
                 {"declined", 1, 1, 0, upTo(20), 0}};
    prompts.answers = {Answer::no};
    for (const auto& row : cases) {
        std::tie(set.chkPrintDel, set.lbPrintNo) = std::tie(row.printDel, row.printer);
        storeSettings();
        service.refuseWith = row.refuseWith;
        service.delivered.clear();
        taken = 0;
        printNumbers(row.numbers);
        EXPECT_EQ(taken, row.taken) << row.name;
    }
}

TEST_F(FormRoutineTest, ThePageIsSetUpOnceOrForEachClient) {
    for (const bool perClient : {false, true}) {
        routine.opensPerClient = perClient;
        printEach(desk, routine, {{}, {1, 4}}, [this](Pen& pen, const Set&, const Client&) {
            pen.PlaceText(1, 1, u"x"_s);
            device.setOrientation(1); // what a client's page leaves behind
        });
        EXPECT_EQ(lastJob().job.pages[0].setup, (PageSetup{2, 27, {}}));
        EXPECT_EQ(lastJob().job.pages[1].setup.orientation, perClient ? 2 : 1);
    }
}
