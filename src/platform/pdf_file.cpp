#include "platform/pdf_file.h"

#include "printing/print_service.h"
#include "records/disk.h"
#include "records/file_replacement.h"

#include <QBuffer>
#include <QDir>
#include <QPdfWriter>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestTitle = 80;

// Box of a page in points, as wide and tall as the form really is. Its top edge stays where the writer has it, since
// all positions count from there.
QByteArray exactBox(const PageSetup& setup) {
    const QPageLayout page = pageOf(setup);
    const qreal top = page.fullRectPoints().height();
    const QSizeF size = page.fullRect(QPageLayout::Millimeter).size() * 72 / 25.4;
    return "0 " + QByteArray::number(top - size.height(), 'f', 4) + ' ' + QByteArray::number(size.width(), 'f', 4) +
           ' ' + QByteArray::number(top, 'f', 0);
}

// Qt holds pages in whole points, up to 0.18 mm off. Each box is put right in its place, in the number of bytes that it
// has, because the table at the end of the file counts them; one that doesn't fit is left as it is.
void correctBoxes(QByteArray& pdf, const PrintJob& job) {
    const QByteArray mark = "/MediaBox [";
    qsizetype at = 0;
    for (std::size_t number = 0; (at = pdf.indexOf(mark, at)) >= 0; ++number) {
        at += mark.size();
        const QByteArray box = exactBox(job.pages[number % job.pages.size()].setup);
        const qsizetype room = pdf.indexOf(']', at) - at;
        if (box.size() <= room) pdf.replace(at, room, box.leftJustified(room, ' '));
    }
}

QByteArray paintedPdf(const PrintJob& job, FontBook& fonts, const PaperOffer& offer, const PagePainted& painted,
                      int times) {
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(job.title);
    // A dot is a paper unit, so no text needs a scale of its own: less to write for each.
    writer.setResolution(static_cast<int>(paperUnitsPerInch));
    paintJob(job, writer, fonts, offer, painted, times);
    buffer.close();
    return pdf;
}

// Made if it is missing; its name has to outlast a power failure like those of the files in it.
bool isFolderThere(const QString& folder) {
    if (QFileInfo(folder).isDir()) return true;
    if (!QDir().mkpath(folder)) return false;
    (void)flushFolder(QFileInfo(folder).path());
    return true;
}

} // namespace

QByteArray pdfForPrinter(const PrintJob& job, FontBook& fonts, const PaperOffer& offer, const PagePainted& painted) {
    return paintedPdf(job, fonts, offer, painted, 1);
}

QByteArray pdfOf(const PrintJob& job, FontBook& fonts, const PagePainted& painted) {
    QByteArray pdf = paintedPdf(job, fonts, {}, painted, job.copies);
    correctBoxes(pdf, job);
    return pdf;
}

QString pdfFileName(const QString& title, const QDateTime& now) {
    static const QRegularExpression forbidden(uR"([\x00-\x1f<>:"/\\|?*]+)"_s);
    QString form = title.simplified().left(longestTitle);
    form.replace(forbidden, u"-"_s);
    const QString moment = now.toString(u"yyyy-MM-dd-HHmmss"_s);
    return form.isEmpty() ? moment + ".pdf"_L1 : moment + u'-' + form + ".pdf"_L1;
}

QString saveNewFile(const QByteArray& bytes, const QString& folder, const QString& name) {
    const QFileInfo wanted(folder, name);
    QString path = wanted.filePath();
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = wanted.path() + u'/' + wanted.completeBaseName() + u"-%1."_s.arg(number) + wanted.suffix();
    if (!isFolderThere(folder) || !replaceFile(path, bytes))
        throw DeviceError(482, u"A PDF fájl nem írható, nincs hozzá jog vagy betelt a lemez:\n"_s +
                                   QDir::toNativeSeparators(path));
    return path;
}
