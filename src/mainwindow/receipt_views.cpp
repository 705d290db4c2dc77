#include "controls/named.h"
#include "mainwindow/form_views.h"
#include "mainwindow/receipt_rules.h"

#include <QLabel>

ReturnReceiptView::ReturnReceiptView(ReturnReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 105}) {
    const Rows form = rows();
    const Rows domestic = rows([&tab] { return !tab.foreign; });
    const Rows foreign = rows([&tab] { return tab.foreign; });
    onShow([this, foreign] {
        page()->setPicture(foreign.shown() ? QStringLiteral("KTerti.jpg") : QStringLiteral("Terti.jpg"));
    });
    form.option(tab.foreign, false, "opBelfold_0", {100, 2, 28, 4.4}, "Belföldi").runs(tab, opBelfold_Click);
    form.option(tab.foreign, true, "opBelfold_1", {130, 2, 28, 4.4}, "Küldöldi").runs(tab, opBelfold_Click);
    form.text(tab.txKudemenyAzonosito, "txKudemenyAzonosito", {19.6, 4.8, 75.4, 4.2}, "Küldeményazonosító")
        .at(foreign, {14.6, 15.8, 60.4, 4.2});
    form.text(tab.txNev2, "txNev2", {47.6, 22, 77.4, 3.9}, "Címzett neve").at(foreign, {14.6, 25, 64.4, 3.9});
    form.text(tab.txCim2_1, "txCim2_1", {47.6, 25.9, 77.4, 3.9}, "Címzett helysége")
        .at(foreign, {14.6, 28.9, 64.4, 3.9});
    form.text(tab.txCim2_2, "txCim2_2", {47.6, 29.8, 77.4, 3.9}, "Címzett címe").at(foreign, {14.6, 32.8, 64.4, 3.9});
    domestic.text(tab.txUgyfelAzonosito, "txUgyfelAzonosito", {99.6, 10.8, 62.4, 4.2}, "Ügyfélazonosító");
    domestic.text(tab.txUgyfelSajatJelzese, "txUgyfelSajatJelzese", {99.6, 35.8, 62.4, 4.2}, "Ügyfél saját jelzése");
    domestic.text(tab.txtTertiPosta, "txtTertiPosta", {19.6, 22, 25.4, 4.2}, "Felvevő posta");
    domestic.text(tab.txtTertiDatum, "txtTertiDatum", {19.6, 35, 25.4, 4.2}, "Felvétel kelte");
    form.label(tab.lbSajatNev2, "lbSajatNev2", {60, 59, 101, 3.9}).at(foreign, {85, 53, 76, 3.9});
    form.label(tab.lbSajatCim2_1, "lbSajatCim2_1", {60, 62.9, 101, 3.9}).at(foreign, {85, 61, 76, 3.9});
    form.label(tab.lbSajatCim2_2, "lbSajatCim2_2", {60, 66.8, 101, 3.9}).at(foreign, {85, 69, 76, 3.9});
    foreign.label(tab.lbSajatIrsz, "lbSajatIrsz", {85, 77, 76, 3.9});
    form.tick(tab.chkTPri, "chkTPri", {129.6, 19.2, 4, 4}, "Elsőbbségi", "Elsőbbségi").at(foreign, {38.2, 46, 4, 4});
    form.tick(tab.chkTSk, "chkTSk", {138.6, 19.2, 4, 4}, "Saját kézbe", "Saját kézbe").at(foreign, {12.2, 58, 4, 4});
    form.tick(tab.chkTUv, "chkTUv", {147.6, 19.2, 4, 4}, "Utánvét", "Utánvét, külföldi térti: ajánlott")
        .at(foreign, {12.2, 52, 4, 4});
    foreign.tick(tab.chkLevel, "chkLevel", {12.2, 46, 4, 4}, "Utánvét", "Levél");
    foreign.tick(tab.chkKCsomag, "chkKCsomag", {58.2, 46, 4, 4}, "Utánvét", "Csomag");
    form.mark(tab.chkTPri, "lbX_6", {129.6, 15, 4, 3.9}).at(foreign, {42.6, 46, 4, 3.9});
    form.mark(tab.chkTSk, "lbX_7", {138.6, 15, 4, 3.9}).at(foreign, {16.6, 58, 4, 3.9});
    form.mark(tab.chkTUv, "lbX_8", {147.6, 15, 4, 3.9}).at(foreign, {16.6, 52, 4, 3.9});
    foreign.mark(tab.chkLevel, "lbX_9", {16.6, 46, 4, 3.9});
    foreign.mark(tab.chkKCsomag, "lbX_10", {62.6, 46, 4, 3.9});
}

