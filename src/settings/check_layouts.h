#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// Positions are mm from the left and top edge of the form to the first character of the field, sizes are points.
// `factory()` holds the values that the default buttons restore and that a delivered program folder starts with; a
// record that was never written is all zero.

// Layout of the pink check, its fixed party, and the payee of the cash-on-delivery form.
struct SetRcsekk {
    static constexpr auto fileName = "SetRcsekk.dat";
    Cur RcsekkTextosszeg_x1;
    Cur RcsekkTextosszeg_x2;
    Cur RcsekkTextosszeg_y1;
    Cur RcsekkTextosszeg_y2;
    Cur RcsekkTextCsSzoveg_x1;
    Cur RcsekkTextCsSzoveg_x2;
    Cur RcsekkTextCsSzoveg_y1;
    Cur RcsekkTextCsSzoveg_y2;
    Cur RcsekkTextFelado_y;
    Cur RcsekkTextFelado_x;
    Cur RcsekkTextcim_x1;
    Cur RcsekkTextcim_x2;
    Cur RcsekkTextcim_y;
    Cur RcsekkTextirsz_y;
    Cur txRcsekkFeladoHatoldal_y;
    Cur txRcsekkFeladoHatoldal_x;
    Cur txRcsekkKozlemHatoldal_y;
    Cur txRcsekkKozlemHatoldal_x;
    Text<25> cmbRcsekkNumBetuTipus;
    Text<25> cmbRcsekkSzovegBetuTipus;
    I16 TextRcsekkBetuMeret1;
    I16 TextRcsekkBetuMeret2;
    Text<40> txRcsekkNev;
    Text<40> txRcsekkHelyseg;
    Text<40> txRcsekkCim;
    Text<4> txRcsekkIrszam;
    Bool16 opULapCizett_0; // True: the payee of a cash-on-delivery form is given by address, False: by bank account
    Text<30> txtBankNum;
    Text<20> txtBankNeve;
    Text<4> txtBankIrsz;
    Cur RcsekkTextcim2_y;
    Cur RcsekkTextirsz2_y;

    static SetRcsekk factory();
};
static_assert(sizeof(SetRcsekk) == 394 && offsetof(SetRcsekk, txRcsekkNev) == 198 &&
              offsetof(SetRcsekk, opULapCizett_0) == 322);
static_assert(offsetof(SetRcsekk, RcsekkTextcim2_y) == 378);

// Layout of the cash-on-delivery form, which prints in the fonts of the pink check.
struct SetUlap {
    static constexpr auto fileName = "SetUlap.dat";
    Cur UlapTextosszeg_x;
    Cur UlapTextosszeg_y1;
    Cur UlapTextosszeg_y2;
    Cur UlapTextFelado_x;
    Cur UlapTextFelado_y;
    Cur UlapTextCsSzoveg_x;
    Cur UlapTextCsSzoveg_y;
    Cur UlapCim_x;
    Cur UlapCim_y;
    Cur UlapKuldCim_x;
    Cur UlapKuldCim_y;
    Cur UlapRX_x;
    Cur UlapRX_y;

    static SetUlap factory();
};
static_assert(sizeof(SetUlap) == 104 && offsetof(SetUlap, UlapRX_y) == 96);
