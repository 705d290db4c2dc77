#include "joined_texts.h"
#include "mainwindow/catalogue_lists.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/label_cells.h"
#include "mainwindow/receipt_rules.h"
#include "records/catalogue.h"
#include "records/record_file.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

SetTerti returnAddress() {
    auto set = zeroRecord<SetTerti>();
    set.txtTertiVisszakuldNev.set(u"Hivatal");
    set.txtTertiVisszakuldCim1.set(u"Eger");
    set.txtTertiVisszakuldCim2.set(u"Kossuth u. 3.");
    set.txtTertiVisszakuldIrsz.set(u"3300");
    return set;
}

TEST(ReceiptRules, ReturnAddressFollowsDomesticOrForeign) {
    ReturnReceiptTab tab;
    tab.foreign = true;
    tab.chkLevel = tab.chkKCsomag = tab.chkTUv = true;
    opBelfold_Click(tab, returnAddress());
    EXPECT_EQ(joined({tab.lbSajatNev2, tab.lbSajatCim2_1, tab.lbSajatCim2_2, tab.lbSajatIrsz}),
              "Hivatal~40|Eger~40|Kossuth u. 3.~40|3300~10");
    EXPECT_TRUE(tab.chkLevel && tab.chkKCsomag);

    tab.foreign = false;
    opBelfold_Click(tab, returnAddress());
    EXPECT_EQ(joined({tab.lbSajatCim2_1, tab.lbSajatIrsz}), "3300 Eger~45|");
    EXPECT_FALSE(tab.chkLevel || tab.chkKCsomag); // hidden ticks would print
    EXPECT_TRUE(tab.chkTUv);
}

TEST(ReceiptRules, DocumentSenderIsTheReturnAddressWhileTicked) {
    DocumentReceiptTab tab;
    tab.txtIratFelado = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    reload(tab, returnAddress());
    EXPECT_EQ(joined({tab.lbIratFeladoCim1, tab.txtIratFelado[1]}), "3300 Eger~45|b");
    tab.chkVisszaCimPrint[2] = true;
    chkVisszaCimPrint_Click(tab);
    const std::array<QString, 3> address{tab.lbIratFeladoNev, tab.lbIratFeladoCim1, tab.lbIratFeladoCim2};
    EXPECT_EQ(tab.txtIratFelado, address);
    tab.txtIratFelado[0] = QStringLiteral("kézzel");
    reload(tab, returnAddress());
    EXPECT_EQ(tab.txtIratFelado, address);

    tab.chkVisszaCimPrint[2] = false;
    chkVisszaCimPrint_Click(tab);
    EXPECT_EQ(tab.txtIratFelado, (std::array<QString, 3>{}));
}

TEST(LabelRules, FirstVisitStoresTheFallbacks) {
    LabelTab tab;
    auto set = zeroRecord<CimkeSetup>();
    set.lbKinyomottCimkeNum = 7;
    showSheet(tab, set);
    EXPECT_EQ(joined({tab.txtLeft, tab.txtTop, tab.txtOszlop, tab.txtSor, tab.txtSzeles, tab.txtMagas,
                      tab.lbKinyomottCimkeNum}),
              "5|5|2|6|0|0|7");
    EXPECT_FALSE(cmdCimkeMeretRogzites_Click(tab, set));
    EXPECT_EQ(joined({set.txtLeft.text(), set.txtTop.text(), set.txtSzeles.text(), set.txtMagas.text()}),
              "5|5|105|49.5");
    EXPECT_EQ(set.txtOszlop * 100 + set.txtSor * 10 + set.lbKinyomottCimkeNum, 267);
    EXPECT_EQ(labelGrid(tab).columns * labelGrid(tab).rows, 12);
}

TEST(LabelRules, FixingTheSheetTakesTheGridOrRefusesIt) {
    const struct {
        const char *columns, *rows, *left, *height;
        const char *message, *storedHeight; // one of them
    } sheets[] = {
        {"4", "10", "5", "1", nullptr, "29.7"},
        {"3", "7", "5", "1", nullptr, "42.4286"},
        {"3", "2", "5,5", "140.5", nullptr, "140.5"}, // with few rows the typed height stands
        {"1", "1", " 0.5 ", "99,5", nullptr, "99.5"},
        {"5", "6", "5", "1", "Figyelem!|Az oszlopok száma nem lehet több HÁROMNÁL!", ""},
        {"2", "11", "5", "1", "Figyelem!|A sorok száma nem lehet több NYOLCNÁL!", ""},
        {"0", "6", "5", "1", "Figyelem!|Az oszlopok és a sorok száma legalább 1 legyen!", ""},
        {"2", "-1", "5", "1", "Figyelem!|Az oszlopok és a sorok száma legalább 1 legyen!", ""},
        {"2", "2", "5", "sok", "Hiba|Hibás szám: ''sok''\nIde csak szám írható!", ""},
        {"2", "6", "", "sok", "Hiba|Hibás szám: ''''\nIde csak szám írható!", ""}, // the height is worked out here
        {"2", "6", "1.2.3", "1", "Hiba|Hibás szám: ''1.2.3''\nIde csak szám írható!", ""},
        {"2.5", "6", "5", "1", "Hiba|Hibás szám: ''2.5''\nIde csak szám írható!", ""},
        {"2", "32768", "5", "1", "Hiba|Hibás szám: ''32768''\nIde csak szám írható!", ""},
    };
    for (const auto& sheet : sheets) {
        SCOPED_TRACE(std::string(sheet.columns) + 'x' + sheet.rows);
        LabelTab tab;
        auto set = zeroRecord<CimkeSetup>();
        showSheet(tab, set);
        tab.txtOszlop = QLatin1String(sheet.columns);
        tab.txtSor = QLatin1String(sheet.rows);
        tab.txtLeft = QLatin1String(sheet.left);
        tab.txtMagas = QLatin1String(sheet.height);
        tab.chkCimke1[3] = true;
        tab.cimkeRekord[3] = 9;
        const auto message = cmdCimkeMeretRogzites_Click(tab, set);
        EXPECT_FALSE(tab.chkCimke1[3]); // even when refused
        EXPECT_EQ(tab.cimkeRekord[3], 0);
        EXPECT_EQ(tab.captions[3], QStringLiteral("4"));
        ASSERT_EQ(message.has_value(), sheet.message != nullptr);
        if (message) {
            EXPECT_EQ(joined(*message), sheet.message);
            EXPECT_EQ(set.txtOszlop, 0);
        } else {
            EXPECT_EQ(set.txtMagas.text(), QLatin1String(sheet.storedHeight));
        }
    }
}

