#include "window_fixture.h"

#include "records/reference_records.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// The entry dialog beside the window, worked by its real widgets.
class EntryTest : public WindowTest {
protected:
    void openSome() {
        openNamed({u"Kiss Anna", u"Nagy Béla", u"Szabó Éva"});
        files.store(SettlementRec{QStringView(u"Abony"), {}, I16(2740)}, 1);
        for (const int k : {2, 3})
            files.store(SettlementRec{QStringView(u"Győr"), {}, I16(static_cast<std::int16_t>(9000 + k))}, k);
        files.store(BudapestRec{I16(1051), QStringView(u"Sas"), QStringView(u"utca"), {}, I16(0), I16(0), {}}, 1);
    }
    // The seven texts of client `number` and its foreign flag as they are stored.
    std::string stored(int number) const {
        const Client client = readClient(files, number).value_or(Client{});
        return joined({client.client.Nev.trimmed(), client.client.Nev2.trimmed(), client.client.Helyseg.trimmed(),
                       client.client.Irsz.trimmed(), client.client.Cim.trimmed(), client.client.Azonosito.trimmed(),
                       client.twin.Kozl3Sor.trimmed(), client.client.Kulfoldi ? u"K"_s : u""_s});
    }
    std::string boxes() const {
        QStringList texts;
        for (const char* name : {"txBefizetoNeve", "txEtkezo", "txBefizetoCim1", "txBefizetoIrsz", "txBefizetoCim2",
                                 "txBefizAnonosito", "txtKozlem3sor"})
            texts << QString::fromStdString(text(name));
        return texts.join(u'|').toStdString();
    }
    void typeClient(const QString& name, const QString& settlement, const QString& street) const {
        type("txBefizetoNeve", name);
        type("txBefizetoCim1", settlement);
        type("txBefizetoCim2", street);
    }
    void enter(const char* box) const { QTest::keyClick(&find(box), Qt::Key_Return); }
    void save(std::initializer_list<Answer> answers) {
        prompts.answers.insert(prompts.answers.end(), answers);
        press("cmdRogzites");
        EXPECT_TRUE(prompts.answers.empty());
    }
    std::string lastTold() const { return prompts.told.empty() ? "" : prompts.told.back().text.toStdString(); }
};

} // namespace

TEST_F(EntryTest, AddsAClientBehindTheOthers) {
    openSome();
    clickRow(0);
    clickRow(1, Qt::ControlModifier);
    press("cmdRogzit");
    EXPECT_EQ(boxes(), "||||||");
    EXPECT_EQ(text("cmdRogzites") + text("chkTobbFelvetel"), "&FelvételTöbb felvétel egymásután");
    const std::tuple<QString, QString, QString, const char*> lacking[] = {
        {u" "_s, u"A"_s, u"B"_s, "Nincs megadva a befizető neve"},
        {u"A"_s, u""_s, u"B"_s, "Nincs megadva helységnév"},
        {u"A"_s, u"B"_s, u""_s, "Nincs megadva a befizető címe"}};
    for (const auto& [name, settlement, street, refused] : lacking) {
        typeClient(name, settlement, street);
        save({});
        EXPECT_EQ(lastTold(), refused);
    }
    typeClient(u"őrsi ödön"_s, u"Abony"_s, u"Fő út 1"_s);
    save({Answer::no});
    EXPECT_TRUE(shown("cmdRogzites"));
    EXPECT_EQ(prompts.asked.back().text, u"Biztos mehet \nŐRSI ÖDÖN\n\nfelvétele?"_s);
    EXPECT_EQ(clientCount(files), 3);
    save({Answer::yes});
    EXPECT_FALSE(shown("cmdRogzites"));
    EXPECT_EQ(stored(4), "őrsi ödön||Abony||Fő út 1|||");
    EXPECT_EQ(status(), "Felvéve: 4. ügyfél, őrsi ödön.");
    EXPECT_EQ(rows(), "[Kiss Anna]|[Nagy Béla]|Szabó Éva|őrsi ödön"); // the batch stays picked
    EXPECT_EQ(window->rekordszam(), 2);
}

