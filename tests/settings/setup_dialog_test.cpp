#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "setup_fixture.h"

#include <QDir>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>

#include <functional>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Range {
    int from, to; // bytes of a record
};

// `bytes` with the given ranges taken from another record.
QByteArray patched(QByteArray bytes, std::span<const Range> ranges, const void* from) {
    for (const Range& range : ranges)
        bytes.replace(range.from, range.to - range.from, static_cast<const char*>(from) + range.from,
                      range.to - range.from);
    return bytes;
}

void sendKey(QWidget& to, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &press);
}

constexpr Range yellowLayout[] = {{4, 178}, {198, 214}, {527, 529}};
constexpr Range pinkLayout[] = {{0, 198}, {378, 394}};

void storeStrange(const TestFolder& folder) {
    folder.setBytes(u"Set.dat"_s, strangeBytes<Set>());
    folder.setBytes(u"SetRcsekk.dat"_s, strangeBytes<SetRcsekk>());
}

void expectRecords(const TestFolder& folder, const QByteArray& set, const QByteArray& setRcsekk) {
    EXPECT_EQ(folder.bytes(u"Set.dat"_s), set);
    EXPECT_EQ(folder.bytes(u"SetRcsekk.dat"_s), setRcsekk);
}

} // namespace

TEST(SetupDialog, OpensOnThePageAskedForOrTheFirst) {
    const TestFolder folder;
    for (const int setupOldal : {0, 5, 3, 6, -1}) {
        OpenedSetup setup(folder, setupOldal);
        auto& tabs = setup.widget<QTabWidget>("SSTab1");
        EXPECT_EQ(tabs.tabText(tabs.currentIndex()), setupOldal == 5 ? u"Rózsaszín csekk"_s : u"Csekk"_s) << setupOldal;
    }
}

TEST(SetupDialog, ShowsTheFieldThatBearsTheNameOfTheBox) {
    const TestFolder folder;
    folder.store(Set::factory());
    folder.store(SetRcsekk::factory());
    OpenedSetup setup(folder);
    const QStringList rows =
        u"Textosszeg_x2=80;Textjogcim_y=33;Textjogcim_x=25;TextBefizAzon_y=40;ComboBetuTipus2=Times New Roman CE;"
        "TextBetuMeret1=12;txtFizHat=Fiz.Hat:;RcsekkTextFelado_y=12;RcsekkTextFelado_x=70;txRcsekkKozlemHatoldal_y=7;"
        "txRcsekkKozlemHatoldal_x=75;RcsekkTextirsz2_y=77;cmbRcsekkNumBetuTipus=Arial CE"_s.split(u';');
    for (const QString& row : rows)
        EXPECT_EQ(setup.text(row.section(u'=', 0, 0).toLatin1()), row.section(u'=', 1)) << row.toStdString();
}

TEST(SetupDialog, SavingUntouchedBoxesKeepsEveryValueOfTheRecord) {
    const TestFolder folder;
    storeStrange(folder);
    OpenedSetup setup(folder);
    setup.press("Command1", Answer::yes);
    setup.press("cmdRCsekkMentes", Answer::yes);

    const QByteArray tickedBytes(18, '\xff'); // what reads as true is written as -1
    expectRecords(folder, strangeBytes<Set>().replace(180, 18, tickedBytes).replace(523, 2, tickedBytes.first(2)),
                  strangeBytes<SetRcsekk>());
}

TEST(SetupDialog, TypedTextsAreStoredByTheirLeadingNumber) {
    // The box, what is typed, and what it shows at the next opening.
    const QStringList rows =
        u"Textosszeg_x1=12.3456 mm=12.3456;Textosszeg_x1=12,5=12.5;Textosszeg_x1=abc=0;Textosszeg_x1==0;"
        "Textosszeg_x1=-4=-4;TextVkorrekcio=-3=-3;TextBetuMeret2=10,5=11;TextBetuMeret2=70000=32767;"
        "ComboBetuTipus1=Egyedi Betű=Egyedi Betű;txtFizHat=Határidő: tizenöt felett=Határidő: tizen;"
        "chkFizHat=1=1"_s.split(u';');
    for (const QString& row : rows) {
        const TestFolder folder;
        const QByteArray box = row.section(u'=', 0, 0).toLatin1();
        OpenedSetup setup(folder);
        setup.type(box, row.section(u'=', 1, 1));
        setup.press("Command1", Answer::yes);
        EXPECT_EQ(OpenedSetup(folder).text(box), row.section(u'=', 2)) << row.toStdString();
    }
}

