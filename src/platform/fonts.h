#pragma once

#include "printing/print_job.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QStringList>

#include <optional>
#include <vector>

// Paper is measured and painted in tenths of a point, whatever the device. Qt rounds a font to whole pixels of its
// device: 10 points are 83 pixels at 600 dpi and 167 at 1200, and 40 mm of text differ by 0.25 mm. With a tenth of a
// point as the pixel every size is exact, so what was measured is what is painted, on every device. Not finer: letters
// over 255 pixels are loaded anew each time, which takes twice the time of a whole page.
constexpr qreal paperUnitsPerInch = 720;
constexpr qreal paperUnitsPerMm = paperUnitsPerInch / 25.4;

// The font families of the machine and the old names that still stand in settings records.
class FontBook {
public:
    FontBook();
    // With a list of families in the place of the installed ones.
    explicit FontBook(QStringList installed);

    // Installed family that serves `name`: itself or, where the system doesn't have it, the one of the same metrics.
    // Trailing blanks and the ending " CE" don't count, nor does the letters' case. A name that a record has cut stands
    // for the one family that begins with it. Nothing if the name is unknown. A name that was asked for lately is
    // answered at once: a form sets its fonts on each page, and a machine may have hundreds.
    std::optional<QString> familyFor(const QString& name) const;
    // Names to choose from: the installed families that a record can tell from each other, and the old names that are
    // served, in alphabetical order.
    QStringList names() const;

    // Makes the screen show old names as they print. Holds for the whole process.
    void substituteOnScreen() const;

    // Font and metrics in paper units.
    struct Face {
        QFont font;
        QFontMetricsF metrics;
    };
    // Made once for each font. The reference holds until the next call. An unknown family gives the system's choice.
    const Face& face(const Font& font);

private:
    struct Entry {
        Font key;
        Face face;
    };

    std::optional<QString> findFamily(const QString& name) const;
    std::optional<QString> installedName(const QString& name) const;
    std::optional<QString> cutName(const QString& name) const;
    bool isStorable(const QString& family) const;

    QStringList installed_;
    mutable QHash<QString, std::optional<QString>> families_; // asked for lately, by name
    std::vector<Entry> faces_;
};
