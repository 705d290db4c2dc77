#pragma once

#include "records/stored_types.h"

#include <array>
#include <cstddef>

// Positions are mm from the left and top edge of the form to the first character of the field, sizes are points.
// `factory()` holds the values that the default buttons restore and that a delivered program folder starts with; a
// record that was never written is all zero. Many x fields of the first two records hold 20 mm more than the setup
// dialog shows.

// Layout of the domestic and the foreign return receipt, and the return address.
struct SetTerti {
    static constexpr auto fileName = "SetTerti.dat";
    Cur txtTertiCimzett_y;
    Cur txtTertiCimzett_x;
    Cur txtTertiUgyfazonosito_y;
    Cur txtTertiUgyfazonosito_x;
    Cur txtTertiUgyfSajatJel_y;
    Cur txtTertiUgyfSajatJel_x;
    Cur txtTertiKuldemAzonosito_y;
    Cur txtTertiKuldemAzonosito_x;
    Cur txtTertiVisszakuld_y;
    Cur txtTertiVisszakuld_x;
    Text<25> cmbTertiBetuTipus;
    I16 txtTertiBetuMeret;
    Text<40> txtTertiVisszakuldNev;
    Text<40> txtTertiVisszakuldCim1;
    Text<40> txtTertiVisszakuldCim2;
    Text<10> txtTertiVisszakuldIrsz;
    Cur txtTertiPipa_y;
    Cur txtTertiPipaPri_x;
    Cur txtTertiPipaSk_x;
    Cur txtTertiPipaUv_x;
    Cur txtTertiFelKelte_y;
    F32 KTertiKulVisszaSorem;
    Cur KTertiKulAzon_y;
    Cur KTertiKulAzon_x;
    Cur KTertiKulVissza_y;
    Cur KTertiKulVissza_x;
    F32 KTertiKulPri_x;
    F32 KTertiKulLevPriCsom_y;
    F32 KTertiKulAjanlottEsSK_x;
    F32 KTertiKulAjanlott_y;
    F32 KTertiKulSK_y;
    F32 txtKTertiCsomag_x;
    F32 txtKTertiCimzett_y;
    F32 txtKTertiCimzett_x;

    static SetTerti factory();
};
static_assert(sizeof(SetTerti) == 345 && offsetof(SetTerti, txtTertiVisszakuldNev) == 107);
static_assert(offsetof(SetTerti, KTertiKulVisszaSorem) == 277 && offsetof(SetTerti, txtKTertiCimzett_x) == 341);

// Layout of the posting receipt and its sender.
struct SetFveveny {
    static constexpr auto fileName = "SetFveveny.dat";
    Cur txtFeladovevenyFelado_y;
    Cur txtFeladovevenyFelado_x;
    Cur txtFeladovevenyErtek_y;
    Cur txtFeladovevenyErtek_x;
    Cur txtFeladovevenyCimzett_y;
    Cur txtFeladovevenyCimzett_x;
    Text<25> cmbFeladovevenyBetuTipus;
    I16 txtFeladovevenyBetuMeret;
    Text<40> txtFeladovevenyFeladoNev;
    Text<40> txtFeladovevenyFeladoCim1;
    Text<40> txtFeladovevenyFeladoCim2;
    Cur txFeladovevenyXAjanlott_y;
    Cur txFeladovevenyXAjanlott_x;
    Cur txFeladovevenyXTerti_x;
    Cur txFeladovevenyXErtek_x;
    Cur txFeladovevenyXCsomag_y;
    Cur txFeladovevenyXK1_y;
    Cur txFeladovevenyXK1_x;
    Cur txFeladovevenyXK2_x;
    Cur txFeladovevenyXK3_x;
    Cur txFeladovevenyXK4_x;
    Cur txFeladovevenyXK5_x;
    Cur txFeladovevenyXK6_x;
    Cur txFeladovevenyUtanvet_x;
    Cur txFeladovevenyUtanvet_y;
    Cur txFeladovevenyUtanvetszoveg1_x;
    Cur txFeladovevenyUtanvetszoveg1_y;
    Cur txFeladovevenyUtanvetszoveg2_x;
    Cur txFeladovevenyUtanvetszoveg2_y;
    I16 txtFeladovevenyBetuMeret2;

    static SetFveveny factory();
};
static_assert(sizeof(SetFveveny) == 341 && offsetof(SetFveveny, txtFeladovevenyFeladoNev) == 75);
static_assert(offsetof(SetFveveny, txFeladovevenyXAjanlott_y) == 195 &&
              offsetof(SetFveveny, txtFeladovevenyBetuMeret2) == 339);

// Layout of the official-document return receipt, which prints the return address of SetTerti.
struct SetIrat2 {
    static constexpr auto fileName = "SetIrat2.dat";
    Cur txtIratTertiCimzett_y;
    Cur txtIratTertiCimzett_x;
    Cur txtIratTertiFelado_y;
    Cur txtIratTertiFelado_x;
    Cur txtIratTertiIratszam_y;
    Cur txtIratTertiIratszam_x;
    Cur txtIratTertiIratfajta_y;
    Cur txtIratTertiIratfajta_x;
    Cur txtIratTertiIratmelleklet_y;
    Cur txtIratTertiIratmelleklet_x;
    Cur txtIratTertiIratotthagy_y;
    Cur txtIratTertiIratotthagy_x;
    Cur txtIratTertiIratposta_y;
    Cur txtIratTertiIratposta_x;
    Cur txtIratTertiIratkuldAzon_y;
    Cur txtIratTertiIratkuldAzon_x;
    Text<25> cmbIratTertiBetuTipus;
    I16 txtIratTertiBetuMeret;
    Text<25> cmbVkodBetutipus;
    I16 txtVkodMeret;

    static SetIrat2 factory();
};
static_assert(sizeof(SetIrat2) == 182 && offsetof(SetIrat2, txtIratTertiBetuMeret) == 153);
