#include "controls/report_list.h"

#include "controls/named.h"

#include <QPainter>
#include <QScrollBar>

QString RoomyRows::displayText(const QVariant& value, const QLocale& /*locale*/) const {
    QString text = value.toString();
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

void RoomyRows::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    if (cell.state & QStyle::State_Selected) {
        const bool inUse = cell.widget != nullptr && cell.widget->hasFocus();
        const QPalette::ColorGroup group = inUse ? QPalette::Active : QPalette::Inactive;
        painter->fillRect(cell.rect, cell.palette.brush(group, QPalette::Highlight));
        cell.palette.setBrush(QPalette::Text, cell.palette.brush(group, QPalette::HighlightedText));
        cell.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver);
        cell.features &= ~QStyleOptionViewItem::Alternate; // would be drawn over it
    }
    QStyledItemDelegate::paint(painter, cell, index);
}

QSize RoomyRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 5);
}

ReportList::ReportList(const char* name, const QStringList& headings) {
    named(this, name);
    setHeaderLabels(headings);
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
}

void ReportList::showRows(const std::vector<Row>& rows) {
    QList<QTreeWidgetItem*> items;
    for (const Row& row : rows) {
        items << new QTreeWidgetItem(row.cells);
        items.back()->setData(0, Qt::UserRole, row.number);
    }
    const int scrolledTo = verticalScrollBar()->value();
    clear();
    addTopLevelItems(items);
    verticalScrollBar()->setValue(scrolledTo);
}

qint64 ReportList::picked() const {
    const QList<QTreeWidgetItem*> items = selectedItems();
    return items.isEmpty() ? 0 : items.front()->data(0, Qt::UserRole).toLongLong();
}
