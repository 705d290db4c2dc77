#include "tour.h"

#include "records/client_database.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

void TourPrompts::tell(const Message& message) { shown << message.title + QStringLiteral(": ") + message.text; }

Answer TourPrompts::ask(const Message& message, Answer) {
    tell(message);
    return Answer::yes;
}

QString TourPrompts::openFile(const QString&, const QString&) { return csv; }

QString TourPrompts::saveFile(const QString&, const QString&) { return {}; }

std::optional<PrinterChoice> TourPrompts::choosePrinter(const QStringList&, int, const QString&) {
    return PrinterChoice{printer, 1};
}

Tour::Tour(const QString& delivered, const QString& results)
    : results_(results)
    , folder_(freshFolder(delivered))
    , printing_(folder_, Devices::pdfOnly) {
    prompts_.csv = folder_.file(QStringLiteral("mintaugyfelek.csv"));
}

// A copy of the delivered folder without data of an earlier run.
QString Tour::freshFolder(const QString& delivered) {
    QDir().mkpath(results_);
    QDir old(results_ + QStringLiteral("/Tarlimo"));
    old.removeRecursively();
    old.mkpath(QStringLiteral("."));
    const QStringList ownData{QStringLiteral("nevek1.dat"), QStringLiteral("kozl3sor.dat"), QStringLiteral("Tarlimo")};
    for (const QFileInfo& file : QDir(delivered).entryInfoList(QDir::Files))
        if (!ownData.contains(file.fileName())) QFile::copy(file.filePath(), old.filePath(file.fileName()));
    return old.absolutePath();
}

int Tour::run() {
    window_ = std::make_unique<frmTarlimo>(
        folder_,
        WindowServices{printing_, prompts_, [](const QString&) {}, [this] { return printing_.lastPdf(); }, {}});
    window_->resize(1240, 711); // the design size: the offscreen platform's screen is smaller
    window_->show();
    check(QTest::qWaitForWindowExposed(window_.get()), QStringLiteral("the window opens"));
    shoot(QStringLiteral("01-indulas"));
    importClients();
    walkTabs();
    printSingles();
    printBatches();
    openSetup(0);
    openSetup(6);
    closeAndReopen();
    QTextStream(stdout) << (failures_ == 0 ? QStringLiteral("The tour went well.\n")
                                           : QStringLiteral("%1 steps failed.\n").arg(failures_));
    return failures_;
}

void Tour::check(bool fact, const QString& what) {
    QTextStream(stdout) << (fact ? "  ok      " : "  FAILED  ") << what << '\n';
    if (!fact) ++failures_;
}

void Tour::shoot(const QString& name) {
    QTest::qWait(30); // one round of events, so that what was changed is laid out and painted
    const QString path = results_ + u'/' + name + QStringLiteral(".png");
    check(window_->grab().save(path), QStringLiteral("screenshot ") + name);
}

void Tour::click(const char* name) {
    auto* widget = window_->findChild<QWidget*>(QLatin1String(name));
    check(widget != nullptr && widget->isVisible() && widget->isEnabled(),
          QStringLiteral("%1 can be clicked").arg(QLatin1String(name)));
    if (widget == nullptr) return;
    // Check boxes and options react on their indicator, at the left.
    const bool narrow = qobject_cast<QPushButton*>(widget) == nullptr;
    QTest::mouseClick(widget, Qt::LeftButton, {}, narrow ? QPoint(8, widget->height() / 2) : QPoint());
}

void Tour::clickRow(int row, Qt::KeyboardModifiers modifiers) {
    auto* list = window_->findChild<QTreeView*>(QStringLiteral("ListView1"));
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualRect(index).center());
}

void Tour::showTab(int tab) {
    auto* tabs = window_->findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tab).center());
    check(tabs->currentIndex() == tab, QStringLiteral("tab %1 shows").arg(tab));
}

