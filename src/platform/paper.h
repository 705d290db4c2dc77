#pragma once

#include "printing/print_job.h"

#include <QList>
#include <QPageLayout>

// The sheets that a device says it takes; as it stands, any size.
struct PaperOffer {
    QList<QPageSize> sizes;
    bool anySize = true;
};

// The page as it is read, full sheet without margins. A form's own size gets at least the width of the feed.
QPageLayout pageOf(const PageSetup& setup);

// The sheet to print `wanted` on: itself where the device takes it, else the smallest larger one, so that the form
// stands in its top left corner; `wanted` again if none is larger.
QPageSize sheetFor(const QPageSize& wanted, const PaperOffer& offer);

// Smallest metric sheet of `sizes` that holds `wanted` and is not as good as equal to it; `wanted` if there is none.
QPageSize nextLarger(const QPageSize& wanted, const QList<QPageSize>& sizes);

// Equal to a millimetre: drivers round the sizes of the same sheet differently.
bool sameSheet(const QPageSize& a, const QPageSize& b);
