#include "settings/envelope_label_settings.h"

#include "records/record_file.h"

boritek boritek::firstRun() {
    auto set = zeroRecord<boritek>();
    set.boritekC6Felado_x = set.boritekC5Felado_x = set.boritekC56Felado_x = 10;
    set.boritekC6Felado_y = set.boritekC5Felado_y = set.boritekC56Felado_y = 8;
    set.boritekC6Cimzett_x = 90;
    set.boritekC6Cimzett_y = 60;
    set.boritekC5Cimzett_x = 125;
    set.boritekC5Cimzett_y = 95;
    set.boritekC56Cimzett_x = 125;
    set.boritekC56Cimzett_y = 60;
    for (auto* sender : {&set.txtBoritekFeladoNev, &set.txtBoritekFeladoCim1, &set.txtBoritekFeladoCim2})
        sender->set({});
    set.txtBoritekFeladoIrSzam.set({});
    set.cmbBoritekNevBetutipus.set(u"Times New Roman CE");
    set.txtBoritekNevBetumeret = 12;
    set.txtBoritekFeladoBetumeret = 10;
    return set;
}

Betutip Betutip::firstRun() {
    Betutip set;
    set.ComboBetuTipus1.fill(QStringView(u"Times New Roman CE"));
    return set;
}

Betumeret Betumeret::firstRun() {
    Betumeret set;
    set.ComboBetuSize.fill(I16(12));
    return set;
}