PostingReceiptView::PostingReceiptView(PostingReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 120}) {
    page()->setPicture(QStringLiteral("Feladoveveny.jpg"));
    const Rows form = rows();
    const Rows valued = rows([&tab] { return tab.chkErtek; });
    form.label(tab.lbSajatNev, "lbSajatNev", {35, 26, 72, 3.9});
    form.label(tab.lbSajatCim1, "lbSajatCim1", {35, 29.9, 72, 3.9});
    form.label(tab.lbSajatCim2, "lbSajatCim2", {35, 33.8, 72, 3.9});
    form.text(tab.txNev3, "txNev3", {34.6, 53, 72.4, 3.9}, "Címzett neve");
    form.text(tab.txCim3_1, "txCim3_1", {34.6, 56.9, 72.4, 3.9}, "Címzett helysége");
    form.text(tab.txCim3_2, "txCim3_2", {34.6, 60.8, 72.4, 3.9}, "Címzett címe");
    const Row value = valued.text(tab.txErtek, "txErtek", {119.6, 39.8, 36, 4.2}, "Értéknyilvánítás");
    valued.put(named(new QLabel(QStringLiteral("Ft")), "lbFt_0"), {156.6, 39.8, 6, 4.2});
    form.text(tab.txUtanvet, "txUtanvet", {119.6, 56.8, 36, 4.2}, "Utánvételi összeg (F2)");
    form.put(named(new QLabel(QStringLiteral("Ft")), "lbFt_1"), {156.6, 56.8, 6, 4.2});
    form.text(tab.txtFeladov1, "txtFeladov1", {133.6, 49.3, 27.4, 3.6}).hint("1. szabad sor");
    form.text(tab.txtFeladov2, "txtFeladov2", {116.6, 53, 44.4, 3.6}).hint("2. szabad sor");
    form.tick(tab.chkAjanlott, "chkAjanlott", {35.8, 41, 4, 4}, "Ajánlott", "Ajánlott");
    form.tick(tab.chkTerti, "chkTerti", {70.8, 41, 4, 4}, "Tértivevény", "Tértivevény");
    form.tick(tab.chkErtek, "chkErtek", {108.8, 41, 4, 4}, "Értéknyilvánítás", "Értéknyilvánítás")
        .then([&tab, box = value.widget()] {
            if (tab.chkErtek) box->setFocus();
        });
    form.tick(tab.chkHivIrat, "chkHivIrat", {35.8, 46, 4, 4}, "Hivatalos irat", "Hivatalos irat");
    form.tick(tab.chkCsomag, "chkCsomag", {70.8, 46, 4, 4}, "Csomag", "Csomag");
    struct Service {
        bool& value;
        const char* box;
        const char* mark;
        const char* tooltip;
    };
    const Service services[] = {
        {tab.chkSK, "chkSK", "lbX_0", "Saját kézbe"},
        {tab.chkPRI, "chkPRI", "lbX_1", "Elsőbbségi"},
        {tab.chkPL, "chkPL", "lbX_2", "Postai lezárás"},
        {tab.chkLEGI, "chkLEGI", "lbX_3", "e-értesítés"},
        {tab.chk5, "chk5", "lbX_4", "Levélszekrény útján nem kézbesíthető"},
        {tab.chk6, "chk6", "lbX_5", "kétszeri kézbesítési kísérlet"},
    };
    double x = 117.8;
    for (const Service& service : services) {
        form.tick(service.value, service.box, {x, 33.2, 4, 4}, service.tooltip, service.tooltip);
        form.mark(service.value, service.mark, {x - 0.3, 29, 4, 3.9});
        x += 6;
    }
}

