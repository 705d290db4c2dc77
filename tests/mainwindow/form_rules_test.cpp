#include "mainwindow/catalogue_lists.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/receipt_rules.h"
#include "records/record_file.h"
#include "records/reference_records.h"
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

QString wide(const char16_t* text, int width = 40) { return QString::fromUtf16(text).leftJustified(width); }

TEST(ReceiptRules, ReturnAddressFollowsDomesticOrForeign) {
    ReturnReceiptTab tab;
    tab.foreign = true;
    tab.chkLevel = tab.chkKCsomag = tab.chkTUv = true;
    opBelfold_Click(tab, returnAddress());
    EXPECT_EQ(tab.lbSajatNev2, wide(u"Hivatal"));
    EXPECT_EQ(tab.lbSajatCim2_1, wide(u"Eger"));
    EXPECT_EQ(tab.lbSajatCim2_2, wide(u"Kossuth u. 3."));
    EXPECT_EQ(tab.lbSajatIrsz, wide(u"3300", 10));
    EXPECT_TRUE(tab.chkLevel && tab.chkKCsomag);

    tab.foreign = false;
    opBelfold_Click(tab, returnAddress());
    EXPECT_EQ(tab.lbSajatCim2_1, QStringLiteral("3300 ") + wide(u"Eger"));
    EXPECT_EQ(tab.lbSajatIrsz, QString());
    EXPECT_FALSE(tab.chkLevel || tab.chkKCsomag); // hidden ticks would print
    EXPECT_TRUE(tab.chkTUv);
}

TEST(ReceiptRules, DocumentSenderIsTheReturnAddressWhileTicked) {
    DocumentReceiptTab tab;
    tab.txtIratFelado = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    reload(tab, returnAddress());
    EXPECT_EQ(tab.lbIratFeladoCim1, QStringLiteral("3300 ") + wide(u"Eger"));
    EXPECT_EQ(tab.txtIratFelado[1], QStringLiteral("b"));

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
    EXPECT_EQ((QStringList{tab.txtLeft, tab.txtTop, tab.txtOszlop, tab.txtSor, tab.txtSzeles, tab.txtMagas,
                           tab.lbKinyomottCimkeNum}),
              (QStringList{QStringLiteral("5"), QStringLiteral("5"), QStringLiteral("2"), QStringLiteral("6"),
                           QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("7")}));
    EXPECT_FALSE(cmdCimkeMeretRogzites_Click(tab, set));
    EXPECT_EQ(set.txtLeft, Cur(5));
    EXPECT_EQ(set.txtTop, Cur(5));
    EXPECT_EQ(set.txtOszlop, 2);
    EXPECT_EQ(set.txtSor, 6);
    EXPECT_EQ(set.txtSzeles, Cur(105));
    EXPECT_EQ(set.txtMagas, Cur::fromText(u"49.5"));
    EXPECT_EQ(set.lbKinyomottCimkeNum, 7);
    EXPECT_EQ(labelGrid(tab).columns * labelGrid(tab).rows, 12);
}

struct Sheet {
    const char16_t *columns, *rows, *left, *height;
    const char16_t* message; // null: stored
    const char* storedHeight;
};