TEST_F(EntryTest, AddsOneAfterTheOther) {
    openSome();
    press("cmdRogzit");
    press("chkTobbFelvetel");
    for (const char16_t* name : {u"Első", u"Második"}) {
        type("txBefizetoNeve", QString::fromUtf16(name));
        if (clientCount(files) == 3) type("txBefizetoCim1", u"Abony"_s);
        type("txBefizetoCim2", u"Fő út 1"_s);
        type("txtKozlem3sor", u"jegyzet"_s);
        save({Answer::yes});
        EXPECT_EQ(boxes(), "||Abony||||");
    }
    EXPECT_EQ(stored(5), "Második||Abony||Fő út 1||jegyzet|");
}

TEST_F(EntryTest, StoresAForeignAddress) {
    openSome();
    press("cmdRogzit");
    press("chkKulfCim");
    EXPECT_EQ(text("txBefizetoIrsz"), " ");
    EXPECT_FALSE(enabled("txBefizetoIrsz"));
    typeClient(u"John Smith"_s, u"W1 London"_s, u"Anglia"_s);
    type("txEtkezo", u"1 High Street"_s);
    enter("txBefizetoCim2"); // "Budapest" must not come into it
    save({Answer::yes});
    EXPECT_EQ(stored(4), "John Smith|1 High Street|W1 London||Anglia|||K");
    press("cmdRogzit");
    EXPECT_FALSE(ticked("chkKulfCim"));
    EXPECT_TRUE(enabled("txBefizetoIrsz"));
}

TEST_F(EntryTest, ModifiesTheClientWhoseTextsItShows) {
    openSome();
    Client client{clientNamed(u"Nagy Béla"_s, 700), blankTwin()};
    client.client.FizHatIdo.set(u"2026.12.01"_s);
    client.twin.IratFajtaja.set(u"végzés"_s);
    client.twin.SajatJelzes.set(u"jelzés"_s);
    ASSERT_TRUE(modifyClient(files, 2, client));
    press("cmdBeolvas");
    clickRow(1);
    type("txNev", u"Nagy Béláné"_s);
    press("cmdModosit");
    EXPECT_EQ(text("txBefizetoNeve"), "Nagy Béláné"); // as corrected on the check
    clickRow(2);
    EXPECT_EQ(text("txBefizetoNeve"), "Szabó Éva"); // number and texts move together
    clickRow(1);
    type("txOsszeg", u"4321"_s);
    type("txBefizetoNeve", u"Nagy Béla ifj."_s);
    save({Answer::yes});
    const Client after = readClient(files, 2).value();
    EXPECT_EQ(after.client.Nev.trimmed(), u"Nagy Béla ifj."_s);
    EXPECT_EQ(after.client.Osszegek[0], 700);
    EXPECT_EQ(
        joined({after.client.FizHatIdo.trimmed(), after.twin.IratFajtaja.trimmed(), after.twin.SajatJelzes.trimmed()}),
        "||jelzés");
    EXPECT_EQ(rows(), "Kiss Anna|[Nagy Béla ifj.]|Szabó Éva");
    EXPECT_EQ(text("txNev") + text("txOsszeg"), "Nagy Béla ifj.4321"); // the typed amount waits for the print
    EXPECT_EQ(status(), "Módosítva: 2. ügyfél, Nagy Béla ifj..");
    press("cmdModosit");
    save({Answer::no});
    EXPECT_FALSE(shown("cmdRogzites"));
}

