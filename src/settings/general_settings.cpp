#include "settings/general_settings.h"

#include "records/record_file.h"

Set Set::factory() {
    auto set = zeroRecord<Set>();
    set.Textosszeg_x1 = Cur(15);
    set.Textosszeg_x2 = Cur(80);
    set.Textosszeg_y = Cur(6);
    set.Textkozlemeny_x = Cur(150);
    set.Textkozlemeny_y = Cur(5);
    set.TextCsSzoveg_x1 = Cur(2);
    set.TextCsSzoveg_x2 = Cur(68);
    set.TextCsSzoveg_y1 = Cur(15);
    set.TextCsSzoveg_y2 = Cur(22);
    set.Textjogcim_y = Cur(33);
    set.Textjogcim_x = Cur(25);
    set.Textcim_x1 = Cur(5);
    set.Textcim_x2 = Cur(140);
    set.Textcim_y = Cur(50);
    set.Textirsz_y = Cur(68);
    set.ComboBetuTipus1.set(u"Arial CE");
    set.ComboBetuTipus2.set(u"Times New Roman CE");
    set.TextBetuMeret1 = 12;
    set.TextBetuMeret2 = 10;
    set.TextBefizAzon_x = Cur(80);
    set.TextBefizAzon_y = Cur(40);
    set.txtFizHat.set(u"Fiz.Hat:");
    set.TextVkorrekcio = 0;
    set.chkNyomtatando.fill(true);
    set.chkNyomtatandoKilepes = true;
    return set;
}