TEST(LabelRules, FixingTheSheetTakesTheGridOrRefusesIt) {
    const Sheet sheets[] = {
        {u"4", u"10", u"5", u"1", nullptr, "29.7"},
        {u"3", u"7", u"5", u"1", nullptr, "42.4286"},
        {u"3", u"2", u"5,5", u"140.5", nullptr, "140.5"}, // with few rows the typed height stands
        {u"5", u"6", u"5", u"1", u"Az oszlopok száma nem lehet több HÁROMNÁL!", ""},
        {u"2", u"11", u"5", u"1", u"A sorok száma nem lehet több NYOLCNÁL!", ""},
        {u"2", u"2", u"5", u"sok", u"A cimkék helye és mérete csak szám lehet (mm)!", ""},
        {u"2", u"6", u"", u"1", u"A cimkék helye és mérete csak szám lehet (mm)!", ""},
    };
    for (const Sheet& sheet : sheets) {
        SCOPED_TRACE(QString::fromUtf16(sheet.columns).toStdString() + "x" +
                     QString::fromUtf16(sheet.rows).toStdString());
        LabelTab tab;
        auto set = zeroRecord<CimkeSetup>();
        showSheet(tab, set);
        tab.txtOszlop = QString::fromUtf16(sheet.columns);
        tab.txtSor = QString::fromUtf16(sheet.rows);
        tab.txtLeft = QString::fromUtf16(sheet.left);
        tab.txtMagas = QString::fromUtf16(sheet.height);
        tab.chkCimke1[3] = true;
        tab.cimkeRekord[3] = 9;
        const auto message = cmdCimkeMeretRogzites_Click(tab, set);
        EXPECT_FALSE(tab.chkCimke1[3]); // even when refused
        EXPECT_EQ(tab.cimkeRekord[3], 0);
        EXPECT_EQ(tab.captions[3], QStringLiteral("4"));
        ASSERT_EQ(message.has_value(), sheet.message != nullptr);
        if (message) {
            EXPECT_EQ(message->text, QString::fromUtf16(sheet.message));
            EXPECT_EQ(message->title, QStringLiteral("Figyelem!"));
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
    tab.txtMagas = QStringLiteral("30");
    tab.cimkeRekord[1] = 5;
    tab.captions[1] = QStringLiteral("Kiss Anna");
    layOutSheet(tab);
    EXPECT_EQ(labelGrid(tab).columns, 4);
    EXPECT_EQ(labelGrid(tab).rows, 9);
    EXPECT_EQ(tab.txtSzeles + u'x' + tab.txtMagas, QStringLiteral("50x30"));
    EXPECT_EQ(tab.captions[1], QStringLiteral("Kiss Anna")); // who will print there
    EXPECT_EQ(tab.captions[2], QStringLiteral("3"));
}

TEST(LabelRules, PlacesFollowTheirClientsThroughADeletion) {
    LabelTab tab;
    layOutSheet(tab);
    for (const std::size_t place : {0U, 1U, 2U}) {
        tab.chkCimke1[place] = true;
        tab.cimkeRekord[place] = static_cast<int>(place) + 4;
        tab.captions[place] = QStringLiteral("ügyfél");
    }
    dropClient(tab, 5);
    EXPECT_EQ(tab.cimkeRekord[0], 4);
    EXPECT_EQ(tab.cimkeRekord[1], 0);
    EXPECT_EQ(tab.cimkeRekord[2], 5);
    EXPECT_EQ(tab.captions[1], QStringLiteral("2"));
    EXPECT_EQ(tab.captions[2], QStringLiteral("ügyfél"));
    EXPECT_TRUE(tab.chkCimke1[0] && !tab.chkCimke1[1] && tab.chkCimke1[2]);
    clearCells(tab);
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

template<class Entry>
void storeEntry(const TestFolder& folder, qint64 k, QStringView text) {
    auto entry = zeroRecord<Entry>();
    entry.Szoveg.set(text);
    folder.store(entry, k);
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

    storeEntry<TitleEntry>(folder, 1, u"Tagdíj");
    storeEntry<SecondTitleEntry>(folder, 1, u"Fiz. hat.:");
    storeEntry<SecondTitleEntry>(folder, 2, u"Fiz. hat.: azonnal");
    storeEntry<NoticeEntry>(folder, 1, u"Köszönjük");
    EXPECT_EQ(titleList(folder), QStringList{QStringLiteral("Tagdíj")});
    EXPECT_EQ(secondTitleList(folder, today, hungarian),
              (QStringList{QStringLiteral("Fiz. hat.:2024. 03. 06."), QStringLiteral("Fiz. hat.: azonnal")}));
    EXPECT_EQ(noticeList(folder), (QStringList{QString(), wide(u"Köszönjük", 25)}));
}

} // namespace
