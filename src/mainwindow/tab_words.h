#pragma once

#include "printing/amount_in_words.h"

// The amount in words as it stands on the tab of a check: below 1000 forints all of it in the upper line, the first
// letter a capital, and both lines joined in the upper one if they are no wider than the form's word row together. What
// can't be measured counts as narrow. No words (an empty or zero amount) stay none.
// `amount` is the text of the box that the words were made from.
WordLines fitForTab(WordLines words, QStringView amount, PrintDevice& device, const QString& fontName, int size);

// True if the digits of an amount box and the words made from it can agree: nothing typed, or digits alone, parted by
// blanks or in thousands ("12.500", "1,234,567"). A fraction, a sign or letters print as typed, but aren't worded.
bool isPlainAmount(QStringView typed);
