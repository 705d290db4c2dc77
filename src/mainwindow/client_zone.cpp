#include "mainwindow/client_zone.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

ClientZone::ClientZone(const ProgramFolder& folder, QWidget* parent)
    : QWidget(parent)
    , folder_(folder)
    , view_(new ClientListView)
    , order_(new QCheckBox(QStringLiteral("Lista sorrend növekedő")))
    , count_(new QLabel) {
    order_->setObjectName(QStringLiteral("chkListaSorren"));
    count_->setObjectName(QStringLiteral("lbKijelolve"));
    count_->setToolTip(QStringLiteral("Ennyi ügyfél van kijelölve"));
    count_->setAlignment(Qt::AlignCenter);
    view_->setModel(&model_);
    setFocusProxy(view_);
    view_->setColumnWidth(0, 353); // 5292, 7056 and 2540 twips; the last column takes what is left
    view_->setColumnWidth(1, 470);
    view_->header()->setStretchLastSection(true);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    QPushButton* reload = addButton("cmdBeolvas", "Beol&vasás", "Teljes adatállomány beolvasása a listába");
    QPushButton* add = addButton("cmdRogzit", "&Felvétel");
    QPushButton* modify = addButton("cmdModosit", "&Módosítás");
    delete_ = addButton("cmdDel", "&Törlés");
    QPushButton* amounts =
        addButton("cmdOsszegek", "Csekk Összegek &Rögzítése", "Összeg rögzítése a kijelölt ügyfélhez...");
    // The dialogs behind add, modify and amounts aren't there yet; delete waits for the first click on a row.
    for (QPushButton* button : {add, modify, delete_, amounts})
        button->setEnabled(false);
    for (QWidget* widget : std::initializer_list<QWidget*>{reload, add, modify, delete_, amounts, order_})
        column->addWidget(widget);
    column->addStretch();
    column->addWidget(count_);
    layout->addLayout(column);

    connect(reload, &QPushButton::clicked, this, [this] { model_.cmdBeolvas_Click(folder_); });
    connect(delete_, &QPushButton::clicked, this, &ClientZone::deletePressed);
    connect(view_, &ClientListView::rowClicked, this, &ClientZone::rowClicked);
    connect(view_, &ClientListView::deletePressed, this, &ClientZone::removeSelected);
    connect(view_->header(), &QHeaderView::sectionClicked, this, &ClientZone::sortBy);
    connect(order_, &QCheckBox::toggled, this, [this] { sortBy(model_.sortColumn()); });
}

QPushButton* ClientZone::addButton(const char* name, const char* caption, const char* tooltip) {
    auto* button = new QPushButton(QString::fromUtf8(caption));
    button->setObjectName(QLatin1String(name));
    button->setToolTip(QString::fromUtf8(tooltip));
    return button;
}

void ClientZone::Beolvas() { model_.Beolvas(folder_); }

void ClientZone::search(const QString& text, int keep) {
    model_.search(folder_, text);
    const int row = model_.rowOf(keep);
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
}

void ClientZone::removeSelected() {
    model_.removeRows(view_->selectedRows());
    showCount(QString());
}

void ClientZone::showCount(const QString& lbKijelolve) { count_->setText(lbKijelolve); }

void ClientZone::enableDelete(bool enabled) { delete_->setEnabled(enabled); }

bool ClientZone::isAscending() const { return order_->isChecked(); }

void ClientZone::setAscending(bool ascending) { order_->setChecked(ascending); }
