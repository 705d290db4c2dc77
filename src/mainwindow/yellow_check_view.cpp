#include "mainwindow/form_views.h"
#include "mainwindow/yellow_check_rules.h"

#include <QLineEdit>

YellowCheckView::YellowCheckView(YellowCheckTab& tab, const FormContext& context) : FormView(context, {210, 105}) {
    page()->setPicture(QStringLiteral("SargaCsekk.jpg"));
    const Rows form = rows();
    form.label(tab.txOsszeg, "lbOsszeg", {15, 5.8, 40, 5});
    form.combo(tab.txOsszeg, tab.amounts, "txOsszeg", {79.4, 5.4, 48, 5.6}, "Összeg (F2)")
        .asAmount()
        .runs(tab, txOsszeg_Change);
    form.text(tab.txtSzoveg21, "txtSzoveg21", {67.6, 14.8, 68.4, 4.2}, "Összeg betűvel");
    form.text(tab.txtSzoveg11, "txtSzoveg11", {67.6, 21.8, 68.4, 4.2}, "Összeg betűvel");
    form.mirror(tab.txtSzoveg21, "txtSzoveg22", {1.6, 14.8, 61.4, 4.2});
    form.mirror(tab.txtSzoveg11, "txtSzoveg12", {1.6, 21.8, 61.4, 4.2});
    form.combo(tab.Kozlemeny1, catalogues_.notices, "Kozlemeny1", {149.6, 5, 57.4, 3.9}, "Közlemény");
    form.text(tab.txtKozl3sor[0], "txtKozl3sor_0", {149.6, 8.9, 57.4, 3.9}, "Közlemény 3. sora");
    form.text(tab.Kozlemeny2, "Kozlemeny2", {149.6, 12.8, 57.4, 3.9}, "Közlemény 2. sora");
    form.combo(tab.txtJogcim1, catalogues_.titles, "txtJogcim1", {24.6, 33, 38.9, 3.9}, "Befizetés jogcíme");
    form.mirror(tab.txtKozl3sor[0], "txtKozl3sor_1", {24.6, 36.9, 38.9, 3.9}, "Közlemény 3. sora");
    form.combo(tab.txtJogcim2, catalogues_.secondTitles, "txtJogcim2", {24.6, 40.8, 38.9, 3.9},
               "Befizetés jogcíme, 2. sor");
    form.text(tab.txtFizHatIdo, "txtFizHatIdo", {24.6, 44.7, 38.9, 3.9}, "Fizetési határidő");
    form.text(tab.txBefizAzonosito, "txBefizAzonosito", {79.6, 39.6, 56.4, 5.2}, "Befizetőazonosító");
    form.check(tab.chkBefAzonMasolasa, "chkBefAzonMasolasa", {67, 46, 72, 4.4},
               "Befizetőazonosító másolása a jogcím mezőbe.", "Befizetőazonosító másolása a jogcím mezőbe.")
        .runs(tab, chkBefAzonMasolasa_Click);
    form.check(tab.Check1, "Check1", {139.6, 40.2, 60, 4.2}, "Kereséshez kipipálni!", "Kereséshez kipipálni... (F3)");
    form.text(tab.txNev_2, "txNev_2", {139.6, 45.2, 67.4, 4.2}, "2. Név a boríték címzéshez!")
        .hint("2. név a boríték címzéséhez");
    const Row name = form.text(tab.txNev, "txNev", {139.6, 52, 67.4, 3.9}, "Név").then([this, &tab] {
        if (tab.Check1) Q_EMIT searchWanted(tab.txNev);
    });
    searchBox_ = qobject_cast<QLineEdit*>(name.widget());
    form.text(tab.txCim1, "txCim1", {139.6, 55.9, 67.4, 3.9}, "Helységnév");
    form.text(tab.txCim2, "txCim2", {139.6, 59.8, 67.4, 3.9}, "Cím");
    form.text(tab.txIrszam, "txIrszam", {139.6, 67.8, 12, 4.2}, "Irányítószám");
    form.mirror(tab.txNev, "Text1_1", {4.6, 52, 58.4, 3.9});
    form.mirror(tab.txCim1, "Text1_0", {4.6, 55.9, 58.4, 3.9});
    form.mirror(tab.txCim2, "Text1_2", {4.6, 59.8, 58.4, 3.9});
    form.mirror(tab.txIrszam, "Text1_3", {4.6, 67.8, 10.8, 4.2});
}

void YellowCheckView::offerCatalogues(Catalogues catalogues) {
    catalogues_ = std::move(catalogues);
    showValues();
}
