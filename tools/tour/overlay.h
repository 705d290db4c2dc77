#pragma once

#include "platform/fonts.h"
#include "printing/print_desk.h"

#include <QImage>

// A printed page laid over the picture of its stationery, as the eye would do it against a window: `form` is the size
// of the stationery in mm. An upright feed takes it at the right edge of the page, a sideways one in the middle of an
// A4 sheet's width; that is what the routines' own millimetres count on.
QImage layOver(const PrintedPage& page, const QImage& stationery, QSizeF form, Feed feed, FontBook& fonts);
