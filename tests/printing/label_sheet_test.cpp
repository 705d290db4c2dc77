#include "printing/label_sheet.h"

#include "check_fixture.h"
#include "settings/envelope_label_settings.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

class LabelSheet : public CheckTest {
protected:
    LabelTab& tab = tabs.label;
    CimkeSetup sheet = zeroRecord<CimkeSetup>();
    Betutip fonts = Betutip::firstRun();
    Betumeret sizes{{10, 10, 10, 10, 10}};

    // 2 x 3 labels of 100 x 50.5 mm.
    LabelSheet() {
        sheet.txtLeft = Cur(5);
        sheet.txtTop = Cur(7);
        sheet.txtSzeles = Cur(100);
        sheet.txtMagas = Cur::fromTenThousandths(505000);
        sheet.txtOszlop = 2;
        sheet.txtSor = 3;
        sheet.lbKinyomottCimkeNum = 40;
        storeSheet();
        for (int number = 1; number <= 3; ++number)
            addClient(clientNamed(u"Név %1"_s.arg(number)));
        tab.ComboBetuSize.fill(u"10"_s);
        std::tie(tab.lbNev1, tab.lbNev2, tab.lbHelyseg, tab.lbCim, tab.lbIrsz) =
            std::tuple(u"Egyedi"_s, u"szöveg"_s, u"több"_s, u"sorban"_s, u"AUSZTRIA"_s);
    }
    void storeSheet() const {
        files.store(sheet);
        files.store(fonts);
        files.store(sizes);
    }
    PrintOutcome print(const std::vector<int>& selected = {}) {
        return PrintAlloCimke(desk, tabs, {{1, 2, 3}, selected});
    }
    // Prints nothing, counts nothing, says why.
    std::string trouble(const std::vector<int>& selected = {}) {
        const std::size_t before = service.delivered.size();
        const int counted = count();
        const PrintOutcome outcome = print(selected);
        EXPECT_EQ(outcome.pages, 0);
        EXPECT_EQ(service.delivered.size(), before);
        EXPECT_EQ(count(), counted);
        return outcome.trouble.toStdString();
    }
    int count() const { return readRecord<CimkeSetup>(files).lbKinyomottCimkeNum; }
    void assign(std::size_t place, int client) {
        tab.chkCimke1[place] = true;
        tab.cimkeRekord[place] = client;
    }
};

TEST_F(LabelSheet, TickedPlacesGetTheirClients) {
    assign(0, 2);
    assign(5, 1);
    tab.chkCimke1[3] = true; // no client
    tab.cimkeRekord[4] = 3;  // no tick, as custom labels may leave it
    assign(6, 3);            // not on this sheet
    EXPECT_EQ(print({3}).pages, 1);
    EXPECT_EQ(unpadded(), "5 7 T|Név 2; 5 11 T|; 5 15 T|Budapest; 5 19 T|Fő utca 1.; 5 23 T|1024; "
                          "105 108 T|Név 1; 105 112 T|; 105 116 T|Budapest; 105 120 T|Fő utca 1.; 105 124 T|1024");
    EXPECT_EQ(lines().at(0), u"5 7 T|"_s + u"Név 2"_s.leftJustified(36)); // at its full length
    EXPECT_EQ(count(), 42);
    print();
    EXPECT_EQ(count(), 44); // the same labels again
}

TEST_F(LabelSheet, TheListFillsSheetAfterSheet) {
    const struct {
        std::size_t clients;
        std::vector<qsizetype> labels; // of each page
    } lists[] = {{1, {1}}, {6, {6}}, {7, {6, 1}}, {15, {6, 6, 3}}};
    for (const auto& list : lists) {
        const int before = count();
        EXPECT_EQ(print(std::vector<int>(list.clients, 2)).pages, static_cast<int>(list.labels.size()));
        std::vector<qsizetype> labels;
        for (const PrintedPage& page : lastJob().job.pages)
            labels.push_back(placedTexts(page).filter(u"Név 2"_s).size());
        EXPECT_EQ(labels, list.labels);
        EXPECT_EQ(count(), before + static_cast<int>(list.clients));
    }
    print({3, 40000, 1}); // beyond the file: nothing is on that place
    const QStringList names = lines().filter(u"Név"_s);
    EXPECT_EQ(joined({names.at(0).trimmed(), names.at(1).trimmed()}), "5 7 T|Név 3; 5 57.50 T|Név 1");
}

