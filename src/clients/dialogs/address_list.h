#pragma once

#include "clients/address_search.h"
#include "controls/report_list.h"

#include <QGroupBox>

// frameCimKeres: the addresses that a search left to choose from, in ListView2. Each row that is clicked or reached by
// an arrow key is tried; a double click and ENTER end the choice, Esc and the button "Lista elrejtése" leave it.
class AddressList : public QGroupBox {
    Q_OBJECT
public:
    explicit AddressList(QWidget* parent = nullptr);

    // Shows the addresses; no row is picked, so that an ENTER too many chooses nothing.
    void offer(const AddressChoice& choice);

Q_SIGNALS:
    void tried(qint64 record);
    void ended();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    ReportList* list_;
};
