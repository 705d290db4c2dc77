#include "records/stored_types.h"

#include "records/windows1250.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

QStringView trimBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString plainText(float value) {
    if (!std::isfinite(value)) return QStringLiteral("0");
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
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
