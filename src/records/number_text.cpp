#include "records/number_text.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// The digits of a number before and behind its point.
struct Digits {
    bool negative = false;
    std::string whole;
    std::string places;
    qsizetype length = 0; // characters read, the sign and the point included

    bool areNone() const { return whole.empty() && places.empty(); }
};

// The number at the head of a text: a sign, digits, one point.
Digits digitsAtHead(QStringView text) {
    Digits number;
    qsizetype at = 0;
    const auto takeDigits = [&](std::string& digits) {
        for (; at < text.size() && isDigit(text[at]); ++at)
            digits.push_back(static_cast<char>(text[at].unicode()));
    };
    if (text.startsWith(u'-') || text.startsWith(u'+')) number.negative = text[at++] == u'-';
    takeDigits(number.whole);
    if (at < text.size() && text[at] == u'.') {
        ++at;
        takeDigits(number.places);
    }
    number.length = at;
    return number;
}

// The number that the digits make, one more if they are rounded up.
std::int64_t valueOf(const std::string& digits, bool up) {
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range) return limit;
    return up && value < limit ? value + 1 : value;
}

std::int64_t withSign(const Digits& number, std::int64_t size) { return number.negative ? -size : size; }

Cur toCur(const Digits& number) {
    std::string tenThousandths = number.places.substr(0, 4);
    tenThousandths.resize(4, '0');
    const bool up = number.places.size() > 4 && number.places[4] >= '5';
    return Cur::fromTenThousandths(withSign(number, valueOf(number.whole + tenThousandths, up)));
}

// Strict numbers have no plus sign.
std::optional<Digits> strictDigits(QStringView text) {
    const QStringView trimmed = trimBlanks(text);
    const Digits number = digitsAtHead(trimmed);
    const bool isNumber = number.length == trimmed.size() && !number.areNone() && !trimmed.startsWith(u'+');
    return isNumber ? std::optional(number) : std::nullopt;
}

bool partsThousands(QStringView text, qsizetype at) {
    const auto digitAt = [&](qsizetype i) { return i >= 0 && i < text.size() && isDigit(text[i]); };
    return digitAt(at - 1) && digitAt(at + 1) && digitAt(at + 2) && digitAt(at + 3) && !digitAt(at + 4);
}

// An amount without its blanks and thousands separators.
QVarLengthArray<QChar, 48> ungrouped(QStringView typed) {
    QVarLengthArray<QChar, 48> text;
    for (const QChar c : typed)
        if (c.category() != QChar::Separator_Space) text.append(c);
    qsizetype kept = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool separates = text[at] == u'.' || text[at] == u',';
        if (separates && partsThousands(text, at)) continue;
        text[kept++] = text[at];
    }
    text.resize(kept);
    return text;
}

} // namespace

double leadingNumber(QStringView text) {
    const Digits number = digitsAtHead(trimBlanks(text));
    const std::string digits = number.whole + '.' + number.places;
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return number.negative ? -value : value;
}

std::int16_t leadingI16(QStringView text) {
    constexpr double low = std::numeric_limits<std::int16_t>::min();
    constexpr double high = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::clamp(std::round(leadingNumber(text)), low, high));
}

Cur Cur::fromText(QStringView text) { return toCur(digitsAtHead(trimBlanks(text))); }

std::optional<std::int64_t> wholeNumber(QStringView text) {
    if (text.contains(u'.')) return std::nullopt;
    const std::optional<Digits> number = strictDigits(text);
    return number ? std::optional(withSign(*number, valueOf(number->whole, false))) : std::nullopt;
}

std::optional<std::int16_t> wholeI16(QStringView text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const auto number = wholeNumber(text);
    if (!number || *number < Limits::min() || *number > Limits::max()) return std::nullopt;
    return static_cast<std::int16_t>(*number);
}

std::optional<Cur> decimalNumber(QStringView text) {
    const std::optional<Digits> number = strictDigits(text.toString().replace(u',', u'.'));
    return number ? std::optional(toCur(*number)) : std::nullopt;
}

std::int64_t amountOf(QStringView typed) {
    Digits number = digitsAtHead(ungrouped(typed));
    number.places.erase(number.places.find_last_not_of('0') + 1); // so that texts compare as fractions do
    const bool up = number.negative ? number.places > "5" : number.places >= "5";
    return withSign(number, valueOf(number.whole, up));
}

std::optional<std::int64_t> plainAmount(QStringView typed) {
    const auto text = ungrouped(typed);
    const Digits number = digitsAtHead(text);
    const bool isPlain = number.whole.size() == static_cast<std::size_t>(text.size());
    return isPlain ? std::optional(valueOf(number.whole, false)) : std::nullopt;
}
