#include "controls/entry_combo.h"
#include "mainwindow/form_views.h"
#include "mainwindow/pink_check_rules.h"
#include "records/record_file.h"
#include "settings/check_layouts.h"

#include <QPushButton>

PinkCheckView::PinkCheckView(PinkCheckTab& tab, const FormContext& context) : FormView(context, {210, 105}), tab_(tab) {
    addLabels({{tab.RlbOsszeg, "RlbOsszeg", {5, 3.8, 50, 5}}, {tab.lbOsszeg2, "lbOsszeg2", {70, 32.8, 58, 5}}});
    addCombo({tab.RtxOsszeg, "RtxOsszeg", {69.4, 3.4, 58, 5.6}, "Összeg"}, tab.amounts);
    addTexts({{tab.RtxtSzoveg21, "RtxtSzoveg21", {67.6, 43.8, 68.4, 4.2}, "Összeg betűvel"},
              {tab.RtxtSzoveg11, "RtxtSzoveg11", {67.6, 50.8, 68.4, 4.2}, "Összeg betűvel"},
              {tab.RtxtSzoveg12, "RtxtSzoveg12", {2.6, 14.8, 60.4, 4.2}},
              {tab.RtxtSzoveg22, "RtxtSzoveg22", {2.6, 21.8, 60.4, 4.2}},
              {tab.RtxNev, "RtxNev", {69.6, 13, 115.4, 3.9}, "Feladó neve"},
              {tab.RtxCim, "RtxCim", {74.6, 16.9, 110.4, 3.9}, "Feladó címe"},
              {tab.RlbNev, "RlbNev", {4.6, 58, 58.4, 3.9}, "Címzett neve"},
              {tab.RlbHelys, "RlbHelys", {4.6, 61.9, 58.4, 3.9}, "Címzett helysége"},
              {tab.RlbCim, "RlbCim", {4.6, 65.8, 58.4, 3.9}, "Címzett címe"},
              {tab.RlbIrsz, "RlbIrsz", {4.6, 73.8, 10.8, 4.2}, "Címzett irányítószáma"},
              {tab.txtNev, "txtNev", {139.6, 58, 66.4, 3.9}, "Címzett neve"},
              {tab.txtHelys, "txtHelys", {139.6, 61.9, 66.4, 3.9}, "Címzett helysége"},
              {tab.txtCim, "txtCim", {139.6, 65.8, 66.4, 3.9}, "Címzett címe"},
              {tab.txtIrsz, "txtIrsz", {139.6, 73.8, 12, 4.2}, "Címzett irányítószáma"},
              {tab.txtNevHatul, "txtNevHatul", {77.6, 59, 64.4, 3.9}, "Feladó neve"},
              {tab.txtHelysHatul, "txtHelysHatul", {77.6, 62.9, 64.4, 3.9}, "Feladó helysége"},
              {tab.txtCimHatul, "txtCimHatul", {77.6, 66.8, 64.4, 3.9}, "Feladó címe"},
              {tab.txtIrszHatul, "txtIrszHatul", {82.6, 74.4, 13.4, 4.2}, "Feladó irányítószáma"},
              {tab.RcsekkKozlemenyHatul[0], "RcsekkKozlemenyHatul_0", {70.6, 3, 71.4, 3.9}, "Közlemény"},
              {tab.RcsekkKozlemenyHatul[1], "RcsekkKozlemenyHatul_1", {70.6, 6.9, 71.4, 3.9}, "Közlemény"},
              {tab.RcsekkKozlemenyHatul[2], "RcsekkKozlemenyHatul_2", {70.6, 10.8, 71.4, 3.9}, "Közlemény"},
              {tab.RcsekkKozlemenyHatul[3], "RcsekkKozlemenyHatul_3", {70.6, 14.7, 71.4, 3.9}, "Közlemény"}});
    addOption(
        "opAllando_0", {187, 52, 19, 4.4}, "Kijelölve a címzett állandó és a feladó a listában kijelölt tétel lesz!",
        "Állandó", [&tab] { return tab.opAllando == FixedParty::addressee; },
        [&tab] { tab.opAllando = FixedParty::addressee; });
    addOption(
        "opAllando_1", {187, 14.7, 19, 4.4}, "Kijelölve a feladó állandó és a címzett a listában kijelölt tétel lesz!",
        "Állandó", [&tab] { return tab.opAllando == FixedParty::sender; },
        [&tab] { tab.opAllando = FixedParty::sender; });
    addButton(
        "cmdOldalCsere", {168, 79.4, 38, 6.4}, [&tab] { return tab.cmdOldalCsere(); },
        [&tab] { cmdOldalCsere_Click(tab); });
    onShow([this] { showSide(); });
    connect(this, &FormView::edited, this, &PinkCheckView::runRule);
}

void PinkCheckView::showSide() {
    const bool front = tab_.side == Side::front;
    page()->setPicture(front ? QStringLiteral("RozsaszinCsekk.jpg") : QStringLiteral("RCsekkHatul.jpg"));
    setShown({"RtxOsszeg", "RlbOsszeg", "lbOsszeg2", "RtxtSzoveg21", "RtxtSzoveg11", "RtxtSzoveg22", "RtxtSzoveg12",
              "RtxNev", "RtxCim", "RlbNev", "RlbCim", "RlbHelys", "RlbIrsz", "txtNev", "txtCim", "txtHelys", "txtIrsz"},
             front);
    setShown({"txtNevHatul", "txtHelysHatul", "txtCimHatul", "txtIrszHatul", "RcsekkKozlemenyHatul_0",
              "RcsekkKozlemenyHatul_1", "RcsekkKozlemenyHatul_2", "RcsekkKozlemenyHatul_3"},
             !front);
}

void PinkCheckView::runRule(const QString& name) {
    const auto set = readRecord<SetRcsekk>(context().folder);
    if (name == u"RtxOsszeg") RtxOsszeg_Change(tab_, set, context().device);
    if (name.startsWith(u"opAllando")) opAllando_Click(tab_, set);
    showValues();
}
