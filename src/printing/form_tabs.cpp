#include "printing/form_tabs.h"

using namespace Qt::Literals::StringLiterals;

QString PinkCheckTab::cmdOldalCsere() const {
    return side == Side::front ? u"Csekk Hátoldala"_s : u"Csekk Első oldal"_s;
}

QString CashOnDeliveryTab::cmdUtanvetOdalCsere() const {
    return side == Side::front ? u"Hátoldala"_s : u"Első oldal"_s;
}
