#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

// The print spooler of the system: takes a job as a PDF, whole. Every call here has a time limit, so that a spooler
// that has stopped can't take the window with it; the toolkit's own calls have none.

// Asked five times a second while the spooler lets us wait. The answer false ends the waiting.
using KeepWaiting = std::function<bool()>;

// Not where the toolkit itself speaks to the printer (Windows).
bool hasSpooler();

// Whether it answered a question within 3 seconds, so that the toolkit may be asked of printers. A spooler that didn't
// isn't asked again for as long. Always true where there is none.
bool spoolerAnswers(const KeepWaiting& wait = {});

struct SpooledJob {
    QString title;
    QByteArray pdf;
    int copies = 1;
    QString sheet; // key of its QPageSize
    bool sideways = false;
};

// Hands the job over to a queue within 10 seconds; a sheet is printed on one side. DeviceError 482 if it isn't taken,
// 18 if the waiting was ended; both say so if a part of the job may have stayed in the queue.
void handToSpooler(const QString& queue, const SpooledJob& job, const KeepWaiting& wait = {});
