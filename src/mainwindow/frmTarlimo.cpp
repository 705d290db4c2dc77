#include "mainwindow/frmTarlimo.h"

#include "mainwindow/about_box.h"
#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/catalogue_lists.h"
#include "mainwindow/client_zone.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/print_panel.h"
#include "mainwindow/receipt_rules.h"
#include "mainwindow/window_state.h"
#include "mainwindow/yellow_check_rules.h"
#include "prompts/titles.h"
#include "settings/check_layouts.h"
#include "settings/other_settings.h"
#include "settings/receipt_layouts.h"
#include "settings/setup/setup_dialog.h"

#include <QAction>
#include <QCloseEvent>
#include <QDate>
#include <QGuiApplication>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

struct TabRow {
    const char* caption; // blanks as the system has them
    const char* page;    // control name of the picture
    int setupOldal;      // page of the setup dialog that belongs to the tab
    bool singleOnly;     // showing the tab takes the batch button away
};

constexpr TabRow tabRows[] = {
    {"Sárga csekk", "Picture1", 0, false},     {"Tértivevény ", "Picture3", 1, false},
    {"Feladóvevény ", "Picture4", 2, true},    {"Boríték címző", "Frame3", 3, false},
    {" Etikett nyomtató", "Frame8", 0, true},  {"Térti Irathoz", "Picture5", 4, true},
    {"Rózsaszín csekk", "Picture7", 5, false}, {"Utánvételi lap", "Picture6", 6, true},
};
constexpr int tabCount = static_cast<int>(std::size(tabRows));

constexpr QSize designSize(1240, 10665 / 15); // the height in twips, 15 to a pixel

} // namespace

frmTarlimo::frmTarlimo(const ProgramFolder& folder, const WindowServices& services)
    : folder_(folder)
    , services_(services)
    , device_(services.printing)
    , SSTab1_(new QTabWidget)
    , clients_(new ClientZone(folder))
    , panel_(new PrintPanel(folder))
    , progress_(new QProgressBar) {
    setObjectName(QStringLiteral("frmTarlimo"));
    buildTabs();
    buildLayout();
    buildMainMenu(*menuBar());
    connectMenu();
    load();
    activate();
    clients_->setFocus(); // the day's work begins with a client

    connect(SSTab1_, &QTabWidget::currentChanged, this, &frmTarlimo::tabClicked);
    connect(SSTab1_->tabBar(), &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab == SSTab1_->currentIndex()) tabClicked(tab); // a click on the tab in view reloads it
    });
    connect(clients_, &ClientZone::rowClicked, this, &frmTarlimo::rowClicked);
    connect(clients_, &ClientZone::deletePressed, this, &frmTarlimo::deleteClient);
    connect(panel_, &PrintPanel::deviceSelected, this, &frmTarlimo::followDefault);
    connect(panel_, &PrintPanel::printPressed, this, [this] { press(Press::single); });
    connect(panel_, &PrintPanel::batchPressed, this, [this] { press(Press::batch); });
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &frmTarlimo::storeState);
}

void frmTarlimo::buildTabs() {
    const FormContext context{folder_, device_, services_.prompts, selected_};
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    yellowCheck_ = new YellowCheckView(tabs_.yellowCheck, context);
    labels_ = new LabelView(tabs_.label, context);
    views_ = {yellowCheck_,
              new ReturnReceiptView(tabs_.returnReceipt, context),
              new PostingReceiptView(tabs_.postingReceipt, context),
              new EnvelopeView(tabs_.envelope, context),
              labels_,
              new DocumentReceiptView(tabs_.documentReceipt, context),
              new PinkCheckView(tabs_.pinkCheck, context),
              new CashOnDeliveryView(tabs_.cashOnDelivery, context)};
    for (int tab = 0; tab < tabCount; ++tab) {
        BoundView* view = views_[static_cast<std::size_t>(tab)];
        if (auto* form = qobject_cast<FormView*>(view)) form->page()->setObjectName(QLatin1String(tabRows[tab].page));
        SSTab1_->addTab(view, QString::fromUtf8(tabRows[tab].caption));
    }
    connect(yellowCheck_, &YellowCheckView::searchWanted, this, [this](const QString& text) { searchList(text, 0); });
}

