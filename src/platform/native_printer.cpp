#include "platform/native_printer.h"

#include "platform/driver_settings.h"
#include "printing/print_service.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler handlerBefore = nullptr;
QString firstWarning;

void listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (firstWarning.isEmpty() && type != QtDebugMsg && type != QtInfoMsg && text.contains("PrintEngine::"_L1))
        firstWarning = text;
    if (handlerBefore != nullptr) handlerBefore(type, context, text);
}

} // namespace

PrinterWarnings::PrinterWarnings() {
    firstWarning.clear();
    handlerBefore = qInstallMessageHandler(listen);
}

PrinterWarnings::~PrinterWarnings() { qInstallMessageHandler(handlerBefore); }

const QString& PrinterWarnings::first() const { return firstWarning; }

void printNatively(const PrintJob& job, const QPrinterInfo& info, FontBook& fonts, const PaperOffer& offer,
                   const PagePainted& painted) {
    std::shared_ptr<void> settings; // lives longer than the printer
    // Named by its info: a printer made without a name prints on whatever is first.
    QPrinter printer(info, QPrinter::HighResolution);
    if (!printer.isValid()) throw DeviceError(482, u"A nyomtató nem használható: "_s + info.printerName());
    settings = giveDriverSettings(job.driverSettings, printer);
    printer.setDocName(job.title);
    const bool makesCopies = printer.supportsMultipleCopies();
    if (makesCopies) printer.setCopyCount(job.copies);
    // A page is a preprinted sheet: where the driver prints on both sides by itself, every second form would be lost.
    printer.setDuplex(QPrinter::DuplexNone);
    const PrinterWarnings warnings;
    paintJob(job, printer, fonts, offer, painted, makesCopies ? 1 : job.copies);
    if (!warnings.first().isEmpty())
        throw DeviceError(482, u"A nyomtató nem fogadta el a feladatot: "_s + warnings.first());
}
