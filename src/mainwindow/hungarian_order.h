#pragma once

#include <QByteArrayView>

// The order of the Hungarian alphabet as byte keys: two texts compare like their keys under strcmp, several times
// faster than through the toolkit's collator, whose order it follows. Blanks and signs come before digits, digits
// before letters. Cs, dz, dzs, gy, ly, ny, sz, ty, zs, ö and ü are letters of their own, doubled ones ("ssz") count as
// two. Other accents decide only between texts that are equal without them; upper and lower case are equal.
namespace hungarian_order {

// Room that the key of a text of `length` bytes needs at most, with the NUL that ends it.
constexpr std::size_t keyRoom(std::size_t length) { return 2 * length + 2; }

// Writes the key of a Windows-1250 text without NULs; the result points behind its end.
char* writeKey(QByteArrayView text, char* to);

} // namespace hungarian_order
