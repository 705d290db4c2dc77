#include "settings/receipt_layouts.h"

#include "records/record_file.h"

SetTerti SetTerti::factory() {
    auto set = zeroRecord<SetTerti>();
    set.txtTertiCimzett_y = Cur(22);
    set.txtTertiCimzett_x = Cur(68);
    set.txtTertiUgyfazonosito_y = Cur(11);
    set.txtTertiUgyfazonosito_x = Cur(120);
    set.txtTertiUgyfSajatJel_y = Cur(36);
    set.txtTertiUgyfSajatJel_x = Cur(120);
    set.txtTertiKuldemAzonosito_y = Cur(5);
    set.txtTertiKuldemAzonosito_x = Cur(40);
    set.txtTertiVisszakuld_y = Cur(59);
    set.txtTertiVisszakuld_x = Cur(80);
    set.cmbTertiBetuTipus.set(u"Times New Roman CE");
    set.txtTertiBetuMeret = 10;
    set.txtTertiPipa_y = Cur(15);
    set.txtTertiPipaPri_x = Cur(130);
    set.txtTertiPipaSk_x = Cur(139);
    set.txtTertiPipaUv_x = Cur(148);
    set.txtTertiFelKelte_y = Cur(35);
    set.KTertiKulVisszaSorem = 8.0F;
    set.KTertiKulAzon_y = Cur(16);
    set.KTertiKulAzon_x = Cur(15);
    set.KTertiKulVissza_y = Cur(53);
    set.KTertiKulVissza_x = Cur(85);
    set.KTertiKulPri_x = 43.0F;
    set.KTertiKulLevPriCsom_y = 46.0F;
    set.KTertiKulAjanlottEsSK_x = 17.0F;
    set.KTertiKulAjanlott_y = 52.0F;
    set.KTertiKulSK_y = 58.0F;
    set.txtKTertiCsomag_x = 63.0F;
    set.txtKTertiCimzett_y = 25.0F;
    set.txtKTertiCimzett_x = 15.0F;
    return set;
}

SetFveveny SetFveveny::factory() {
    auto set = zeroRecord<SetFveveny>();
    set.txtFeladovevenyFelado_y = Cur(26);
    set.txtFeladovevenyFelado_x = Cur(55);
    set.txtFeladovevenyErtek_y = Cur(40);
    set.txtFeladovevenyErtek_x = Cur(140);
    set.txtFeladovevenyCimzett_y = Cur(53);
    set.txtFeladovevenyCimzett_x = Cur(55);
    set.cmbFeladovevenyBetuTipus.set(u"Times New Roman CE");
    set.txtFeladovevenyBetuMeret = 10;
    set.txFeladovevenyXAjanlott_y = Cur(41);
    set.txFeladovevenyXAjanlott_x = Cur(56);
    set.txFeladovevenyXTerti_x = Cur(91);
    set.txFeladovevenyXErtek_x = Cur(129);
    set.txFeladovevenyXCsomag_y = Cur(46);
    set.txFeladovevenyXK1_y = Cur(29);
    set.txFeladovevenyXK1_x = Cur(138);
    set.txFeladovevenyXK2_x = Cur(144);
    set.txFeladovevenyXK3_x = Cur(150);
    set.txFeladovevenyXK4_x = Cur(156);
    set.txFeladovevenyXK5_x = Cur(162);
    set.txFeladovevenyXK6_x = Cur(168);
    set.txFeladovevenyUtanvet_x = Cur(140);
    set.txFeladovevenyUtanvet_y = Cur(57);
    set.txFeladovevenyUtanvetszoveg1_x = Cur(154);
    set.txFeladovevenyUtanvetszoveg1_y = Cur(50);
    set.txFeladovevenyUtanvetszoveg2_x = Cur(137);
    set.txFeladovevenyUtanvetszoveg2_y = Cur(53);
    set.txtFeladovevenyBetuMeret2 = 8;
    return set;
}

SetIrat2 SetIrat2::factory() {
    auto set = zeroRecord<SetIrat2>();
    set.txtIratTertiCimzett_y = Cur(22);
    set.txtIratTertiCimzett_x = Cur(51);
    set.txtIratTertiFelado_y = Cur(60);
    set.txtIratTertiFelado_x = Cur(80);
    set.txtIratTertiIratszam_y = Cur(24);
    set.txtIratTertiIratszam_x = Cur(106);
    set.txtIratTertiIratfajta_y = Cur(27);
    set.txtIratTertiIratfajta_x = Cur(106);
    set.txtIratTertiIratmelleklet_y = Cur(30);
    set.txtIratTertiIratmelleklet_x = Cur(106);
    set.txtIratTertiIratotthagy_y = Cur(34);
    set.txtIratTertiIratotthagy_x = Cur(146);
    set.txtIratTertiIratposta_y = Cur(4);
    set.txtIratTertiIratposta_x = Cur(85);
    set.txtIratTertiIratkuldAzon_y = Cur(3);
    set.txtIratTertiIratkuldAzon_x = Cur(12);
    set.cmbIratTertiBetuTipus.set(u"Times New Roman CE");
    set.txtIratTertiBetuMeret = 9;
    return set;
}
