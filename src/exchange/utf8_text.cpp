#include "exchange/utf8_text.h"

#include "records/windows1250.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {

constexpr char32_t byteOrderMark = 0xFEFF;
constexpr char32_t noLetter = 0xFFFFFFFF;

// Bytes of the letter that `lead` begins; 0 if it begins none.
int lengthOf(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

// The letter of so many bytes; noLetter if it is half a surrogate pair or takes more bytes than it needs.
char32_t letterOf(const char* bytes, int length) {
    constexpr std::array<unsigned, 5> leadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    const auto index = static_cast<std::size_t>(length);
    char32_t letter = static_cast<unsigned char>(*bytes) & leadBits[index];
    for (int i = 1; i < length; ++i)
        letter = letter << 6U | (static_cast<unsigned char>(bytes[i]) & 0x3FU);
    const bool isHalf = letter >= 0xD800 && letter <= 0xDFFF;
    return letter < least[index] || letter > 0x10FFFF || isHalf ? noLetter : letter;
}

char byteFor(char32_t letter) { return letter > 0xFFFF ? '?' : windows1250::toByte(static_cast<char16_t>(letter)); }

// Copies the next eight bytes and returns how many of them are ASCII ahead of the first that isn't. Most text is ASCII.
std::ptrdiff_t copyAscii(const char* at, char* to) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, at, sizeof bytes);
    std::memcpy(to, &bytes, sizeof bytes);
    if constexpr (std::endian::native == std::endian::little)
        return std::countr_zero(bytes & highBits) / 8;
    else
        return std::countl_zero(bytes & highBits) / 8;
}

} // namespace

QByteArrayView Utf8Text::convert(QByteArrayView piece) {
    const QByteArray joined = rest_.isEmpty() ? QByteArray() : std::exchange(rest_, {}).append(piece);
    if (!joined.isEmpty()) piece = joined;
    converted_.resize(std::max(converted_.size(), piece.size() + qsizetype{sizeof(std::uint64_t)}));
    to_ = converted_.data();
    convertLetters(piece.begin(), piece.end());
    return {converted_.constData(), to_};
}

QByteArrayView Utf8Text::finish() {
    if (rest_.isEmpty()) return {};
    hasWrongBytes_ = hasWrongBytes_ || !hasLetters_; // one letter at the end of UTF-8 may have been cut
    return "?";
}

void Utf8Text::convertLetters(const char* at, const char* end) {
    while (at != end) {
        if (end - at >= 8) {
            const std::ptrdiff_t ascii = copyAscii(at, to_);
            at += ascii;
            to_ += ascii;
            if (ascii == 8) continue;
        }
        const char* behind = convertLetter(at, end);
        if (behind == at) {
            rest_ = QByteArray(at, end - at);
            return;
        }
        at = behind;
    }
}

// Returns where the next letter begins: `at`, and has done nothing, if this one goes on behind the piece.
const char* Utf8Text::convertLetter(const char* at, const char* end) {
    const int length = lengthOf(static_cast<unsigned char>(*at));
    int there = std::min(length, 1);
    while (there < length && at + there != end && isContinuation(at[there]))
        ++there;
    if (there < length && at + there == end) return at;
    const char32_t letter = length > 0 && there == length ? letterOf(at, length) : noLetter;
    const bool isFirst = !std::exchange(hasBegun_, true);
    if (letter == noLetter) {
        hasWrongBytes_ = true;
        *to_++ = '?';
        return at + 1;
    }
    hasLetters_ = hasLetters_ || length > 1;
    if (isFirst && letter == byteOrderMark)
        isMarked_ = true;
    else
        *to_++ = byteFor(letter);
    return at + length;
}
