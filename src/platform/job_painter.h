#pragma once

#include "platform/fonts.h"
#include "platform/paper.h"
#include "printing/print_job.h"

class QPagedPaintDevice;

// Paints the pages of a job on a printer or PDF writer that is ready to begin (name, copies, output set). The one
// painter of all devices: what it places on one, it places alike on every other. A job without pages leaves the device
// untouched. DeviceError 482 if the device fails; as much as the platform can take back is then taken back. A PDF
// writer doesn't look at what becomes of its bytes: give it a buffer, and check the file that this becomes
// (pdf_file.h).
void paintJob(const PrintJob& job, QPagedPaintDevice& device, FontBook& fonts, const PaperOffer& offer = {});
