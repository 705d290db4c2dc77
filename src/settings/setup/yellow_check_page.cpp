#include "settings/general_settings.h"
#include "settings/setup/catalogue_dialog.h"
#include "settings/setup/setup_pages.h"

#include <algorithm>

namespace {

constexpr BoxRow<Set> positions[] = {
    number<&Set::Textosszeg_x1>("Textosszeg_x1", u"Numerikus összeg 1 baloldaltól:"),
    number<&Set::Textosszeg_x2>("Textosszeg_x2", u"Numerikus összeg 2 baloldaltól:"),
    number<&Set::Textosszeg_y>("Textosszeg_y", u"Numerikus összegek fentről:"),
    number<&Set::TextCsSzoveg_x1>("TextCsSzoveg_x1", u"Összeg betűvel 1 baloldaltól:"),
    number<&Set::TextCsSzoveg_x2>("TextCsSzoveg_x2", u"Összeg betűvel 2 baloldaltól:"),
    number<&Set::TextCsSzoveg_y1>("TextCsSzoveg_y1", u"Összeg betűvel 1. sora fentről:"),
    number<&Set::TextCsSzoveg_y2>("TextCsSzoveg_y2", u"Összeg betűvel 2. sora fentről:"),
    number<&Set::Textkozlemeny_x>("Textkozlemeny_x", u"Közlemény baloldaltól:"),
    number<&Set::Textkozlemeny_y>("Textkozlemeny_y", u"Közlemény fentről:"),
    number<&Set::Textjogcim_x>("Textjogcim_x", u"Befizetés jogcíme baloldaltól:"),
    number<&Set::Textjogcim_y>("Textjogcim_y", u"Befizetés jogcíme fentről:"),
    number<&Set::TextBefizAzon_x>("TextBefizAzon_x", u"Befizetőazonosító baloldaltól:"),
    number<&Set::TextBefizAzon_y>("TextBefizAzon_y", u"Befizetőazonosító fentről:"),
    number<&Set::Textcim_x1>("Textcim_x1", u"Név, cím 1 baloldaltól:"),
    number<&Set::Textcim_x2>("Textcim_x2", u"Név, cím 2 baloldaltól:"),
    number<&Set::Textcim_y>("Textcim_y", u"Név, cím fentről:"),
    number<&Set::Textirsz_y>("Textirsz_y", u"Irányítószám fentről:"),
    number<&Set::TextVkorrekcio>("TextVkorrekcio", u"A baloldali pozíciók módosítása... (negatív szám is lehet!)"),
};

constexpr BoxRow<Set> letters[] = {
    font<&Set::ComboBetuTipus1>("ComboBetuTipus1", u"Számok betűtípusa:"),
    font<&Set::ComboBetuTipus2>("ComboBetuTipus2", u"Szövegek betűtípusa:"),
    number<&Set::TextBetuMeret1>("TextBetuMeret1", u"Számok betűmérete (pont):"),
    number<&Set::TextBetuMeret2>("TextBetuMeret2", u"Szövegek betűmérete (pont):"),
};

constexpr int keepAtExit = 6; // the one box of the frame that is no item of a check

// A record that the page never stored: its texts are NULs, where a stored one has blanks at least.
bool isNew(const Set& set) { return set.ComboBetuTipus1.stored().isEmpty(); }

// What prints, as stored. A new record shows every item ticked.
template<std::size_t item>
constexpr BoxRow<Set> printed(const char* name, const char16_t* label) {
    return {{name, label, &tickBox, Restore::no},
            [](const Set& set) { return field_text::showTick(isNew(set) || set.chkNyomtatando[item]); },
            [](Set& set, QStringView text) { set.chkNyomtatando[item] = field_text::isTicked(text); }};
}

// This box drives the gate by which the exit stores the receipt entries, and shows as unticked while that is closed.
constexpr BoxRow<Set> keptAtExit(const char* name, const char16_t* label) {
    return {{name, label, &tickBox, Restore::no},
            [](const Set& set) {
                return field_text::showTick(set.chkNyomtatandoKilepes && set.chkNyomtatando[keepAtExit]);
            },
            [](Set& set, QStringView text) {
                set.chkNyomtatando[keepAtExit] = field_text::isTicked(text);
                set.chkNyomtatandoKilepes = set.chkNyomtatando[keepAtExit];
            }};
}

constexpr BoxRow<Set> printedItems[] = {
    printed<0>("chkNyomtatando_0", u"Összeg"),
    printed<1>("chkNyomtatando_1", u"Összeg betűvel"),
    printed<2>("chkNyomtatando_2", u"Név"),
    printed<3>("chkNyomtatando_3", u"Cím"),
    printed<4>("chkNyomtatando_4", u"Közlemény"),
    printed<5>("chkNyomtatando_5", u"Befizetés jogcíme"),
    printed<7>("chkNyomtatando_7", u"Befizetőazonosító"),
    keptAtExit("chkNyomtatando_6", u"Kilépéskor beállítás mentése")
        .withToolTip(u"A fenti nyomtatandó beállítások mentése kilépéskor"),
};

constexpr BoxRow<Set> deadline[] = {
    tick<&Set::chkFizHat>("chkFizHat", u"Fizetési határidő a jogcím mezőbe"),
    text<&Set::txtFizHat>("txtFizHat", u"A határidő előtti szöveg:").restored(Restore::ifEmpty),
};

} // namespace

SetupPage* yellowCheckPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<Set> boxes(context.folder);
    page.explain(u"csekk");
    page.place(page.frame<Set>({nullptr, u"Nyomtatási pozíciók", 2}, positions, boxes), {0, 0});
    page.place(page.frame<Set>({nullptr, u"Betűk", 2}, letters, boxes), {1, 0});
    page.place(page.frame<Set>({"frmNyomtatando", u"Nyomtatandó adatok a csekkre"}, printedItems, boxes), {0, 1});
    page.place(page.frame<Set>({"Frame8", u"Kijelölés a listamezőben"}, deadline, boxes), {1, 1});

    const auto catalogue = [&context](const CatalogueLook& look) {
        return [&look, folder = context.folder, prompts = &context.prompts](QWidget* parent) {
            CatalogueDialog(look, folder, *prompts, parent).exec();
        };
    };
    page.addLink({"cmdJogcim", u"&Jogcím szövegek felvétele", catalogue(frmJogcimek)});
    page.addLink({"cmdKozlemeny", u"&Közlemény szövegek felvétele", catalogue(frmKozlemeny)});
    page.addSave({"Command2",
                  u"&Alapértelmezettre visszaállítás",
                  {u" Módosítás ", u"Biztos módosítod a beállításokat\naz alapértelmezett értékekre?"},
                  [boxes] { return boxes.restoreFactory(); }});
    page.addSave({"Command1", u"&Beállítások mentése", changeQuestion, [boxes] { return boxes.store(); }});
    boxes.fill();
    return page.finish();
}
