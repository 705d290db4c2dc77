#include "records/client_database.h"
#include "tour.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

// The clerk's hands: new clients with the postcode lookup, a modification, and amounts that are kept.

void Tour::lookUp(const char* box, const QString& text, int row) {
    type(box, text);
    QTest::keyClick(window_->findChild<QWidget*>(QLatin1String(box)), Qt::Key_Return);
    auto* hits = window_->findChild<QTreeWidget*>(QStringLiteral("ListView2"));
    check(hits->isVisible() && hits->topLevelItemCount() > row, text + QStringLiteral(" has several addresses"));
    for (int down = 0; down <= row; ++down)
        QTest::keyClick(hits, Qt::Key_Down);
    shoot(QStringLiteral("03-cimek-") + QLatin1String(box));
    QTest::keyClick(hits, Qt::Key_Return);
    check(!hits->isVisible() && !window_->findChild<QLineEdit*>(QStringLiteral("txBefizetoIrsz"))->text().isEmpty(),
          text + QStringLiteral(" has got its postcode"));
}

void Tour::saveEntry(int number, const QString& name) {
    auto* dialog = window_->findChild<QDialog*>(QStringLiteral("frmFelvet"));
    shootDialog(*dialog, QStringLiteral("03-felvetel-%1").arg(number));
    dialog->findChild<QPushButton*>(QStringLiteral("cmdRogzites"))->click();
    check(readClient(folder_, number).value_or(Client{}).client.Nev.trimmed() == name,
          QStringLiteral("client %1 is %2").arg(number).arg(name));
}

void Tour::enterClients() {
    showTab(0);
    click("cmdRogzit");
    type("txBefizetoNeve", QStringLiteral("Kovács Éva"));
    lookUp("txBefizetoCim1", QStringLiteral("szeged"), 4);
    type("txBefizetoCim2", QStringLiteral("Dózsa utca 7."));
    saveEntry(201, QStringLiteral("Kovács Éva"));

    click("cmdRogzit");
    type("txBefizetoNeve", QStringLiteral("Őri Ödön"));
    lookUp("txBefizetoCim2", QStringLiteral("váci"), 2);
    saveEntry(202, QStringLiteral("Őri Ödön"));

    click("cmdRogzit");
    click("chkKulfCim");
    type("txBefizetoNeve", QStringLiteral("Maria Gruber"));
    type("txEtkezo", QStringLiteral("Hauptplatz 1."));
    type("txBefizetoCim1", QStringLiteral("A-8010 Graz"));
    type("txBefizetoCim2", QStringLiteral("Ausztria"));
    saveEntry(203, QStringLiteral("Maria Gruber"));

    clickClient(201);
    click("cmdModosit");
    type("txBefizetoNeve", QStringLiteral("Kovács Éva Mária"));
    saveEntry(201, QStringLiteral("Kovács Éva Mária"));
    check(window_->tabs().yellowCheck.txNev == QStringLiteral("Kovács Éva Mária"),
          QStringLiteral("the check shows the new name"));
    shoot(QStringLiteral("03-felveve"));
}

void Tour::keepAmounts() {
    inDialog([this] { window_->findChild<QPushButton*>(QStringLiteral("cmdOsszegek"))->click(); },
             [this](QDialog& dialog) {
                 auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
                 for (const int forints : {4500, 12500, 990, 150000}) {
                     box->setText(QString::number(forints));
                     QTest::keyClick(box, Qt::Key_Return);
                 }
                 shootDialog(dialog, QStringLiteral("03-osszegek"));
             });
    auto* amounts = window_->findChild<QComboBox*>(QStringLiteral("txOsszeg"));
    check(amounts->count() == 4, QStringLiteral("the check offers four amounts"));
    amounts->setFocus();
    while (amounts->currentText() != QStringLiteral("12500") && amounts->currentIndex() + 1 < amounts->count())
        QTest::keyClick(amounts, Qt::Key_Down);
    print("cmdPrint", QStringLiteral("sarga-csekk-felvett-osszeg"), 1);
    check(window_->tabs().yellowCheck.txtSzoveg21.startsWith(QStringLiteral("Tizenkettőezer-ötszáz")),
          QStringLiteral("a kept amount prints in words"));
}
