#include "tour.h"

#include "mainwindow/client_list_model.h"
#include "mainwindow/stationery_page.h"
#include "overlay.h"
#include "records/client_database.h"
#include "records/delivered_files.h"

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

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {
constexpr int labelTab = 4; // has one feed and no batch
}

void TourPrompts::tell(const Message& message) { shown << message.title + QStringLiteral(": ") + message.text; }

Answer TourPrompts::ask(const Message& message, Answer) {
    tell(message);
    return Answer::yes;
}

QString TourPrompts::openFile(const QString&, const QString&) { return csv; }

QString TourPrompts::saveFile(const QString&, const QString&) { return target; }

std::optional<PrinterChoice> TourPrompts::choosePrinter(const QStringList&, int, const QString&) {
    return PrinterChoice{printer, 1};
}

Tour::Tour(const QString& delivered, const QString& results)
    : results_(results)
    , folder_(freshFolder(delivered))
    , printing_(folder_) {
    check(placeDelivered(delivered + u'/' + deliveredFolder, folder_).isEmpty(),
          QStringLiteral("the delivered settings come into place"));
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
        WindowServices{printing_, prompts_, [](const QString&) {}, [this] { return printing_.lastPdf(); }, {}, {}});
    window_->resize(1240, 711); // the design size: the offscreen platform's screen is smaller
    window_->show();
    check(QTest::qWaitForWindowExposed(window_.get()), QStringLiteral("the window opens"));
    shoot(QStringLiteral("01-indulas"));
    importClients();
    enterClients();
    keepAmounts();
    walkTabs();
    typeTexts();
    printForms("cmdPrint", QStringLiteral("egyes"), 1);
    printBatches();
    printLabels();
    printPostingList();
    placePicture();
    moveSettings();
    openCatalogues();
    exchangeData();
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

void Tour::clickClient(int number) {
    const QAbstractItemModel& list = *window_->findChild<QTreeView*>(QStringLiteral("ListView1"))->model();
    int row = 0;
    while (row + 1 < list.rowCount() && list.index(row, ClientListModel::rec).data().toString().toInt() != number)
        ++row;
    clickRow(row);
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
    keepPdf(form, pages);
}

// What has just been printed, among the results.
void Tour::keepPdf(const QString& form, int pages) {
    const QString status = window_->statusBar()->currentMessage();
    check(status.startsWith(QStringLiteral("%1 oldal kinyomtatva").arg(pages)), form + QStringLiteral(": ") + status);
    const QString target = results_ + u'/' + form + QStringLiteral(".pdf");
    QFile::remove(target);
    check(QFile::copy(printing_.lastPdf(), target), form + QStringLiteral(".pdf"));
}

void Tour::layOverStationery(const QString& form, QPointF corner) {
    const auto* tab = window_->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->currentWidget();
    const auto* page = tab->findChild<StationeryPage*>();
    const QImage laid =
        layOver(printing_.job.pages.front(), QImage(folder_.file(page->picture())), {corner, page->sizeMm()}, fonts_);
    check(laid.save(results_ + u'/' + form + QStringLiteral(".png")), form + QStringLiteral(" over the stationery"));
}

void Tour::importClients() {
    window_->menuBar()->findChild<QAction*>(QStringLiteral("mnuAdatCsvbol"))->trigger();
    check(clientCount(folder_) == 200, QStringLiteral("200 clients are in"));
    clickRow(3);
    check(window_->rekordszam() > 0, QStringLiteral("a click holds a client"));
    check(!window_->tabs().yellowCheck.txNev.isEmpty(), QStringLiteral("the client stands on the check"));
}

namespace {

// A form of the window, and the controls that turn it to its other sides and variants, the last of which is the first
// look again. Where it lies on the sheet of either feed (mm) is what the numbers of its print routines add up to.
struct TourForm {
    int tab;
    const char* name;
    QPointF upright, sideways;
    struct Variant {
        const char *turn, *name;
        std::optional<QPointF> upright = {};
    };
    std::vector<Variant> variants;
};

const std::vector<TourForm> forms = {
    {0, "sarga-csekk", {8, 2}, {0, 0}, {}},
    {1, "tertiveveny", {128, 49}, {20, 0}, {{"opBelfold_1", "kulfoldi"}, {"opBelfold_0", ""}}},
    {2, "feladoveveny", {52, -6}, {20, 0}, {}},
    {3, "boritek", {66, 20}, {0, 0}, {{"OpB2", "c5", {{0, 0}}}, {"OpB3", "c56", {{0, 25}}}, {"OpB1", ""}}},
    {4, "etikett", {}, {}, {}},
    {5, "terti-irathoz", {55, 0}, {20, -3}, {}},
    {6, "rozsaszin-csekk", {8, 2}, {0, 0}, {{"cmdOldalCsere", "hatul"}, {"cmdOldalCsere", ""}}},
    {7, "utanveteli-lap", {65, -1}, {25, -4}, {{"cmdUtanvetOdalCsere", "hatul"}, {"cmdUtanvetOdalCsere", ""}}},
};

QString named(const TourForm& form, const QString& what, const char* variant) {
    const QString name = QLatin1String(form.name) + u'-' + what;
    return *variant == '\0' ? name : name + u'-' + QLatin1String(variant);
}

} // namespace

