#include "settings/general_settings.h"
#include "settings/receipt_layouts.h"
#include "settings/setup/setup_pages.h"

namespace {

constexpr BoxRow<SetIrat2> positions[] = {
    number<&SetIrat2::txtIratTertiCimzett_x>("txtIratTertiCimzett_x", u"Címzett neve, címe baloldaltól:"),
    number<&SetIrat2::txtIratTertiCimzett_y>("txtIratTertiCimzett_y", u"Címzett neve, címe fentről:"),
    number<&SetIrat2::txtIratTertiIratszam_x>("txtIratTertiIratszam_x", u"Irat száma baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratszam_y>("txtIratTertiIratszam_y", u"Irat száma fentről:"),
    number<&SetIrat2::txtIratTertiIratfajta_x>("txtIratTertiIratfajta_x", u"Irat fajtája baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratfajta_y>("txtIratTertiIratfajta_y", u"Irat fajtája fentről:"),
    number<&SetIrat2::txtIratTertiIratmelleklet_x>("txtIratTertiIratmelleklet_x", u"Irat melléklete baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratmelleklet_y>("txtIratTertiIratmelleklet_y", u"Irat melléklete fentről:"),
    number<&SetIrat2::txtIratTertiIratotthagy_x>("txtIratTertiIratotthagy_x", u"Otthagyandó értesítés baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratotthagy_y>("txtIratTertiIratotthagy_y", u"Otthagyandó értesítés fentről:"),
    number<&SetIrat2::txtIratTertiIratposta_x>("txtIratTertiIratposta_x", u"Felvevő posta baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratposta_y>("txtIratTertiIratposta_y", u"Felvevő posta fentről:"),
    number<&SetIrat2::txtIratTertiIratkuldAzon_x>("txtIratTertiIratkuldAzon_x", u"Küldemény azonosítója baloldaltól:"),
    number<&SetIrat2::txtIratTertiIratkuldAzon_y>("txtIratTertiIratkuldAzon_y", u"Küldemény azonosítója fentről:"),
};

constexpr BoxRow<SetIrat2> sender[] = {
    number<&SetIrat2::txtIratTertiFelado_x>("txtIratTertiFelado_x", u"Feladó neve, címe baloldaltól:"),
    number<&SetIrat2::txtIratTertiFelado_y>("txtIratTertiFelado_y", u"Feladó neve, címe fentről:"),
};

// The default button leaves the bar code alone.
constexpr BoxRow<SetIrat2> letters[] = {
    font<&SetIrat2::cmbIratTertiBetuTipus>("cmbIratTertiBetuTipus", u"Betűtípus:"),
    font<&SetIrat2::cmbVkodBetutipus>("cmbVkodBetutipus", u"Vonalkód betűtípusa:").restored(Restore::no),
    number<&SetIrat2::txtIratTertiBetuMeret>("txtIratTertiBetuMeret", u"Betűméret (pont):"),
    number<&SetIrat2::txtVkodMeret>("txtVkodMeret", u"Vonalkód mérete (pont):").restored(Restore::no),
};

constexpr BoxRow<Set> afterPrinting[] = {
    tick<&Set::chkPrintDel>("chkPrintDel", u"Nyomtatás után a kijelöltek törlése a listából"),
};

} // namespace

SetupPage* documentReceiptPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<SetIrat2> layout(context.folder);
    RecordBoxes<Set> general(context.folder);
    page.explain(u"tértivevény");
    page.place(page.frame<SetIrat2>({nullptr, u"Nyomtatási pozíciók", 2}, positions, layout), {0, 0});
    page.place(page.frame<SetIrat2>({nullptr, u"Betűk", 2}, letters, layout), {1, 0});
    BoxFrame* senderFrame = page.frame<SetIrat2>({"Frame6", u"Feladó címe"}, sender, layout);
    senderFrame->addNote(u"MEGEGYEZIK A TÉRTIVEVÉNY VISSZAKÜLDÉSI CÍMMEL!");
    page.place(senderFrame, {0, 1});
    page.place(page.frame<Set>({nullptr, u"Csoportos nyomtatás"}, afterPrinting, general), {1, 1});

    page.addSave({"cmdIratTertiAlapbeallitas", u"A&lapértelmezettre visszaállítás", receiptDefaultsQuestion,
                  [layout] { return layout.restoreFactory(); }});
    page.addSave({"cmdIratTertiMentes", u"B&eállítások mentése", changeQuestion,
                  [layout, general] { return layout.store() && general.store(); }});
    layout.fill();
    general.fill();
    return page.finish();
}
