#include "platform/qt_print_service.h"

#include "platform/native_printer.h"
#include "platform/pdf_file.h"
#include "platform/spooler.h"
#include "records/file_replacement.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

QtPrintService::QtPrintService(const ProgramFolder& folder, Devices devices)
    : pdfFolder_(folder.file(u"nyomtatas"_s))
    , devices_(devices) {
    if (devices == Devices::system && spoolerAnswers()) {
        printers_ = QPrinterInfo::availablePrinterNames();
        default_ = QPrinterInfo::defaultPrinterName();
    }
    printers_.append(u"PDF fájl"_s);
    fonts_.substituteOnScreen();
    removeUnfinished(pdfFolder_);
}

QStringList QtPrintService::printers() { return printers_; }

int QtPrintService::defaultPrinter() {
    const int pdf = static_cast<int>(printers_.size()) - 1;
    if (devices_ == Devices::pdfOnly) return pdf;
    if (spoolerAnswers()) default_ = QPrinterInfo::defaultPrinterName();
    const auto place = static_cast<int>(printers_.indexOf(default_));
    return place < 0 ? pdf : place;
}

QStringList QtPrintService::fonts() { return fonts_.names(); }

bool QtPrintService::knowsFont(const QString& name) { return fonts_.familyFor(name).has_value(); }

float QtPrintService::textWidth(const Font& font, const QString& text) {
    return static_cast<float>(fonts_.face(font).metrics.horizontalAdvance(text) / paperUnitsPerMm);
}

float QtPrintService::lineHeight(const Font& font) {
    const QFontMetricsF& metrics = fonts_.face(font).metrics;
    return static_cast<float>((metrics.ascent() + metrics.descent()) / paperUnitsPerMm);
}

void QtPrintService::deliver(const PrintJob& job, int printer) {
    if (printer < 0 || printer >= printers_.size())
        throw DeviceError(9, u"Nincs ilyen sorszámú nyomtató a listában."_s);
    if (job.pages.empty()) return;
    if (printer + 1 < printers_.size())
        printOn(printers_[printer], job);
    else
        lastPdf_ = saveNewFile(pdfOf(job, fonts_, pagePainted(true)), pdfFolder_,
                               pdfFileName(job.title, QDateTime::currentDateTime()));
}

PagePainted QtPrintService::pagePainted(bool canCancel) const {
    if (!watch_) return {};
    return [this, canCancel](int painted, int pages) { return watch_(painted, pages, canCancel) || !canCancel; };
}

void QtPrintService::printOn(const QString& name, const PrintJob& job) {
    const auto pages = static_cast<int>(job.pages.size());
    bool stopped = false;
    const KeepWaiting wait = [&] {
        stopped = watch_ && !watch_(pages, pages, true);
        return !stopped;
    };
    if (!spoolerAnswers(wait))
        throw stopped ? stoppedByUser() : DeviceError(482, u"A nyomtatási szolgáltatás nem válaszol."_s);
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull() || info.state() == QPrinter::Error)
        throw DeviceError(482, u"A nyomtató nem érhető el: "_s + name);
    const QList<QPageSize> sizes = info.supportedPageSizes();
    const PaperOffer offer{sizes, sizes.isEmpty() || info.supportsCustomPageSizes()};
    if (!hasSpooler()) return printNatively(job, info, fonts_, offer, pagePainted(false));
    const QPageLayout page = pageOf(job.pages.back().setup);
    handToSpooler(name,
                  {job.title, pdfForPrinter(job, fonts_, offer, pagePainted(true)), job.copies,
                   sheetFor(page.pageSize(), offer).key(), page.orientation() == QPageLayout::Landscape},
                  wait);
}
