#pragma once

#include <QString>

// Titles of message boxes that more than one place shows. They look alike and differ in blanks: never trim or merge
// them.
namespace titles {

inline const QString attention = QStringLiteral("Figyelem!");
inline const QString error = QStringLiteral("Hiba");
inline const QString warning = QStringLiteral(" FIGYELEM ");
inline const QString printError = QStringLiteral("! HIBA !");
inline const QString formError = QStringLiteral("!  H I B A  ! ");

} // namespace titles