void Tour::type(const char* box, const QString& text) {
    auto* combo = window_->findChild<QComboBox*>(QLatin1String(box));
    QLineEdit* edit = combo != nullptr ? combo->lineEdit() : window_->findChild<QLineEdit*>(QLatin1String(box));
    edit->setFocus();
    edit->selectAll();
    for (const QChar letter : text) // keyClicks knows ASCII alone
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void Tour::print(const char* button, const QString& form, int pages) {
    click(button);
    const QString status = window_->statusBar()->currentMessage();
    check(status.startsWith(QStringLiteral("%1 oldal kinyomtatva").arg(pages)), form + QStringLiteral(": ") + status);
    const QString target = results_ + u'/' + form + QStringLiteral(".pdf");
    QFile::remove(target);
    check(QFile::copy(printing_.lastPdf(), target), form + QStringLiteral(".pdf"));
}

void Tour::importClients() {
    window_->menuBar()->findChild<QAction*>(QStringLiteral("mnuAdatCsvbol"))->trigger();
    check(clientCount(folder_) == 200, QStringLiteral("200 clients are in"));
    clickRow(3);
    check(window_->rekordszam() == 4, QStringLiteral("a click holds record 4"));
    check(!window_->tabs().yellowCheck.txNev.isEmpty(), QStringLiteral("the client stands on the check"));
}

void Tour::walkTabs() {
    const char* names[] = {"sarga-csekk", "tertiveveny",   "feladoveveny",    "boritek",
                           "etikett",     "terti-irathoz", "rozsaszin-csekk", "utanveteli-lap"};
    struct Variant { // what else a tab shows, and the controls that turn to it and back
        int tab;
        const char *turn, *back, *picture;
    };
    const Variant variants[] = {
        {1, "opBelfold_1", "opBelfold_0", "03-tertiveveny-kulfoldi"},
        {3, "chkKepPrint", "chkKepPrint", "03-boritek-kep"},
        {3, "OpB2", "OpB1", "03-boritek-c5"},
        {3, "OpB3", "OpB1", "03-boritek-c56"},
        {4, "chkEgyediCimke", "chkEgyediCimke", "03-etikett-egyedi"},
        {6, "cmdOldalCsere", "cmdOldalCsere", "03-rozsaszin-hatul"},
        {7, "cmdUtanvetOdalCsere", "cmdUtanvetOdalCsere", "03-utanvet-hatul"},
    };
    for (int tab = 0; tab < 8; ++tab) {
        showTab(tab);
        for (const Variant& variant : variants) {
            if (variant.tab != tab) continue;
            click(variant.turn);
            shoot(QLatin1String(variant.picture));
            click(variant.back);
        }
        shoot(QStringLiteral("02-%1-%2").arg(tab).arg(QLatin1String(names[tab])));
    }
}

void Tour::printSingles() {
    showTab(0);
    type("txOsszeg", QStringLiteral("123456"));
    type("Kozlemeny1", QStringLiteral("Tagdíj, második félév"));
    type("txtJogcim1", QStringLiteral("Tagdíj"));
    check(window_->tabs().yellowCheck.txtSzoveg21.startsWith(u"Egyszázhuszonháromezer-"),
          QStringLiteral("the amount stands in words"));
    shoot(QStringLiteral("04-osszeg-betuvel"));
    print("cmdPrint", QStringLiteral("sarga-allo"), 1);
    click("OpOrientacioFekvo");
    print("cmdPrint", QStringLiteral("sarga-fekvo"), 1);
    showTab(6);
    type("RtxOsszeg", QStringLiteral("87650"));
    print("cmdPrint", QStringLiteral("rozsaszin-fekvo"), 1);
    click("OpOrientacioAllo");
    print("cmdPrint", QStringLiteral("rozsaszin-allo"), 1);
    click("cmdOldalCsere");
    type("RcsekkKozlemenyHatul_0", QStringLiteral("Közlemény a hátoldalon"));
    print("cmdPrint", QStringLiteral("rozsaszin-hatul-allo"), 1);
    click("cmdOldalCsere");
}

void Tour::printBatches() {
    showTab(0);
    clickRow(5);
    clickRow(10, Qt::ShiftModifier);
    shoot(QStringLiteral("05-csoportos"));
    print("cmdCsPrint", QStringLiteral("sarga-csoportos-allo"), 6);
    click("OpOrientacioFekvo");
    print("cmdCsPrint", QStringLiteral("sarga-csoportos-fekvo"), 6);
    showTab(6);
    print("cmdCsPrint", QStringLiteral("rozsaszin-csoportos-fekvo"), 6);
    click("OpOrientacioAllo");
    print("cmdCsPrint", QStringLiteral("rozsaszin-csoportos-allo"), 6);
}

void Tour::openSetup(int tab) {
    showTab(tab);
    QTimer::singleShot(100, [this, tab] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        check(dialog != nullptr, QStringLiteral("the setup dialog opens"));
        if (dialog == nullptr) return;
        dialog->resize(dialog->sizeHint() +
                       QSize(24, 24)); // the offscreen platform's screen is smaller than a real one
        const QString path = results_ + QStringLiteral("/06-beallitasok-%1.png").arg(tab);
        check(dialog->grab().save(path), QStringLiteral("screenshot of the setup dialog"));
        dialog->reject();
    });
    window_->menuBar()->findChild<QAction*>(QStringLiteral("mnuSetup"))->trigger();
}

void Tour::closeAndReopen() {
    showTab(6);
    window_->close();
    window_ = std::make_unique<frmTarlimo>(
        folder_,
        WindowServices{printing_, prompts_, [](const QString&) {}, [this] { return printing_.lastPdf(); }, {}});
    window_->show();
    check(window_->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->currentIndex() == 6,
          QStringLiteral("the next start comes back to the tab"));
}
