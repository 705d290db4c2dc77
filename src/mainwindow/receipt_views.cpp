#include "mainwindow/form_views.h"
#include "mainwindow/receipt_rules.h"
#include "records/record_file.h"
#include "settings/receipt_layouts.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

ReturnReceiptView::ReturnReceiptView(ReturnReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 105})
    , tab_(tab) {
    addOption(
        "opBelfold_0", {100, 2, 28, 4.4}, "", "Belföldi", [&tab] { return !tab.foreign; },
        [&tab] { tab.foreign = false; });
    addOption(
        "opBelfold_1", {130, 2, 28, 4.4}, "", "Küldöldi", [&tab] { return tab.foreign; },
        [&tab] { tab.foreign = true; });
    addTexts({{tab.txKudemenyAzonosito, "txKudemenyAzonosito", {}, "Küldeményazonosító"},
              {tab.txNev2, "txNev2", {}, "Címzett neve"},
              {tab.txCim2_1, "txCim2_1", {}, "Címzett helysége"},
              {tab.txCim2_2, "txCim2_2", {}, "Címzett címe"},
              {tab.txUgyfelAzonosito, "txUgyfelAzonosito", {99.6, 10.8, 62.4, 4.2}, "Ügyfélazonosító"},
              {tab.txUgyfelSajatJelzese, "txUgyfelSajatJelzese", {99.6, 35.8, 62.4, 4.2}, "Ügyfél saját jelzése"},
              {tab.txtTertiPosta, "txtTertiPosta", {19.6, 22, 25.4, 4.2}, "Felvevő posta"},
              {tab.txtTertiDatum, "txtTertiDatum", {19.6, 35, 25.4, 4.2}, "Felvétel kelte"}});
    addLabels({{tab.lbSajatNev2, "lbSajatNev2", {}},
               {tab.lbSajatCim2_1, "lbSajatCim2_1", {}},
               {tab.lbSajatCim2_2, "lbSajatCim2_2", {}},
               {tab.lbSajatIrsz, "lbSajatIrsz", {}}});
    addChecks({{tab.chkTPri, "chkTPri", {}, "Elsőbbségi", "Elsőbbségi"},
               {tab.chkTSk, "chkTSk", {}, "Saját kézbe", "Saját kézbe"},
               {tab.chkTUv, "chkTUv", {}, "Utánvét", "Utánvét, külföldi térti: ajánlott"},
               {tab.chkLevel, "chkLevel", {}, "Utánvét", "Levél"},
               {tab.chkKCsomag, "chkKCsomag", {}, "Utánvét", "Csomag"}});
    addMark(tab.chkTPri, "lbX_6", {});
    addMark(tab.chkTSk, "lbX_7", {});
    addMark(tab.chkTUv, "lbX_8", {});
    addMark(tab.chkLevel, "lbX_9", {});
    addMark(tab.chkKCsomag, "lbX_10", {});
    onShow([this] { placeForVariant(); });
    connect(this, &FormView::edited, this, [this](const QString& name) {
        if (name.startsWith(u"opBelfold")) opBelfold_Click(tab_, readRecord<SetTerti>(this->context().folder));
        showValues();
    });
}