void frmTarlimo::buildLayout() {
    auto* top = new QWidget;
    auto* topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->addWidget(SSTab1_, 1);
    topLayout->addWidget(panel_);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setContentsMargins(8, 8, 8, 0);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(top);
    splitter->addWidget(clients_);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setSizes({designSize.height() - 270, 200});
    // On a screen smaller than the controls need, the window scrolls.
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(splitter);
    setCentralWidget(scroll);
    progress_->setMaximumWidth(220);
    progress_->hide();
    statusBar()->addPermanentWidget(progress_);
}

void frmTarlimo::connectMenu() {
    const auto on = [this](const char* name, auto handler) {
        connect(menuBar()->findChild<QAction*>(QLatin1String(name)), &QAction::triggered, this, handler);
    };
    on("mnuKilep", &frmTarlimo::askAndClose);
    on("mnuSetup", &frmTarlimo::showSetup);
    on("mnuAdatCsvbol", &frmTarlimo::importCsv);
    on("mnuAdatbazisTorles", &frmTarlimo::wipeDatabase);
    on("mnuImportHelp", [this] { services_.openDocument(folder_.file(QStringLiteral("Csekk_adat_Import.htm"))); });
    on("mnuAbout", [this] {
        frmAbout(services_.openSystemInformation, this).exec();
        activate();
    });
}

void frmTarlimo::load() {
    if (!finishInterruptedCommit(folder_))
        services_.prompts.tell({Icon::information, titles::attention,
                                QStringLiteral("Az ügyfelek adatbázisának cseréje legutóbb félbeszakadt,\nés nem "
                                               "fejezhető be. A korábbi adatbázis maradt meg.")});
    if (!folder_.isWritable())
        services_.prompts.tell(
            {Icon::information, titles::attention,
             QStringLiteral("A program mappája nem írható,\naz adatok és a beállítások nem menthetők!")});
    showSheet(tabs_.label, readRecord<CimkeSetup>(folder_));
    panel_->offerPrinters(device_.Printers(), services_.printing.defaultPrinter());
    restoreControls();
    restoreBold(tabs_.envelope, readRecord<boritek>(folder_));
    clients_->Beolvas();
    fillFonts();
    showPicturePlacement(tabs_.envelope, readRecord<Kepment>(folder_));
    showAll();
    // Last, when the layouts know what is hidden: a size set earlier would be pushed up by it.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    resize(designSize.boundedTo(screen.size()));
    move(screen.center() - rect().center());
}

void frmTarlimo::restoreControls() {
    const auto set = readRecord<Set>(folder_); // a copy: the handlers below write the file
    panel_->showPrinter(set.lbPrintNo);
    restoreTabs(tabs_, set);
    if (set.chkBefAzonMasolasa) chkBefAzonMasolasa_Click(tabs_.yellowCheck);
    if (set.opAllando[0] || set.opAllando[1]) opAllando_Click(tabs_.pinkCheck, readRecord<SetRcsekk>(folder_));
    clients_->setAscending(set.chkListaSorren != 0);
    panel_->selectDevice(set.opPrinter_1);
    followDefault();
    const int tab = set.SSTab1Tab >= 0 && set.SSTab1Tab < tabCount ? static_cast<int>(set.SSTab1Tab) : 0;
    SSTab1_->setCurrentIndex(tab);
    tabClicked(tab);
}

void frmTarlimo::fillFonts() {
    labels_->offerFonts(services_.printing.fonts());
    restoreLabelFonts(tabs_.label, readRecord<Betutip>(folder_), readRecord<Betumeret>(folder_));
}

