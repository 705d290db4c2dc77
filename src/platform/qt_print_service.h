#pragma once

#include "platform/fonts.h"
#include "platform/job_painter.h"
#include "printing/print_service.h"
#include "records/program_folder.h"

// Which devices the list holds: the printers of the system and the PDF device, or that one alone, so that nothing is
// asked of a spooler.
enum class Devices { system, pdfOnly };

// Printing through the toolkit. The last device of the list is always "PDF fájl": it writes one file for each job into
// the folder `nyomtatas` of the program folder, and is the default where the system has none.
class QtPrintService : public PrintService {
public:
    explicit QtPrintService(const ProgramFolder& folder, Devices devices = Devices::system);

    QStringList printers() override;
    int defaultPrinter() override;
    QStringList fonts() override;
    bool knowsFont(const QString& name) override;
    float textWidth(const Font& font, const QString& text) override;
    float lineHeight(const Font& font) override;
    // In a PDF the pages stand once for each copy. A spooler gets the job only when it is painted to its end.
    // DeviceError 9, 18, 482.
    void deliver(const PrintJob& job, int printer) override;
    // Can be stopped but on a native Windows printer.
    void watchDelivery(const DeliveryProgress& progress) override { watch_ = progress; }

    // Full path of the file that the last job on the PDF device became; empty before.
    const QString& lastPdf() const { return lastPdf_; }

private:
    void printOn(const QString& name, const PrintJob& job);
    PagePainted pagePainted(bool canCancel) const;

    QString pdfFolder_;
    Devices devices_;
    QStringList printers_;
    QString default_; // as the system last told
    FontBook fonts_;
    QString lastPdf_;
    DeliveryProgress watch_;
};
