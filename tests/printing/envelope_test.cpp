#include "printing/envelope.h"

#include "check_fixture.h"
#include "settings/envelope_label_settings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

EnvelopeTab filledTab() {
    EnvelopeTab tab;
    std::tie(tab.txtBoritekCimzettNev, tab.txtBoritekCimzettNev2, tab.txtBoritekCimzettCim1, tab.txtBoritekCimzettCim2,
             tab.txtBoritekCimzettIrSzam) =
        std::tuple(u" Cél Zrt. "_s, u"Pf. 5."_s, u"Győr  "_s, u" Duna út 9."_s, u"9021  "_s);
    std::tie(tab.txtBoritekFeladoNev, tab.txtBoritekFeladoCim1, tab.txtBoritekFeladoCim2, tab.txtBoritekFeladoIrSzam,
             tab.txtFelado5mezo) = std::tuple(u" Küldő"_s, u"Pécs "_s, u"Tér 3."_s, u"7621"_s, u" Ajánlott! "_s);
    return tab;
}

class EnvelopeTest : public CheckTest {
protected:
    EnvelopeTab& tab = tabs.envelope = filledTab();
    boritek envelope = boritek::firstRun();

    EnvelopeTest() {
        // No two positions alike, and none that could be taken for another's.
        for (int mm = 1;
             I16 * field : {&envelope.boritekC6Felado_x, &envelope.boritekC6Felado_y, &envelope.boritekC6Cimzett_x,
                            &envelope.boritekC6Cimzett_y, &envelope.boritekC5Felado_x, &envelope.boritekC5Felado_y,
                            &envelope.boritekC5Cimzett_x, &envelope.boritekC5Cimzett_y, &envelope.boritekC56Felado_x,
                            &envelope.boritekC56Felado_y, &envelope.boritekC56Cimzett_x, &envelope.boritekC56Cimzett_y})
            *field = static_cast<std::int16_t>(100 * mm++);
        envelope.txtBoritekFeladoNev.set(u" Tárolt Kft.");
        envelope.txtBoritekFeladoCim1.set(u"Eger");
        envelope.txtBoritekFeladoIrSzam.set(u"3300");
        envelope.txtBoritekNevBetumeret = 20; // 8 mm a line; the sender's 10 points are 4
        files.store(envelope);
        ClientRec client = clientNamed(u"Nagy Áron"_s);
        addClient(client);
        client.Nev2.set(u" Fleet Street 1");
        addClient(client);
    }
    // The page as "x y size|text", bold texts marked, the picture as "kép x y width height".
    std::string shown(std::size_t page = 0) const {
        QStringList items;
        for (const PlacedItem& item : lastJob().job.pages.at(page).items) {
            if (const auto* text = std::get_if<PlacedText>(&item))
                items << u"%1 %2 %3%4|%5"_s.arg(text->x)
                             .arg(text->y)
                             .arg(text->font.size)
                             .arg(text->font.bold ? u"b"_s : QString(), text->text);
            else if (const auto* picture = std::get_if<PlacedPicture>(&item))
                items << u"kép %1 %2 %3 %4"_s.arg(picture->x).arg(picture->y).arg(picture->width).arg(picture->height);
        }
        return joined(items);
    }
    void choosePicture() {
        tab.chkKepPrint = true;
        tab.picture = QImage(2, 1, QImage::Format_RGB32);
        std::tie(tab.lbXpoz, tab.lbYpoz) = std::tuple(u"30"_s, QString()); // 0 mm shows nothing
        tab.kepSzeles = Cur::fromTenThousandths(34990);
        tab.kepMagas = Cur::fromTenThousandths(17495);
    }
};

TEST_F(EnvelopeTest, EachTypeHasItsPlaceAndPage) {
    const struct {
        const char* name;
        Routine routine;
        EnvelopeType type;
        PageSetup setup;
        std::string addressee, sender;
    } runs[] = {{"upright C6", PrintAlloBoritek, EnvelopeType::C6, {2, 28, {}}, "366 420", "166 220"},
                {"upright C5", PrintAlloBoritek, EnvelopeType::C5, {2, 28, {}}, "700 800", "500 600"},
                {"upright C56", PrintAlloBoritek, EnvelopeType::C56, {2, 28, {}}, "1115 1225", "915 1025"},
                {"sideways C6", PrintFekvoBoritek, EnvelopeType::C6, {1, 28, {}}, "300 400", "100 200"},
                {"sideways C5", PrintFekvoBoritek, EnvelopeType::C5, {1, 9, {}}, "700 800", "500 600"},
                {"sideways C56", PrintFekvoBoritek, EnvelopeType::C56, {1, 9, {}}, "1100 1200", "900 1000"}};
    for (const auto& run : runs) {
        SCOPED_TRACE(run.name);
        tab.type = run.type;
        print(run.routine);
        EXPECT_EQ(lastSetup(), run.setup);
        EXPECT_EQ(shown().rfind(run.addressee + " 20|Cél Zrt.;", 0), 0U) << shown();
        EXPECT_NE(shown().find(run.sender + " 10|Küldő;"), std::string::npos) << shown();
    }
}