DocumentReceiptView::DocumentReceiptView(DocumentReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 105}) {
    page()->setPicture(QStringLiteral("TertiIrat.jpg"));
    const Rows form = rows();
    form.text(tab.txtIratKuldAzonosito, "txtIratKuldAzonosito", {11.6, 2.8, 67.4, 4}, "Küldeményazonosító");
    form.text(tab.txtIratFelvPosta, "txtIratFelvPosta", {84.6, 3.8, 76.4, 4}, "Felvevő posta");
    const Row sender = form.text(tab.txtIratFelado[0], "txtIratFelado_0", {105.6, 8.9, 55.4, 3.6}, "Feladó neve");
    form.text(tab.txtIratFelado[1], "txtIratFelado_1", {105.6, 12.5, 55.4, 3.6}, "Feladó helysége");
    form.text(tab.txtIratFelado[2], "txtIratFelado_2", {105.6, 16.1, 55.4, 3.6}, "Feladó címe");
    form.text(tab.txtIratCimzettNev, "txtIratCimzettNev", {50.6, 22, 52.4, 3.5}, "Címzett neve");
    form.text(tab.txtIratCimzettHelyseg, "txtIratCimzettHelyseg", {50.6, 25.5, 52.4, 3.5}, "Címzett helysége");
    form.text(tab.txtIratCimzettUtca, "txtIratCimzettUtca", {50.6, 29, 52.4, 3.5}, "Címzett címe");
    form.text(tab.txtIratCimzettIrszam, "txtIratCimzettIrszam", {50.6, 32.5, 20, 3.5}, "Címzett irányítószáma");
    form.text(tab.txtIratSzama, "txtIratSzama", {105.6, 23.3, 41.4, 3.4}, "Irat száma");
    form.text(tab.txtIratFajtaja, "txtIratFajtaja", {105.6, 26.7, 41.4, 3.4}, "Irat fajtája");
    form.text(tab.txtIratMelleklet, "txtIratMelleklet", {105.6, 30.1, 41.4, 3.4}, "Irat melléklete");
    form.text(tab.txtIratErtesites, "txtIratErtesites", {145.6, 33.8, 15.8, 4}, "Otthagyandó értesítés");
    form.label(tab.lbIratFeladoNev, "lbIratFeladoNev", {80, 60, 81, 3.5});
    form.label(tab.lbIratFeladoCim1, "lbIratFeladoCim1", {80, 63.5, 81, 3.5});
    form.label(tab.lbIratFeladoCim2, "lbIratFeladoCim2", {80, 67, 81, 3.5});
    auto* code = named(new QLabel, "lbVkod");
    code->setTextFormat(Qt::PlainText);
    onShow([code, &tab] { code->setText(trimBlanks(tab.txtIratSzama).toString()); });
    rows([&tab] { return tab.chkVkod; }).put(code, {17, 8, 62, 9});
    form.check(tab.chkVisszaCimPrint[0], "chkVisszaCimPrint_0", {81, 79.2, 80, 4.4}, "Visszaküldési cím nyomtatása",
               "Kipipálva nyomtatja a visszaküldési címet.");
    form.check(tab.chkVisszaCimPrint[1], "chkVisszaCimPrint_1", {81, 84.2, 80, 4.4}, "Feladó nyomtatása",
               "Kipipálva nyomtatja a feladót");
    form.check(tab.chkVisszaCimPrint[2], "chkVisszaCimPrint_2", {81, 89.2, 80, 4.4},
               "Feladó azonos a visszaküldési címmel", "Kipipálva a feladó neve és címe azonos a visszaküldési címmel")
        .runs(tab, chkVisszaCimPrint_Click)
        .then([&tab, box = sender.widget()] {
            if (!tab.chkVisszaCimPrint[2]) box->setFocus();
        });
    form.check(tab.chkVkod, "chkVkod", {81, 94.2, 80, 4.4}, "Vonalkód",
               "Vonalkód nyomtatása, amennyiben van vonalkód betűtípus telepítve!");
}
