#include "settings/check_layouts.h"
#include "settings/setup/setup_pages.h"

namespace {

constexpr BoxRow<SetUlap> positions[] = {
    number<&SetUlap::UlapTextosszeg_x>("UlapTextosszeg_x", u"Numerikus összeg baloldaltól:"),
    number<&SetUlap::UlapTextosszeg_y1>("UlapTextosszeg_y1", u"Numerikus összeg 1 fentről:"),
    number<&SetUlap::UlapTextosszeg_y2>("UlapTextosszeg_y2", u"Numerikus összeg 2 fentről:"),
    number<&SetUlap::UlapTextCsSzoveg_x>("UlapTextCsSzoveg_x", u"Összeg betűvel első sora baloldaltól:"),
    number<&SetUlap::UlapTextCsSzoveg_y>("UlapTextCsSzoveg_y", u"Összeg betűvel első sora fentről:"),
    number<&SetUlap::UlapTextFelado_x>("UlapTextFelado_x", u"Utánvételi összeg címzett baloldaltól:"),
    number<&SetUlap::UlapTextFelado_y>("UlapTextFelado_y", u"Utánvételi összeg címzett fentről:"),
    number<&SetUlap::UlapKuldCim_x>("UlapKuldCim_x", u"Küldemény címzettje baloldaltól:"),
    number<&SetUlap::UlapKuldCim_y>("UlapKuldCim_y", u"Küldemény címzettje fentről:"),
    number<&SetUlap::UlapCim_x>("UlapCim_x", u"Küldemény címe baloldaltól:"),
    number<&SetUlap::UlapCim_y>("UlapCim_y", u"Küldemény címe fentről:"),
    number<&SetUlap::UlapRX_x>("UlapRX_x", u"\"R\" jelölés baloldaltól:"),
    number<&SetUlap::UlapRX_y>("UlapRX_y", u"\"R\" jelölés fentről:"),
};

constexpr BoxRow<SetRcsekk> payeeBy[] = {
    option<&SetRcsekk::opULapCizett_0>("opULapCizett_0", u"Az összeg címzettje - cím megadással"),
    counterOption<&SetRcsekk::opULapCizett_0>("opULapCizett_1", u"Az összeg címzettje -bankszámla megadással"),
};

constexpr BoxRow<SetRcsekk> bank[] = {
    text<&SetRcsekk::txtBankNum>("txtBankNum", u"Bankszámla száma:"),
    text<&SetRcsekk::txtBankNeve>("txtBankNeve", u"Bank neve:").onlyWhile("opULapCizett_1"),
    text<&SetRcsekk::txtBankIrsz>("txtBankIrsz", u"Bank irányítószáma:").onlyWhile("opULapCizett_1"),
};

} // namespace

SetupPage* cashOnDeliveryPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<SetUlap> layout(context.folder);
    RecordBoxes<SetRcsekk> payee(context.folder);
    BoxFrame* frame = page.frame<SetUlap>({"Frame10", u"Nyomtatási pozíciók", 2}, positions, layout);
    frame->addNote(u"Az \"ÉL\" pozíció automatikusan méretezett!");
    page.add<SetRcsekk>(*frame, payeeBy, payee);
    page.add<SetRcsekk>(*frame, bank, payee);
    page.place(frame, {0, 0});

    page.addSave({"cmdUlapAlapertelmezettre",
                  u"&Alapértelmezettre visszaállítás",
                  {u" Módosítás ", u"Biztos visszaállíthatók az alapértékek?"},
                  [layout] { return layout.restoreFactory(); }});
    page.addSave({"cmdULapMentes", u"&Beállítások mentése", changeQuestion,
                  [layout, payee] { return layout.store() && payee.store(); }});
    layout.fill();
    payee.fill();
    return page.finish();
}
