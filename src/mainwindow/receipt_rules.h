#pragma once

#include "printing/form_tabs.h"
#include "records/client_database.h"
#include "settings/receipt_layouts.h"

// The client's address as the receipts write it, worked out once for the posting receipt, both return receipts and the
// cash-on-delivery form.
struct PostalLines {
    QString name;     // trimmed
    QString line1;    // postcode and settlement; of a foreign client street, postcode and town
    QString line2;    // street; of a foreign client the country
    QString postcode; // by itself, as stored; empty for a foreign client
};
PostalLines postalLines(const ClientRec& client);

// The posting receipt. `reload` takes the sender from the settings when the tab comes into view.
void showClient(PostingReceiptTab& tab, const PostalLines& address);
void reload(PostingReceiptTab& tab, const SetFveveny& set);

// The return receipt. An item identifier or own mark that the client doesn't have leaves the one on the form, which the
// clerk may have typed.
void showClient(ReturnReceiptTab& tab, const Client& client, const PostalLines& address);
// The return address, as the form in view (domestic or foreign) writes it; a change to the domestic form also clears
// the two ticks that only the foreign one has. Serves a change of the tab too.
void opBelfold_Click(ReturnReceiptTab& tab, const SetTerti& set);

// The document receipt. `reload` takes the return address from the settings when the tab comes into view.
void showClient(DocumentReceiptTab& tab, const Client& client, const PostalLines& address);
void reload(DocumentReceiptTab& tab, const SetTerti& set);
// The third tick changed: the sender becomes the return address, or is emptied.
void chkVisszaCimPrint_Click(DocumentReceiptTab& tab);
