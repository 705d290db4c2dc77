#pragma once

#include "mainwindow/client_list_model.h"
#include "mainwindow/client_list_view.h"
#include "printing/print_desk.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

// The client list with its buttons. The rows are a working set: removing them never touches the files.
class ClientZone : public QWidget {
    Q_OBJECT
public:
    explicit ClientZone(const ProgramFolder& folder, QWidget* parent = nullptr);

    // Refills the list from nevek1.dat; selection, buttons and count stay as they are told to be.
    void Beolvas();
    // Narrows the list to the names that contain `text`; `keep` is then selected again if it is still there.
    void search(const QString& text, int keep);

    ListRows rows() const;
    int selectedCount() const { return static_cast<int>(view_->selectedRows().size()); }
    int recordNumber(int row) const { return model_.recordNumber(row); }
    void showCount(const QString& lbKijelolve);
    void enableDelete(bool enabled);
    bool isAscending() const;
    // Restores the stored order; ticked, it switches sorting on.
    void setAscending(bool ascending);

Q_SIGNALS:
    void rowClicked(int row);
    void deletePressed();

private:
    QPushButton* addButton(const char* name, const char* caption, const char* tooltip = "");
    void sortBy(int column);
    void removeSelected();

    const ProgramFolder& folder_;
    ClientListModel model_;
    ClientListView* view_;
    QCheckBox* order_;
    QLabel* count_;
    QPushButton* delete_ = nullptr;
};
