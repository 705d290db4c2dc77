#include "mainwindow/form_views.h"
#include "mainwindow/pink_check_rules.h"

PinkCheckView::PinkCheckView(PinkCheckTab& tab, const FormContext& context) : FormView(context, {210, 105}) {
    const Rows form = rows();
    const Rows front = rows([&tab] { return tab.side == Side::front; });
    const Rows back = rows([&tab] { return tab.side == Side::back; });
    onShow([this, front] {
        page()->setPicture(front.shown() ? QStringLiteral("RozsaszinCsekk.jpg") : QStringLiteral("RCsekkHatul.jpg"));
    });
    front.label(tab.RtxOsszeg, "RlbOsszeg", {5, 3.8, 50, 5});
    front.label(tab.RtxOsszeg, "lbOsszeg2", {70, 32.8, 58, 5});
    front.combo(tab.RtxOsszeg, tab.amounts, "RtxOsszeg", {69.4, 3.4, 58, 5.6}, "Összeg (F2)")
        .asAmount()
        .runs(tab, RtxOsszeg_Change);
    front.text(tab.RtxNev, "RtxNev", {69.6, 13, 115.4, 3.9}, "Feladó neve");
    front.text(tab.RtxCim, "RtxCim", {74.6, 16.9, 110.4, 3.9}, "Feladó címe");
    front.text(tab.RtxtSzoveg21, "RtxtSzoveg21", {67.6, 43.8, 68.4, 4.2}, "Összeg betűvel").runs(tab, copyWords);
    front.text(tab.RtxtSzoveg11, "RtxtSzoveg11", {67.6, 50.8, 68.4, 4.2}, "Összeg betűvel").runs(tab, copyWords);
    front.mirror(tab.RtxtSzoveg12, "RtxtSzoveg12", {2.6, 14.8, 60.4, 4.2});
    front.mirror(tab.RtxtSzoveg22, "RtxtSzoveg22", {2.6, 21.8, 60.4, 4.2});
    front.text(tab.RlbNev, "RlbNev", {4.6, 58, 58.4, 3.9}, "Címzett neve");
    front.text(tab.RlbHelys, "RlbHelys", {4.6, 61.9, 58.4, 3.9}, "Címzett helysége");
    front.text(tab.RlbCim, "RlbCim", {4.6, 65.8, 58.4, 3.9}, "Címzett címe");
    front.text(tab.RlbIrsz, "RlbIrsz", {4.6, 73.8, 10.8, 4.2}, "Címzett irányítószáma");
    front.mirror(tab.RlbNev, "txtNev", {139.6, 58, 66.4, 3.9}, "Címzett neve");
    front.mirror(tab.RlbHelys, "txtHelys", {139.6, 61.9, 66.4, 3.9}, "Címzett helysége");
    front.mirror(tab.RlbCim, "txtCim", {139.6, 65.8, 66.4, 3.9}, "Címzett címe");
    front.mirror(tab.RlbIrsz, "txtIrsz", {139.6, 73.8, 12, 4.2}, "Címzett irányítószáma");
    back.text(tab.RcsekkKozlemenyHatul[0], "RcsekkKozlemenyHatul_0", {70.6, 3, 71.4, 3.9}, "Közlemény");
    back.text(tab.RcsekkKozlemenyHatul[1], "RcsekkKozlemenyHatul_1", {70.6, 6.9, 71.4, 3.9}, "Közlemény");
    back.text(tab.RcsekkKozlemenyHatul[2], "RcsekkKozlemenyHatul_2", {70.6, 10.8, 71.4, 3.9}, "Közlemény");
    back.text(tab.RcsekkKozlemenyHatul[3], "RcsekkKozlemenyHatul_3", {70.6, 14.7, 71.4, 3.9}, "Közlemény");
    back.text(tab.txtNevHatul, "txtNevHatul", {77.6, 59, 64.4, 3.9}, "Feladó neve");
    back.text(tab.txtHelysHatul, "txtHelysHatul", {77.6, 62.9, 64.4, 3.9}, "Feladó helysége");
    back.text(tab.txtCimHatul, "txtCimHatul", {77.6, 66.8, 64.4, 3.9}, "Feladó címe");
    back.text(tab.txtIrszHatul, "txtIrszHatul", {82.6, 74.4, 13.4, 4.2}, "Feladó irányítószáma");
    // Each lies beside the boxes of the party that it fixes.
    form.option(tab.opAllando, FixedParty::addressee, "opAllando_0", {187, 52, 19, 4.4}, "Állandó",
                "Kijelölve a címzett állandó és a feladó a listában kijelölt tétel lesz!")
        .at(back, {49.8, 12, 19, 4.4})
        .runs(tab, opAllando_Click);
    form.option(tab.opAllando, FixedParty::sender, "opAllando_1", {187, 14.7, 19, 4.4}, "Állandó",
                "Kijelölve a feladó állandó és a címzett a listában kijelölt tétel lesz!")
        .at(back, {123.8, 52.4, 19, 4.4})
        .runs(tab, opAllando_Click);
    form.button("cmdOldalCsere", {168, 79.4, 38, 6.4}, [&tab] { return tab.cmdOldalCsere(); })
        .runs(tab, cmdOldalCsere_Click);
}
