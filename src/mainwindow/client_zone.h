#pragma once

#include "mainwindow/client_list_model.h"
#include "mainwindow/client_list_view.h"
#include "printing/print_desk.h"
#include "records/file_stamp.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

// The client list with its buttons. The rows are a working set: removing them never touches the files.
class ClientZone : public QWidget {
    Q_OBJECT
public:
    ClientZone(const ProgramFolder& folder, Prompts& prompts, QWidget* parent = nullptr);

    // Refills the list from nevek1.dat, scrolled to where it was; buttons and count stay as they are told to be. Where
    // the file can't be read, the clerk is told, and no row serves until it could be.
    void Beolvas();
    // The same where all record numbers stand: those who are selected stay so, else client `inHand` is.
    void refresh(int inHand);
    // The button: the same with bare record numbers.
    void cmdBeolvas_Click();
    // Narrows the list to the names that contain `text`; `keep` is then selected again if it is still there.
    void search(const QString& text, int keep);
    // Whether the file is still the one that the list shows. Its numbers may name others if another program has changed
    // it: then fileMoved() tells so, and whoever asked must do nothing.
    bool checkFile();
    // The focus goes into the list, and its first client is picked.
    void enterList() { view_->enter(); }

    ListRows rows() const;
    // Takes the selected rows out of the list and tells how many; they come back when it is filled anew.
    void removeSelected();
    int selectedCount() const { return static_cast<int>(view_->selectedRows().size()); }
    int recordNumber(int row) const { return model_.recordNumber(row); }
    void showCount(const QString& lbKijelolve);
    // The buttons that work on the client in hand.
    void enableClientButtons(bool enabled);
    bool isAscending() const;
    // Restores the stored order; ticked, it switches sorting on.
    void setAscending(bool ascending);

    // Widths of the first two columns in pixels, to be kept from run to run; the last takes what is left.
    QList<int> columnWidths() const { return {view_->columnWidth(0), view_->columnWidth(1)}; }
    void setColumnWidths(const QList<int>& widths);

Q_SIGNALS:
    void rowClicked(int row);
    void addPressed();
    void modifyPressed();
    void deletePressed();
    void amountsPressed();
    void fileMoved();
    // The list was filled anew from a database of so many clients.
    void filled(qint64 clients);
    // For the status line.
    void said(const QString& text);

private:
    QWidget* buildSide();
    template<class Fill>
    void fill(Fill fill);
    std::optional<FileStamp> stampNow() const;
    void select(int recordNumber);
    void sortBy(int column);
    void tellFilled();

    const ProgramFolder& folder_;
    Prompts& prompts_;
    std::optional<FileStamp> stamp_; // of the file when it was read
    ClientListModel model_;
    ClientListView* view_;
    QCheckBox* order_;
    QLabel* count_;
    QList<QPushButton*> clientButtons_;
};
