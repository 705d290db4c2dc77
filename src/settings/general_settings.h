#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// Positions are mm from the left and top edge of the form to the first character of the field, sizes are points.
// `factory()` holds the values that the default buttons restore and that a delivered program folder starts with; a
// record that was never written is all zero.

// General settings and the layout of the yellow check. It has several writers, each owning its own fields: write it
// through updateRecord only.
struct Set {
    static constexpr auto fileName = "Set.dat";
    I16 setReserved0; // kept as found
    I16 lbPrintNo;    // place of the chosen printer in the device list, from 0; -1 for none
    Cur Textosszeg_x1;
    Cur Textosszeg_x2;
    Cur Textosszeg_y;
    Cur Textkozlemeny_x;
    Cur Textkozlemeny_y;
    Cur TextCsSzoveg_x1;
    Cur TextCsSzoveg_x2;
    Cur TextCsSzoveg_y1;
    Cur TextCsSzoveg_y2;
    Cur Textjogcim_y;
    Cur Textjogcim_x;
    Cur Textcim_x1;
    Cur Textcim_x2;
    Cur Textcim_y;
    Cur Textirsz_y;
    Text<25> ComboBetuTipus1;
    Text<25> ComboBetuTipus2;
    I16 TextBetuMeret1;
    I16 TextBetuMeret2;
    I16 OpOrientacioFekvo; // feed at exit, 1 sideways; no one reads it back
    // What prints on a check: amount, words, name, address, notice, title, (6: keep these at exit), identifier.
    std::array<Bool16, 8> chkNyomtatando;
    Bool16 chkNyomtatandoKilepes; // True: exit stores the remembered receipt entries
    Cur TextBefizAzon_x;
    Cur TextBefizAzon_y;
    I16 chkKepPrint; // 1: print the picture on the envelope
    Text<25> txtTertiPosta;
    std::array<Bool16, 2> opAllando; // who is fixed on the pink check: addressee, sender
    Bool16 chkBefAzonMasolasa;
    I16 chkAutBeolvas;       // 1: the watched folder is on
    Bool16 opHozzafuzes_1;   // True: an import overwrites the database, False: it appends
    Text<255> txtAutBeolvas; // the watched folder
    I16 chkAutoPrint;        // 1: print checks after an import from the watched folder
    Text<15> txtFizHat;      // stands before a payment deadline
    Bool16 chkFizHat;        // True: a client's deadline goes onto the check
    Bool16 opPrinter_1;      // True: the default printer of the system, False: the one of lbPrintNo
    I16 TextVkorrekcio;      // whole mm added to every x of the upright yellow check, may be negative
    std::array<I16, 3> chkVisszaCimPrint;
    Text<5> txtIratErtesites;
    I16 chkListaSorren;
    I16 chkPrintDel; // 1: printed rows leave the list
    I16 OpB;         // envelope type at exit: 1 C6, 2 C5, 3 C5/6
    I16 SSTab1Tab;   // tab shown last, from 0

    static Set factory();
};
static_assert(sizeof(Set) == 548 && offsetof(Set, TextBefizAzon_x) == 198 && offsetof(Set, opAllando) == 241);
static_assert(offsetof(Set, txtAutBeolvas) == 251 && offsetof(Set, TextVkorrekcio) == 527 &&
              offsetof(Set, SSTab1Tab) == 546);
