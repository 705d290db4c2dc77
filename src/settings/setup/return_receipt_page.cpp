#include "settings/receipt_layouts.h"
#include "settings/setup/setup_pages.h"

namespace {

constexpr BoxRow<SetTerti> domestic[] = {
    numberLess20<&SetTerti::txtTertiCimzett_x>("txtTertiCimzett_x", u"Címzett neve, címe baloldaltól:"),
    number<&SetTerti::txtTertiCimzett_y>("txtTertiCimzett_y", u"Címzett neve, címe fentről:"),
    numberLess20<&SetTerti::txtTertiUgyfazonosito_x>("txtTertiUgyfazonosito_x", u"Ügyfélazonosító baloldaltól:"),
    number<&SetTerti::txtTertiUgyfazonosito_y>("txtTertiUgyfazonosito_y", u"Ügyfélazonosító fentről:"),
    numberLess20<&SetTerti::txtTertiUgyfSajatJel_x>("txtTertiUgyfSajatJel_x", u"Ügyfél saját jele baloldaltól:"),
    number<&SetTerti::txtTertiUgyfSajatJel_y>("txtTertiUgyfSajatJel_y", u"Ügyfél saját jele fentről:"),
    numberLess20<&SetTerti::txtTertiKuldemAzonosito_x>("txtTertiKuldemAzonosito_x",
                                                       u"Azonosító, posta, felvétel kelte baloldaltól:"),
    number<&SetTerti::txtTertiKuldemAzonosito_y>("txtTertiKuldemAzonosito_y", u"Küldemény azonosítója fentről:"),
    number<&SetTerti::txtTertiFelKelte_y>("txtTertiFelKelte_y", u"Felvétel kelte fentről:"),
    numberLess20<&SetTerti::txtTertiVisszakuld_x>("txtTertiVisszakuld_x", u"Visszaküldési cím baloldaltól:"),
    number<&SetTerti::txtTertiVisszakuld_y>("txtTertiVisszakuld_y", u"Visszaküldési cím fentről:"),
    number<&SetTerti::txtTertiPipaPri_x>("txtTertiPipaPri_x", u"\"pri.\" jelölés baloldaltól:"),
    number<&SetTerti::txtTertiPipaSk_x>("txtTertiPipaSk_x", u"\"sk.\" jelölés baloldaltól:"),
    number<&SetTerti::txtTertiPipaUv_x>("txtTertiPipaUv_x", u"\"UV.\" jelölés baloldaltól:"),
    number<&SetTerti::txtTertiPipa_y>("txtTertiPipa_y", u"\"pri.\", \"sk.\", \"UV.\" jelölés fentről:"),
};

constexpr BoxRow<SetTerti> foreign[] = {
    number<&SetTerti::txtKTertiCimzett_x>("txtKTertiCimzett_x", u"Címzett neve, címe baloldaltól:"),
    number<&SetTerti::txtKTertiCimzett_y>("txtKTertiCimzett_y", u"Címzett neve, címe fentről:"),
    number<&SetTerti::KTertiKulAzon_x>("KTertiKulAzon_x", u"Küldemény azonosítója baloldaltól:"),
    number<&SetTerti::KTertiKulAzon_y>("KTertiKulAzon_y", u"Küldemény azonosítója fentről:"),
    number<&SetTerti::KTertiKulVissza_x>("KTertiKulVissza_x", u"Visszaküldési cím baloldaltól:"),
    number<&SetTerti::KTertiKulVissza_y>("KTertiKulVissza_y", u"Visszaküldési cím első sora fentről:"),
    number<&SetTerti::KTertiKulVisszaSorem>("KTertiKulVisszaSorem", u"Visszaküldési cím soremelése:"),
    number<&SetTerti::KTertiKulAjanlottEsSK_x>("KTertiKulAjanlottEsSK_x",
                                               u"\"Ajánlott\", \"levél\", \"sk.\" jelölés baloldaltól:"),
    number<&SetTerti::KTertiKulPri_x>("KTertiKulPri_x", u"\"pri.\" jelölés baloldaltól:"),
    number<&SetTerti::txtKTertiCsomag_x>("txtKTertiCsomag_x", u"\"Csomag\" jelölés baloldaltól:"),
    number<&SetTerti::KTertiKulLevPriCsom_y>("KTertiKulLevPriCsom_y",
                                             u"\"Levél\", \"pri.\", \"csomag\" jelölés fentről:"),
    number<&SetTerti::KTertiKulAjanlott_y>("KTertiKulAjanlott_y", u"\"Ajánlott\" jelölés fentről:"),
    number<&SetTerti::KTertiKulSK_y>("KTertiKulSK_y", u"\"sk.\" jelölés fentről:"),
};

constexpr BoxRow<SetTerti> letters[] = {
    font<&SetTerti::cmbTertiBetuTipus>("cmbTertiBetuTipus", u"Betűtípus:"),
    number<&SetTerti::txtTertiBetuMeret>("txtTertiBetuMeret", u"Betűméret (pont):"),
};

constexpr BoxRow<SetTerti> returnAddress[] = {
    text<&SetTerti::txtTertiVisszakuldNev>("txtTertiVisszakuldNev", u"Név:"),
    text<&SetTerti::txtTertiVisszakuldCim1>("txtTertiVisszakuldCim1", u"Helység:"),
    text<&SetTerti::txtTertiVisszakuldCim2>("txtTertiVisszakuldCim2", u"Cím:"),
    text<&SetTerti::txtTertiVisszakuldIrsz>("txtTertiVisszakuldIrsz", u"Irányítószám:"),
};

} // namespace

SetupPage* returnReceiptPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<SetTerti> boxes(context.folder);
    page.explain(u"tértivevény");
    BoxFrame* domesticFrame = page.frame<SetTerti>({nullptr, u"Nyomtatási pozíciók", 2}, domestic, boxes);
    BoxFrame* foreignFrame = page.frame<SetTerti>({"frameKTerti", u"Külföldi Térti Beállításai", 2}, foreign, boxes);
    foreignFrame->addNote(u"A visszaküldési cím esetében az első sor (Név) felső pozíciója  van megadva, a többi sor "
                          u"soremeléssel adható meg.");
    page.place(page.swapped({"cmdKTerti", u"Külföldi Tértivevény Beállítások MEGJELENÍTÉSE",
                             u"Külföldi Tértivevény Beállítások ELREJTÉSE"},
                            domesticFrame, foreignFrame),
               {0, 0});
    page.place(page.frame<SetTerti>({nullptr, u"Betűk", 2}, letters, boxes), {1, 0});
    page.place(page.frame<SetTerti>({"Frame1_0", u"Visszaküldési cím"}, returnAddress, boxes), {0, 1, 2, 1});

    page.addSave({"cmdTertiAlapbeallitas", u"A&lapértelmezettre visszaállítás", receiptDefaultsQuestion,
                  [boxes] { return boxes.storeWithFactory(); }});
    page.addSave({"cmdTertiMentes", u"B&eállítások mentése", changeQuestion, [boxes] { return boxes.store(); }});
    boxes.fill();
    return page.finish();
}
