#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/form_views.h"

CashOnDeliveryView::CashOnDeliveryView(CashOnDeliveryTab& tab, const FormContext& context)
    : FormView(context, {150, 105}) {
    const Rows form = rows();
    const Rows front = rows([&tab] { return tab.side == Side::front; });
    const Rows back = rows([&tab] { return tab.side == Side::back; });
    onShow([this, front] {
        page()->setPicture(front.shown() ? QStringLiteral("UtanveteliLap.jpg")
                                         : QStringLiteral("utanvetelihatulja.jpg"));
    });
    front.text(tab.txUosszeg, "txUosszeg", {9.6, 7.7, 38.4, 5.2}, "Utánvételi összeg (F2)")
        .asAmount()
        .runs(tab, txUosszeg_Change);
    front.text(tab.txUNev, "txUNev", {4.6, 18, 141.4, 3.9}, "Küldemény címzettjének neve");
    front.text(tab.txUCim, "txUCim", {4.6, 21.9, 141.4, 3.9}, "Küldemény címzettjének címe");
    front.label(tab.txUosszeg, "lbUosszeg", {10, 38, 55, 4.9});
    front.label(tab.lbosszegBetuvel1, "lbosszegBetuvel1", {10, 49, 61, 3.9});
    front.label(tab.lbosszegBetuvel2, "lbosszegBetuvel2", {10, 52.9, 61, 3.9});
    front.label(tab.lbUNev, "lbUNev", {80, 64, 66, 3.9});
    front.label(tab.lbUHelyseg, "lbUHelyseg", {80, 67.9, 66, 3.9});
    front.label(tab.lbUCim, "lbUCim", {80, 71.8, 66, 3.9});
    front.label(tab.lbUIrszam, "lbUIrszam", {80, 75.7, 66, 3.9});
    back.label(tab.lbUNevHatul, "lbUNevHatul", {80, 65, 66, 3.9});
    back.label(tab.lbUHelysegHatul, "lbUHelysegHatul", {80, 68.9, 66, 3.9});
    back.label(tab.lbUCimHatul, "lbUCimHatul", {80, 72.8, 66, 3.9});
    back.label(tab.lbUIrszamHatul, "lbUIrszamHatul", {80, 76.7, 66, 3.9});
    front.tick(tab.chkUtanvetR, "chkUtanvetR", {75.3, 4.7, 4, 4}, "", "Ajánlott (R)");
    front.tick(tab.chkUtanvetEL, "chkUtanvetEL", {75.3, 12.7, 4, 4}, "", "Ép, lezárt (ÉL)");
    front.mark(tab.chkUtanvetR, "lbUtXR", {56.5, 3.5, 6, 6});
    front.mark(tab.chkUtanvetEL, "lbUtXEL", {56.5, 11.5, 6, 6});
    front.check(tab.chkCimzettCsereUlap, "chkCimzettCsereUlap", {104, 27.2, 42, 4.4}, "Címzettek cseréje", "")
        .runs(tab, chkCimzettCsereUlap_Click);
    form.button("cmdUtanvetOdalCsere", {112, 94, 34, 6.4}, [&tab] { return tab.cmdUtanvetOdalCsere(); })
        .runs(tab, cmdUtanvetOdalCsere_Click);
}
