#pragma once

#include "platform/job_painter.h"
#include "printing/print_job.h"

#include <QByteArray>
#include <QDateTime>

// The job as a PDF: fonts embedded, text extractable, every page of exactly the size that was asked for. Its
// pages stand once for each copy. DeviceError 482, 18 if it was stopped.
QByteArray pdfOf(const PrintJob& job, FontBook& fonts, const PagePainted& painted = {});

// The same, once, for a printer that takes PDFs and makes the copies itself: on sheets of its offer, whose pages stay
// in whole points as its drivers have them.
QByteArray pdfForPrinter(const PrintJob& job, FontBook& fonts, const PaperOffer& offer,
                         const PagePainted& painted = {});

// "<yyyy-MM-dd>-<HHmmss>-<title>.pdf"; letters of the title that no file name may hold become '-'.
QString pdfFileName(const QString& title, const QDateTime& now);

// Writes `bytes` as a new file of the folder (made if it is missing), "name-2.pdf" and on if the name is taken, and
// gives its path. The file is there whole or not at all: DeviceError 482.
QString saveNewFile(const QByteArray& bytes, const QString& folder, const QString& name);
