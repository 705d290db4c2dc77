#pragma once

#include "printing/form_tabs.h"
#include "records/client_records.h"
#include "records/file_stamp.h"
#include "records/page_buffer.h"
#include "records/program_folder.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

// What the client list shows: name, address and record number of each client, the number being a row's only link to the
// files. The rows are a working set: taking some out touches no file, and the next reading brings them back.
//
// The model keeps the bytes that it read and the record numbers of its rows, and decodes what is on view: a database of
// 300,000 clients must stand in the list about as fast as its file is read.
class ClientListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Nev, Cim, rec };

    using QAbstractTableModel::QAbstractTableModel;

    // Shows all clients of nevek1.dat, which is created if it is missing. The record numbers get blanks ahead, six
    // characters in all, so that they sort like numbers.
    void Beolvas(const ProgramFolder& folder);
    // The same with bare record numbers.
    void cmdBeolvas_Click(const ProgramFolder& folder);
    // Shows the clients whose name contains `text`, both without the blanks around them, whatever the case; all clients
    // if it is empty. Bare record numbers. Reads the file afresh if it has been written since.
    void search(const ProgramFolder& folder, QStringView text);

    // Sorts the rows by what a column shows and keeps them so through all readings to come; until the first call they
    // stand in the order of the file. Equal rows stay in that order either way. Names and addresses sort in Hungarian
    // order, a name's leading blanks first; the numbers sort as texts. The selection follows its rows.
    void setSort(int column, Qt::SortOrder order);
    // The column sorted by; the first one before setSort.
    int sortColumn() const { return sort_ ? sort_->column : Nev; }

    // Takes rows out of the list. In any order; a row may come twice.
    void removeRows(QList<int> rows);
    using QAbstractTableModel::removeRows;

    // Record number of a row, from 1.
    int recordNumber(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    // Row of a client, -1 if the list doesn't show it.
    int rowOf(int recordNumber) const;
    // Rows of several clients, as far as the list shows them, in screen order.
    QList<int> rowsOf(const std::vector<int>& recordNumbers) const;
    // Clients in the file as last read, whether the list shows them or not.
    int clientCount() const { return static_cast<int>(clients_.size() / qsizetype{sizeof(ClientRec)}); }
    // Record numbers of all rows in screen order.
    const std::vector<int>& recordNumbers() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    enum class Numbers { padded, bare };
    struct Sort {
        int column;
        Qt::SortOrder order;
    };
    using Rows = std::vector<int>;

    void readAnew(const ProgramFolder& folder, Numbers numbers);
    void refill(const ProgramFolder& folder, Numbers numbers, QStringView name);
    bool readIfWritten(const ProgramFolder& folder);
    Rows rowsWithName(QStringView text);
    Rows inOrder(const std::vector<bool>& wanted);
    const Rows& order();
    void sortNumbers(Rows& numbers) const;
    QString text(int recordNumber, int column) const;
    QString numberText(int recordNumber) const;
    const ClientRec& client(int recordNumber) const;
    char* writeSortKey(int recordNumber, char* to) const;

    PageBuffer clients_;             // all records of nevek1.dat as last read
    std::optional<FileStamp> stamp_; // of that file, if its next write is sure to show
    Rows order_;                     // record numbers of all clients as they are sorted; empty: to be sorted anew
    Rows rows_;                      // record numbers in screen order
    Numbers numbers_ = Numbers::padded;
    std::optional<Sort> sort_;
};

// What stands beside the list after a click on a row.
struct ButtonRule {
    bool batch = false;  // the batch button is on view instead of the one for a single form
    QString lbKijelolve; // how many rows are selected, if it is more than one
};
// Labels have no batch: their one button prints all selected rows.
ButtonRule buttonRule(int selectedRows, Tab tab);