void ReturnReceiptView::placeForVariant() {
    struct Place {
        const char* name;
        QRectF domestic, foreign;
    };
    static const Place places[] = {
        {"txNev2", {47.6, 22, 77.4, 3.9}, {14.6, 25, 64.4, 3.9}},
        {"txCim2_1", {47.6, 25.9, 77.4, 3.9}, {14.6, 28.9, 64.4, 3.9}},
        {"txCim2_2", {47.6, 29.8, 77.4, 3.9}, {14.6, 32.8, 64.4, 3.9}},
        {"txKudemenyAzonosito", {19.6, 4.8, 75.4, 4.2}, {14.6, 15.8, 60.4, 4.2}},
        {"lbSajatNev2", {60, 59, 101, 3.9}, {85, 53, 76, 3.9}},
        {"lbSajatCim2_1", {60, 62.9, 101, 3.9}, {85, 61, 76, 3.9}},
        {"lbSajatCim2_2", {60, 66.8, 101, 3.9}, {85, 69, 76, 3.9}},
        {"lbSajatIrsz", {60, 70.7, 101, 3.9}, {85, 77, 76, 3.9}},
        {"chkTPri", {129.6, 19.2, 4, 4}, {38.2, 46, 4, 4}},
        {"chkTSk", {138.6, 19.2, 4, 4}, {12.2, 58, 4, 4}},
        {"chkTUv", {147.6, 19.2, 4, 4}, {12.2, 52, 4, 4}},
        {"chkLevel", {12.2, 46, 4, 4}, {12.2, 46, 4, 4}},
        {"chkKCsomag", {58.2, 46, 4, 4}, {58.2, 46, 4, 4}},
        {"lbX_6", {129.6, 15, 4, 3.9}, {42.6, 46, 4, 3.9}},
        {"lbX_7", {138.6, 15, 4, 3.9}, {16.6, 58, 4, 3.9}},
        {"lbX_8", {147.6, 15, 4, 3.9}, {16.6, 52, 4, 3.9}},
        {"lbX_9", {16.6, 46, 4, 3.9}, {16.6, 46, 4, 3.9}},
        {"lbX_10", {62.6, 46, 4, 3.9}, {62.6, 46, 4, 3.9}},
    };
    for (const Place& place : places)
        page()->place(findChild<QWidget*>(QLatin1String(place.name)), tab_.foreign ? place.foreign : place.domestic);
    page()->setPicture(tab_.foreign ? QStringLiteral("KTerti.jpg") : QStringLiteral("Terti.jpg"));
    setShown({"chkLevel", "chkKCsomag", "lbSajatIrsz"}, tab_.foreign);
    setShown({"txtTertiPosta", "txtTertiDatum", "txUgyfelAzonosito", "txUgyfelSajatJelzese"}, !tab_.foreign);
}

PostingReceiptView::PostingReceiptView(PostingReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 120}) {
    page()->setPicture(QStringLiteral("Feladoveveny.jpg"));
    addTexts({{tab.txNev3, "txNev3", {34.6, 53, 72.4, 3.9}, "Címzett neve"},
              {tab.txCim3_1, "txCim3_1", {34.6, 56.9, 72.4, 3.9}, "Címzett helysége"},
              {tab.txCim3_2, "txCim3_2", {34.6, 60.8, 72.4, 3.9}, "Címzett címe"},
              {tab.txErtek, "txErtek", {119.6, 39.8, 36, 4.2}, "Értéknyilvánítás"},
              {tab.txUtanvet, "txUtanvet", {119.6, 56.8, 36, 4.2}, "Utánvételi összeg"},
              {tab.txtFeladov1, "txtFeladov1", {133.6, 49.3, 27.4, 3.6}},
              {tab.txtFeladov2, "txtFeladov2", {116.6, 53, 44.4, 3.6}}});
    addLabels({{tab.lbSajatNev, "lbSajatNev", {35, 26, 72, 3.9}},
               {tab.lbSajatCim1, "lbSajatCim1", {35, 29.9, 72, 3.9}},
               {tab.lbSajatCim2, "lbSajatCim2", {35, 33.8, 72, 3.9}}});
    addChecks({{tab.chkAjanlott, "chkAjanlott", {35.8, 41, 4, 4}, "Ajánlott", "Ajánlott"},
               {tab.chkTerti, "chkTerti", {70.8, 41, 4, 4}, "Tértivevény", "Tértivevény"},
               {tab.chkErtek, "chkErtek", {108.8, 41, 4, 4}, "Értéknyilvánítás", "Értéknyilvánítás"},
               {tab.chkHivIrat, "chkHivIrat", {35.8, 46, 4, 4}, "Hivatalos irat", "Hivatalos irat"},
               {tab.chkCsomag, "chkCsomag", {70.8, 46, 4, 4}, "Csomag", "Csomag"}});
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
        addChecks({{service.value, service.box, {x, 33.2, 4, 4}, service.tooltip, service.tooltip}});
        addMark(service.value, service.mark, {x - 0.3, 29, 4, 3.9});
        x += 6;
    }
    int number = 0;
    for (const double y : {39.8, 56.8}) {
        auto* unit = new QLabel(QStringLiteral("Ft"));
        unit->setObjectName(QStringLiteral("lbFt_%1").arg(number++));
        page()->place(unit, {156.6, y, 6, 4.2});
    }
    onShow([this, &tab] { setShown({"txErtek", "lbFt_0"}, tab.chkErtek); });
    connect(this, &FormView::edited, this, [this, &tab](const QString& name) {
        showValues();
        if (name == u"chkErtek" && tab.chkErtek) findChild<QLineEdit*>(QStringLiteral("txErtek"))->setFocus();
    });
}

