#pragma once

#include "records/client_records.h"
#include "records/program_folder.h"

// A client of the earlier version.
struct OlderClientRec {
    static constexpr auto fileName = ClientRec::fileName;
    Text<30> Nev;
    Text<30> Nev2;
    Text<20> Helyseg;
    Text<45> Cim;
    I16 Irsz;
    std::array<I32, 20> Osszegek; // the last eight have no place any more
    Text<30> Azonosito;
};
static_assert(sizeof(OlderClientRec) == 237 && offsetof(OlderClientRec, Azonosito) == 207);

// The name that a converted database of the earlier format is kept under.
constexpr auto keptOlderDatabase = "nevekR.dat";

enum class Conversion {
    converted,
    nothingThere,   // no client of the earlier format: nothing was renamed
    alreadyCurrent, // nevek1.dat has the current format
    copyExists,     // a nevekR.dat is there already, and must not be lost
    failed          // a file could not be read or written: all is as it was
};

// Turns a nevek1.dat with the 237-byte records of the earlier version into one of the current format, as one step with
// the renaming of the old file to nevekR.dat. Record numbers stand, so kozl3sor.dat keeps its contents. Nothing in a
// file tells its format; it counts as current where more of its records make sense as current ones.
Conversion convertOlderDatabase(const ProgramFolder& folder);
