#include "clients/dialogs/address_list.h"

#include "controls/named.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

AddressList::AddressList(QWidget* parent)
    : QGroupBox(u"Válassza ki, melyik címre gondolt..."_s, parent)
    , list_(new ReportList("ListView2", {u"Ir.szám"_s, u"Utca"_s, u"Közterület"_s, u"Városrész"_s, u"Hsz-tól"_s,
                                         u"Hsz-ig"_s, u"Kerület"_s})) {
    setObjectName(u"frameCimKeres"_s);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setMinimumSectionSize(9 * list_->fontMetrics().averageCharWidth());
    list_->setToolTip(u"Nyilakkal vagy kattintással választható, ENTER vagy dupla kattintás fogadja el"_s);
    list_->installEventFilter(this);
    auto* hide = named(new QPushButton(u"Lista elrejtése"_s), "cmdListaRejt", u"Vissza a felvételhez (Esc)"_s);

    auto* layout = new QGridLayout(this);
    layout->addWidget(list_, 0, 0);
    layout->addWidget(hide, 0, 1, Qt::AlignTop);

    const auto tryPicked = [this] {
        if (list_->picked() > 0) Q_EMIT tried(list_->picked());
    };
    connect(list_, &QTreeWidget::itemSelectionChanged, this, tryPicked);
    connect(list_, &QTreeWidget::itemClicked, this, tryPicked); // the row that is picked already, once more
    connect(list_, &QTreeWidget::itemDoubleClicked, this, &AddressList::ended);
    connect(hide, &QPushButton::clicked, this, &AddressList::ended);
}

void AddressList::offer(const AddressChoice& choice) {
    std::vector<ReportList::Row> rows;
    for (const AddressHit& hit : choice.hits)
        rows.push_back({hit.columns, hit.record});
    list_->showRows(rows);
    list_->scrollToTop();
    for (int column = 3; column < list_->columnCount(); ++column)
        list_->setColumnHidden(column, choice.keresesMod == KeresesMod::settlements);
    list_->setFocus();
    list_->setCurrentItem(nullptr);
}

bool AddressList::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QGroupBox::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool accepts = (key == Qt::Key_Return || key == Qt::Key_Enter) && list_->picked() > 0;
    if (accepts || key == Qt::Key_Escape) Q_EMIT ended();
    return accepts || key == Qt::Key_Escape;
}
