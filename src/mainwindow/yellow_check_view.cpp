#include "controls/entry_combo.h"
#include "mainwindow/form_views.h"
#include "mainwindow/yellow_check_rules.h"
#include "records/record_file.h"
#include "settings/general_settings.h"

#include <QLineEdit>

YellowCheckView::YellowCheckView(YellowCheckTab& tab, const FormContext& context)
    : FormView(context, {210, 105})
    , tab_(tab) {
    page()->setPicture(QStringLiteral("SargaCsekk.jpg"));
    addLabels({{tab.lbOsszeg, "lbOsszeg", {15, 5.8, 40, 5}}});
    addCombo({tab.txOsszeg, "txOsszeg", {79.4, 5.4, 48, 5.6}, "Összeg"}, tab.amounts);
    addTexts({{tab.txtSzoveg21, "txtSzoveg21", {67.6, 14.8, 68.4, 4.2}, "Összeg betűvel"},
              {tab.txtSzoveg11, "txtSzoveg11", {67.6, 21.8, 68.4, 4.2}, "Összeg betűvel"},
              {tab.txtSzoveg22, "txtSzoveg22", {1.6, 14.8, 61.4, 4.2}},
              {tab.txtSzoveg12, "txtSzoveg12", {1.6, 21.8, 61.4, 4.2}}});
    addCombo({tab.Kozlemeny1, "Kozlemeny1", {149.6, 5, 57.4, 3.9}, "Közlemény"}, catalogues_.notices);
    addTexts({{tab.txtKozl3sor[0], "txtKozl3sor_0", {149.6, 8.9, 57.4, 3.9}, "Közlemény 3. sora"},
              {tab.Kozlemeny2, "Kozlemeny2", {149.6, 12.8, 57.4, 3.9}, "Közlemény 2. sora"}});
    addCombo({tab.txtJogcim1, "txtJogcim1", {24.6, 33, 38.9, 3.9}, "Befizetés jogcíme"}, catalogues_.titles);
    addTexts({{tab.txtKozl3sor[1], "txtKozl3sor_1", {24.6, 36.9, 38.9, 3.9}, "Közlemény 3. sora"}});
    addCombo({tab.txtJogcim2, "txtJogcim2", {24.6, 40.8, 38.9, 3.9}, "Befizetés jogcíme, 2. sor"},
             catalogues_.secondTitles);
    addTexts({{tab.txtFizHatIdo, "txtFizHatIdo", {24.6, 44.7, 38.9, 3.9}, "Fizetési határidő"},
              {tab.txBefizAzonosito, "txBefizAzonosito", {79.6, 39.6, 56.4, 5.2}, "Befizetőazonosító"}});
    addCheck({tab.chkBefAzonMasolasa,
              "chkBefAzonMasolasa",
              {67, 46, 72, 4.4},
              "Befizetőazonosító másolása a jogcím mezőbe."},
             QStringLiteral("Befizetőazonosító másolása a jogcím mezőbe."));
    addCheck({tab.Check1, "Check1", {139.6, 40.2, 60, 4.2}, "Kereséshez kipipálni..."},
             QStringLiteral("Kereséshez kipipálni!"));
    addTexts({{tab.txNev_2, "txNev_2", {139.6, 45.2, 67.4, 4.2}, "2. Név a boríték címzéshez!"},
              {tab.txNev, "txNev", {139.6, 52, 67.4, 3.9}, "Név"},
              {tab.txCim1, "txCim1", {139.6, 55.9, 67.4, 3.9}, "Helységnév"},
              {tab.txCim2, "txCim2", {139.6, 59.8, 67.4, 3.9}, "Cím"},
              {tab.txIrszam, "txIrszam", {139.6, 67.8, 12, 4.2}, "Irányítószám"},
              {tab.Text1[1], "Text1_1", {4.6, 52, 58.4, 3.9}},
              {tab.Text1[0], "Text1_0", {4.6, 55.9, 58.4, 3.9}},
              {tab.Text1[2], "Text1_2", {4.6, 59.8, 58.4, 3.9}},
              {tab.Text1[3], "Text1_3", {4.6, 67.8, 10.8, 4.2}}});
    searchBox_ = findChild<QLineEdit*>(QStringLiteral("txNev"));
    connect(this, &FormView::edited, this, &YellowCheckView::runRule);
}

void YellowCheckView::offerCatalogues(Catalogues catalogues) {
    catalogues_ = std::move(catalogues);
    showValues();
}

void YellowCheckView::runRule(const QString& name) {
    struct Handler {
        const char* name;
        void (*run)(YellowCheckTab&);
    };
    static constexpr Handler handlers[] = {
        {"txtSzoveg21", txtSzoveg21_Change},
        {"txtSzoveg11", txtSzoveg11_Change},
        {"txNev", txNev_Change},
        {"txCim1", txCim1_Change},
        {"txCim2", txCim2_Change},
        {"txIrszam", txIrszam_Change},
        {"chkBefAzonMasolasa", chkBefAzonMasolasa_Click},
    };
    for (const Handler& handler : handlers)
        if (name == QLatin1String(handler.name)) handler.run(tab_);
    if (name == u"txOsszeg") txOsszeg_Change(tab_, readRecord<Set>(context().folder), context().device);
    showValues();
    if (name == u"txNev" && tab_.Check1) Q_EMIT searchWanted(tab_.txNev);
}
