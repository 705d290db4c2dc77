#include "platform/qt_print_service.h"

#include "platform/pdf_file.h"
#include "platform/spooler.h"
#include "records/file_replacement.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

QtPrintService::QtPrintService(const ProgramFolder& folder, Devices devices)
    : pdfFolder_(folder.file(u"nyomtatas"_s))
    , devices_(devices) {
    if (devices == Devices::system) printers_ = QPrinterInfo::availablePrinterNames();
    printers_.append(u"PDF fájl"_s);
    fonts_.substituteOnScreen();
    removeUnfinished(pdfFolder_);
}

QStringList QtPrintService::printers() { return printers_; }

int QtPrintService::defaultPrinter() {
    const int pdf = static_cast<int>(printers_.size()) - 1;
    if (devices_ == Devices::pdfOnly) return pdf;
    const auto place = static_cast<int>(printers_.indexOf(QPrinterInfo::defaultPrinterName()));
    return place < 0 ? pdf : place;
}

QStringList QtPrintService::fonts() { return fonts_.names(); }

bool QtPrintService::knowsFont(const QString& name) { return fonts_.familyFor(name).has_value(); }

float QtPrintService::textWidth(const Font& font, const QString& text) {
    return static_cast<float>(fonts_.face(font).metrics.horizontalAdvance(text) / paperUnitsPerMm);
}

namespace {

// A file has no copies: its pages stand in it once for each.
PrintJob withCopies(PrintJob job) {
    const std::vector<PrintedPage> once = job.pages;
    for (int copy = 1; copy < job.copies; ++copy)
        job.pages.insert(job.pages.end(), once.begin(), once.end());
    return job;
}

} // namespace

float QtPrintService::lineHeight(const Font& font) {
    const QFontMetricsF& metrics = fonts_.face(font).metrics;
    return static_cast<float>((metrics.ascent() + metrics.descent()) / paperUnitsPerMm);
}

void QtPrintService::deliver(const PrintJob& job, int printer) {
    if (printer < 0 || printer >= printers_.size())
        throw DeviceError(9, u"Nincs ilyen sorszámú nyomtató a listában."_s);
    if (job.pages.empty()) return;
    const auto pdf = [&](const PrintJob& pages) { return pdfOf(pages, fonts_, pagePainted(true)); };
    if (printer + 1 < printers_.size())
        printOn(printers_[printer], job);
    else
        // A job of one copy is painted as it is: its texts a second time would be half the memory of a large batch.
        lastPdf_ = saveNewFile(job.copies == 1 ? pdf(job) : pdf(withCopies(job)), pdfFolder_,
                               pdfFileName(job.title, QDateTime::currentDateTime()));
}

PagePainted QtPrintService::pagePainted(bool canCancel) const {
    if (!watch_) return {};
    return [this, canCancel](int painted, int pages) { return watch_(painted, pages, canCancel) || !canCancel; };
}

void QtPrintService::printOn(const QString& name, const PrintJob& job) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull() || info.state() == QPrinter::Error)
        throw DeviceError(482, u"A nyomtató nem érhető el: "_s + name);
    // Named by its info: a printer made without a name prints on whatever is first.
    QPrinter printer(info, QPrinter::HighResolution);
    if (!printer.isValid()) throw DeviceError(482, u"A nyomtató nem használható: "_s + name);
    printer.setDocName(job.title);
    printer.setCopyCount(job.copies);
    // A page is a preprinted sheet: where the driver prints on both sides by itself, every second form would be lost.
    printer.setDuplex(QPrinter::DuplexNone);
    const QList<QPageSize> sizes = info.supportedPageSizes();
    paintJob(job, printer, fonts_, {sizes, sizes.isEmpty() || info.supportsCustomPageSizes()},
             pagePainted(canShutSpooler()));
    if (const QString trouble = spoolerTrouble(); !trouble.isEmpty())
        throw DeviceError(482, u"A nyomtató nem fogadta el a feladatot: "_s + trouble);
}
