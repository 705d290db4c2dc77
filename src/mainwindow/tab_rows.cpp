#include "mainwindow/tab_rows.h"

#include "mainwindow/cash_on_delivery_rules.h"
#include "mainwindow/envelope_label_rules.h"
#include "mainwindow/form_views.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/receipt_rules.h"
#include "settings/check_layouts.h"
#include "settings/receipt_layouts.h"

namespace {

template<auto member, class View>
BoundView* make(FormTabs& tabs, const FormContext& context) {
    return new View(tabs.*member, context);
}

template<auto member, class Rec, auto rule>
void reloadFrom(FormTabs& tabs, const FormContext& context) {
    rule(tabs.*member, readRecord<Rec>(context.folder));
}

template<class Rec>
QByteArray bytesOf(const ProgramFolder& folder) {
    return RecordFile<Rec>(folder).readAll();
}

void reloadLabels(FormTabs& tabs, const FormContext& context) {
    openSheet(tabs.label, context.folder, context.prompts);
}

using T = FormTabs;
using Posting = void (*)(PostingReceiptTab&, const SetFveveny&);
using Envelope = void (*)(EnvelopeTab&, const boritek&);
using Document = void (*)(DocumentReceiptTab&, const SetTerti&);
using Pink = void (*)(PinkCheckTab&, const SetRcsekk&);
using Cash = void (*)(CashOnDeliveryTab&, const SetRcsekk&);

} // namespace

const std::array<TabRow, 8> tabRows = {{
    {u"Sárga csekk", "Picture1", 0, false, "csekkkepallo.jpg", "csekkkepfekvo.jpg", "txOsszeg",
     make<&T::yellowCheck, YellowCheckView>, nullptr, nullptr},
    {u"Tértivevény ", "Picture3", 1, false, "Tertikepallo.jpg", "Tertikepfekvo.jpg", nullptr,
     make<&T::returnReceipt, ReturnReceiptView>, reloadFrom<&T::returnReceipt, SetTerti, opBelfold_Click>,
     bytesOf<SetTerti>},
    {u"Feladóvevény ", "Picture4", 2, true, "Feladokepallo.jpg", "Feladokepfekvo.jpg", "txUtanvet",
     make<&T::postingReceipt, PostingReceiptView>, reloadFrom<&T::postingReceipt, SetFveveny, Posting(reload)>,
     bytesOf<SetFveveny>},
    {u"Boríték címző", "Frame3", 3, false, "Boritekkepallo.jpg", "Boritekkepfekvo.jpg", nullptr,
     make<&T::envelope, EnvelopeView>, reloadFrom<&T::envelope, boritek, Envelope(reload)>, bytesOf<boritek>},
    {u" Etikett nyomtató", "Frame8", 0, true, "cimkekep.jpg", nullptr, nullptr, make<&T::label, LabelView>,
     reloadLabels, bytesOf<CimkeSetup>},
    {u"Térti Irathoz", "Picture5", 4, true, "Iratkepallo.jpg", "Iratkepfekvo.jpg", nullptr,
     make<&T::documentReceipt, DocumentReceiptView>, reloadFrom<&T::documentReceipt, SetTerti, Document(reload)>,
     bytesOf<SetTerti>},
    {u"Rózsaszín csekk", "Picture7", 5, false, "RcsekkkepAllo.jpg", "RcsekkkepFekvo.jpg", "RtxOsszeg",
     make<&T::pinkCheck, PinkCheckView>, reloadFrom<&T::pinkCheck, SetRcsekk, Pink(reload)>, bytesOf<SetRcsekk>},
    {u"Utánvételi lap", "Picture6", 6, true, "UtanveteliLapAllo.jpg", "UtanveteliLapfekvo.jpg", "txUosszeg",
     make<&T::cashOnDelivery, CashOnDeliveryView>, reloadFrom<&T::cashOnDelivery, SetRcsekk, Cash(reload)>,
     bytesOf<SetRcsekk>},
}};
