#pragma once

#include <QByteArray>
#include <QString>

namespace windows1250 {

// Windows-1250 through a table of our own: what the toolkit knows of this code page differs from build to build.
// Every one of the 256 bytes survives decode + encode; the five unassigned ones (81 83 88 90 98) map to U+0081... .

QString decode(QByteArrayView bytes);

// One byte for each UTF-16 unit, but one for a surrogate pair too. A letter outside the code page becomes its
// look-alike (õ ő, û ű) or '?'.
QByteArray encode(QStringView text);

char16_t toUnicode(char byte);

// The byte of one UTF-16 unit, or '?'.
char toByte(char16_t unit);

// Upper-case form of a letter, any other byte as it is: what a comparison without regard to case works on.
char fold(char byte);

} // namespace windows1250
