#include "printing/posting_receipt.h"

#include "check_fixture.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// In the order in which they print.
constexpr bool PostingReceiptTab::*marks[] = {
    &PostingReceiptTab::chkAjanlott, &PostingReceiptTab::chkCsomag, &PostingReceiptTab::chkTerti,
    &PostingReceiptTab::chkHivIrat,  &PostingReceiptTab::chkErtek,  &PostingReceiptTab::chkSK,
    &PostingReceiptTab::chkPRI,      &PostingReceiptTab::chkPL,     &PostingReceiptTab::chkLEGI,
    &PostingReceiptTab::chk5,        &PostingReceiptTab::chk6,
};

PostingReceiptTab filledTab() {
    PostingReceiptTab tab;
    std::tie(tab.txNev3, tab.txCim3_1, tab.txCim3_2) =
        std::tuple(u" Kiss Éva "_s, u" 2162   Őrbottyán "_s, u" Fő út 2. "_s);
    std::tie(tab.lbSajatNev, tab.lbSajatCim1, tab.lbSajatCim2) =
        std::tuple(u"Feladó Kft.   "_s, u"1024 Budapest  "_s, u" Tér 3. "_s);
    std::tie(tab.txErtek, tab.txUtanvet) = std::tuple(u" 5000 "_s, u" 700 "_s);
    std::tie(tab.txtFeladov1, tab.txtFeladov2) = std::tuple(u" egy "_s, u" kettő "_s);
    for (bool PostingReceiptTab::*mark : marks)
        tab.*mark = true;
    return tab;
}

class PostingReceipt : public CheckTest {
protected:
    PostingReceiptTab& tab = tabs.postingReceipt = filledTab();
    SetFveveny form = SetFveveny::factory();

    PostingReceipt() {
        files.store(form);
        addClient(clientNamed(u"Nagy Áron"_s, 1234));
        addClient(clientNamed(u"Kis Béla"_s));
    }
};

const char* const sidewaysMarks = "56 41 T|X; 91 46 T|X; 91 41 T|X; 56 46 T|X; 129 41 T|X; 138 29 T|X; 144 29 T|X; "
                                  "150 29 T|X; 156 29 T|X; 162 29 T|X; 168 29 T|X";

TEST_F(PostingReceipt, ABatchTakesAddresseesAloneFromTheRecords) {
    EXPECT_EQ(print(PrintAlloFelado).trouble, QString());
    EXPECT_EQ(page(), "87 46 T|Kiss Éva; 87 50 T|2162   Őrbottyán; 87 54 T|Fő út 2.; 87 19 T|Feladó Kft.; "
                      "87 23 T|1024 Budapest; 87 27 T|Tér 3.; 172 35 T|5000; 172 52 T|700; "
                      "186 50 8 Times New Roman CE|egy; 169 53 8 Times New Roman CE|kettő; 88 35 T|X; 123 40 T|X; "
                      "123 35 T|X; 88 40 T|X; 161 35 T|X; 170 23 T|X; 176 23 T|X; 182 23 T|X; 188 23 T|X; 194 23 T|X; "
                      "200 23 T|X");
    EXPECT_EQ(print(PrintCsFekvoFelado, {2, 1}).pages, 2);
    EXPECT_EQ(page(0, u"Kis B"_s), "55 52 T|Kis Béla");
    EXPECT_EQ(page(1), "55 52 T|Nagy Áron; 55 56 T|1024   Budapest; 55 60 T|Fő utca 1.; 55 25 T|Feladó Kft.; "
                       "55 29 T|1024 Budapest; 55 33 T|Tér 3.; 140 40 T|5000; 140 57 T|700; "
                       "154 50 8 Times New Roman CE|egy; 137 53 8 Times New Roman CE|kettő; " +
                           std::string(sidewaysMarks));
}

TEST_F(PostingReceipt, EachBoxTicksItsOwnMark) {
    const QStringList all = QString::fromLatin1(sidewaysMarks).split(u"; "_s);
    for (qsizetype i = 0; i < all.size(); ++i) {
        tab = PostingReceiptTab{};
        tab.*marks[i] = true;
        print(PrintFekvoFelado);
        EXPECT_EQ(page(), all[i].toStdString());
    }
}

TEST_F(PostingReceipt, AValueWhoseBoxIsHiddenPrintsAndIsTold) {
    tab.chkErtek = false;
    EXPECT_EQ(print(PrintCsFekvoFelado).trouble, u"A rejtett érték is nyomtatva: 5000"_s);
    EXPECT_EQ(page(1, u"5000"_s), "140 40 T|5000");
    tab.txErtek = u"  "_s;
    EXPECT_EQ(print(PrintAlloFelado).trouble, QString());
}

TEST_F(PostingReceipt, AnUnknownFontFallsBackInItsSize) {
    form.cmbFeladovevenyBetuTipus.set(u"Nincs ilyen");
    files.store(form);
    EXPECT_EQ(print(PrintAlloFelado).trouble, u"A betűtípus nem használható: Nincs ilyen, 10 pont"_s);
    EXPECT_EQ(page(0, u"Éva"_s) + page(0, u"egy"_s), "87 46 10 Times New Roman|Kiss Éva186 50 8 Times New Roman|egy");
}

} // namespace