DocumentReceiptView::DocumentReceiptView(DocumentReceiptTab& tab, const FormContext& context)
    : FormView(context, {165, 105}) {
    page()->setPicture(QStringLiteral("TertiIrat.jpg"));
    addTexts({{tab.txtIratKuldAzonosito, "txtIratKuldAzonosito", {11.6, 2.8, 67.4, 4}, "Küldeményazonosító"},
              {tab.txtIratFelvPosta, "txtIratFelvPosta", {84.6, 3.8, 76.4, 4}, "Felvevő posta"},
              {tab.txtIratFelado[0], "txtIratFelado_0", {105.6, 8.9, 55.4, 3.6}, "Feladó neve"},
              {tab.txtIratFelado[1], "txtIratFelado_1", {105.6, 12.5, 55.4, 3.6}, "Feladó helysége"},
              {tab.txtIratFelado[2], "txtIratFelado_2", {105.6, 16.1, 55.4, 3.6}, "Feladó címe"},
              {tab.txtIratCimzettNev, "txtIratCimzettNev", {50.6, 22, 52.4, 3.5}, "Címzett neve"},
              {tab.txtIratCimzettHelyseg, "txtIratCimzettHelyseg", {50.6, 25.5, 52.4, 3.5}, "Címzett helysége"},
              {tab.txtIratCimzettUtca, "txtIratCimzettUtca", {50.6, 29, 52.4, 3.5}, "Címzett címe"},
              {tab.txtIratCimzettIrszam, "txtIratCimzettIrszam", {50.6, 32.5, 20, 3.5}, "Címzett irányítószáma"},
              {tab.txtIratSzama, "txtIratSzama", {105.6, 23.3, 41.4, 3.4}, "Irat száma"},
              {tab.txtIratFajtaja, "txtIratFajtaja", {105.6, 26.7, 41.4, 3.4}, "Irat fajtája"},
              {tab.txtIratMelleklet, "txtIratMelleklet", {105.6, 30.1, 41.4, 3.4}, "Irat melléklete"},
              {tab.txtIratErtesites, "txtIratErtesites", {145.6, 33.8, 15.8, 4}, "Otthagyandó értesítés"}});
    addLabels({{tab.lbIratFeladoNev, "lbIratFeladoNev", {80, 60, 81, 3.5}},
               {tab.lbIratFeladoCim1, "lbIratFeladoCim1", {80, 63.5, 81, 3.5}},
               {tab.lbIratFeladoCim2, "lbIratFeladoCim2", {80, 67, 81, 3.5}}});
    addLabels({{tab.txtIratKuldAzonosito, "lbVkod", {17, 8, 62, 9}}});
    onShow([this, &tab] { setShown({"lbVkod"}, tab.chkVkod); });
    struct Box {
        bool& value;
        const char* name;
        const char* caption;
        const char* tooltip;
    };
    const Box boxes[] = {
        {tab.chkVisszaCimPrint[0], "chkVisszaCimPrint_0", "Visszaküldési cím nyomtatása",
         "Kipipálva nyomtatja a visszaküldési címet."},
        {tab.chkVisszaCimPrint[1], "chkVisszaCimPrint_1", "Feladó nyomtatása", "Kipipálva nyomtatja a feladót"},
        {tab.chkVisszaCimPrint[2], "chkVisszaCimPrint_2", "Feladó azonos a visszaküldési címmel",
         "Kipipálva a feladó neve és címe azonos a visszaküldési címmel"},
        {tab.chkVkod, "chkVkod", "Vonalkód", "Vonalkód nyomtatása, amennyiben van vonalkód betűtípus telepítve!"},
    };
    double y = 79.2;
    for (const Box& box : boxes) {
        addCheck({box.value, box.name, {81, y, 80, 4.4}, box.tooltip}, QString::fromUtf8(box.caption));
        y += 5;
    }
    connect(this, &FormView::edited, this, [this, &tab](const QString& name) {
        if (name == u"chkVisszaCimPrint_2") {
            chkVisszaCimPrint_Click(tab);
            if (!tab.chkVisszaCimPrint[2]) findChild<QLineEdit*>(QStringLiteral("txtIratFelado_0"))->setFocus();
        }
        showValues();
    });
}