void Tour::walkTabs() {
    for (const TourForm& form : forms) {
        showTab(form.tab);
        shoot(QStringLiteral("02-%1-%2").arg(form.tab).arg(QLatin1String(form.name)));
        for (const TourForm::Variant& variant : form.variants) {
            click(variant.turn);
            if (*variant.name != '\0') shoot(named(form, QStringLiteral("lap"), variant.name));
        }
    }
    showTab(3);
    click("chkKepPrint");
    shoot(QStringLiteral("02-3-boritek-kep"));
    click("chkKepPrint");
}

void Tour::typeTexts() {
    showTab(0);
    type("txOsszeg", QStringLiteral("123456"));
    type("Kozlemeny1", QStringLiteral("Tagdíj, második félév"));
    type("txtJogcim1", QStringLiteral("Tagdíj"));
    check(window_->tabs().yellowCheck.txtSzoveg21.startsWith(u"Egyszázhuszonháromezer-"),
          QStringLiteral("the amount stands in words"));
    shoot(QStringLiteral("04-osszeg-betuvel"));
    showTab(1);
    for (const char* mark : {"chkTPri", "chkTSk", "chkTUv"})
        click(mark);
    showTab(2);
    for (const char* mark : {"chkAjanlott", "chkTerti", "chkSK", "chkPRI", "chkLEGI", "chk6"})
        click(mark);
    showTab(5);
    click("chkVisszaCimPrint_0");
    showTab(6);
    type("RtxOsszeg", QStringLiteral("87650"));
    click("cmdOldalCsere");
    type("RcsekkKozlemenyHatul_0", QStringLiteral("Közlemény a hátoldalon"));
    click("cmdOldalCsere");
    showTab(7);
    click("chkUtanvetR");
}

// Every form that is fed both ways, with all its sides and variants.
void Tour::printForms(const char* button, const QString& what, int pages) {
    for (const TourForm& form : forms) {
        if (form.tab == labelTab) continue;
        for (const auto& [feed, feedName] : {std::pair{"OpOrientacioFekvo", "fekvo"}, {"OpOrientacioAllo", "allo"}}) {
            showTab(form.tab);
            click(feed);
            const bool upright = feedName == std::string("allo");
            const auto printNow = [&, feedText = QLatin1String(feedName)](const TourForm::Variant& variant) {
                if (pages > 1) selectBatch(pages); // showing a tab may take the batch button away
                const QString name = named(form, what + u'-' + feedText, variant.name);
                print(button, name, pages);
                layOverStationery(name, upright ? variant.upright.value_or(form.upright) : form.sideways);
            };
            printNow({"", ""});
            for (const TourForm::Variant& variant : form.variants) {
                click(variant.turn);
                if (*variant.name != '\0') printNow(variant);
            }
        }
    }
}

void Tour::selectBatch(int clients) {
    clickRow(5);
    clickRow(4 + clients, Qt::ShiftModifier);
}

void Tour::printBatches() {
    constexpr int clients = 6;
    showTab(0);
    selectBatch(clients);
    shoot(QStringLiteral("05-csoportos"));
    printForms("cmdCsPrint", QStringLiteral("csoportos"), clients);
}

// A sheet for the list, one for a client put onto a place by hand, and one with a text of its own.
void Tour::printLabels() {
    showTab(labelTab);
    selectBatch(14);
    print("cmdPrint", QStringLiteral("etikett-lista"), 2);
    clickRow(2);
    click("chkCimke1_3");
    shoot(QStringLiteral("05-etikett-cella"));
    print("cmdPrint", QStringLiteral("etikett-cella"), 1);
    click("chkEgyediCimke");
    type("txEgyediCimke_0", QStringLiteral("Egyedi szöveg"));
    shoot(QStringLiteral("05-etikett-egyedi"));
    print("cmdPrint", QStringLiteral("etikett-egyedi"), 1);
    click("chkEgyediCimke");
}

