#include "mainwindow/client_pour.h"

#include "clients/client_amounts.h"
#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/receipt_rules.h"
#include "mainwindow/yellow_check_rules.h"

namespace {

// The checks and forms take the first slot; without a usable amount there, nothing, and the others stay to choose from.
void fillAmounts(FormTabs& tabs, const ClientRec& client) {
    tabs.yellowCheck.amounts = offeredAmounts(client);
    tabs.pinkCheck.amounts = tabs.yellowCheck.amounts;
    const std::int32_t first = client.Osszegek[0];
    const QString amount = isUsableAmount(first) ? QString::number(first) : QString();
    tabs.yellowCheck.txOsszeg = amount;
    tabs.pinkCheck.RtxOsszeg = amount;
    tabs.cashOnDelivery.txUosszeg = amount;
    tabs.postingReceipt.txUtanvet = amount;
    if (!amount.isEmpty()) return;
    // The amount's own rule leaves these alone when there are no words.
    tabs.pinkCheck.RtxtSzoveg12.clear();
    tabs.pinkCheck.RtxtSzoveg22.clear();
}

} // namespace

void pourModified(FormTabs& tabs, const Client& client, const PourSettings& settings) {
    const PostalLines address = postalLines(client.client);
    showClient(tabs.yellowCheck, client, settings.set);
    showClient(tabs.pinkCheck, client.client);
    showClient(tabs.postingReceipt, address);
    showClient(tabs.returnReceipt, client, address);
    showClient(tabs.envelope, client.client);
    showClient(tabs.documentReceipt, client, address);
    showClient(tabs.cashOnDelivery, client.client, address, settings.pink);
    showClient(tabs.label, client.client);
}

void pourClient(FormTabs& tabs, const Client& client, const PourSettings& settings, PrintDevice& device) {
    pourModified(tabs, client, settings);
    fillAmounts(tabs, client.client);
    // In any case, not only where the amount is another: words that the clerk typed for the last client must not stay.
    txOsszeg_Change(tabs.yellowCheck, settings.set, device);
    RtxOsszeg_Change(tabs.pinkCheck, settings.pink, device);
    txUosszeg_Change(tabs.cashOnDelivery, settings.set, device);
}
