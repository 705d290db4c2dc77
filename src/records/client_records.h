#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// One client: name, address, stored amounts and identifier.
struct ClientRec {
    static constexpr auto fileName = "nevek1.dat";
    Text<36> Nev;
    Text<36> Nev2;                // second line, on envelopes only; of a foreign client the street address
    Text<40> Helyseg;             // settlement; of a foreign client postcode and town
    Text<45> Cim;                 // street address; of a foreign client the country
    Text<6> Irsz;                 // blank for a foreign client
    std::array<I32, 12> Osszegek; // forints, in any order; 0 is an empty slot
    Text<30> Azonosito;           // payer identifier
    Text<28> FizHatIdo;           // payment deadline, free text
    Bool16 Kulfoldi;              // foreign address
};
static_assert(sizeof(ClientRec) == 271 && offsetof(ClientRec, Osszegek) == 163 && offsetof(ClientRec, Kulfoldi) == 269);

// What else belongs to the client with the same record number.
struct TwinRec {
    static constexpr auto fileName = "kozl3sor.dat";
    Text<20> Kozl3Sor;           // third line of the notice on a check
    Text<20> IratFajtaja;        // kind of document
    Text<20> IratSzama;          // document number
    Text<20> IratMelleklet;      // attachment
    Text<25> SajatJelzes;        // client's own mark on the return receipt
    Text<30> KuldemenyAzonosito; // item identifier on the return receipt
};
static_assert(sizeof(TwinRec) == 135 && offsetof(TwinRec, KuldemenyAzonosito) == 105);

// An amount that is offered and printed from a stored slot: at least 1 and below 9999999 forints.
inline bool isUsableAmount(std::int32_t forints) { return forints >= 1 && forints < 9999999; }
