#include "records/windows1250.h"

#include <algorithm>
#include <array>

namespace windows1250 {
namespace {

// The upper half of the code page; the lower half is ASCII. Unassigned bytes stand for the control of their own number.
constexpr std::array<char16_t, 128> upperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

// Byte of every unit below U+2200, 0 for none: one look-up instead of a search, since imports encode whole files.
constexpr auto bytes = [] {
    std::array<char, 0x2200> table{};
    for (unsigned i = 1; i < 128; ++i)
        table[i] = static_cast<char>(i);
    for (unsigned i = 0; i < upperHalf.size(); ++i)
        table[upperHalf[i]] = static_cast<char>(128 + i);
    table[u'\u00F5'] = static_cast<char>(0xF5); // õ for ő and û for ű: keyboards without the Hungarian letters
    table[u'\u00D5'] = static_cast<char>(0xD5);
    table[u'\u00FB'] = static_cast<char>(0xFB);
    table[u'\u00DB'] = static_cast<char>(0xDB);
    return table;
}();

// Upper-case form of every byte: all pairs of the code page lie a fixed step apart, but for two.
constexpr auto capitals = [] {
    std::array<char, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i)
        table[i] = static_cast<char>(i);
    const auto pair = [&table](unsigned lower, unsigned upper) { table[lower] = static_cast<char>(upper); };
    for (unsigned i = 'a'; i <= 'z'; ++i)
        pair(i, i - 0x20);
    for (unsigned i = 0xE0; i <= 0xFE; ++i)
        if (i != 0xF7) pair(i, i - 0x20); // the division sign has no capital
    for (const unsigned i : {0x9AU, 0x9CU, 0x9DU, 0x9EU, 0x9FU, 0xB3U, 0xBAU, 0xBFU})
        pair(i, i - 0x10);
    pair(0xB9, 0xA5); // ą
    pair(0xBE, 0xBC); // ľ
    return table;
}();

char byteOrNul(char16_t unit) { return unit < bytes.size() ? bytes[unit] : '\0'; }

} // namespace

char16_t toUnicode(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value < 128 ? char16_t(value) : upperHalf[value - 128U];
}

char toByte(char16_t unit) {
    const char byte = byteOrNul(unit);
    return byte != '\0' || unit == 0 ? byte : '?';
}

QString decode(QByteArrayView encoded) {
    QString text(encoded.size(), Qt::Uninitialized);
    std::transform(encoded.begin(), encoded.end(), text.begin(), [](char byte) { return QChar(toUnicode(byte)); });
    return text;
}

QByteArray encode(QStringView text) {
    QByteArray encoded;
    encoded.reserve(text.size());
    for (const QChar unit : text)
        if (!unit.isLowSurrogate()) encoded.append(toByte(unit.unicode()));
    return encoded;
}

char fold(char byte) { return capitals[static_cast<unsigned char>(byte)]; }

} // namespace windows1250
