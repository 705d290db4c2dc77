#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <optional>
#include <variant>
#include <vector>

// A print job is a plain value: the same one goes to a printer, a PDF or a test. All positions and sizes are
// millimetres from the left and top edge of the page as it is read; nothing is clipped or wrapped, and positions may be
// negative.

struct Font { // size in points
    QString name;
    float size = 0;
    bool bold = false, italic = false;
    friend bool operator==(const Font&, const Font&) = default;
};

struct PlacedText { // x, y: top left of the line, not its baseline
    float x, y;
    Font font;
    QString text;
};

struct PlacedPicture {
    float x, y, width, height;
    QImage picture;
};

using PlacedItem = std::variant<PlacedText, PlacedPicture>;

struct PageSetup {
    int orientation = 1; // 1 portrait, 2 landscape
    int paperSize = 9;   // 9 A4, 27 DL envelope, 28 C5 envelope
    // The form's own size as it is read, wide side across; set, it stands in the place of paperSize and orientation.
    std::optional<QSizeF> sizeMm;
    friend bool operator==(const PageSetup&, const PageSetup&) = default;
};

struct PrintedPage {
    PageSetup setup;
    std::vector<PlacedItem> items;
};

struct PrintJob {
    QString title;
    std::vector<PrintedPage> pages;
    int copies = 1;
    QByteArray driverSettings = {}; // of its printer, as the driver keeps them; empty: as it is set
};