TEST_F(EntryTest, WritesToNobodyWhenTheNumbersHaveMoved) {
    openSome();
    for (const char* destroy : {"cmdDel", "mnuAdatbazisTorles"}) {
        clickRow(0);
        press("cmdModosit");
        type("txBefizetoNeve", u"Más"_s);
        prompts.answers.push_back(Answer::yes);
        destroy == std::string("cmdDel") ? press(destroy) : choose(destroy);
        const QByteArray before = files.bytes(u"nevek1.dat"_s);
        save({});
        EXPECT_EQ(lastTold(), " Nincs kijelölve ügyfél a listáról...");
        EXPECT_EQ(files.bytes(u"nevek1.dat"_s), before);
        EXPECT_EQ(text("txBefizetoNeve"), "Más");
    }
}

TEST_F(EntryTest, KeepsAHalfTypedClientThroughClicks) {
    openSome();
    press("cmdRogzit");
    clickRow(0);
    EXPECT_EQ(text("txBefizetoNeve"), "Kiss Anna"); // to start from
    type("txBefizetoNeve", u"Új Ügyfél"_s);
    clickRow(1);
    press("cmdRogzit");
    EXPECT_EQ(text("txBefizetoNeve"), "Új Ügyfél");
    prompts.answers = {Answer::no, Answer::yes};
    press("cmdModosit");
    EXPECT_EQ(text("txBefizetoNeve"), "Új Ügyfél");
    press("cmdModosit");
    EXPECT_EQ(text("txBefizetoNeve"), "Nagy Béla");
}

TEST_F(EntryTest, LooksAddressesUpByEnter) {
    openSome();
    press("cmdRogzit");
    enter("txBefizetoNeve");
    EXPECT_EQ(find("frmFelvet").focusWidget(), &find("txEtkezo"));
    type("txBefizetoCim1", u"abony"_s);
    enter("txBefizetoCim1");
    EXPECT_EQ(boxes(), "||Abony|2740|||");
    EXPECT_FALSE(shown("frameCimKeres"));
    type("txBefizetoCim1", u"Győr"_s);
    enter("txBefizetoCim1");
    enter("txBefizetoCim1"); // an ENTER too many
    EXPECT_TRUE(shown("frameCimKeres"));
    auto& hits = find<QTreeWidget>("ListView2");
    QTest::keyClick(&hits, Qt::Key_Return);
    EXPECT_EQ(boxes(), "||Győr|2740|||");
    QTest::keyClick(&hits, Qt::Key_Down);
    QTest::keyClick(&hits, Qt::Key_Down);
    EXPECT_EQ(boxes(), "||Győr|9003|||");
    QTest::keyClick(&hits, Qt::Key_Return);
    enter("txBefizetoCim1"); // as one too many reaches the dialog
    EXPECT_FALSE(shown("frameCimKeres"));
    QTest::qWait(QApplication::doubleClickInterval() + 10);
    enter("txBefizetoCim1");
    EXPECT_TRUE(shown("frameCimKeres"));
    press("cmdListaRejt");
    EXPECT_FALSE(shown("frameCimKeres"));
    type("txBefizetoCim2", u"Nincs ilyen 12"_s);
    enter("txBefizetoCim2");
    EXPECT_EQ(boxes(), "||Budapest||||");
    EXPECT_EQ(find<QLineEdit>("txBefizetoCim2").placeholderText(), u"nincs találat: Nincs ilyen 12"_s);
    type("txBefizetoCim2", u"sas"_s);
    for (int times = 0; times < 2; ++times) { // a found street isn't searched again, which would empty it
        enter("txBefizetoCim2");
        EXPECT_EQ(boxes(), "||Budapest|1051|Sas utca||");
    }
    EXPECT_TRUE(prompts.asked.empty()); // ENTER stored nothing
    QTest::keyClick(&find("frmFelvet"), Qt::Key_Escape);
    EXPECT_FALSE(shown("frmFelvet"));
}

