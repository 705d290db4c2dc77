#include "printing/amount_in_words.h"

#include "printing/pen.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using Digits = std::array<QStringView, 10>;

constexpr Digits unitWords{u"", u"egy", u"kettő", u"három", u"négy", u"öt", u"hat", u"hét", u"nyolc", u"kilenc"};
constexpr Digits roundTens{u"",      u"tíz",    u"húsz",   u"harminc",  u"negyven",
                           u"ötven", u"hatvan", u"hetven", u"nyolcvan", u"kilencven"};

QString units(std::size_t digit) { return unitWords[digit].toString(); }

// Tens change their form only in front of units: "tíz" but "tizenegy", "húsz" but "huszonegy".
QString tens(std::size_t digit, std::size_t unit) {
    if (unit != 0 && digit == 1) return u"tizen"_s;
    if (unit != 0 && digit == 2) return u"huszon"_s;
    return roundTens[digit].toString();
}

QString hundreds(std::size_t digit) { return digit == 0 ? QString() : units(digit) + u"száz"_s; }

// What follows the thousands in the amount: "húszezer" when it is round, "húszezer-" when hundreds to units follow.
enum class Tail { zeros, more };

QString thousandsGroup(std::size_t group, Tail tail) {
    const std::size_t hundred = group / 100;
    const std::size_t ten = group / 10 % 10;
    const std::size_t unit = group % 10;
    const QString words = hundreds(hundred) + tens(ten, unit);
    if (unit != 0) return words + units(unit) + u"ezer-"_s;
    if (ten != 0) return words + (tail == Tail::zeros ? u"ezer"_s : u"ezer-"_s);
    return hundred != 0 ? words + u"ezer"_s : words;
}

// All groups of digits in words, by their value, built once and shared by all amounts: the words of an amount are at
// most one joining of two of them.
struct GroupTables {
    std::array<QString, 1000> lower;                    // hundreds, tens, units
    std::array<std::array<QString, 1000>, 2> thousands; // by Tail
    std::array<QString, 100> millions;                  // one or two digits

    GroupTables() {
        for (std::size_t group = 0; group < lower.size(); ++group) {
            const std::size_t unit = group % 10;
            lower[group] = hundreds(group / 100) + tens(group / 10 % 10, unit) + units(unit);
            for (const Tail tail : {Tail::zeros, Tail::more})
                thousands[static_cast<std::size_t>(tail)][group] = thousandsGroup(group, tail);
            if (group > 0 && group < millions.size())
                millions[group] = tens(group / 10, unit) + units(unit) + u"millió"_s;
        }
    }
};

// One allocation, two copies: this is all the work that an amount above a million takes.
QString joined(const QString& head, const QString& tail) {
    QString text(head.size() + tail.size(), Qt::Uninitialized);
    std::copy(tail.begin(), tail.end(), std::copy(head.begin(), head.end(), text.begin()));
    return text;
}

WordLines words(std::int64_t amount, std::int64_t limit, const QString& limitText) {
    static const GroupTables tables;
    static const QString limitCaption = u"MAX BEÍRHATÓ ÖSSZEG:"_s;
    if (amount > limit) return {limitCaption, limitText};
    if (amount <= 0) return {};
    const auto millions = static_cast<std::size_t>(amount / 1000000);
    const auto thousands = static_cast<std::size_t>(amount / 1000 % 1000);
    const auto rest = static_cast<std::size_t>(amount % 1000);
    const auto tail = static_cast<std::size_t>(rest == 0 ? Tail::zeros : Tail::more);
    const QString& thousandsText = tables.thousands[tail][thousands];
    if (millions == 0) return {thousandsText, tables.lower[rest]};
    return {joined(tables.millions[millions], thousandsText), tables.lower[rest]};
}

WordLines sevenDigitWords(std::int64_t amount) { return words(amount, 9999999, u"9.999.999"_s); }

QString star() { return u"*"_s; }

} // namespace

WordLines azaz_rutin(QStringView amount) { return words(amountOf(amount), 99999999, u"99.999.999"_s); }

WordLines Razaz_rutin(QStringView amount) { return sevenDigitWords(amountOf(amount)); }

WordLines azaz1(std::int32_t azazOsszeg) { return sevenDigitWords(azazOsszeg); }

float measuredWidth(PrintDevice& device, const QString& fontName, int size, const QString& text) {
    return Pen(device).TextWidth(fontName, size, text);
}

WordRows fitForForm(const WordLines& words, PrintDevice& device, const QString& fontName, int size, float limitMm) {
    const QString upper = withCapital(words.upper);
    const float width = measuredWidth(device, fontName, size, upper + words.lower);
    if (width > limitMm) return {star() + upper, words.lower + star()};
    return {star() + upper + words.lower + star(), QString()};
}

WordRows rowsOfTab(const QString& upper, const QString& lower) {
    if (lower.isEmpty()) return {star() + upper + star(), QString()};
    return {star() + upper, lower + star()};
}

QString starred(const QString& amount) { return u"***"_s + amount + u"***"_s; }

QString withCapital(const QString& text) { return text.left(1).toUpper() + text.mid(1); }
