#pragma once

#include <QStyledItemDelegate>
#include <QTreeWidget>

// Rows with room above the accents of capitals, which a font's own line height may cut. The blanks that pad a stored
// text are no reason to mark it as cut off. Selected rows have the palette's colours, paler without the focus: the
// looks of some desktops have colours of their own there, of which the paler one can't be seen.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

// A short list in report form. Each row stands for a number, a record's or a slot's; one row can be picked, by mouse or
// arrow keys, which itemSelectionChanged() tells.
class ReportList : public QTreeWidget {
public:
    ReportList(const char* name, const QStringList& headings);

    struct Row {
        QStringList cells;
        qint64 number; // from 1
    };
    // Stays scrolled to where it was, but no row is picked any more.
    void showRows(const std::vector<Row>& rows);
    // Number of the picked row, 0 for none.
    qint64 picked() const;
};
