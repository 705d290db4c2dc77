#include "support/recording_service.h"

void RecordingService::deliver(const PrintJob& job, int printer) {
    if (refuseWith != 0) throw DeviceError(refuseWith, QStringLiteral("A nyomtató nem fogadja a munkát."));
    const auto pages = static_cast<int>(job.pages.size());
    for (int page = 1; watch_ && page <= pages; ++page)
        if (!watch_(page, pages, true)) throw stoppedByUser();
    delivered.push_back({job, printer});
}

QStringList placedTexts(const PrintedPage& page) {
    QStringList lines;
    for (const PlacedItem& item : page.items) {
        const auto* placed = std::get_if<PlacedText>(&item);
        if (placed == nullptr) continue;
        lines << QStringLiteral("%1 %2 %3 %4|%5")
                     .arg(static_cast<double>(placed->x), 0, 'f', 2)
                     .arg(static_cast<double>(placed->y), 0, 'f', 2)
                     .arg(static_cast<double>(placed->font.size))
                     .arg(placed->font.name, placed->text);
    }
    return lines;
}
