#include "settings/receipt_layouts.h"
#include "settings/setup/setup_pages.h"

namespace {

constexpr BoxRow<SetFveveny> positions[] = {
    numberLess20<&SetFveveny::txtFeladovevenyFelado_x>("txtFeladovevenyFelado_x", u"Feladó neve, címe baloldaltól:"),
    number<&SetFveveny::txtFeladovevenyFelado_y>("txtFeladovevenyFelado_y", u"Feladó neve, címe fentről:"),
    numberLess20<&SetFveveny::txtFeladovevenyCimzett_x>("txtFeladovevenyCimzett_x", u"Címzett neve, címe baloldaltól:"),
    number<&SetFveveny::txtFeladovevenyCimzett_y>("txtFeladovevenyCimzett_y", u"Címzett neve, címe fentről:"),
    numberLess20<&SetFveveny::txtFeladovevenyErtek_x>("txtFeladovevenyErtek_x", u"Érték baloldaltól:"),
    number<&SetFveveny::txtFeladovevenyErtek_y>("txtFeladovevenyErtek_y", u"Érték fentről:"),
    numberLess20<&SetFveveny::txFeladovevenyUtanvet_x>("txFeladovevenyUtanvet_x", u"Utánvét összege baloldaltól:"),
    number<&SetFveveny::txFeladovevenyUtanvet_y>("txFeladovevenyUtanvet_y", u"Utánvét összege fentről:"),
    numberLess20<&SetFveveny::txFeladovevenyUtanvetszoveg1_x>("txFeladovevenyUtanvetszoveg1_x",
                                                              u"Utánvét szövege 1 baloldaltól:"),
    number<&SetFveveny::txFeladovevenyUtanvetszoveg1_y>("txFeladovevenyUtanvetszoveg1_y",
                                                        u"Utánvét szövege 1 fentről:"),
    numberLess20<&SetFveveny::txFeladovevenyUtanvetszoveg2_x>("txFeladovevenyUtanvetszoveg2_x",
                                                              u"Utánvét szövege 2 baloldaltól:"),
    number<&SetFveveny::txFeladovevenyUtanvetszoveg2_y>("txFeladovevenyUtanvetszoveg2_y",
                                                        u"Utánvét szövege 2 fentről:"),
};

constexpr BoxRow<SetFveveny> ticks[] = {
    numberLess20<&SetFveveny::txFeladovevenyXAjanlott_x>("txFeladovevenyXAjanlott_x",
                                                         u"Ajánlott, hivatalos irat baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXTerti_x>("txFeladovevenyXTerti_x", u"Tértivevény, csomag baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXErtek_x>("txFeladovevenyXErtek_x", u"Értéknyilvánítás baloldaltól:"),
    number<&SetFveveny::txFeladovevenyXAjanlott_y>("txFeladovevenyXAjanlott_y",
                                                   u"Ajánlott, tértivevény, érték fentről:"),
    number<&SetFveveny::txFeladovevenyXCsomag_y>("txFeladovevenyXCsomag_y", u"Csomag, hivatalos irat fentről:"),
    number<&SetFveveny::txFeladovevenyXK1_y>("txFeladovevenyXK1_y", u"Különszolgáltatások fentről:"),
    numberLess20<&SetFveveny::txFeladovevenyXK1_x>("txFeladovevenyXK1_x", u"\"sk\" jelölés baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXK2_x>("txFeladovevenyXK2_x", u"\"PRI\" jelölés baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXK3_x>("txFeladovevenyXK3_x", u"\"PL\" jelölés baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXK4_x>("txFeladovevenyXK4_x", u"\"e-ért\" jelölés baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXK5_x>("txFeladovevenyXK5_x", u"\"LNK\" jelölés baloldaltól:"),
    numberLess20<&SetFveveny::txFeladovevenyXK6_x>("txFeladovevenyXK6_x", u"\"2X\" jelölés baloldaltól:"),
};

constexpr BoxRow<SetFveveny> fontRows[] = {
    font<&SetFveveny::cmbFeladovevenyBetuTipus>("cmbFeladovevenyBetuTipus", u"Betűtípus:"),
};

constexpr BoxRow<SetFveveny> sizes[] = {
    number<&SetFveveny::txtFeladovevenyBetuMeret>("txtFeladovevenyBetuMeret", u"Betűméret (pont):"),
    number<&SetFveveny::txtFeladovevenyBetuMeret2>("txtFeladovevenyBetuMeret2", u"Utánvét szövegének mérete (pont):"),
};

constexpr BoxRow<SetFveveny> sender[] = {
    text<&SetFveveny::txtFeladovevenyFeladoNev>("txtFeladovevenyFeladoNev", u"Név:"),
    text<&SetFveveny::txtFeladovevenyFeladoCim1>("txtFeladovevenyFeladoCim1", u"Helység:"),
    text<&SetFveveny::txtFeladovevenyFeladoCim2>("txtFeladovevenyFeladoCim2", u"Cím:"),
};

} // namespace

SetupPage* postingReceiptPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<SetFveveny> boxes(context.folder);
    page.explain(u"feladóvevény");
    BoxFrame* positionsFrame = page.frame<SetFveveny>({nullptr, u"Nyomtatási pozíciók", 2}, positions, boxes);
    BoxFrame* ticksFrame =
        page.frame<SetFveveny>({"Frame5", u"A kipipálandó jelölőnégyzetek pozíciói", 2}, ticks, boxes);
    page.place(page.swapped({"cmdKeretMegjelenites", u"Kipipálandó jelölőnégyzetek pozícióinak MEGJELENÍTÉSE",
                             u"Kipipálandó jelölőnégyzetek pozícióinak ELREJTÉSE..."},
                            positionsFrame, ticksFrame),
               {0, 0});
    BoxFrame* letters = page.frame<SetFveveny>({nullptr, u"Betűk"}, fontRows, boxes);
    page.add<SetFveveny>(*letters, sizes, boxes);
    page.place(letters, {1, 0});
    page.place(page.frame<SetFveveny>({"Frame2_0", u"Feladó neve és címe"}, sender, boxes), {0, 1, 2, 1});

    page.addSave({"cmdFeladovevenyAlapbeallitas", u"Alapé&rtelmezettre visszaállítás", receiptDefaultsQuestion,
                  [boxes] { return boxes.storeWithFactory(); }});
    page.addSave({"cmdFeladovevenyMentes", u"Beállítá&sok mentése", changeQuestion, [boxes] { return boxes.store(); }});
    boxes.fill();
    return page.finish();
}
