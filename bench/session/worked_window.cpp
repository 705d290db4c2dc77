#include "worked_window.h"

#include "../comparison.h"
#include "../peak_memory.h"
#include "mainwindow/client_list_model.h"
#include "records/client_database.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

#include <unistd.h>

namespace {

constexpr QSize usualSize(1240, 711);

} // namespace

WorkedWindow::WorkedWindow(const ProgramFolder& folder)
    : folder_(folder)
    , printing_(folder, Devices::pdfOnly)
    , window_(folder, WindowServices{printing_, prompts_, {}, [this] { return printing_.lastPdf(); }, {}, {}})
    , list_(find<QTreeView>("ListView1"))
    , tabs_(*find<QTabWidget>("SSTab1").tabBar())
    , bar_(find<QProgressBar>("pbHaladas")) {
    window_.resize(usualSize);
    window_.show();
    if (!QTest::qWaitForWindowExposed(&window_)) qFatal("the window did not open");
    QApplication::processEvents();
    qApp->installEventFilter(this);
}

double WorkedWindow::work(std::string_view act) {
    static constexpr struct {
        std::string_view name;
        double (WorkedWindow::*work)();
    } acts[] = {{"click", &WorkedWindow::click},   {"key", &WorkedWindow::key},       {"tab", &WorkedWindow::tab},
                {"all", &WorkedWindow::selectAll}, {"resize", &WorkedWindow::resize}, {"sort", &WorkedWindow::sort},
                {"add", &WorkedWindow::add},       {"delete", &WorkedWindow::remove}, {"batch", &WorkedWindow::batch},
                {"bare", &WorkedWindow::bare},     {"sign", &WorkedWindow::sign},     {"cancel", &WorkedWindow::cancel},
                {"peak", &WorkedWindow::peak},     {"fonts", &WorkedWindow::fonts}};
    const auto* row = std::ranges::find(acts, act, [](const auto& each) { return each.name; });
    return (this->*row->work)();
}

template<class Widget>
Widget& WorkedWindow::find(const char* name) const {
    auto* found = window_.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) qFatal("no control %s", name);
    return *found;
}

// An act that paints nothing has gone astray.
template<class Act>
double WorkedWindow::untilPainted(Act act) {
    paints_ = 0;
    const double seconds = secondsOf([&] {
        act();
        QApplication::processEvents();
    });
    if (paints_ == 0) qFatal("nothing was painted");
    return seconds;
}

void WorkedWindow::press(const char* button) const {
    auto& pressed = find<QPushButton>(button);
    if (!pressed.isVisible() || !pressed.isEnabled()) qFatal("%s can't be pressed", button);
    QTest::mouseClick(&pressed, Qt::LeftButton);
}

void WorkedWindow::clickRow(int row) {
    const QModelIndex index = list_.model()->index(row, 0);
    list_.scrollTo(index);
    const QPoint place = list_.visualRect(index).center();
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, place);
}

double WorkedWindow::click() {
    row_ = row_ == 1 ? 2 : 1; // in view however low the list is
    const double seconds = untilPainted([this] { clickRow(row_); });
    const QString number = list_.model()->index(row_, ClientListModel::rec).data().toString();
    if (window_.rekordszam() != number.trimmed().toInt()) qFatal("the click went astray");
    return seconds;
}

double WorkedWindow::key() {
    tabs_.setCurrentIndex(0);
    find<QAbstractButton>("Check1").setChecked(true);
    auto& box = find<QLineEdit>("txNev");
    double seconds = 0;
    int keys = 0;
    for (const char16_t* word : typedWords) {
        box.selectAll();
        for (const QChar letter : QString::fromUtf16(word)) {
            ++keys;
            seconds += untilPainted(
                [&] { QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), Qt::NoModifier); });
        }
    }
    if (list_.model()->rowCount() == 0) qFatal("the search found nobody");
    return seconds / keys;
}

double WorkedWindow::tab() {
    double slowest = 0;
    for (int number = tabs_.count(); --number >= 0;)
        slowest = std::max(slowest, untilPainted([&] { tabs_.setCurrentIndex(number); }));
    return slowest;
}

double WorkedWindow::selectAll() {
    clickRow(1);
    QApplication::processEvents();
    return untilPainted([this] { QTest::keyClick(&list_, Qt::Key_A, Qt::ControlModifier); });
}

double WorkedWindow::resize() {
    const int width = window_.width() == usualSize.width() ? 1100 : window_.width() + 10;
    return untilPainted([&] { window_.resize(width, usualSize.height()); });
}