TEST(SetupDialog, TheDefaultButtonsWriteTheirLayoutAndNothingElse) {
    const TestFolder folder;
    storeStrange(folder);
    OpenedSetup setup(folder);
    setup.type("chkNyomtatando_2", u"0"_s);
    setup.type("txRcsekkNev", u"Új Név"_s);
    setup.press("Command2", Answer::yes);
    setup.press("cmdRCsekkAlapertelm", Answer::yes);

    const auto yellow = Set::factory();
    const auto pink = SetRcsekk::factory();
    expectRecords(folder, patched(strangeBytes<Set>(), yellowLayout, &yellow),
                  patched(strangeBytes<SetRcsekk>(), pinkLayout, &pink));
    EXPECT_EQ(setup.text("Textosszeg_x1"), u"15"_s);
    EXPECT_EQ(setup.text("RcsekkTextcim2_y"), u"61"_s);
    EXPECT_EQ(setup.text("chkNyomtatando_2"), u"0"_s);
    EXPECT_EQ(setup.text("txRcsekkNev"), u"Új Név"_s);
}

TEST(SetupDialog, TheDefaultButtonFillsTheDeadlineTextOnlyWhereThereIsNone) {
    // Stored and typed, then shown and stored after it.
    const std::array<QString, 4> rows[] = {
        {QString(), QString(), u"Fiz.Hat:"_s, u"Fiz.Hat:"_s},
        {QString(), u"Lejár:"_s, u"Lejár:"_s, QString()},
        {u"Lejár:"_s, QString(), QString(), u"Lejár:"_s},
    };
    for (const auto& [stored, typed, shownAfter, storedAfter] : rows) {
        const TestFolder folder;
        updateRecord<Set>(folder, [&text = stored](Set& set) { set.txtFizHat.set(text); });
        OpenedSetup setup(folder);
        setup.type("txtFizHat", typed);
        setup.press("Command2", Answer::yes);
        EXPECT_EQ(setup.text("txtFizHat"), shownAfter);
        EXPECT_EQ(readRecord<Set>(folder).txtFizHat.trimmed(), storedAfter);
    }
}

TEST(SetupDialog, AfterNoRecordsAndBoxesAreAsTheyWere) {
    const QString sure = u" Módosítás |Biztos módosítod a beállításokat?"_s;
    const std::tuple<const char*, const char*, QString> rows[] = {
        {"Command1", "Textosszeg_x1", sure},
        {"Command2", "Textosszeg_x1", u" Módosítás |Biztos módosítod a beállításokat\naz alapértelmezett értékekre?"_s},
        {"cmdRCsekkMentes", "RcsekkTextosszeg_x1", sure},
        {"cmdRCsekkAlapertelm", "RcsekkTextosszeg_x1",
         u" Módosítás |Biztos visszaállítod a beállításokat\naz alapértelmezett értékekre?"_s},
        {"cmdRcsekkCimzettMent", "txRcsekkNev", u" Mentés |Biztos menthető a címzett adatai?"_s},
    };
    for (const auto& [button, box, question] : rows) {
        SCOPED_TRACE(button);
        const TestFolder folder;
        storeStrange(folder);
        OpenedSetup setup(folder);
        setup.type(box, u"99"_s);
        setup.press(button, Answer::no);
        ASSERT_EQ(setup.prompts.asked.size(), 1U);
        const Message& asked = setup.prompts.asked[0];
        EXPECT_EQ(asked.icon, Icon::question);
        EXPECT_EQ((asked.title + u'|' + asked.text).toStdString(), question.toStdString());
        EXPECT_EQ(setup.text(box), u"99"_s);
        expectRecords(folder, strangeBytes<Set>(), strangeBytes<SetRcsekk>());
    }
}

TEST(SetupDialog, TheFixedAddresseeIsStoredByItsOwnButtonOnly) {
    const TestFolder folder;
    OpenedSetup setup(folder, 5);
    setup.type("txRcsekkNev", u"Őri Kft."_s);
    setup.type("txRcsekkIrszam", u"1024"_s);
    setup.type("RcsekkTextosszeg_x1", u"7"_s);
    setup.press("cmdRCsekkMentes", Answer::yes);
    EXPECT_EQ(readRecord<SetRcsekk>(folder).txRcsekkNev.trimmed(), QString());
    setup.type("RcsekkTextosszeg_x1", u"8"_s);
    setup.press("cmdRcsekkCimzettMent", Answer::yes);
    const auto set = readRecord<SetRcsekk>(folder);
    EXPECT_EQ(set.RcsekkTextosszeg_x1, Cur(7));
    EXPECT_EQ(set.txRcsekkNev.trimmed(), u"Őri Kft."_s);
    EXPECT_EQ(set.txRcsekkIrszam.trimmed(), u"1024"_s);
}

