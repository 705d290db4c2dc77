#include "records/stored_types.h"

#include "records/windows1250.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// The part of `text` that reads as a number, as ASCII: sign, digits, one point. Empty if there is no digit.
QByteArray numberAtHead(QStringView text) {
    QByteArray number;
    bool point = false;
    bool digit = false;
    for (const QChar c : trimBlanks(text)) {
        const char16_t unit = c.unicode();
        if ((unit == u'-' || unit == u'+') && number.isEmpty()) {
            number.append(static_cast<char>(unit));
        } else if (unit >= u'0' && unit <= u'9') {
            number.append(static_cast<char>(unit));
            digit = true;
        } else if (unit == u'.' && !point) {
            number.append('.');
            point = true;
        } else {
            break;
        }
    }
    return digit ? number : QByteArray();
}

} // namespace

QStringView trimBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

double leadingNumber(QStringView text) {
    QByteArray number = numberAtHead(text);
    if (number.startsWith('+')) number.remove(0, 1);
    double value = 0;
    std::from_chars(number.constData(), number.constData() + number.size(), value);
    return value;
}

std::int16_t leadingI16(QStringView text) {
    constexpr double low = std::numeric_limits<std::int16_t>::min();
    constexpr double high = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::clamp(std::round(leadingNumber(text)), low, high));
}

QString plainText(float value) {
    if (!std::isfinite(value)) return QStringLiteral("0");
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

Cur Cur::fromText(QStringView text) {
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    int places = -1; // digits behind the point, -1 before it
    bool negative = false;
    for (const char c : numberAtHead(text)) {
        if (c == '-') negative = true;
        if (c == '.') places = 0;
        if (c < '0' || c > '9') continue;
        if (places == 4) { // the fifth place rounds, the rest doesn't count
            if (c >= '5' && value < limit) ++value;
            ++places;
        }
        if (places > 4) continue;
        if (places >= 0) ++places;
        value = value > (limit - 9) / 10 ? limit : value * 10 + (c - '0');
    }
    for (int place = std::max(places, 0); place < 4; ++place)
        value = value > limit / 10 ? limit : value * 10;
    return fromTenThousandths(negative ? -value : value);
}

QString Cur::text() const {
    const std::int64_t value = tenThousandths();
    const std::uint64_t size = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    QString text = QString::number(size / 10000);
    QString places = QString::number(size % 10000).rightJustified(4, u'0');
    while (places.endsWith(u'0'))
        places.chop(1);
    if (!places.isEmpty()) text += u'.' + places;
    return value < 0 ? u'-' + text : text;
}

Cur Cur::plusWhole(int whole) const {
    constexpr std::int64_t low = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int64_t>::max();
    const std::int64_t step = std::int64_t{whole} * 10000;
    const std::int64_t value = tenThousandths();
    if (step > 0 && value > high - step) return fromTenThousandths(high);
    if (step < 0 && value < low - step) return fromTenThousandths(low);
    return fromTenThousandths(value + step);
}

namespace stored_text {

QString decode(const char* bytes, std::size_t width) {
    const char* end = std::find(bytes, bytes + width, '\0');
    return windows1250::decode(QByteArrayView(bytes, end));
}

void encode(QStringView text, char* bytes, std::size_t width) {
    const QByteArray encoded = windows1250::encode(text);
    const auto used = std::min(width, static_cast<std::size_t>(encoded.size()));
    std::copy_n(encoded.constData(), used, bytes);
    std::fill(bytes + used, bytes + width, ' ');
}

} // namespace stored_text
