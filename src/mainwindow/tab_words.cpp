#include "mainwindow/tab_words.h"

#include <QRegularExpression>

#include <utility>

namespace {

constexpr float wordRowMm = 45;

} // namespace

WordLines fitForTab(WordLines words, QStringView amount, PrintDevice& device, const QString& fontName, int size) {
    // By value and not by length: "0500" and "12 500" are amounts too.
    if (amountOf(amount) < 1000) words.upper = std::exchange(words.lower, QString());
    if (words.upper.isEmpty()) return words;
    words.upper = withCapital(words.upper);
    if (measuredWidth(device, fontName, size, words.upper + words.lower) <= wordRowMm)
        words.upper += std::exchange(words.lower, QString());
    return words;
}

bool isPlainAmount(QStringView typed) {
    QString digits = typed.toString();
    digits.removeIf([](QChar c) { return c.category() == QChar::Separator_Space; });
    static const QRegularExpression plain(QStringLiteral("^([0-9]+([.,][0-9]{3})*)?\\z"));
    return plain.match(digits).hasMatch();
}
