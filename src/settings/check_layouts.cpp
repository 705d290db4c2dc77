#include "settings/check_layouts.h"

#include "records/record_file.h"

SetRcsekk SetRcsekk::factory() {
    auto set = zeroRecord<SetRcsekk>();
    set.RcsekkTextosszeg_x1 = Cur(5);
    set.RcsekkTextosszeg_x2 = Cur(70);
    set.RcsekkTextosszeg_y1 = Cur(4);
    set.RcsekkTextosszeg_y2 = Cur(33);
    set.RcsekkTextCsSzoveg_x1 = Cur(3);
    set.RcsekkTextCsSzoveg_x2 = Cur(68);
    set.RcsekkTextCsSzoveg_y1 = Cur(12);
    set.RcsekkTextCsSzoveg_y2 = Cur(43);
    set.RcsekkTextFelado_y = Cur(12);
    set.RcsekkTextFelado_x = Cur(70);
    set.RcsekkTextcim_x1 = Cur(5);
    set.RcsekkTextcim_x2 = Cur(140);
    set.RcsekkTextcim_y = Cur(61);
    set.RcsekkTextirsz_y = Cur(77);
    set.txRcsekkFeladoHatoldal_y = Cur(65);
    set.txRcsekkFeladoHatoldal_x = Cur(82);
    set.txRcsekkKozlemHatoldal_y = Cur(7);
    set.txRcsekkKozlemHatoldal_x = Cur(75);
    set.cmbRcsekkNumBetuTipus.set(u"Arial CE");
    set.cmbRcsekkSzovegBetuTipus.set(u"Times New Roman CE");
    set.TextRcsekkBetuMeret1 = 12;
    set.TextRcsekkBetuMeret2 = 10;
    set.RcsekkTextcim2_y = Cur(61);
    set.RcsekkTextirsz2_y = Cur(77);
    return set;
}

SetUlap SetUlap::factory() {
    auto set = zeroRecord<SetUlap>();
    set.UlapTextosszeg_x = Cur(10);
    set.UlapTextosszeg_y1 = Cur(8);
    set.UlapTextosszeg_y2 = Cur(38);
    set.UlapTextFelado_x = Cur(5);
    set.UlapTextFelado_y = Cur(18);
    set.UlapTextCsSzoveg_x = Cur(10);
    set.UlapTextCsSzoveg_y = Cur(49);
    set.UlapCim_x = Cur(80);
    set.UlapCim_y = Cur(64);
    set.UlapKuldCim_x = Cur(80);
    set.UlapKuldCim_y = Cur(65);
    set.UlapRX_x = Cur(57);
    set.UlapRX_y = Cur(2);
    return set;
}
