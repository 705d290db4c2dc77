#pragma once

#include "records/stored_types.h"

#include <optional>

// Numbers as people type them, read in one of three ways. Whole and fixed-point results that don't fit their type are
// the end of its range.

// By their head: blanks in front are passed over, then sign, digits and one point; the reading stops at the first other
// character, and a text without a digit is 0. Cur::fromText reads like this too.
double leadingNumber(QStringView text);
// The same, rounded to a whole number and kept within the range of the field instead of wrapping.
std::int16_t leadingI16(QStringView text);

// Strictly: a text that holds anything but a number (blanks at its ends, "-", digits) is nothing.
std::optional<std::int64_t> wholeNumber(QStringView text);
// The same, nothing as well where 16 bits can't hold it.
std::optional<std::int16_t> wholeI16(QStringView text);
// As wholeNumber, with one point or comma among the digits; rounded to four places.
std::optional<Cur> decimalNumber(QStringView text);

// Amounts in forints, as they stand in a box or a file. Blanks (also no-break and thin ones) count nowhere. A point or
// comma with a digit before it and exactly three behind it parts thousands, so "12.500" is 12500 and "0.500" is 500;
// any other point begins the fraction ("12.50", "1.2345"), and any other comma ends the number, as a letter does.

// Whole forints that the head of a typed text reads as, rounded half up.
std::int64_t amountOf(QStringView typed);
// An amount of which no character is passed over: digits, blanks and thousands. 0 for an empty text.
std::optional<std::int64_t> plainAmount(QStringView typed);
// Whether a typed amount and its words agree.
inline bool isPlainAmount(QStringView typed) { return plainAmount(typed).has_value(); }
