#pragma once

#include "records/program_folder.h"

#include <QStringList>

// What a program folder comes with and its users then change, settings above all, is delivered in a subfolder. So a new
// version may be unpacked over an old one: nothing that it brings has the name of a file that anybody has changed.
inline const QString deliveredFolder = QStringLiteral("kezdo");

// Copies those files of `delivered` into the program folder that it lacks. An empty file counts as lacking: it holds
// nothing, and opening a missing record file makes one. Each file appears whole or not at all. The names of those that
// could not be copied.
[[nodiscard]] QStringList placeDelivered(const QString& delivered, const ProgramFolder& folder);
