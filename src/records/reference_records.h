#pragma once

#include "records/stored_types.h"

#include <cstddef>

// One settlement of the postcode table.
struct SettlementRec {
    static constexpr auto fileName = "Telepulesek.dat";
    Text<20> Helyseg;
    Text<20> HelysegResz; // part of the settlement
    I16 Irsz;
};
static_assert(sizeof(SettlementRec) == 42 && offsetof(SettlementRec, Irsz) == 40);

// One stretch of a Budapest street that belongs to one postcode.
struct BudapestRec {
    static constexpr auto fileName = "Budapest.dat";
    I16 Irsz;
    Text<25> Utca;       // without the kind of public place
    Text<10> Kozterulet; // kind of public place
    Text<15> Varosresz;
    I16 HszTol; // first house number; 0 all, -1 odd, -2 even, -3 the rest
    I16 HszIg;  // last house number, 0 to the end
    Text<6> Kerulet;
};
static_assert(sizeof(BudapestRec) == 62 && offsetof(BudapestRec, HszTol) == 52 && offsetof(BudapestRec, Kerulet) == 56);
