#pragma once

#include "platform/fonts.h"
#include "platform/paper.h"
#include "printing/print_job.h"

#include <functional>

class QPagedPaintDevice;

// Told after each page how many of all are painted; the answer false stops.
using PagePainted = std::function<bool(int painted, int pages)>;

// Paints the pages of a job on a printer or PDF writer that is ready to begin (name, copies, output set). The one
// painter of all devices: what it places on one, it places alike on every other. A job without pages leaves the device
// untouched, and so does one whose first page it doesn't take. DeviceError 482 if the device fails, 18 if it was
// stopped; the pages painted until then are the caller's concern. A PDF writer doesn't look at what becomes of its
// bytes: give it a buffer, and check the file that this becomes (pdf_file.h). `times`: all pages again and again, for
// a device that makes no copies itself.
void paintJob(const PrintJob& job, QPagedPaintDevice& device, FontBook& fonts, const PaperOffer& offer = {},
              const PagePainted& painted = {}, int times = 1);
