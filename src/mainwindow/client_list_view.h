#pragma once

#include <QTreeView>

// ListView1: the clients in report form, several rows selectable. It tells what the user did with the rows as one event
// each: a click is also an arrow key, and a row that Ctrl deselects is clicked all the same.
class ClientListView : public QTreeView {
    Q_OBJECT
public:
    explicit ClientListView(QWidget* parent = nullptr);

    // Rows that are selected, in screen order.
    QList<int> selectedRows() const;
    // Selects one row alone, without an event.
    void selectRow(int row) { selectRows({row}, row); }
    // The same with several, in screen order; `current` comes into view, -1 is none.
    void selectRows(const QList<int>& rows, int current);

    // Shown in the middle of a list without rows.
    void setEmptyText(const QString& text);
    // Goes into the list from above, as its Down key would: the first row is picked.
    void enter();

Q_SIGNALS:
    void rowClicked(int row);
    void deletePressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString emptyText_;
    QItemSelection pressed_; // what was selected when the mouse went down
};
