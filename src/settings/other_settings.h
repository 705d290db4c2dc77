#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// The posting list: margins in whole mm and the path of the spreadsheet program.
struct FjSet {
    static constexpr auto fileName = "FjSet.dat";
    I16 txtBal;
    I16 txtFelso;
    Text<100> txtExcelUtvonal;

    // Where the names fall into the rows of the delivered form.
    static FjSet firstRun() { return {I16(65), I16(70), Text<100>(u"")}; }
};
static_assert(sizeof(FjSet) == 104);

// The picture on the envelope: its file and its box on the screen, in twips.
struct Kepment {
    static constexpr auto fileName = "Kepment.dat";
    Text<255> kepFajl;
    std::array<char, 8> reserved; // kept as found
    I16 Left;
    I16 Top;
    Cur Width;
    Cur Height;
};
static_assert(sizeof(Kepment) == 283 && offsetof(Kepment, Left) == 263 && offsetof(Kepment, Width) == 267);

// What the picture browser remembers.
struct BrowsePat {
    static constexpr auto fileName = "browse.pat";
    Text<500> BrowseUtvonal;
    std::array<char, 16> reserved; // kept as found
};
static_assert(sizeof(BrowsePat) == 516);
