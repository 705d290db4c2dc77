#include "mainwindow/hungarian_order.h"

#include "records/windows1250.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace hungarian_order {
namespace {

// A key is the primary weights of all letters, `separator`, the secondary weights up to the last that isn't plain, NUL.
constexpr std::uint8_t separator = 1;
constexpr std::uint8_t plain = 2;
constexpr std::uint8_t lowest = 2; // of what is no character at all

// Each sign has a place of its own.
constexpr std::u16string_view signs =
    u"_-–—,;:!?….·'‘’‚‹›\"“”„«»()[]{}§¶@*/\\&#%‰†‡•`´^˘˙¨˝¸˛ˇ°©®™µ+±÷×<=>¬|¦~¤$€0123456789";

// Letters in order, each with its accented forms. The places behind C, D, G, L, N, S, T and Z are kept for cs, dz, dzs,
// gy, ly, ny, sz, ty and zs.
constexpr std::u16string_view letters[] = {
    u"AÁĂÂÄĄ", u"B",   u"CĆČÇ", u"",    u"DĎĐ", u"",    u"",  u"EÉĚËĘ", u"F",  u"G",    u"",  u"H",   u"IÍÎ",
    u"J",      u"K",   u"LĹĽŁ", u"",    u"M",   u"NŃŇ", u"",  u"OÓÔ",   u"ÖŐ", u"P",    u"Q", u"RŔŘ", u"SŚŠŞß",
    u"",       u"TŤŢ", u"",     u"UÚŮ", u"ÜŰ",  u"V",   u"W", u"X",     u"YÝ", u"ZŹŽŻ", u""};

struct Weight {
    std::uint8_t primary = lowest;
    std::uint8_t secondary = plain;
    char capital = '\0'; // this letter's, or the byte itself
    char second = '\0';  // capital that makes a compound letter with this one, NUL for none
};
using Weights = std::array<Weight, 256>;

char secondOf(char16_t letter) {
    switch (letter) {
    case u'C':
    case u'Z':
        return 'S';
    case u'D':
    case u'S':
        return 'Z';
    case u'G':
    case u'L':
    case u'N':
    case u'T':
        return 'Y';
    default:
        return '\0';
    }
}

// Weights of the capitals by their bytes; small letters share them.
Weights makeWeights() {
    Weights weights;
    const auto at = [&weights](char16_t unit) -> Weight& {
        return weights[static_cast<unsigned char>(windows1250::toByte(unit))];
    };
    std::uint8_t place = lowest + 1;
    at(u' ') = {place, plain};
    at(u'\u00A0') = {place, plain + 1};
    for (const char16_t sign : signs)
        at(sign).primary = ++place;
    at(u'\u00AD') = {at(u'-').primary, plain + 1};
    for (const std::u16string_view forms : letters) {
        ++place;
        for (std::size_t form = 0; form < forms.size(); ++form)
            at(forms[form]) = {place, static_cast<std::uint8_t>(plain + form)};
        if (!forms.empty()) at(forms[0]).second = secondOf(forms[0]);
    }
    const Weights ofCapitals = weights;
    for (std::size_t byte = 0; byte < weights.size(); ++byte) {
        const char capital = windows1250::fold(static_cast<char>(byte));
        weights[byte] = ofCapitals[static_cast<unsigned char>(capital)];
        weights[byte].capital = capital;
    }
    return weights;
}

const Weight& weightOf(char byte) {
    static const Weights weights = makeWeights();
    return weights[static_cast<unsigned char>(byte)];
}

// Bytes of the compound letter that begins at `p`, 0 if none does.
int compoundLength(const char* p, const char* end, const Weight& first) {
    if (end - p < 2 || weightOf(p[1]).capital != first.second) return 0;
    const bool dzs = first.capital == 'D' && end - p > 2 && weightOf(p[2]).capital == 'S';
    return dzs ? 3 : 2;
}

struct KeyWriter {
    char* primary;
    char* secondary;
    char* lastAccent; // behind the last secondary weight that isn't plain

    void put(int primaryWeight, std::uint8_t secondaryWeight) {
        *primary++ = static_cast<char>(primaryWeight);
        *secondary++ = static_cast<char>(secondaryWeight);
        if (secondaryWeight != plain) lastAccent = secondary;
    }
};

// Writes the letter at `p`, or two for a doubled compound one, and returns where the next one begins.
const char* putLetter(const char* p, const char* end, KeyWriter& key) {
    const Weight& weight = weightOf(*p);
    if (weight.second != '\0') {
        const bool doubled = end - p > 2 && weightOf(p[1]).capital == weight.capital;
        const int behindFirst = doubled ? compoundLength(p + 1, end, weight) : 0;
        const int length = behindFirst != 0 ? behindFirst : compoundLength(p, end, weight);
        if (length != 0) {
            const int compound = weight.primary + length - 1;
            key.put(compound, plain);
            if (behindFirst != 0) key.put(compound, plain);
            return p + length + (behindFirst != 0 ? 1 : 0);
        }
    }
    key.put(weight.primary, weight.secondary);
    return p + 1;
}

} // namespace

char* writeKey(QByteArrayView text, char* to) {
    // The secondary weights are gathered behind the room of the primary ones and moved up to them in the end.
    char* const accents = to + text.size() + 1;
    KeyWriter key{to, accents, accents};
    for (const char* p = text.begin(); p != text.end();)
        p = putLetter(p, text.end(), key);
    const auto accentCount = key.lastAccent - accents;
    if (accentCount > 0) {
        *key.primary++ = static_cast<char>(separator);
        std::memmove(key.primary, accents, static_cast<std::size_t>(accentCount));
        key.primary += accentCount;
    }
    *key.primary++ = '\0';
    return key.primary;
}

} // namespace hungarian_order
