#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/form_views.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <QPushButton>

CashOnDeliveryView::CashOnDeliveryView(CashOnDeliveryTab& tab, const FormContext& context)
    : FormView(context, {150, 105})
    , tab_(tab) {
    addTexts({{tab.txUosszeg, "txUosszeg", {9.6, 7.7, 38.4, 5.2}, "Utánvételi összeg"},
              {tab.txUNev, "txUNev", {4.6, 18, 141.4, 3.9}, "Küldemény címzettjének neve"},
              {tab.txUCim, "txUCim", {4.6, 21.9, 141.4, 3.9}, "Küldemény címzettjének címe"}});
    addLabels({{tab.lbUosszeg, "lbUosszeg", {10, 38, 55, 4.9}},
               {tab.lbosszegBetuvel1, "lbosszegBetuvel1", {10, 49, 61, 3.9}},
               {tab.lbosszegBetuvel2, "lbosszegBetuvel2", {10, 52.9, 61, 3.9}},
               {tab.lbUNev, "lbUNev", {80, 64, 66, 3.9}},
               {tab.lbUHelyseg, "lbUHelyseg", {80, 67.9, 66, 3.9}},
               {tab.lbUCim, "lbUCim", {80, 71.8, 66, 3.9}},
               {tab.lbUIrszam, "lbUIrszam", {80, 75.7, 66, 3.9}},
               {tab.lbUNevHatul, "lbUNevHatul", {80, 65, 66, 3.9}},
               {tab.lbUHelysegHatul, "lbUHelysegHatul", {80, 68.9, 66, 3.9}},
               {tab.lbUCimHatul, "lbUCimHatul", {80, 72.8, 66, 3.9}},
               {tab.lbUIrszamHatul, "lbUIrszamHatul", {80, 76.7, 66, 3.9}}});
    addChecks({{tab.chkUtanvetR, "chkUtanvetR", {75.3, 4.7, 4, 4}, "", "Ajánlott (R)"},
               {tab.chkUtanvetEL, "chkUtanvetEL", {75.3, 12.7, 4, 4}, "", "Ép, lezárt (ÉL)"}});
    addMark(tab.chkUtanvetR, "lbUtXR", {56.5, 3.5, 6, 6});
    addMark(tab.chkUtanvetEL, "lbUtXEL", {56.5, 11.5, 6, 6});
    addCheck({tab.chkCimzettCsereUlap, "chkCimzettCsereUlap", {104, 27.2, 42, 4.4}},
             QStringLiteral("Címzettek cseréje"));
    addButton(
        "cmdUtanvetOdalCsere", {112, 94, 34, 6.4}, [&tab] { return tab.cmdUtanvetOdalCsere(); },
        [&tab] { cmdUtanvetOdalCsere_Click(tab); });
    onShow([this] { showSide(); });
    connect(this, &FormView::edited, this, [this](const QString& name) {
        if (name == u"txUosszeg")
            txUosszeg_Change(tab_, readRecord<Set>(this->context().folder), this->context().device);
        if (name == u"chkCimzettCsereUlap") Q_EMIT partiesSwapped();
        showValues();
    });
}

void CashOnDeliveryView::showSide() {
    const bool front = tab_.side == Side::front;
    page()->setPicture(front ? QStringLiteral("UtanveteliLap.jpg") : QStringLiteral("utanvetelihatulja.jpg"));
    setShown({"txUosszeg", "txUNev", "txUCim", "lbUosszeg", "lbosszegBetuvel1", "lbosszegBetuvel2", "lbUNev",
              "lbUHelyseg", "lbUCim", "lbUIrszam", "chkUtanvetR", "chkUtanvetEL", "chkCimzettCsereUlap"},
             front);
    setShown({"lbUtXR"}, front && tab_.chkUtanvetR);
    setShown({"lbUtXEL"}, front && tab_.chkUtanvetEL);
    setShown({"lbUNevHatul", "lbUHelysegHatul", "lbUCimHatul", "lbUIrszamHatul"}, !front);
}
