#pragma once

#include <boost/endian/arithmetic.hpp>

#include <QString>

#include <array>
#include <cstdint>
#include <cstring>

// The types of which every record is made. All have alignment 1 and are trivially copyable, so that a struct of them is
// the bytes of its file, whatever the offsets, and a zeroed struct is the record that was never written.

using I16 = boost::endian::little_int16_t;
using I32 = boost::endian::little_int32_t;
using F32 = boost::endian::little_float32_t;

// Exact decimal with four places, stored as a 64-bit integer of ten-thousandths. In positions the unit is millimetres.
class Cur {
public:
    Cur() = default;
    explicit Cur(int whole) : tenThousandths_(std::int64_t{whole} * 10000) {}
    static Cur fromTenThousandths(std::int64_t value) {
        Cur cur;
        cur.tenThousandths_ = value;
        return cur;
    }
    // The leading number of a typed text ("12.5 mm" is 12.5, "abc" is 0), rounded to four places. The sign is a point.
    // Defined with its kind, in number_text.cpp.
    static Cur fromText(QStringView text);

    // Plain decimal, a point for the sign, no trailing zeros, no exponent, no grouping.
    QString text() const;
    std::int64_t tenThousandths() const { return tenThousandths_; }

    // Exact; saturates at the ends of the range instead of overflowing (a damaged record may hold anything).
    Cur plusWhole(int whole) const;
    // The one place where a position leaves fixed point.
    float toFloat() const {
        return static_cast<float>(static_cast<double>(static_cast<std::int64_t>(tenThousandths_)) / 10000.0);
    }

    friend bool operator==(const Cur& a, const Cur& b) { return a.tenThousandths() == b.tenThousandths(); }

private:
    boost::endian::little_int64_t tenThousandths_;
};

// True is -1, False is 0; whatever else a file holds reads as true.
class Bool16 {
public:
    Bool16() = default;
    Bool16(bool value) : value_(static_cast<std::int16_t>(value ? -1 : 0)) {} // NOLINT: fields are set like bools
    operator bool() const { return value_ != 0; }                             // NOLINT

private:
    I16 value_;
};

// Fixed text in Windows-1250, padded with blanks on the right. NUL bytes (a record never written) end the text.
template<std::size_t n>
class Text {
public:
    static constexpr std::size_t width = n;

    Text() = default;
    Text(QStringView text) { set(text); } // NOLINT: fields are set like strings

    // As stored, padding included.
    QString stored() const;
    // Without the blanks at both ends.
    QString trimmed() const;
    // Pads with blanks and silently cuts what is longer than the field.
    void set(QStringView text);
    // Whether trimmed() gives a text back as it was set: it is not too long, has letters of Windows-1250 alone and no
    // blanks at its ends.
    static bool keeps(QStringView text) { return Text(text).trimmed() == text; }

    const char* data() const { return bytes_.data(); }
    char* data() { return bytes_.data(); }

private:
    std::array<char, n> bytes_;
};

// Blanks only: tabs and no-break spaces are part of a text.
QStringView trimBlanks(QStringView text);

// Shortest plain decimal text that reads back as the same single-precision number.
QString plainText(float value);

namespace stored_text {
QString decode(const char* bytes, std::size_t width);
void encode(QStringView text, char* bytes, std::size_t width);
} // namespace stored_text

template<std::size_t n>
QString Text<n>::stored() const {
    return stored_text::decode(bytes_.data(), n);
}

template<std::size_t n>
QString Text<n>::trimmed() const {
    return trimBlanks(stored()).toString();
}

template<std::size_t n>
void Text<n>::set(QStringView text) {
    stored_text::encode(text, bytes_.data(), n);
}

static_assert(sizeof(I16) == 2 && sizeof(I32) == 4 && sizeof(F32) == 4 && sizeof(Cur) == 8 && sizeof(Bool16) == 2);
static_assert(alignof(I16) == 1 && alignof(I32) == 1 && alignof(F32) == 1 && alignof(Cur) == 1 && alignof(Bool16) == 1);