TEST_F(EnvelopeTest, TheTabPrintsAddresseePictureAndSenderInThatOrder) {
    choosePicture();
    tab.chkFKCNev2 = tab.chkFKCIrsz = tab.chkFKFCim1 = tab.chkFKFIrsz = true;
    print(PrintFekvoBoritek);
    EXPECT_EQ(shown(), "300 400 20|Cél Zrt.; 300 408 20b|Pf. 5.; 0 416 20b| ; 300 424 20|Győr; 300 432 20|Duna út 9.; "
                       "0 440 20| ; 300 448 14b|9021; kép 30 0 34.99 17.495; 100 200 10|Küldő; 100 204 10b|Pécs; "
                       "100 208 10|Tér 3.; 100 212 10b|7621; 100 216 10b|Ajánlott!");
    tab.txtBoritekCimzettNev2 = u"  "_s;
    tab.chkFelado = false;
    tab.chkFKCIrsz = false;
    print(PrintAlloBoritek);
    EXPECT_EQ(shown(), "366 420 20|Cél Zrt.; 366 436 20|Győr; 366 444 20|Duna út 9.; 0 452 20| ; 366 460 14|9021; "
                       "kép 96 20 34.99 17.495");
    tab.chkCimzett = false;
    tab.txtBoritekCimzettNev.clear(); // not asked for
    print(PrintAlloBoritek);
    EXPECT_EQ(shown(), "kép 96 20 34.99 17.495");
    tab.chkKepPrint = false;
    EXPECT_EQ(print(PrintAlloBoritek).trouble, u"A nyomtatandó adatok mind üresek."_s);
    EXPECT_EQ(service.delivered.size(), 3U);
    EXPECT_TRUE(prompts.told.empty());
}

TEST_F(EnvelopeTest, EachBoxMakesItsLineBold) {
    const std::pair<bool EnvelopeTab::*, const char*> boxes[] = {
        {&EnvelopeTab::chkFKCNev, "Cél Zrt."}, {&EnvelopeTab::chkFKCNev2, "Pf. 5."},
        {&EnvelopeTab::chkFKCCim1, "Győr"},    {&EnvelopeTab::chkFKCCim2, "Duna út 9."},
        {&EnvelopeTab::chkFKCIrsz, "9021"},    {&EnvelopeTab::chkFKFNev, "Küldő"},
        {&EnvelopeTab::chkFKFCim1, "Pécs"},    {&EnvelopeTab::chkFKFCim2, "Tér 3."},
        {&EnvelopeTab::chkFKFIrsz, "7621"}};
    for (const auto& [box, line] : boxes) {
        tab = filledTab();
        tab.*box = true;
        print(PrintAlloBoritek);
        QStringList bold;
        for (const PlacedItem& item : lastJob().job.pages.at(0).items)
            if (const auto& text = std::get<PlacedText>(item); text.font.bold) bold << text.text;
        bold.removeAll(u" "_s);         // the empty line keeps the weight of the line above
        bold.removeAll(u"Ajánlott!"_s); // as the free line does
        EXPECT_EQ(joined(bold), line);
    }
}

TEST_F(EnvelopeTest, ABatchTakesItsClientsAndTheStoredSender) {
    choosePicture();
    print(PrintCsFekvoBoritek);
    EXPECT_EQ(shown(0), "300 400 20|Nagy Áron; 300 416 20|Budapest; 300 424 20|Fő utca 1.; 0 432 20| ; "
                        "300 440 14|1024; kép 30 0 34.99 17.495; 100 200 10|Tárolt Kft.; 100 204 10|Eger; "
                        "100 212 10|3300; 100 216 10|Ajánlott!");
    EXPECT_EQ(shown(1).substr(0, 81),
              "300 400 20|Nagy Áron; 300 408 20|Fleet Street 1; 0 416 20| ; 300 424 20|Budapest");
    const auto& pages = lastJob().job.pages;
    const auto keyOf = [](const PrintedPage& page) {
        return std::get<PlacedPicture>(page.items[5]).picture.cacheKey();
    };
    EXPECT_EQ(keyOf(pages[0]), tab.picture.cacheKey()); // one picture for all pages
}

TEST_F(EnvelopeTest, NothingIsPaintedWithoutALoadedPicture) {
    choosePicture();
    tab.picture = {};
    tab.kepSzeles = Cur(1905); // twips of a picture that was never sized
    for (const auto& [path, trouble] : {std::pair{u"", u"Nincs kép kiválasztva."},
                                        {u"/m/logo.jpg", u"A kép nem olvasható, nélküle készült: /m/logo.jpg"}}) {
        tab.kepFajl = QString::fromUtf16(path);
        const PrintOutcome outcome = print(PrintCsAlloBoritek);
        EXPECT_EQ(outcome.pages, 2);
        EXPECT_EQ(outcome.trouble, QString::fromUtf16(trouble));
        EXPECT_EQ(shown().find("kép"), std::string::npos);
    }
}

} // namespace