TEST_F(EntryTest, ShowsWhatAFieldWillNotHold) {
    openSome();
    press("cmdRogzit");
    const QString limit(36, u'a');
    for (const auto& [typed, warning] : {std::pair{limit, u""_s},
                                         {limit + u"   "_s, u""_s},
                                         {limit + u'b', u"Így tárolódik: "_s + limit},
                                         {u"Łódź"_s, u""_s},
                                         {u"Москва"_s, u"Így tárolódik: ??????"_s}}) {
        type("txBefizetoNeve", typed);
        EXPECT_EQ(find("txBefizetoNeve").toolTip(), warning) << typed.toStdString();
    }
}

TEST_F(EntryTest, RefusesWhatCannotBeStored) {
    openSome();
    press("cmdRogzit");
    typeClient(u"A"_s, u"B"_s, u"C"_s);
    files.store(clientNamed(u"utolsó"_s), maxClientNumber);
    save({Answer::yes});
    EXPECT_EQ(lastTold(), "Az adatbázisban legfeljebb 32767 ügyfél kezelhető!");
    QFile::resize(files.folder().file(u"nevek1.dat"_s), 0);
    QFile::remove(files.folder().file(u"kozl3sor.dat"_s));
    QDir().mkdir(files.folder().file(u"kozl3sor.dat"_s));
    save({Answer::yes});
    EXPECT_EQ(lastTold(), "Az adatbázis nem írható, a korábbi állapot maradt meg.");
    EXPECT_EQ(boxes(), "A||B||C||");
}

TEST_F(EntryTest, StaysOnTopWhereItIs) {
    openSome();
    press("cmdRogzit");
    auto& dialog = find("frmFelvet");
    const QRect before = dialog.geometry();
    auto& topmost = *window->findChild<QCheckBox*>(u"Legfelül"_s);
    topmost.setFocus();
    for (const bool on : {true, false}) {
        topmost.click();
        EXPECT_EQ(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint), on);
        EXPECT_TRUE(dialog.isVisible() && dialog.focusWidget() == &topmost);
        EXPECT_EQ(dialog.geometry(), before);
    }
}

namespace {

class AmountsTest : public WindowTest {
protected:
    // The open dialog.
    struct Amounts {
        QLineEdit& box;
        QTreeWidget& list;
        QPushButton &add, &change, &remove;
        explicit Amounts(const QWidget& dialog)
            : box(*dialog.findChild<QLineEdit*>(u"Text1"_s))
            , list(*dialog.findChild<QTreeWidget*>(u"ListView1"_s))
            , add(*dialog.findChild<QPushButton*>(u"cmdRogzit"_s))
            , change(*dialog.findChild<QPushButton*>(u"cmdModosit"_s))
            , remove(*dialog.findChild<QPushButton*>(u"cmdTorol"_s)) {}
        void pick(int row) const { list.setCurrentItem(list.topLevelItem(row)); }
        std::string rows() const {
            QStringList rows;
            for (int row = 0; row < list.topLevelItemCount(); ++row)
                rows << list.topLevelItem(row)->text(0) + u'=' + list.topLevelItem(row)->text(1);
            return rows.join(u'|').toStdString();
        }
    };
    // Opens the dialog of a client and works with it.
    template<class Act>
    void inAmounts(Act act) {
        openNamed({u"Kiss Anna"});
        clickRow(0);
        type("txOsszeg", u"777"_s);
        inNextDialog([act](const QWidget& dialog) { act(Amounts(dialog)); });
        press("cmdOsszegek");
    }
    int slot(int number) const { return readClient(files, 1)->client.Osszegek[static_cast<std::size_t>(number) - 1]; }
};

} // namespace

