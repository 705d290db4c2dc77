#include "printing/return_receipt.h"

#include "check_fixture.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ReturnReceiptTab filledTab() {
    ReturnReceiptTab tab;
    std::tie(tab.txNev2, tab.txCim2_1, tab.txCim2_2) = std::tuple(u" Cél Zrt. "_s, u"9021   Győr "_s, u" Duna út 9."_s);
    std::tie(tab.txtTertiPosta, tab.txtTertiDatum) = std::tuple(u" Győr 1 "_s, u" május 1."_s);
    std::tie(tab.txKudemenyAzonosito, tab.txUgyfelAzonosito, tab.txUgyfelSajatJelzese) =
        std::tuple(u" RL 1 "_s, u"AZ-1 "_s, u" jel"_s);
    tab.chkTPri = tab.chkTSk = tab.chkTUv = true;
    return tab;
}

class ReturnReceipt : public CheckTest {
protected:
    ReturnReceiptTab& tab = tabs.returnReceipt = filledTab();
    SetTerti terti = SetTerti::factory();

    ReturnReceipt() {
        terti.txtTertiVisszakuldNev.set(u"Küldő Kft.");
        terti.txtTertiVisszakuldCim1.set(u"Pécs");
        terti.txtTertiVisszakuldCim2.set(u"Tér 3.");
        terti.txtTertiVisszakuldIrsz.set(u"7621");
        files.store(terti);
        ClientRec client = clientNamed(u"Nagy Áron"_s);
        client.Azonosito.set(u" KÓD 7");
        TwinRec twin = blankTwin();
        twin.KuldemenyAzonosito.set(u" RL 2");
        twin.SajatJelzes.set(u" saját");
        addClient(client, twin);
        client.Kulfoldi = true; // of no account here
        client.Nev2.set(u"Fleet Street 1");
        addClient(client, twin);
    }
    // The rows of a form with the texts of the tab, or of the second client.
    static std::string filled(const char* rows, bool batch) {
        const QStringList texts =
            batch ? QStringList{u"Nagy Áron"_s, u"1024 Budapest"_s, u"Fő utca 1."_s, u"RL 2"_s, u"KÓD 7"_s, u"saját"_s}
                  : QStringList{u"Cél Zrt."_s, u"9021   Győr"_s, u"Duna út 9."_s, u"RL 1"_s, u"AZ-1"_s, u"jel"_s};
        QString filled = QString::fromUtf8(rows);
        for (qsizetype k = 0; k < texts.size(); ++k)
            filled.replace(u"%%1"_s.arg(k + 1), texts[k]);
        return filled.toStdString();
    }
};

TEST_F(ReturnReceipt, EveryRunPrintsTheVariantOfTheTab) {
    tab.chkLevel = tab.chkKCsomag = true;
    const struct {
        const char* name;
        Routine routine;
        bool batch, foreign;
        const char* rows;
    } runs[] = {
        {"domestic upright", PrintAlloTerti, false, false,
         "176 72 T|%1; 176 76 T|%2; 176 80 T|%3; 148 71 T|Győr 1; 148 81 T|május 1.; 148 52 T|%4; 228 60 T|%5; "
         "228 85 T|%6; 188 106 T|Küldő Kft.; 188 110 T|Pécs; 188 114 T|Tér 3.; 188 118 T|7621; 257 65 T|X; "
         "266 65 T|X; 275 65 T|X"},
        {"domestic sideways batch", PrintCsFekvoTerti, true, false,
         "68 22 T|%1; 68 26 T|%2; 68 30 T|%3; 40 22 T|Győr 1; 40 35 T|május 1.; 40 5 T|%4; 120 11 T|%5; "
         "120 36 T|%6; 80 59 T|Küldő Kft.; 80 63 T|Pécs; 80 67 T|Tér 3.; 80 71 T|7621; 150 15 T|X; 159 15 T|X; "
         "168 15 T|X"},
        {"foreign upright", PrintAlloTerti, false, true,
         "123 72 T|%1; 123 76 T|%2; 123 80 T|%3; 123 63 T|%4; 223 100 T|Küldő Kft.; 223 108 T|Pécs; 223 116 T|Tér 3.; "
         "223 124 T|7621; 181 93 T|X; 155 105 T|X; 155 99 T|X; 155 93 T|X; 201 93 T|X"},
        {"foreign upright batch", PrintCsAlloTerti, true, true,
         "123 72 T|%1; 123 76 T|%2; 123 80 T|%3; 223 103 T|Küldő Kft.; 223 111 T|Pécs; 223 119 T|Tér 3.; "
         "223 127 T|7621; 181 96 T|X; 155 108 T|X; 155 102 T|X; 155 96 T|X; 201 96 T|X"},
        {"foreign sideways", PrintFekvoTerti, false, true,
         "35 25 T|%1; 35 29 T|%2; 35 33 T|%3; 40 16 T|%4; 110 53 T|Küldő Kft.; 110 61 T|Pécs; 110 69 T|Tér 3.; "
         "110 77 T|7621; 59 46 T|X; 33 58 T|X; 33 52 T|X; 33 46 T|X; 79 46 T|X"},
        {"foreign sideways batch", PrintCsFekvoTerti, true, true,
         "35 25 T|%1; 35 29 T|%2; 35 33 T|%3; 110 53 T|Küldő Kft.; 110 61 T|Pécs; 110 69 T|Tér 3.; 110 77 T|7621; "
         "59 46 T|X; 33 58 T|X; 33 52 T|X; 33 46 T|X; 79 46 T|X"},
    };
    for (const auto& run : runs) {
        SCOPED_TRACE(run.name);
        tab.foreign = run.foreign;
        ASSERT_EQ(print(run.routine).pages, run.batch ? 2 : 1);
        EXPECT_EQ(unpadded(run.batch ? 1 : 0), filled(run.rows, run.batch));
        EXPECT_EQ(lines().filter(u"|Küldő"_s).at(0).section(u'|', 1), u"Küldő Kft."_s.leftJustified(40));
    }
}

TEST_F(ReturnReceipt, EachBoxHasItsMark) {
    const struct {
        bool ReturnReceiptTab::*box;
        std::string domestic, foreign;
    } marks[] = {{&ReturnReceiptTab::chkTPri, "150 15 T|X", "59 46 T|X"},
                 {&ReturnReceiptTab::chkTSk, "159 15 T|X", "33 58 T|X"},
                 {&ReturnReceiptTab::chkTUv, "168 15 T|X", "33 52 T|X"},
                 {&ReturnReceiptTab::chkLevel, "", "33 46 T|X"},
                 {&ReturnReceiptTab::chkKCsomag, "", "79 46 T|X"}};
    for (const auto& mark : marks) {
        tab = {};
        tab.*mark.box = true;
        for (const std::string& place : {mark.domestic, mark.foreign}) {
            print(PrintFekvoTerti);
            EXPECT_EQ(page(0, u"|X"_s), place);
            tab.foreign = true;
        }
    }
}

} // namespace
