#include "printing/document_receipt.h"

#include "check_fixture.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

DocumentReceiptTab filledTab() {
    DocumentReceiptTab tab;
    std::tie(tab.txtIratCimzettNev, tab.txtIratCimzettHelyseg, tab.txtIratCimzettUtca, tab.txtIratCimzettIrszam) =
        std::tuple(u" Kiss Éva "_s, u" Győr "_s, u" Fő út 2. "_s, u"9021  "_s);
    std::tie(tab.lbIratFeladoNev, tab.lbIratFeladoCim1, tab.lbIratFeladoCim2) =
        std::tuple(u"Vissza Kft.  "_s, u"1024 Budapest  "_s, u" Tér 3. "_s);
    tab.txtIratFelado = {u" saját név "_s, u" saját hely "_s, u" saját utca "_s};
    std::tie(tab.txtIratSzama, tab.txtIratFajtaja, tab.txtIratMelleklet) =
        std::tuple(u" *12/A* "_s, u" végzés "_s, u" 2 lap "_s);
    std::tie(tab.txtIratErtesites, tab.txtIratFelvPosta, tab.txtIratKuldAzonosito) =
        std::tuple(u" ért. "_s, u" Posta 1 "_s, u" RL 7 "_s);
    tab.chkVisszaCimPrint = {true, true, false};
    tab.chkVkod = true;
    return tab;
}

class DocumentReceipt : public CheckTest {
protected:
    DocumentReceiptTab& tab = tabs.documentReceipt = filledTab();
    SetIrat2 form = SetIrat2::factory();

    DocumentReceipt() {
        service.knownFonts << u"Kód 39"_s;
        form.txtIratTertiBetuMeret = 10;
        form.cmbVkodBetutipus.set(u"Kód 39");
        form.txtVkodMeret = 20;
        files.store(form);
        auto address = SetTerti::factory();
        address.txtTertiVisszakuldNev.set(u" Hivatal");
        address.txtTertiVisszakuldCim1.set(u" Pécs ");
        address.txtTertiVisszakuldCim2.set(u" Fő tér 1.");
        address.txtTertiVisszakuldIrsz.set(u" 7621");
        files.store(address);
        TwinRec twin = blankTwin();
        twin.IratSzama.set(u" 99/B");
        twin.IratFajtaja.set(u"határozat");
        twin.IratMelleklet.set(u"3 lap");
        addClient(clientNamed(u"Nagy Áron"_s), twin);
        addClient(clientNamed(u"Kis Béla"_s));
    }
};

TEST_F(DocumentReceipt, TabAndRecordsFillTheSameBoxes) {
    EXPECT_EQ(print(PrintAlloIrat).trouble, QString());
    EXPECT_EQ(page(), "106 22 T|Kiss Éva; 106 26 T|Győr; 106 30 T|Fő út 2.; 106 34 T|9021; 135 60 T|Vissza Kft.; "
                      "135 64 T|1024 Budapest; 135 68 T|Tér 3.; 161 9 T|saját név; 161 13 T|saját hely; "
                      "161 17 T|saját utca; 72 8 20 Kód 39|*12/A*; 161 24 T|*12/A*; 161 27 T|végzés; "
                      "161 30 T|2 lap; 201 34 T|ért.; 140 4 T|Posta 1; 67 3 T|RL 7");
    EXPECT_EQ(print(PrintCsFekvoIrat, {2, 1}).pages, 2);
    EXPECT_EQ(page(1), "71 19 T|Nagy Áron; 71 23 T|Budapest; 71 27 T|Fő utca 1.; 71 31 T|1024; 100 57 T|Hivatal; "
                       "100 61 T|Pécs; 100 65 T|Fő tér 1.; 100 69 T|7621; 126 6 T|Hivatal; 126 10 T|7621 Pécs; "
                       "126 14 T|Fő tér 1.; 37 5 20 Kód 39|99/B; 126 21 T|99/B; 126 24 T|határozat; "
                       "126 27 T|3 lap; 166 31 T|ért.; 105 1 T|Posta 1; 32 0 T|RL 7");
    // What the tab shows of a document is another client's.
    EXPECT_EQ(page(0, u"20 Kód"_s) + page(0, u"126 2"_s), "");
}

TEST_F(DocumentReceipt, SwitchesLeaveTheirRowsOut) {
    print(PrintFekvoIrat);
    const QStringList all = lines();
    const std::tuple<bool*, qsizetype, qsizetype> switches[] = {
        {&tab.chkVisszaCimPrint[0], 4, 3}, {&tab.chkVisszaCimPrint[1], 7, 3}, {&tab.chkVkod, 10, 1}};
    for (const auto& [box, first, count] : switches) {
        *box = false;
        print(PrintFekvoIrat);
        *box = true;
        EXPECT_EQ(page(), joined(all.mid(0, first) + all.mid(first + count)));
    }
}

TEST_F(DocumentReceipt, WithoutItsFontTheBarCodeIsAPlainNumber) {
    for (const char16_t* font : {u"", u"Nincs ilyen"}) {
        form.cmbVkodBetutipus.set(font);
        files.store(form);
        EXPECT_EQ(print(PrintCsAlloIrat, {1}).trouble,
                  u"A vonalkód helyén csak a szám áll, mert a vonalkód betűtípusa hiányzik."_s);
        EXPECT_EQ(page(0, u"99/B"_s), "72 8 20 Times New Roman CE|99/B; 161 24 T|99/B");
    }
    EXPECT_TRUE(prompts.told.empty());
}

} // namespace