TEST(SetupDialog, TheBackOfThePinkCheckLiesOverTheFrontAndIsStoredInEitherState) {
    const TestFolder folder;
    OpenedSetup setup(folder, 5);
    auto& frame = setup.widget<QGroupBox>("Frame7");
    auto& front = setup.widget("RcsekkTextosszeg_x1");
    auto& button = setup.widget<QPushButton>("Command4");
    setup.dialog.show();
    for (const bool backShown : {false, true, false}) {
        EXPECT_EQ(frame.isVisible(), backShown);
        EXPECT_EQ(front.isVisible(), !backShown);
        EXPECT_EQ(button.text(), backShown ? u"Első oldal beállításai"_s : u"Hátoldal beállításai"_s);
        button.click();
    }
    button.click();
    setup.type("txRcsekkFeladoHatoldal_x", u"82"_s);
    setup.press("cmdRCsekkMentes", Answer::yes);
    EXPECT_EQ(readRecord<SetRcsekk>(folder).txRcsekkFeladoHatoldal_x, Cur(82));
}

TEST(SetupDialog, PrintBoxesShowTheStoredFlagsUnlessNobodyEverChose) {
    const std::tuple<bool, const char*, const char*> rows[] = {
        {false, "00000000", "11111101"}, // the state of a new record
        {false, "10000010", "10000000"},
        {true, "00000000", "00000000"},
        {true, "01101011", "01101011"},
    };
    for (const auto& [gate, stored, expected] : rows) {
        const TestFolder folder;
        auto before = zeroRecord<Set>();
        before.chkNyomtatandoKilepes = gate;
        for (std::size_t i = 0; i < 8; ++i)
            before.chkNyomtatando[i] = stored[i] == '1';
        folder.store(before);
        OpenedSetup setup(folder);
        QString shown;
        for (int i = 0; i < 8; ++i)
            shown += setup.text("chkNyomtatando_" + QByteArray::number(i));
        EXPECT_EQ(shown.toStdString(), expected);
        for (const bool keep : {true, false}) { // the box for keeping at exit drives the gate
            setup.type("chkNyomtatando_6", QString::number(keep ? 1 : 0));
            setup.press("Command1", Answer::yes);
            const auto set = readRecord<Set>(folder);
            EXPECT_EQ(bool{set.chkNyomtatandoKilepes}, keep);
            EXPECT_EQ(bool{set.chkNyomtatando[6]}, keep);
            EXPECT_EQ(bool{set.chkNyomtatando[7]}, expected[7] == '1');
        }
    }
}

TEST(SetupDialog, EnterPressesNothingAndClosingStoresNothing) {
    const std::function<void(OpenedSetup&)> ways[] = {
        [](OpenedSetup& setup) { sendKey(setup.widget("Textosszeg_x1"), Qt::Key_Escape); },
        [](OpenedSetup& setup) { setup.widget<QPushButton>("Command3").click(); },
    };
    for (const auto& close : ways) {
        const TestFolder folder;
        storeStrange(folder);
        OpenedSetup setup(folder);
        setup.dialog.show();
        setup.type("Textosszeg_x1", u"1"_s);
        for (const char* box : {"Textosszeg_x1", "ComboBetuTipus1", "chkFizHat"})
            sendKey(setup.widget(box), Qt::Key_Return);
        EXPECT_TRUE(setup.prompts.asked.empty() && setup.dialog.isVisible());
        close(setup);
        EXPECT_FALSE(setup.dialog.isVisible());
        expectRecords(folder, strangeBytes<Set>(), strangeBytes<SetRcsekk>());
    }
}

TEST(SetupDialog, TellsWhenARecordCannotBeWritten) {
    for (const char* button : {"Command1", "Command2"}) {
        const TestFolder folder;
        QDir().mkdir(folder.folder().file(u"Set.dat"_s));
        OpenedSetup setup(folder);
        setup.type("Textosszeg_x1", u"99"_s);
        setup.press(button, Answer::yes);
        ASSERT_EQ(setup.prompts.told.size(), 1U) << button;
        EXPECT_EQ(setup.prompts.told[0].icon, Icon::critical);
        EXPECT_EQ(setup.prompts.told[0].title, u"Hiba"_s);
        EXPECT_EQ(setup.text("Textosszeg_x1"), u"99"_s);
    }
}