void frmTarlimo::activate() {
    setWindowTitle(QStringLiteral("Tarlimo program - ") + QStringLiteral(TARLIMO_VERSION));
    tabs_.yellowCheck.Kozlemeny1.clear();
    tabs_.yellowCheck.txtJogcim1.clear();
    tabs_.yellowCheck.txtJogcim2.clear();
    yellowCheck_->offerCatalogues(
        {titleList(folder_), secondTitleList(folder_, QDate::currentDate()), noticeList(folder_)});
}

void frmTarlimo::showAll() {
    for (BoundView* view : views_)
        view->showValues();
}

void frmTarlimo::tabClicked(int tab) {
    updateRecord<Set>(folder_, [tab](Set& set) { set.SSTab1Tab = static_cast<std::int16_t>(tab); });
    const TabRow& row = tabRows[tab];
    setupOldal_ = row.setupOldal;
    if (row.singleOnly) panel_->showButton(false);
    reloadTab(tab);
    panel_->showTab(tab);
    views_[static_cast<std::size_t>(tab)]->showValues();
}

// The sender and the other stored data that a tab shows, fresh from the settings.
void frmTarlimo::reloadTab(int tab) {
    switch (tab) {
    case 1:
        opBelfold_Click(tabs_.returnReceipt, readRecord<SetTerti>(folder_));
        break;
    case 2:
        reload(tabs_.postingReceipt, readRecord<SetFveveny>(folder_));
        break;
    case 3:
        reload(tabs_.envelope, readRecord<boritek>(folder_));
        break;
    case 4:
        openSheet(tabs_.label, folder_, services_.prompts);
        break;
    case 5:
        reload(tabs_.documentReceipt, readRecord<SetTerti>(folder_));
        break;
    case 6:
        reload(tabs_.pinkCheck, readRecord<SetRcsekk>(folder_));
        break;
    case 7:
        reload(tabs_.cashOnDelivery, readRecord<SetRcsekk>(folder_));
        break;
    default:
        break;
    }
}

void frmTarlimo::rowClicked(int row) {
    const int number = clients_->recordNumber(row);
    if (number > maxClientNumber) {
        services_.prompts.tell({Icon::information, titles::attention,
                                QStringLiteral("A 32767. rekord utáni ügyfelek innen nem választhatók ki!")});
        return;
    }
    selected_.rekordszam = number;
    clients_->enableDelete(true);
    applyButtonRule();
    pour({RecordFile<ClientRec>(folder_).read(number), RecordFile<TwinRec>(folder_).read(number)});
    // The click wrote the name, and a ticked search follows the name.
    if (tabs_.yellowCheck.Check1) searchList(tabs_.yellowCheck.txNev, selected_.rekordszam);
}

void frmTarlimo::pour(const Client& client) {
    selected_.record = client;
    pourClient(tabs_, client, {readRecord<Set>(folder_), readRecord<SetRcsekk>(folder_)}, device_);
    showAll();
}

void frmTarlimo::applyButtonRule() {
    const ButtonRule rule = buttonRule(clients_->selectedCount(), SSTab1_->currentIndex());
    panel_->showButton(rule.batch);
    clients_->showCount(rule.lbKijelolve);
}

void frmTarlimo::searchList(const QString& text, int keep) {
    clients_->search(text, keep);
    applyButtonRule();
}

// From here on the device is the system's default one, until a routine selects another.
void frmTarlimo::followDefault() {
    if (panel_->isSystemDefault()) device_.setTrackDefault(true);
}

void frmTarlimo::press(Press press) {
    panel_->setButtonsEnabled(false);
    const PrintDesk desk{device_, services_.prompts, folder_};
    const auto outcome = dispatchPrint(desk, tabs_, SSTab1_->currentIndex(), panel_->feed(), press, clients_->rows());
    if (outcome)
        report(*outcome);
    else
        statusBar()->showMessage(QStringLiteral("Nem készült nyomat."));
    panel_->setButtonsEnabled(true);
}