// Opens a modal dialog by `open` and lets `act` work with it; if it doesn't close it, it is closed afterwards.
void Tour::inDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(100, [this, act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        check(dialog != nullptr, QStringLiteral("a dialog opens"));
        if (dialog == nullptr) return;
        dialog->resize(dialog->sizeHint()); // the offscreen platform's screen is smaller than a real one
        QTest::qWait(30);
        act(*dialog);
        if (dialog->isVisible()) dialog->reject();
    });
    open();
}

void Tour::openSetup(const std::function<void(QDialog&)>& act) {
    inDialog([this] { window_->menuBar()->findChild<QAction*>(QStringLiteral("mnuSetup"))->trigger(); }, act);
}

void Tour::shootDialog(QDialog& dialog, const QString& name) {
    check(dialog.grab().save(results_ + u'/' + name + QStringLiteral(".png")), QStringLiteral("screenshot ") + name);
}

namespace {

// A position of each setup page, in whole mm from the left.
struct Setting {
    int tab;
    const char *box, *save;
};
constexpr Setting settings[] = {
    {0, "Textcim_x1", "Command1"},
    {1, "txtTertiCimzett_x", "cmdTertiMentes"},
    {2, "txtFeladovevenyCimzett_x", "cmdFeladovevenyMentes"},
    {3, "Text1_3", "cmdBoritekMeretSave_0"},
    {5, "txtIratTertiCimzett_x", "cmdIratTertiMentes"},
    {6, "RcsekkTextFelado_x", "cmdRCsekkMentes"},
    {7, "UlapTextFelado_x", "cmdULapMentes"},
};

bool stands(const PrintJob& job, const PlacedText& text, float x) {
    const auto& items = job.pages.front().items;
    return std::any_of(items.begin(), items.end(), [&](const PlacedItem& item) {
        const auto& placed = std::get<PlacedText>(item);
        return placed.text == text.text && placed.y == text.y && std::abs(placed.x - x) < 0.001F;
    });
}

// Whether a text stands so many mm to the right of where it stood.
bool hasMoved(const PrintJob& before, const PrintJob& after, float millimetres) {
    const auto& items = before.pages.front().items;
    return std::any_of(items.begin(), items.end(), [&](const PlacedItem& item) {
        const auto& text = std::get<PlacedText>(item);
        return !stands(after, text, text.x) && stands(after, text, text.x + millimetres);
    });
}

} // namespace

// Every page of the setup dialog: a changed position moves what prints there by as many millimetres.
void Tour::moveSettings() {
    constexpr int millimetres = 7;
    clickRow(3);
    showTab(0);
    type("txOsszeg", QStringLiteral("1500"));
    for (const Setting& setting : settings) {
        showTab(setting.tab);
        click("OpOrientacioFekvo");
        click("cmdPrint");
        const PrintJob before = printing_.job;
        openSetup([&](QDialog& dialog) {
            auto* box = dialog.findChild<QLineEdit*>(QLatin1String(setting.box));
            box->setText(QString::number(box->text().toInt() + millimetres));
            shootDialog(dialog, QStringLiteral("06-beallitasok-%1-modositva").arg(setting.tab));
            dialog.findChild<QPushButton*>(QLatin1String(setting.save))->click();
            shootDialog(dialog, QStringLiteral("06-beallitasok-%1").arg(setting.tab));
        });
        click("cmdPrint");
        check(hasMoved(before, printing_.job, millimetres),
              QStringLiteral("%1 moves its text by %2 mm").arg(QLatin1String(setting.box)).arg(millimetres));
    }
}

void Tour::openCatalogues() {
    showTab(0);
    openSetup([this](QDialog& setup) {
        for (const char* button : {"cmdJogcim", "cmdKozlemeny"})
            inDialog([&] { setup.findChild<QPushButton*>(QLatin1String(button))->click(); },
                     [&](QDialog& dialog) { shootDialog(dialog, QStringLiteral("07-") + QLatin1String(button)); });
    });
}

// The next start.
void Tour::reopen() {
    window_->close();
    window_ = std::make_unique<frmTarlimo>(
        folder_,
        WindowServices{printing_, prompts_, [](const QString&) {}, [this] { return printing_.lastPdf(); }, {}, {}});
    window_->show();
}

void Tour::closeAndReopen() {
    showTab(6);
    reopen();
    check(window_->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->currentIndex() == 6,
          QStringLiteral("the next start comes back to the tab"));
}
