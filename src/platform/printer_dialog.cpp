#include "platform/printer_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

PrinterDialog::PrinterDialog(const QStringList& printers, int current, const QString& summary,
                             const AskDriver& askDriver, QWidget* parent)
    : QDialog(parent)
    , printer_(new QComboBox)
    , copies_(new QSpinBox) {
    setObjectName(u"printerDialog"_s);
    setWindowTitle(u"Nyomtatás"_s);

    printer_->setObjectName(u"printer"_s);
    printer_->addItems(printers);
    printer_->setCurrentIndex(current < printers.size() ? current : -1);
    printer_->setMinimumContentsLength(28);
    copies_->setObjectName(u"copies"_s);
    copies_->setRange(1, 99);

    auto* buttons = new QDialogButtonBox;
    auto* ok = buttons->addButton(u"OK"_s, QDialogButtonBox::AcceptRole);
    auto* cancel = buttons->addButton(u"Mégse"_s, QDialogButtonBox::RejectRole);
    ok->setObjectName(u"ok"_s);
    cancel->setObjectName(u"cancel"_s);
    ok->setDefault(true);
    ok->setEnabled(printer_->currentIndex() >= 0);
    connect(printer_, &QComboBox::currentIndexChanged, ok, [ok](int place) { ok->setEnabled(place >= 0); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout(this);
    if (!summary.isEmpty()) {
        auto* what = new QLabel(summary);
        what->setObjectName(u"summary"_s);
        what->setTextFormat(Qt::PlainText);
        form->addRow(what);
    }
    auto* device = new QHBoxLayout;
    device->addWidget(printer_, 1);
    if (askDriver) device->addWidget(driverButton(askDriver));
    auto* caption = new QLabel(u"&Nyomtató:"_s);
    caption->setBuddy(printer_);
    form->addRow(caption, device);
    form->addRow(u"&Példányszám:"_s, copies_);
    form->addRow(buttons);
    form->setSizeConstraint(QLayout::SetFixedSize);
}

QPushButton* PrinterDialog::driverButton(const AskDriver& askDriver) {
    auto* button = new QPushButton(u"&Tulajdonságok…"_s);
    button->setObjectName(u"properties"_s);
    button->setToolTip(u"A nyomtató saját beállításai erre a feladatra: tálca, papír…"_s);
    button->setAutoDefault(false); // ENTER prints
    const auto showForPrinter = [this, button] {
        driverSettings_.clear();
        const int place = printer_->currentIndex();
        button->setEnabled(place >= 0 && place + 1 < printer_->count());
    };
    showForPrinter();
    connect(printer_, &QComboBox::currentIndexChanged, this, showForPrinter);
    connect(button, &QPushButton::clicked, this,
            [this, askDriver] { driverSettings_ = askDriver(printer_->currentText(), driverSettings_, this); });
    return button;
}

PrinterChoice PrinterDialog::choice() const { return {printer_->currentIndex(), copies_->value(), driverSettings_}; }
