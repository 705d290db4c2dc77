#pragma once

#include "printing/print_device.h"
#include "records/number_text.h"

#include <QString>

#include <cstdint>

// A forint amount in Hungarian words, as one unbroken lower-case word split over two lines: millions and thousands in
// the upper one, hundreds, tens and units in the lower one. 0 gives two empty lines. An amount above the limit gives
// "MAX BEÍRHATÓ ÖSSZEG:" and the limit in digits instead.
struct WordLines {
    QString upper;
    QString lower;
};

// The yellow check's tab, up to 8 digits; `amount` is the text of the box (see amountOf).
WordLines azaz_rutin(QStringView amount);
// The pink check's tab, up to 7 digits.
WordLines Razaz_rutin(QStringView amount);
// Everything else, from an amount in memory, up to 7 digits. A negative amount gives empty lines.
WordLines azaz1(std::int32_t azazOsszeg);

// Width of the rows of words on both checks, on the tab and in a batch.
constexpr float wordRowLimitMm = 45;

// Width in mm of `text` in a font from a settings record (name padded or not); 0 if it cannot be measured (no such
// font).
float measuredWidth(PrintDevice& device, const QString& fontName, int size, const QString& text);

// Word rows of a batch page: the upper line with a capital, stars in front and behind, two rows only if the words are
// strictly wider than `limitMm`.
struct WordRows {
    QString row1;
    QString row2;
};
WordRows fitForForm(const WordLines& words, PrintDevice& device, const QString& fontName, int size, float limitMm);
// Word rows of a single print from the two lines of a tab.
WordRows rowsOfTab(const QString& upper, const QString& lower);

// The amount as it prints: "***" + digits + "***".
QString starred(const QString& amount);

// A text with its first letter in upper case ("ötezer-" to "Ötezer-"); the rest stays.
QString withCapital(const QString& text);
