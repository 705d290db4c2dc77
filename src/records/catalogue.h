#pragma once

#include "records/record_file.h"
#include "records/stored_types.h"

#include <optional>
#include <vector>

// A text catalogue: a plain list of texts that users pick again and again. The record number, from 1, is an entry's
// place in the list; the same text may stand there twice.

struct CatalogueEntry {
    Text<25> Szoveg;
};
static_assert(sizeof(CatalogueEntry) == 25);

struct Catalogue {
    const char* fileName;
};
inline constexpr Catalogue firstTitleLines{"Jogcimek.dat"};
inline constexpr Catalogue secondTitleLines{"Jogcimek2.dat"};
inline constexpr Catalogue notices{"Kozlem.dat"};

// All entries. A missing file comes into being, empty. This and the others throw UnreadableFile.
std::vector<CatalogueEntry> readEntries(const ProgramFolder& folder, const Catalogue& catalogue);

// Puts an entry at the end, cut to the length of the field, and gives all that there are then. Nothing, and nothing
// changes, if it could not be written. The file is replaced in one step, so that a kill leaves the old list or the new
// one.
[[nodiscard]] std::optional<std::vector<CatalogueEntry>> appendEntry(const ProgramFolder& folder,
                                                                     const Catalogue& catalogue, QStringView text);

// The same: takes an entry out; those behind it move up by one. Nothing, and nothing changes, if there is no such entry
// or the new file could not be written.
[[nodiscard]] std::optional<std::vector<CatalogueEntry>> removeEntry(const ProgramFolder& folder,
                                                                     const Catalogue& catalogue, qint64 number);