TEST_F(LabelSheet, APostcodeThatIsNoNumberLeavesItsLineEmpty) {
    for (const auto& [stored, printed] :
         {std::pair{u"0", ""}, {u"", ""}, {u"D-1011", ""}, {u"9021", "5 23 T|9021  "}}) {
        ClientRec client = clientNamed(u"A"_s);
        client.Irsz.set(stored);
        files.store(client, 1);
        print({1});
        EXPECT_EQ(page(0, u"5 23 "_s), printed);
    }
}

TEST_F(LabelSheet, CustomLabelsPrintWhatThePreviewShows) {
    tab.chkEgyediCimke = true;
    EXPECT_EQ(trouble({1, 2}), "Nincs kipipált cimke.");
    assign(3, 1);
    tab.chkCimke1[2] = true;
    tab.ComboBetuTipus1 = {u" Arial CE "_s, {}, {}, {}, u"Times New Roman"_s};
    tab.ComboBetuSize = {u"20"_s, u"14 pt"_s, u"sok"_s, u"0"_s, {}};
    print();
    EXPECT_EQ(page(), "5 57.50 20 Arial CE|Egyedi; 5 65.50 14 Times New Roman CE|szöveg; "
                      "5 71.10 12 Times New Roman CE|több; 5 75.90 12 Times New Roman CE|sorban; "
                      "5 80.70 12 Times New Roman|AUSZTRIA; "
                      "105 57.50 20 Arial CE|Egyedi; 105 65.50 14 Times New Roman CE|szöveg; "
                      "105 71.10 12 Times New Roman CE|több; 105 75.90 12 Times New Roman CE|sorban; "
                      "105 80.70 12 Times New Roman|AUSZTRIA");
    EXPECT_EQ(count(), 42);
    EXPECT_EQ(tab.cimkeRekord[3], 1);
}

TEST_F(LabelSheet, EachLineHasItsStoredFontOrTheUsualOne) {
    fonts.ComboBetuTipus1[1].set(u"Arial CE");
    fonts.ComboBetuTipus1[2].set({});
    sizes.ComboBetuSize = {20, 10, 0, -3, 10};
    storeSheet();
    print({1});
    EXPECT_EQ(unpadded(), "5 7 20 Times New Roman CE|Név 1; 5 15 10 Arial CE|; 5 19 12 Times New Roman CE|Budapest; "
                          "5 23.80 12 Times New Roman CE|Fő utca 1.; 5 28.60 T|1024");
}

TEST_F(LabelSheet, WhatPrintsNothingIsNotCounted) {
    EXPECT_EQ(trouble(), "Nincs kijelölt ügyfél.");
    tab.chkCimke1[1] = true;
    EXPECT_EQ(trouble({1}), "A kipipált cimkékhez nem tartozik ügyfél.");
    tab.chkCimke1[1] = false;
    service.refuseWith = 482;
    EXPECT_EQ(trouble({1}), "A nyomtató nem fogadja a munkát.");
    service.refuseWith = 0;
    prompts.answers = {Answer::no};
    EXPECT_EQ(trouble(std::vector<int>(20 * 6 - 5, 1)), "A nyomtatást nem kérted."); // 20 sheets
    const PrintDesk stopping{device, prompts, files, true, [](const PagesDone& pages) { return pages.done < 2; }};
    EXPECT_EQ(PrintAlloCimke(stopping, tabs, {{}, std::vector<int>(18, 1)}).pages, 0);
    EXPECT_EQ(count(), 40);
}

TEST_F(LabelSheet, ASheetWithoutPlacesEndsAtOnce) {
    for (const auto& [columns, rows] : {std::pair{0, 3}, {2, 0}, {-1, -1}, {-30000, 30000}}) {
        sheet.txtOszlop = static_cast<std::int16_t>(columns);
        sheet.txtSor = static_cast<std::int16_t>(rows);
        storeSheet();
        EXPECT_EQ(trouble({1, 2}), "A cimkelap oszlopai és sorai nincsenek rögzítve.");
    }
}

TEST_F(LabelSheet, TheLargestNumbersAreNoTrouble) {
    sheet.txtLeft = sheet.txtSzeles = Cur::fromTenThousandths(std::numeric_limits<std::int64_t>::max());
    sheet.lbKinyomottCimkeNum = std::numeric_limits<std::int32_t>::max();
    sheet.txtOszlop = sheet.txtSor = std::numeric_limits<std::int16_t>::max();
    storeSheet();
    EXPECT_EQ(print({1, 2, 3}).pages, 1);
    EXPECT_EQ(count(), std::numeric_limits<std::int32_t>::max());
}

} // namespace
