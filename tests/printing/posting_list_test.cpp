#include "printing/posting_list.h"

#include "check_fixture.h"
#include "settings/other_settings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class PostingList : public CheckTest {
protected:
    PostingList() {
        files.store(FjSet::firstRun());
        for (int number = 1; number <= 3; ++number)
            addClient(clientNamed(u"Név %1"_s.arg(number)));
    }
    PrintOutcome print(const std::vector<int>& selected) { return CheckTest::print(PrintFeladojegyzek, selected); }
};

TEST_F(PostingList, ALineIsNameSettlementAndPostcodeAsStored) {
    EXPECT_EQ(print({3, 1}).pages, 1);
    EXPECT_EQ(unpadded(), "65 70 8 Times New Roman CE|Név 3; 127 70 8 Times New Roman CE|Budapest; "
                          "110 70 8 Times New Roman CE|1024; 65 78 8 Times New Roman CE|Név 1; "
                          "127 78 8 Times New Roman CE|Budapest; 110 78 8 Times New Roman CE|1024");
    EXPECT_EQ(lines().at(0), u"65 70 8 Times New Roman CE|"_s + u"Név 3"_s.leftJustified(36));
    files.setBytes(u"FjSet.dat"_s, {}); // never stored
    print({1});
    EXPECT_EQ(unpadded().substr(0, 35), "0 0 8 Times New Roman CE|Név 1; 62");
}

TEST_F(PostingList, FourteenNamesFillASheet) {
    const std::pair<std::size_t, std::vector<int>> lists[] = {{1, {1}}, {14, {14}}, {15, {14, 1}}, {29, {14, 14, 1}}};
    for (const auto& [clients, names] : lists) {
        EXPECT_EQ(print(std::vector<int>(clients, 2)).pages, static_cast<int>(names.size()));
        std::vector<int> printed;
        for (const PrintedPage& page : lastJob().job.pages) {
            const QStringList placed = placedTexts(page).filter(u"Név 2"_s);
            EXPECT_TRUE(placed.first().startsWith(u"65.00 70.00 "_s));
            printed.push_back(static_cast<int>(placed.size()));
        }
        EXPECT_EQ(printed, names);
    }
}

TEST_F(PostingList, TwentySheetsAreAskedFor) {
    prompts.answers = {Answer::no};
    EXPECT_EQ(print(std::vector<int>(20 * 14 - 13, 1)).trouble, u"A nyomtatást nem kérted."_s);
    EXPECT_TRUE(service.delivered.empty());
}

} // namespace