TEST_F(AmountsTest, KeepsAmountsInTheirSlots) {
    inAmounts([&](const Amounts& dialog) {
        EXPECT_FALSE(dialog.add.isEnabled() || dialog.remove.isEnabled());
        for (const char16_t* amount : {u"1 234", u"12.5", u"9999998"}) {
            dialog.box.setText(QString::fromUtf16(amount));
            dialog.add.click();
        }
        EXPECT_EQ(dialog.rows(), " 1=100| 2=1234| 3=13| 4=9999998");
        dialog.box.setText(u"50"_s);
        QTest::keyClick(&dialog.box, Qt::Key_Return);
        QTest::keyClick(&dialog.box, Qt::Key_Return); // the same press
        dialog.pick(1);
        dialog.remove.click();
        EXPECT_FALSE(dialog.remove.isEnabled());
        dialog.add.click(); // the lowest gap
        EXPECT_EQ(dialog.rows(), " 1=100| 2=50| 3=13| 4=9999998| 5=50");
        dialog.pick(2);
        dialog.box.setText(u"26"_s);
        dialog.change.click();
        EXPECT_EQ(slot(3), 26);
        dialog.pick(2);
        dialog.box.clear();
        prompts.answers = {Answer::no, Answer::yes};
        dialog.change.click();
        EXPECT_EQ(slot(3), 26);
        dialog.change.click();
        EXPECT_EQ(slot(3), 0);
    });
    EXPECT_EQ(find<QComboBox>("txOsszeg").count(), 4);
    EXPECT_EQ(text("txOsszeg"), "777"); // only the list is another one
    EXPECT_EQ(find<QComboBox>("RtxOsszeg").count(), 1);
}

TEST_F(AmountsTest, RefusesAmountsThatWouldNeverShow) {
    inAmounts([&](const Amounts& dialog) {
        dialog.box.setText(u"5"_s); // enables the button, which what follows doesn't disable
        for (const char16_t* amount : {u"x", u"0", u"-5", u"9999999", u"99999999999999999999"}) {
            dialog.box.setText(QString::fromUtf16(amount));
            dialog.add.click();
            EXPECT_NE(told(), "");
            EXPECT_EQ(dialog.rows(), " 1=100");
        }
        dialog.box.clear();
        EXPECT_FALSE(dialog.add.isEnabled());
        dialog.box.setText(u"7"_s);
        for (int slot = 2; slot <= 13; ++slot)
            dialog.add.click();
        EXPECT_EQ(prompts.told.back().text,
                  u"Ehhez az ügyfélhez már 12 összeg van rögzítve!\nEgy-egy ügyfélhez 12 összeg rögzíthető!"_s);
        files.setBytes(u"nevek1.dat"_s, {}); // another program has emptied the database
        dialog.pick(0);
        dialog.remove.click();
        EXPECT_EQ(prompts.told.back().text, u" Nincs kijelölve ügyfél a listáról..."_s);
    });
    EXPECT_EQ(clientCount(files), 0);
}

// Another copy of the program on the same folder: the numbers of the list may name others now.
TEST_F(EntryTest, DoesNothingByTheNumbersOfAFileThatHasMoved) {
    openSome();
    for (const char* button : {"cmdDel", "cmdModosit", "cmdOsszegek", "cmdPrint", "ListView1", "cmdRogzites"}) {
        SCOPED_TRACE(button);
        clickRow(1);
        if (button == std::string("cmdRogzites")) press("cmdModosit");
        files.store(clientNamed(u"Másé"_s), clientCount(files) + 1);
        const QByteArray before = files.bytes(u"nevek1.dat"_s);
        if (button == std::string("cmdRogzites"))
            save({Answer::yes});
        else
            button == std::string("ListView1") ? clickRow(0) : press(button);
        EXPECT_EQ(status(),
                  "Az adatbázist közben egy másik program megváltoztatta, a lista frissült. Nem történt semmi.");
        EXPECT_EQ(files.bytes(u"nevek1.dat"_s), before);
        EXPECT_EQ(window->rekordszam(), 0);
        EXPECT_EQ(list().model()->rowCount(), clientCount(files));
    }
    EXPECT_TRUE(service.delivered.empty());
}
