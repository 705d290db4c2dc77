#include "mainwindow/tab_words.h"

#include <utility>

WordLines fitForTab(WordLines words, QStringView amount, PrintDevice& device, const QString& fontName, int size) {
    // By value and not by length: "0500" and "12 500" are amounts too.
    if (amountOf(amount) < 1000) words.upper = std::exchange(words.lower, QString());
    if (words.upper.isEmpty()) return words;
    words.upper = withCapital(words.upper);
    if (measuredWidth(device, fontName, size, words.upper + words.lower) <= wordRowLimitMm)
        words.upper += std::exchange(words.lower, QString());
    return words;
}
