#include "mainwindow/client_list_view.h"

#include "controls/named.h"
#include "controls/report_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

ClientListView::ClientListView(QWidget* parent) : QTreeView(parent) {
    named(this, "ListView1", QStringLiteral("''Delete\" -  kijelöltek törlése a listából\nF4 - ugrás a listába"));
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true); // asks one row for its height, not every one of 300,000
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(false);
    header()->setStretchLastSection(false);
}

QList<int> ClientListView::selectedRows() const {
    QList<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ClientListView::selectRows(const QList<int>& rows, int current) {
    QItemSelection selection; // a range for each run of rows: thousands of single ones take the view seconds
    for (qsizetype first = 0, end = 0; first < rows.size(); first = end) {
        for (end = first + 1; end < rows.size() && rows[end] == rows[end - 1] + 1;)
            ++end;
        selection.append({model()->index(rows[first], 0), model()->index(rows[end - 1], 0)});
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    const QModelIndex index = model()->index(current, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    scrollTo(index);
}

void ClientListView::setEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

void ClientListView::enter() {
    setFocus();
    if (model()->rowCount() == 0) return;
    selectRow(0);
    Q_EMIT rowClicked(0);
}

void ClientListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model()->rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8),
                     Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, emptyText_);
}

void ClientListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete) {
        Q_EMIT deletePressed();
        return;
    }
    const QModelIndex before = currentIndex();
    const QItemSelection selected = selectionModel()->selection();
    QTreeView::keyPressEvent(event);
    const bool changed = currentIndex() != before || selectionModel()->selection() != selected;
    if (changed && currentIndex().isValid()) Q_EMIT rowClicked(currentIndex().row());
}

void ClientListView::mousePressEvent(QMouseEvent* event) {
    // Another button would select a row whose client isn't the one on the forms.
    if (event->button() != Qt::LeftButton) return;
    pressed_ = selectionModel()->selection();
    QTreeView::mousePressEvent(event);
}

void ClientListView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    QTreeView::mouseReleaseEvent(event);
    // A drag that ends below the last row has selected rows all the same.
    QModelIndex index = indexAt(event->position().toPoint());
    const QItemSelection selected = selectionModel()->selection();
    if (!index.isValid() && !selected.isEmpty() && selected != pressed_) index = currentIndex();
    if (index.isValid()) Q_EMIT rowClicked(index.row());
}