TEST(LabelRules, OpeningTheTabShowsTheBoxesWithoutStoring) {
    LabelTab tab;
    showSheet(tab, zeroRecord<CimkeSetup>());
    tab.txtOszlop = QStringLiteral("4");
    tab.txtSor = QStringLiteral("9");
    tab.txtSzeles = QStringLiteral("50");
    tab.cimkeRekord[1] = 5;
    tab.captions[1] = QStringLiteral("Kiss Anna");
    layOutSheet(tab);
    EXPECT_EQ(labelGrid(tab).columns * 10 + labelGrid(tab).rows, 49);
    EXPECT_EQ(joined({tab.txtSzeles, tab.captions[1], tab.captions[2]}), "50|Kiss Anna|3"); // who will print there
}

TEST(LabelRules, PlacesFollowTheirClients) {
    LabelTab tab;
    layOutSheet(tab);
    for (const std::size_t place : {0U, 1U, 2U}) {
        tab.chkCimke1[place] = true;
        tab.cimkeRekord[place] = static_cast<int>(place) + 4;
        tab.captions[place] = QStringLiteral("ügyfél");
    }
    const TestFolder folder;
    folder.store(clientNamed(QStringLiteral("Új Név")), 4);
    followClients(tab, {ClientsChanged::removed, 5}, folder);
    followClients(tab, {ClientsChanged::modified, 4}, folder);
    EXPECT_EQ(tab.cimkeRekord, (std::array<int, 40>{4, 0, 5}));
    EXPECT_EQ(joined({tab.captions[0], tab.captions[1], tab.captions[2]}), "Új Név|2|ügyfél");
    EXPECT_TRUE(tab.chkCimke1[0] && !tab.chkCimke1[1] && tab.chkCimke1[2]);
    followClients(tab, {ClientsChanged::replaced}, folder);
    EXPECT_EQ(tab.cimkeRekord, (std::array<int, 40>{}));
    EXPECT_EQ(tab.chkCimke1, (std::array<bool, 40>{}));
}

TEST(LabelRules, PreviewDropsAPostcodeThatIsNoNumber) {
    for (const auto& [stored, shown] : {std::pair{u"1024", u"1024  "}, {u"0", u""}, {u"", u""}, {u"D-1011", u""}}) {
        LabelTab tab;
        ClientRec client = clientNamed(QStringLiteral("A"));
        client.Irsz.set(stored);
        showClient(tab, client);
        EXPECT_EQ(tab.lbIrsz, QString::fromUtf16(shown));
    }
}

TEST(CatalogueLists, OfferTheEntriesAndTheDeadline) {
    const TestFolder folder;
    const QLocale hungarian(QLocale::Hungarian, QLocale::Hungary);
    const QDate today(2024, 2, 25);
    EXPECT_EQ(titleList(folder), QStringList());
    EXPECT_EQ(secondTitleList(folder, today, hungarian), QStringList());
    EXPECT_EQ(noticeList(folder), QStringList{QString()});
    EXPECT_TRUE(folder.has(QStringLiteral("Jogcimek.dat")) && folder.has(QStringLiteral("Jogcimek2.dat")) &&
                folder.has(QStringLiteral("Kozlem.dat")));

    const auto appendTo = [&](const Catalogue& catalogue, QStringView text) {
        EXPECT_TRUE(appendEntry(folder, catalogue, text));
    };
    appendTo(firstTitleLines, u"Tagdíj");
    appendTo(secondTitleLines, u"Fiz. hat.:");
    appendTo(secondTitleLines, u"Fiz. hat.: azonnal");
    appendTo(notices, u"Köszönjük");
    EXPECT_EQ(joined(titleList(folder)), "Tagdíj");
    EXPECT_EQ(joined(secondTitleList(folder, today, hungarian)), "Fiz. hat.:2024. 03. 06.|Fiz. hat.: azonnal");
    EXPECT_EQ(joined(noticeList(folder)), "|Köszönjük~25");
}

} // namespace
