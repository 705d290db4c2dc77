#include "mainwindow/frmTarlimo.h"

#include "mainwindow/about_box.h"
#include "mainwindow/client_pour.h"
#include "mainwindow/client_zone.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/guarded.h"
#include "mainwindow/label_cells.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/posting_list_actions.h"
#include "mainwindow/print_panel.h"
#include "mainwindow/status_line.h"
#include "mainwindow/tab_strip.h"
#include "mainwindow/window_arrangement.h"
#include "mainwindow/window_state.h"
#include "prompts/messages.h"
#include "settings/setup/setup_dialog.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

frmTarlimo::frmTarlimo(const ProgramFolder& folder, const WindowServices& services)
    : folder_(folder)
    , services_(services)
    , device_(services.printing)
    , SSTab1_(new TabStrip(tabs_, {folder_, device_, services_.prompts, selected_}))
    , clients_(new ClientZone(folder, services.prompts))
    , panel_(new PrintPanel(folder, services_.prompts))
    , pane_(new QStackedWidget)
    , splitter_(arrange({SSTab1_, panel_, clients_, pane_}))
    , line_(new StatusLine)
    , work_(*this, *line_)
    , database_(folder, services_.prompts, work_)
    , entry_({folder_, services_.prompts, tabs_, selected_, *this, *pane_, *clients_})
    , printing_({folder_, services_, device_, tabs_, selected_, *clients_, *panel_, *line_, work_})
    , watching_({*this, folder_, services_.prompts, printing_, *line_, work_}) {
    setObjectName(u"frmTarlimo"_s);
    setCentralWidget(splitter_);
    setStatusBar(line_);
    buildMainMenu(*menuBar());
    connectMenu();
    connectKeys();
    connectParts();
    load();
    activate();
    clients_->setFocus(); // the day's work begins with a client
}

void frmTarlimo::connectParts() {
    connect(SSTab1_, &TabStrip::shown, this, [this](const TabRow& row) {
        if (row.singleOnly) panel_->showButton(false);
        panel_->showTab(row);
    });
    connect(SSTab1_, &TabStrip::searchWanted, this, [this](const QString& text) { searchList(text, 0); });
    connect(SSTab1_, &TabStrip::listWanted, clients_, &ClientZone::enterList);
    connect(SSTab1_, &TabStrip::clientWanted, clients_, [this] { clients_->setFocus(); });
    connect(SSTab1_, &TabStrip::said, line_, &StatusLine::say);
    connect(SSTab1_, &TabStrip::dialogClosed, this, &frmTarlimo::activate);
    connect(clients_, &ClientZone::rowClicked, this, &frmTarlimo::rowClicked);
    connect(clients_, &ClientZone::deletePressed, this,
            [this] { database_.cmdDel_Click(selected_.rekordszam, tabs_.yellowCheck.txNev); });
    connect(clients_, &ClientZone::addPressed, &entry_, &ClientActions::cmdRogzit_Click);
    connect(clients_, &ClientZone::modifyPressed, &entry_, &ClientActions::cmdModosit_Click);
    connect(clients_, &ClientZone::amountsPressed, &entry_, &ClientActions::cmdOsszegek_Click);
    connect(clients_, &ClientZone::fileMoved, this, [this] { clientsChanged({ClientsChanged::replaced}); });
    connect(clients_, &ClientZone::said, line_, &StatusLine::say);
    connect(clients_, &ClientZone::filled, line_, &StatusLine::showClientCount);
    connect(&database_, &DatabaseActions::changed, this, &frmTarlimo::clientsChanged);
    connect(&database_, &DatabaseActions::said, line_, &StatusLine::say);
    connect(&entry_, &ClientActions::changed, this, &frmTarlimo::clientsChanged);
    connect(&entry_, &ClientActions::said, line_, &StatusLine::say);
    connect(&entry_, &ClientActions::amountsRead, this, [this] {
        clients_->refresh(selected_.rekordszam);
        SSTab1_->showValues();
    });
    connect(&entry_, &ClientActions::closed, this, &frmTarlimo::activate);
    connect(&database_, &DatabaseActions::saidOfFile, line_, &StatusLine::sayWithLink);
    connect(&watching_, &WatchActions::changed, this, &frmTarlimo::clientsChanged);
    connect(&watching_, &WatchActions::dialogClosed, this, &frmTarlimo::activate);
    connect(line_, &StatusLine::fileWanted, this, [this](const QString& path) { services_.openDocument(path); });
    connect(panel_, &PrintPanel::deviceSelected, this, [this] {
        // From here on the device is the system's default one, until a routine selects another.
        if (panel_->isSystemDefault()) device_.setTrackDefault(true);
    });
    connect(panel_, &PrintPanel::printPressed, this, [this] { printing_.press(Press::single, SSTab1_->tab()); });
    connect(panel_, &PrintPanel::batchPressed, this, [this] { printing_.press(Press::batch, SSTab1_->tab()); });
    connect(&printing_, &PrintActions::printed, this, [this](Tab tab) {
        if (tab != Tab::label) return;
        showCount(tabs_.label, readRecord<CimkeSetup>(folder_));
        SSTab1_->showValues();
    });
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &frmTarlimo::storeState);
}

