#pragma once

#include "platform/fonts.h"
#include "printing/print_job.h"

#include <QImage>

// A printed page laid over the picture of its stationery, as the eye would do it against a window; `form` is where the
// stationery lies on the sheet, in mm.
QImage layOver(const PrintedPage& page, const QImage& stationery, const QRectF& form, FontBook& fonts);
