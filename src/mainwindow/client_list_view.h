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
    void selectRow(int row);

Q_SIGNALS:
    void rowClicked(int row);
    void deletePressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QItemSelection pressed_; // what was selected when the mouse went down
};
