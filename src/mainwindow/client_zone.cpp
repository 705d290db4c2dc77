#include "mainwindow/client_zone.h"

#include "controls/named.h"
#include "mainwindow/guarded.h"
#include "prompts/titles.h"
#include "records/client_database.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

ClientZone::ClientZone(const ProgramFolder& folder, Prompts& prompts, QWidget* parent)
    : QWidget(parent)
    , folder_(folder)
    , prompts_(prompts)
    , view_(new ClientListView)
    , order_(new QCheckBox(QStringLiteral("Lista sorrend növekedő")))
    , count_(new QLabel) {
    named(order_, "chkListaSorren");
    named(count_, "lbKijelolve", QStringLiteral("Ennyi ügyfél van kijelölve"));
    count_->setAlignment(Qt::AlignCenter);
    view_->setModel(&model_);
    setFocusProxy(view_);
    view_->header()->setStretchLastSection(true);
    view_->setMinimumHeight(90);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_, 1);
    layout->addWidget(buildSide());

    connect(view_, &ClientListView::rowClicked, this, &ClientZone::rowClicked);
    connect(view_, &ClientListView::deletePressed, this, &ClientZone::removeSelected);
    connect(view_->header(), &QHeaderView::sectionClicked, this, &ClientZone::sortBy);
    connect(order_, &QCheckBox::toggled, this, [this] { sortBy(model_.sortColumn()); });
    connect(&model_, &QAbstractItemModel::modelReset, this, &ClientZone::tellFilled);
}

// Two columns of buttons: on a low screen the list would else be as high as the six of them.
QWidget* ClientZone::buildSide() {
    struct Button {
        const char* name;
        const char16_t* caption;
        const char16_t* tooltip;
        int row, column, columns;
        bool needsClient; // waits for the first click on a row
        void (ClientZone::*press)();
    };
    static constexpr Button buttons[] = {
        {"cmdBeolvas", u"Beol&vasás", u"Teljes adatállomány beolvasása a listába (F5)", 0, 0, 1, false,
         &ClientZone::cmdBeolvas_Click},
        {"cmdRogzit", u"&Felvétel", u"Új címzett felvétele", 0, 1, 1, false, &ClientZone::addPressed},
        {"cmdModosit", u"&Módosítás", u"A kijelölt ügyfél adatainak módosítása", 1, 0, 1, true,
         &ClientZone::modifyPressed},
        {"cmdDel", u"&Törlés", u"A kijelölt ügyfél törlése az adatbázisból", 1, 1, 1, true, &ClientZone::deletePressed},
        {"cmdOsszegek", u"Csekk Összegek &Rögzítése", u"Összeg rögzítése a kijelölt ügyfélhez...", 2, 0, 2, true,
         &ClientZone::amountsPressed},
    };
    auto* side = new QWidget;
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    for (const Button& row : buttons) {
        auto* button =
            named(new QPushButton(QString::fromUtf16(row.caption)), row.name, QString::fromUtf16(row.tooltip));
        if (row.needsClient) clientButtons_ << button;
        connect(button, &QPushButton::clicked, this, [this, &row] {
            if (!row.needsClient || checkFile()) (this->*row.press)();
        });
        grid->addWidget(button, row.row, row.column, 1, row.columns);
    }
    enableClientButtons(false);
    grid->addWidget(order_, 3, 0, 1, 2);
    grid->addWidget(count_, 4, 0, 1, 2);
    grid->setRowStretch(5, 1);
    return side;
}

void ClientZone::Beolvas() {
    const int scrolledTo = view_->verticalScrollBar()->value();
    fill([this] { model_.Beolvas(folder_); });
    view_->verticalScrollBar()->setValue(scrolledTo);
}

void ClientZone::refresh(int inHand) {
    const std::vector<int> selected = rows().selected;
    Beolvas();
    view_->selectRows(model_.rowsOf(selected.empty() ? std::vector{inHand} : selected), model_.rowOf(inHand));
}

void ClientZone::cmdBeolvas_Click() {
    fill([this] { model_.cmdBeolvas_Click(folder_); });
}

// The stamp is taken first: what is written while the file is read counts as a change. It holds once the list shows the
// file: after a failure no number of the rows counts.
template<class Fill>
void ClientZone::fill(Fill fill) {
    stamp_.reset();
    const bool filled = readable([&] {
        (void)clientCount(folder_); // a missing file comes into being
        const std::optional<FileStamp> stamp = stampNow();
        fill();
        stamp_ = stamp;
    });
    if (filled) return;
    view_->setEmptyText(QStringLiteral("Az adatbázis nem olvasható."));
    prompts_.tell({Icon::critical, titles::error,
                   QStringLiteral("A(z) %1 fájl nem olvasható, más program használja.\n"
                                  "Próbáld újra a Beolvasás gombbal.")
                       .arg(QString::fromLatin1(ClientRec::fileName))});
}

std::optional<FileStamp> ClientZone::stampNow() const {
    return fileStamp(folder_.file(QString::fromLatin1(ClientRec::fileName)));
}

bool ClientZone::checkFile() {
    if (stamp_ && stampNow() == stamp_) return true;
    Q_EMIT fileMoved();
    if (stamp_)
        Q_EMIT said(QStringLiteral(
            "Az adatbázist közben egy másik program megváltoztatta, a lista frissült. Nem történt semmi."));
    return false;
}

void ClientZone::search(const QString& text, int keep) {
    fill([&] { model_.search(folder_, text); });
    select(keep);
}

void ClientZone::select(int recordNumber) {
    const int row = model_.rowOf(recordNumber);
    if (row >= 0) view_->selectRow(row);
}

ListRows ClientZone::rows() const {
    ListRows rows{model_.recordNumbers(), {}};
    for (const int row : view_->selectedRows())
        rows.selected.push_back(model_.recordNumber(row));
    return rows;
}

void ClientZone::sortBy(int column) {
    // A header never flips the order; the box alone decides it. The indicator follows.
    const Qt::SortOrder order = isAscending() ? Qt::AscendingOrder : Qt::DescendingOrder;
    view_->header()->setSortIndicatorShown(true);
    view_->header()->setSortIndicator(column, order);
    model_.setSort(column, order);
    view_->scrollTo(view_->currentIndex());
}

void ClientZone::removeSelected() {
    const QList<int> rows = view_->selectedRows();
    if (rows.isEmpty()) return;
    model_.removeRows(rows);
    showCount(QString());
    view_->setEmptyText(QStringLiteral("A lista üres. A Beolvasás gomb (F5) minden ügyfelet visszahoz."));
    Q_EMIT said(QStringLiteral("%1 sor levéve a listáról, az adatbázisban megmaradtak").arg(rows.size()));
}

void ClientZone::tellFilled() {
    view_->setEmptyText(model_.clientCount() == 0
                            ? QStringLiteral("Nincs ügyfél. Adatbázis › Adatbázis importálása &CSV fájlból")
                            : QStringLiteral("Nincs ilyen nevű ügyfél."));
    Q_EMIT filled(model_.clientCount());
}

void ClientZone::showCount(const QString& lbKijelolve) { count_->setText(lbKijelolve); }

void ClientZone::enableClientButtons(bool enabled) {
    for (QPushButton* button : clientButtons_)
        button->setEnabled(enabled);
}

bool ClientZone::isAscending() const { return order_->isChecked(); }

void ClientZone::setAscending(bool ascending) { order_->setChecked(ascending); }

void ClientZone::setColumnWidths(const QList<int>& widths) {
    for (int column = 0; column < widths.size() && column < 2; ++column)
        view_->setColumnWidth(column, qBound(40, widths[column], 4000));
}
