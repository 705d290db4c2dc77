#include "tour.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

// The settings of the posting list, and its names for 15 clients: one more than a sheet holds.
void Tour::printPostingList() {
    const auto choose = [this](const char* entry) {
        window_->menuBar()->findChild<QAction*>(QLatin1String(entry))->trigger();
    };
    inDialog([&] { choose("mnuFeladojegyzekSetup"); },
             [this](QDialog& dialog) {
                 dialog.findChild<QPushButton*>(QStringLiteral("cmdMent"))->click();
                 check(!dialog.findChild<QLabel*>(QStringLiteral("lbElmentve"))->text().isEmpty(),
                       QStringLiteral("the settings of the posting list are saved"));
                 shootDialog(dialog, QStringLiteral("08-feladojegyzek-beallitasok"));
             });
    selectBatch(15);
    choose("mnuCimzettekNyomtatasa");
    keepPdf(QStringLiteral("feladojegyzek"), 2);
}