void frmTarlimo::report(const PrintOutcome& outcome) {
    if (outcome.pages == 0) {
        const QString reason = outcome.trouble.isEmpty() ? QStringLiteral("Nincs kijelölt ügyfél.") : outcome.trouble;
        statusBar()->showMessage(QStringLiteral("Nem készült nyomat. ") + reason);
        return;
    }
    const QString pdf = services_.lastPdf();
    const bool toPdf = outcome.device == device_.Printers().last() && !pdf.isEmpty();
    statusBar()->showMessage(QStringLiteral("%1 oldal kinyomtatva: %2. %3")
                                 .arg(outcome.pages)
                                 .arg(toPdf ? pdf : outcome.device, outcome.trouble));
}

void frmTarlimo::deleteClient() {
    if (!cmdDel_Click(folder_, services_.prompts, selected_.rekordszam, tabs_.yellowCheck.txNev)) return;
    dropClient(tabs_.label, selected_.rekordszam);
    clientsGone();
    statusBar()->showMessage(QStringLiteral("Az ügyfél törölve, %1 ügyfél maradt.").arg(clientCount(folder_)));
}

void frmTarlimo::wipeDatabase() {
    if (!mnuAdatbazisTorles_Click(folder_, services_.prompts)) return;
    clearCells(tabs_.label);
    clientsGone();
    statusBar()->showMessage(QStringLiteral("Az adatbázis üres."));
}

// After this no held number names the client that the window still shows.
void frmTarlimo::clientsGone() {
    selected_.rekordszam = 0;
    clients_->enableDelete(false);
    clients_->Beolvas();
    labels_->showValues();
}

void frmTarlimo::importCsv() {
    const ImportResult result = mnuAdatCsvbol_Click(folder_, services_.prompts,
                                                    [this](qint64 done, qint64 total) { showProgress(done, total); });
    progress_->hide();
    if (result.clients < 0) return;
    if (result.mode == ImportMode::overwrite) {
        clearCells(tabs_.label);
        clientsGone();
    } else {
        clients_->Beolvas();
    }
    statusBar()->showMessage(QStringLiteral("%1 ügyfél beolvasva, az adatbázisban %2 ügyfél van.")
                                 .arg(result.clients)
                                 .arg(clientCount(folder_)));
    tellImported(folder_, services_.prompts, result);
}

// Painted at once and without serving events: nothing may touch the database while it is being replaced.
void frmTarlimo::showProgress(qint64 done, qint64 total) {
    if (done >= total && progress_->isHidden()) return; // too short to be worth a bar
    progress_->setMaximum(1000);
    progress_->setValue(total > 0 ? static_cast<int>(done * 1000 / total) : 0);
    progress_->show();
    statusBar()->repaint();
}

void frmTarlimo::showSetup() {
    frmSetup(folder_, services_.prompts, services_.printing.fonts(), setupOldal_, this).exec();
    activate();
}

void frmTarlimo::askAndClose() {
    const Message question{Icon::question, QStringLiteral(" Kilépés "), QStringLiteral("Biztos hogy Befejezed?\n\n")};
    if (services_.prompts.ask(question) == Answer::yes) close();
}

void frmTarlimo::closeEvent(QCloseEvent* event) {
    storeState();
    QMainWindow::closeEvent(event);
    // Not left to the last window: a dialog that isn't modal must not keep the process alive.
    qApp->quit();
}

void frmTarlimo::storeState() {
    updateRecord<Set>(folder_, [this](Set& set) {
        storeTabs(tabs_, set);
        set.chkListaSorren = clients_->isAscending() ? 1 : 0;
        set.OpOrientacioFekvo = panel_->feed() == Feed::sideways ? 1 : 0;
        set.opPrinter_1 = panel_->isSystemDefault();
    });
    updateRecord<boritek>(folder_, [this](boritek& set) { storeBold(tabs_.envelope, set); });
}