// By name and by address in turn.
double WorkedWindow::sort() {
    QHeaderView& header = *list_.header();
    const int column = header.sortIndicatorSection() == 0 ? 1 : 0;
    const QPoint place(header.sectionViewportPosition(column) + 20, header.height() / 2);
    const double seconds = untilPainted([&] { QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place); });
    if (header.sortIndicatorSection() != column) qFatal("the header did not sort");
    return seconds;
}

double WorkedWindow::add() {
    const qint64 before = clientCount(folder_);
    if (!find<QWidget>("cmdRogzites").isVisible()) {
        press("cmdRogzit");
        find<QAbstractButton>("chkTobbFelvetel").setChecked(true);
    }
    for (const char* box : {"txBefizetoNeve", "txBefizetoCim1", "txBefizetoCim2"})
        find<QLineEdit>(box).setText(QStringLiteral("Próba"));
    ::sync();
    const double seconds = untilPainted([this] { press("cmdRogzites"); });
    if (list_.model()->rowCount() != before + 1) qFatal("the client is not in the list");
    QFile::resize(folder_.file(QString::fromLatin1(ClientRec::fileName)), before * qint64{sizeof(ClientRec)});
    QFile::resize(folder_.file(QString::fromLatin1(TwinRec::fileName)), before * qint64{sizeof(TwinRec)});
    press("cmdBeolvas");
    QApplication::processEvents();
    return seconds;
}

double WorkedWindow::remove() {
    const qint64 before = clientCount(folder_);
    int row = 0;
    while (window_.rekordszam() == 0) // beyond the largest number nobody can be picked
        clickRow(++row);
    QApplication::processEvents();
    const std::optional<Client> client = readClient(folder_, window_.rekordszam());
    ::sync();
    const double seconds = untilPainted([this] { press("cmdDel"); });
    if (!client || clientCount(folder_) != before - 1) qFatal("the client could not be deleted");
    // Behind the last one, where the list is as long as before.
    RecordFile<TwinRec>(folder_).write(before, client->twin);
    RecordFile<ClientRec>(folder_).write(before, client->client);
    press("cmdBeolvas");
    QApplication::processEvents();
    return seconds;
}

void WorkedWindow::prepareBatch() {
    tabs_.setCurrentIndex(0);
    press("cmdBeolvas"); // a batch may have taken its rows out
    QApplication::processEvents();
    selectAll();
}

double WorkedWindow::batch() {
    if (const QString last = printing_.lastPdf(); !last.isEmpty()) QFile::remove(last);
    prepareBatch();
    printing_.prints = true;
    ::sync();
    const double seconds = untilPainted([this] { press("cmdCsPrint"); });
    if (!QFile::exists(printing_.lastPdf())) qFatal("no file was printed");
    return seconds;
}

double WorkedWindow::bare() {
    if (!bareJob_) {
        prepareBatch();
        printing_.prints = false;
        press("cmdCsPrint");
        bareJob_.emplace(printing_.job);
    }
    return secondsOf([this] { bareJob_->print(scratch_.folder().file(QStringLiteral("bare.pdf"))); });
}

void WorkedWindow::runAndCancel(int permille) {
    prepareBatch();
    printing_.prints = true;
    signMs_ = -1;
    cancelAt_ = permille;
    sinceCancel_.invalidate();
    sincePress_.start();
    press("cmdCsPrint");
    if (!sinceCancel_.isValid()) qFatal("the batch was too short to be cancelled");
}

// The wait cursor, which the toolkit shows as soon as it is set.
double WorkedWindow::sign() {
    printing_.whileWriting = [this] {
        if (signMs_ < 0 && QGuiApplication::overrideCursor() != nullptr) signMs_ = sincePress_.elapsed();
    };
    runAndCancel(0);
    printing_.whileWriting = [] {};
    return static_cast<double>(signMs_) / 1000;
}

// While pages are handed over, the second half of the bar.
double WorkedWindow::cancel() {
    runAndCancel(600);
    return static_cast<double>(sinceCancel_.elapsed()) / 1000;
}

bool WorkedWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint) return false;
    ++paints_;
    if (watched != &bar_) return false;
    if (cancelAt_ < 0 || bar_.value() < cancelAt_) return false;
    if (!sinceCancel_.isValid()) {
        sinceCancel_.start(); // the clerk presses right after this look; the next one sees it
    } else {
        cancelAt_ = -1;
        QTimer::singleShot(0, this, [this] { press("cmdMegse"); });
    }
    return false;
}

double WorkedWindow::peak() { return peakMegabytes(); }

double WorkedWindow::fonts() { return static_cast<double>(QFontDatabase::families().size()); }
