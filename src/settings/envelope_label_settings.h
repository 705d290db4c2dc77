#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// Envelope positions are whole mm from the envelope's edges, for the three types C6, C5 and C5/6; sizes are points.
// These records have no factory values, and the program never writes any; firstRun() is what a new program folder comes
// with, so that a first envelope or label prints.

struct boritek {
    static constexpr auto fileName = "boritek.dat";
    I16 boritekC6Felado_x;
    I16 boritekC6Felado_y;
    I16 boritekC6Cimzett_y;
    I16 boritekC6Cimzett_x;
    I16 boritekC5Felado_x;
    I16 boritekC5Felado_y;
    I16 boritekC5Cimzett_y;
    I16 boritekC5Cimzett_x;
    I16 boritekC56Felado_x;
    I16 boritekC56Felado_y;
    I16 boritekC56Cimzett_y;
    I16 boritekC56Cimzett_x;
    Text<40> txtBoritekFeladoNev;
    Text<40> txtBoritekFeladoCim1;
    Text<40> txtBoritekFeladoCim2;
    Text<4> txtBoritekFeladoIrSzam;
    Bool16 chkFKFNev;
    Bool16 chkFKFCim1;
    Bool16 chkFKFCim2;
    Bool16 chkFKFIrsz;
    Bool16 chkFKCNev;
    Bool16 chkFKCCim1;
    Bool16 chkFKCCim2;
    Bool16 chkFKCIrsz;
    Bool16 chkFKCNev2;
    Text<25> cmbBoritekNevBetutipus;
    I16 txtBoritekNevBetumeret;
    I16 txtBoritekFeladoBetumeret;

    static boritek firstRun();
};
static_assert(sizeof(boritek) == 195 && offsetof(boritek, chkFKFNev) == 148 &&
              offsetof(boritek, txtBoritekNevBetumeret) == 191);

// Geometry of a label sheet in mm; txtTop and txtLeft are where the first name prints.
struct CimkeSetup {
    static constexpr auto fileName = "CimkeSetup.dat";
    Cur txtMagas;
    Cur txtSzeles;
    Cur txtTop;
    Cur txtLeft;
    I16 txtOszlop;
    I16 txtSor;
    I32 lbKinyomottCimkeNum; // labels printed so far
};
static_assert(sizeof(CimkeSetup) == 40 && offsetof(CimkeSetup, txtOszlop) == 32);

// Fonts and sizes of the five lines of a label.
struct Betutip {
    static constexpr auto fileName = "Betutip.dat";
    std::array<Text<30>, 5> ComboBetuTipus1;

    static Betutip firstRun();
};
struct Betumeret {
    static constexpr auto fileName = "Betumeret.dat";
    std::array<I16, 5> ComboBetuSize;

    static Betumeret firstRun();
};
static_assert(sizeof(Betutip) == 150 && sizeof(Betumeret) == 10);
