#include "printing/form_tabs.h"

QString PinkCheckTab::cmdOldalCsere() const {
    return side == Side::front ? QStringLiteral("Csekk Hátoldala") : QStringLiteral("Csekk Első oldal");
}

QString CashOnDeliveryTab::cmdUtanvetOdalCsere() const {
    return side == Side::front ? QStringLiteral("Hátoldala") : QStringLiteral("Első oldal");
}
