#include "settings/check_layouts.h"
#include "settings/setup/setup_pages.h"

namespace {

constexpr BoxRow<SetRcsekk> front[] = {
    number<&SetRcsekk::RcsekkTextosszeg_x1>("RcsekkTextosszeg_x1", u"Numerikus összeg 1 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextosszeg_y1>("RcsekkTextosszeg_y1", u"Numerikus összeg 1 fentről:"),
    number<&SetRcsekk::RcsekkTextosszeg_x2>("RcsekkTextosszeg_x2", u"Numerikus összeg 2 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextosszeg_y2>("RcsekkTextosszeg_y2", u"Numerikus összeg 2 fentről:"),
    number<&SetRcsekk::RcsekkTextCsSzoveg_x1>("RcsekkTextCsSzoveg_x1", u"Összeg betűvel 1 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextCsSzoveg_y1>("RcsekkTextCsSzoveg_y1", u"Összeg betűvel 1 fentről:"),
    number<&SetRcsekk::RcsekkTextCsSzoveg_x2>("RcsekkTextCsSzoveg_x2", u"Összeg betűvel 2 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextCsSzoveg_y2>("RcsekkTextCsSzoveg_y2", u"Összeg betűvel 2 fentről:"),
    number<&SetRcsekk::RcsekkTextFelado_x>("RcsekkTextFelado_x", u"Feladó neve baloldaltól:"),
    number<&SetRcsekk::RcsekkTextFelado_y>("RcsekkTextFelado_y", u"Feladó neve fentről:"),
    number<&SetRcsekk::RcsekkTextcim_x1>("RcsekkTextcim_x1", u"Címzett neve, címe 1 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextcim_y>("RcsekkTextcim_y", u"Címzett neve, címe 1 fentről:"),
    number<&SetRcsekk::RcsekkTextirsz_y>("RcsekkTextirsz_y", u"Irányítószám 1 fentről:"),
    number<&SetRcsekk::RcsekkTextcim_x2>("RcsekkTextcim_x2", u"Címzett neve, címe 2 baloldaltól:"),
    number<&SetRcsekk::RcsekkTextcim2_y>("RcsekkTextcim2_y", u"Címzett neve, címe 2 fentről:"),
    number<&SetRcsekk::RcsekkTextirsz2_y>("RcsekkTextirsz2_y", u"Irányítószám 2 fentről:"),
};

constexpr BoxRow<SetRcsekk> back[] = {
    number<&SetRcsekk::txRcsekkFeladoHatoldal_x>("txRcsekkFeladoHatoldal_x", u"Feladó baloldaltól:"),
    number<&SetRcsekk::txRcsekkFeladoHatoldal_y>("txRcsekkFeladoHatoldal_y", u"Feladó fentről:"),
    number<&SetRcsekk::txRcsekkKozlemHatoldal_x>("txRcsekkKozlemHatoldal_x", u"Közlemény baloldaltól:"),
    number<&SetRcsekk::txRcsekkKozlemHatoldal_y>("txRcsekkKozlemHatoldal_y", u"Közlemény első sora fentről:"),
};

constexpr BoxRow<SetRcsekk> letters[] = {
    font<&SetRcsekk::cmbRcsekkNumBetuTipus>("cmbRcsekkNumBetuTipus", u"Számok betűtípusa:"),
    font<&SetRcsekk::cmbRcsekkSzovegBetuTipus>("cmbRcsekkSzovegBetuTipus", u"Szövegek betűtípusa:"),
    number<&SetRcsekk::TextRcsekkBetuMeret1>("TextRcsekkBetuMeret1", u"Számok betűmérete (pont):"),
    number<&SetRcsekk::TextRcsekkBetuMeret2>("TextRcsekkBetuMeret2", u"Szövegek betűmérete (pont):"),
};

constexpr BoxRow<SetRcsekk> fixedAddressee[] = {
    text<&SetRcsekk::txRcsekkNev>("txRcsekkNev", u"Név:"),
    text<&SetRcsekk::txRcsekkHelyseg>("txRcsekkHelyseg", u"Helység:"),
    text<&SetRcsekk::txRcsekkCim>("txRcsekkCim", u"Cím:"),
    text<&SetRcsekk::txRcsekkIrszam>("txRcsekkIrszam", u"Irányítószám:"),
};

} // namespace

SetupPage* pinkCheckPage(const SetupContext& context) {
    PageBuilder page(context);
    RecordBoxes<SetRcsekk> layout(context.folder);
    RecordBoxes<SetRcsekk> addressee(context.folder);
    BoxFrame* frontFrame = page.frame<SetRcsekk>({nullptr, u"Első oldal nyomtatási beállításai", 2}, front, layout);
    BoxFrame* backFrame = page.frame<SetRcsekk>({"Frame7", u"Hátoldal nyomtatási beállításai", 2}, back, layout);
    page.place(page.swapped({"Command4", u"Hátoldal beállításai", u"Első oldal beállításai"}, frontFrame, backFrame),
               {0, 0});
    page.place(page.frame<SetRcsekk>({nullptr, u"Betűk", 2}, letters, layout), {1, 0});
    BoxFrame* addresseeFrame = page.frame<SetRcsekk>({"Frame1_1", u"Címzett adatai:"}, fixedAddressee, addressee);
    page.addSaves(
        *addresseeFrame,
        {{"cmdRcsekkCimzettMent", u"&Mentés", {u" Mentés ", u"Biztos menthető a címzett adatai?"}, [addressee] {
              return addressee.store();
          }}});
    page.place(addresseeFrame, {0, 1});

    page.addSave({"cmdRCsekkAlapertelm",
                  u"&Alapértelmezettre visszaállítás",
                  {u" Módosítás ", u"Biztos visszaállítod a beállításokat\naz alapértelmezett értékekre?"},
                  [layout] { return layout.restoreFactory(); }});
    page.addSave({"cmdRCsekkMentes", u"&Beállítások mentése", changeQuestion, [layout] { return layout.store(); }});
    layout.fill();
    addressee.fill();
    return page.finish();
}