void frmTarlimo::connectMenu() {
    onMenu(*menuBar(), "mnuKilep", this, &frmTarlimo::askAndClose);
    onMenu(*menuBar(), "mnuSetup", this, &frmTarlimo::showSetup);
    onMenu(*menuBar(), "mnuUjcimzett", &entry_, &ClientActions::cmdRogzit_Click);
    database_.connectMenu(*menuBar());
    watching_.connectMenu(*menuBar());
    const auto* posting = new PostingListActions(*this, folder_, services_, printing_);
    connect(posting, &PostingListActions::settingsClosed, this, &frmTarlimo::activate);
    onMenu(*menuBar(), "mnuImportHelp", this, [this] {
        services_.openDocument(folder_.file(u"Csekk_adat_Import.htm"_s));
    }).setShortcut(Qt::Key_F1);
    onMenu(*menuBar(), "mnuAbout", this, [this] {
        frmAbout(services_.openSystemInformation, this).exec();
        activate();
    });
}

void frmTarlimo::connectKeys() {
    const auto on = [this](const QKeySequence& key, auto handler) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setAutoRepeat(false); // a key held down is one press
        connect(shortcut, &QShortcut::activated, this, handler);
    };
    on(Qt::Key_F2, [this] { SSTab1_->focusAmount(); });
    on(Qt::Key_F3, [this] { SSTab1_->startSearch(); });
    on(Qt::Key_F4, [this] { clients_->setFocus(); });
    on(Qt::Key_F5, [this] { clients_->cmdBeolvas_Click(); });
    on(Qt::CTRL | Qt::Key_P, [this] { panel_->pressByKey(); });
}

void frmTarlimo::load() {
    database_.checkAtStart();
    showSheet(tabs_.label, readRecord<CimkeSetup>(folder_));
    panel_->offerPrinters(device_.Printers(), services_.printing.defaultPrinter());
    restoreControls();
    clients_->Beolvas();
    SSTab1_->offerFonts(services_.printing.fonts());
    restoreSheets(tabs_, folder_);
    SSTab1_->showValues();
    restoreArrangement(folder_, *this, *splitter_, *clients_);
}

void frmTarlimo::restoreControls() {
    const auto set = readRecord<Set>(folder_); // a copy: the handlers below write the file
    panel_->restorePrinter(set.lbPrintNo);
    restoreTabs(tabs_, set, folder_);
    clients_->setAscending(set.chkListaSorren != 0);
    panel_->selectDevice(set.opPrinter_1);
    SSTab1_->restore(set.SSTab1Tab);
}

void frmTarlimo::activate() {
    setWindowTitle(u"Tarlimo program - "_s + QStringLiteral(TARLIMO_VERSION));
    SSTab1_->activate();
}

void frmTarlimo::rowClicked(int row) {
    line_->say({}); // what the last job came to isn't about this client
    const int number = clients_->recordNumber(row);
    if (!clients_->checkFile()) return;
    if (number > maxClientNumber)
        return services_.prompts.tell(
            {Icon::information, titles::attention, u"A 32767. rekord utáni ügyfelek innen nem választhatók ki!"_s});
    selected_ = {number, {RecordFile<ClientRec>(folder_).read(number), RecordFile<TwinRec>(folder_).read(number)}};
    clients_->enableClientButtons(true);
    applyButtonRule();
    pourClient(tabs_, selected_.record, {readRecord<Set>(folder_), readRecord<SetRcsekk>(folder_)}, device_);
    SSTab1_->showValues();
    entry_.clientClicked();
    // The click wrote the name, and a ticked search follows the name.
    if (tabs_.yellowCheck.Check1) searchList(tabs_.yellowCheck.txNev, number);
}

void frmTarlimo::applyButtonRule() {
    const ButtonRule rule = buttonRule(clients_->selectedCount(), SSTab1_->tab());
    panel_->showButton(rule.batch, clients_->selectedCount());
    clients_->showCount(rule.lbKijelolve);
}

void frmTarlimo::searchList(const QString& text, int keep) {
    clients_->search(text, keep);
    applyButtonRule();
}

void frmTarlimo::clientsChanged(const ClientsChanged& change) {
    afterwards([&] {
        followClients(tabs_.label, change, folder_);
        entry_.clientsChanged(change);
        if (change.movesNumbers()) {
            selected_ = {}; // no held number names the client that the window still shows
            clients_->enableClientButtons(false);
        } else if (change.what == ClientsChanged::modified && change.number == selected_.rekordszam) {
            selected_.record = readClient(folder_, change.number).value_or(selected_.record);
            pourModified(tabs_, selected_.record, {readRecord<Set>(folder_), readRecord<SetRcsekk>(folder_)});
        }
        change.movesNumbers() ? clients_->Beolvas() : clients_->refresh(selected_.rekordszam);
        applyButtonRule();
        SSTab1_->showValues();
    });
}

void frmTarlimo::showSetup() {
    const QByteArray before = SSTab1_->shownRecord();
    const DeviceFonts fonts{services_.printing.fonts(),
                            [this](const QString& name) { return services_.printing.knowsFont(name); }};
    frmSetup(folder_, services_.prompts, fonts, SSTab1_->row().setupOldal, this).exec();
    activate();
    if (SSTab1_->shownRecord() != before) SSTab1_->reload();
}

void frmTarlimo::askAndClose() {
    const Message question{Icon::question, u" Kilépés "_s, u"Biztos hogy Befejezed?\n\n"_s};
    if (services_.prompts.ask(question) == Answer::yes) close();
}

void frmTarlimo::closeEvent(QCloseEvent* event) {
    if (!storeState()) services_.prompts.tell(messages::settingNotWritten());
    QMainWindow::closeEvent(event);
    // Not left to the last window: a dialog that isn't modal must not keep the process alive.
    qApp->quit();
}

bool frmTarlimo::storeState() {
    const bool arranged = storeArrangement(folder_, *this, *splitter_, *clients_);
    return storeWindow(folder_, tabs_, {clients_->isAscending(), panel_->feed(), panel_->isSystemDefault()}) &&
           arranged;
}
