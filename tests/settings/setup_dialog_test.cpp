#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "setup_fixture.h"

#include <QDir>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>

#include <span>

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

} // namespace

TEST(SetupDialog, OpensOnThePageAskedForOrTheFirst) {
    const TestFolder folder;
    struct {
        int setupOldal;
        QString caption;
    } const rows[] = {{0, QStringLiteral("Csekk")},
                      {5, QStringLiteral("Rózsaszín csekk")},
                      {3, QStringLiteral("Csekk")},
                      {6, QStringLiteral("Csekk")},
                      {-1, QStringLiteral("Csekk")}};
    for (const auto& row : rows) {
        OpenedSetup setup(folder, row.setupOldal);
        auto& tabs = setup.widget<QTabWidget>("SSTab1");
        EXPECT_EQ(tabs.tabText(tabs.currentIndex()), row.caption) << row.setupOldal;
    }
}

TEST(SetupDialog, ShowsTheFieldThatBearsTheNameOfTheBox) {
    const TestFolder folder;
    folder.store(Set::factory());
    folder.store(SetRcsekk::factory());
    OpenedSetup setup(folder);
    struct {
        const char* box;
        QString shown;
    } const rows[] = {{"Textosszeg_x2", QStringLiteral("80")},
                      {"Textjogcim_y", QStringLiteral("33")},
                      {"Textjogcim_x", QStringLiteral("25")},
                      {"TextBefizAzon_y", QStringLiteral("40")},
                      {"ComboBetuTipus2", QStringLiteral("Times New Roman CE")},
                      {"TextBetuMeret1", QStringLiteral("12")},
                      {"txtFizHat", QStringLiteral("Fiz.Hat:")},
                      {"RcsekkTextFelado_y", QStringLiteral("12")},
                      {"RcsekkTextFelado_x", QStringLiteral("70")},
                      {"txRcsekkKozlemHatoldal_y", QStringLiteral("7")},
                      {"txRcsekkKozlemHatoldal_x", QStringLiteral("75")},
                      {"RcsekkTextirsz2_y", QStringLiteral("77")},
                      {"cmbRcsekkNumBetuTipus", QStringLiteral("Arial CE")}};
    for (const auto& row : rows)
        EXPECT_EQ(setup.text(row.box), row.shown) << row.box;
}

TEST(SetupDialog, SavingUntouchedBoxesKeepsEveryValueOfTheRecord) {
    const TestFolder folder;
    auto strange = strangeBytes<Set>();
    folder.setBytes(QStringLiteral("Set.dat"), strange);
    folder.setBytes(QStringLiteral("SetRcsekk.dat"), strangeBytes<SetRcsekk>());
    OpenedSetup setup(folder);
    setup.press("Command1", Answer::yes);
    setup.press("cmdRCsekkMentes", Answer::yes);

    const QByteArray tickedBytes(18, '\xff'); // what reads as true is written as -1
    strange.replace(180, 18, tickedBytes).replace(523, 2, tickedBytes.first(2));
    EXPECT_EQ(folder.bytes(QStringLiteral("Set.dat")), strange);
    EXPECT_EQ(folder.bytes(QStringLiteral("SetRcsekk.dat")), strangeBytes<SetRcsekk>());
}

TEST(SetupDialog, TypedTextsAreStoredByTheirLeadingNumber) {
    struct {
        const char* box;
        QString typed;
        QString shownAtNextOpening;
    } const rows[] = {
        {"Textosszeg_x1", QStringLiteral("12.3456 mm"), QStringLiteral("12.3456")},
        {"Textosszeg_x1", QStringLiteral("12,5"), QStringLiteral("12.5")},
        {"Textosszeg_x1", QStringLiteral("abc"), QStringLiteral("0")},
        {"Textosszeg_x1", QString(), QStringLiteral("0")},
        {"Textosszeg_x1", QStringLiteral("-4"), QStringLiteral("-4")},
        {"TextVkorrekcio", QStringLiteral("-3"), QStringLiteral("-3")},
        {"TextBetuMeret2", QStringLiteral("10,5"), QStringLiteral("11")},
        {"TextBetuMeret2", QStringLiteral("70000"), QStringLiteral("32767")},
        {"ComboBetuTipus1", QStringLiteral("Egyedi Betű"), QStringLiteral("Egyedi Betű")}, // not offered
        {"txtFizHat", QStringLiteral("Határidő: tizenöt felett"), QStringLiteral("Határidő: tizen")},
        {"chkFizHat", QStringLiteral("1"), QStringLiteral("1")},
    };
    for (const auto& row : rows) {
        const TestFolder folder;
        {
            OpenedSetup setup(folder);
            setup.type(row.box, row.typed);
            setup.press("Command1", Answer::yes);
        }
        EXPECT_EQ(OpenedSetup(folder).text(row.box), row.shownAtNextOpening) << row.typed.toStdString();
    }
}

TEST(SetupDialog, TheDefaultButtonsWriteTheirLayoutAndNothingElse) {
    const TestFolder folder;
    folder.setBytes(QStringLiteral("Set.dat"), strangeBytes<Set>());
    folder.setBytes(QStringLiteral("SetRcsekk.dat"), strangeBytes<SetRcsekk>());
    OpenedSetup setup(folder);
    setup.type("chkNyomtatando_2", QStringLiteral("0"));
    setup.type("txRcsekkNev", QStringLiteral("Új Név"));
    setup.press("Command2", Answer::yes);
    setup.press("cmdRCsekkAlapertelm", Answer::yes);

    const auto yellow = Set::factory();
    const auto pink = SetRcsekk::factory();
    EXPECT_EQ(folder.bytes(QStringLiteral("Set.dat")), patched(strangeBytes<Set>(), yellowLayout, &yellow));
    EXPECT_EQ(folder.bytes(QStringLiteral("SetRcsekk.dat")), patched(strangeBytes<SetRcsekk>(), pinkLayout, &pink));
    EXPECT_EQ(setup.text("Textosszeg_x1"), QStringLiteral("15"));
    EXPECT_EQ(setup.text("RcsekkTextcim2_y"), QStringLiteral("61"));
    EXPECT_EQ(setup.text("chkNyomtatando_2"), QStringLiteral("0"));
    EXPECT_EQ(setup.text("txRcsekkNev"), QStringLiteral("Új Név"));
}

TEST(SetupDialog, TheDefaultButtonFillsTheDeadlineTextOnlyWhereThereIsNone) {
    struct {
        QString stored, typed, shownAfter, storedAfter;
    } const rows[] = {
        {QString(), QString(), QStringLiteral("Fiz.Hat:"), QStringLiteral("Fiz.Hat:")},
        {QString(), QStringLiteral("Lejár:"), QStringLiteral("Lejár:"), QString()},
        {QStringLiteral("Lejár:"), QString(), QString(), QStringLiteral("Lejár:")},
    };
    for (const auto& row : rows) {
        const TestFolder folder;
        updateRecord<Set>(folder, [&](Set& set) { set.txtFizHat.set(row.stored); });
        OpenedSetup setup(folder);
        setup.type("txtFizHat", row.typed);
        setup.press("Command2", Answer::yes);
        EXPECT_EQ(setup.text("txtFizHat"), row.shownAfter);
        EXPECT_EQ(readRecord<Set>(folder).txtFizHat.trimmed(), row.storedAfter);
    }
}

TEST(SetupDialog, AfterNoRecordsAndBoxesAreAsTheyWere) {
    struct {
        const char* button;
        const char* box;
        Message question;
    } const rows[] = {
        {"Command1",
         "Textosszeg_x1",
         {Icon::question, QStringLiteral(" Módosítás "), QStringLiteral("Biztos módosítod a beállításokat?")}},
        {"Command2",
         "Textosszeg_x1",
         {Icon::question, QStringLiteral(" Módosítás "),
          QStringLiteral("Biztos módosítod a beállításokat\naz alapértelmezett értékekre?")}},
        {"cmdRCsekkMentes",
         "RcsekkTextosszeg_x1",
         {Icon::question, QStringLiteral(" Módosítás "), QStringLiteral("Biztos módosítod a beállításokat?")}},
        {"cmdRCsekkAlapertelm",
         "RcsekkTextosszeg_x1",
         {Icon::question, QStringLiteral(" Módosítás "),
          QStringLiteral("Biztos visszaállítod a beállításokat\naz alapértelmezett értékekre?")}},
        {"cmdRcsekkCimzettMent",
         "txRcsekkNev",
         {Icon::question, QStringLiteral(" Mentés "), QStringLiteral("Biztos menthető a címzett adatai?")}},
    };
    for (const auto& row : rows) {
        const TestFolder folder;
        folder.setBytes(QStringLiteral("Set.dat"), strangeBytes<Set>());
        folder.setBytes(QStringLiteral("SetRcsekk.dat"), strangeBytes<SetRcsekk>());
        OpenedSetup setup(folder);
        setup.type(row.box, QStringLiteral("99"));
        setup.press(row.button, Answer::no);
        ASSERT_EQ(setup.prompts.asked.size(), 1U) << row.button;
        EXPECT_EQ(setup.prompts.asked[0].icon, row.question.icon);
        EXPECT_EQ(setup.prompts.asked[0].title, row.question.title);
        EXPECT_EQ(setup.prompts.asked[0].text, row.question.text);
        EXPECT_EQ(setup.text(row.box), QStringLiteral("99")) << row.button;
        EXPECT_EQ(folder.bytes(QStringLiteral("Set.dat")), strangeBytes<Set>()) << row.button;
        EXPECT_EQ(folder.bytes(QStringLiteral("SetRcsekk.dat")), strangeBytes<SetRcsekk>()) << row.button;
    }
}

TEST(SetupDialog, TheFixedAddresseeIsStoredByItsOwnButtonOnly) {
    const TestFolder folder;
    OpenedSetup setup(folder, 5);
    setup.type("txRcsekkNev", QStringLiteral("Őri Kft."));
    setup.type("txRcsekkIrszam", QStringLiteral("1024"));
    setup.type("RcsekkTextosszeg_x1", QStringLiteral("7"));
    setup.press("cmdRCsekkMentes", Answer::yes);
    auto set = readRecord<SetRcsekk>(folder);
    EXPECT_EQ(set.RcsekkTextosszeg_x1, Cur(7));
    EXPECT_EQ(set.txRcsekkNev.trimmed(), QString());

    setup.type("RcsekkTextosszeg_x1", QStringLiteral("8"));
    setup.press("cmdRcsekkCimzettMent", Answer::yes);
    set = readRecord<SetRcsekk>(folder);
    EXPECT_EQ(set.RcsekkTextosszeg_x1, Cur(7));
    EXPECT_EQ(set.txRcsekkNev.trimmed(), QStringLiteral("Őri Kft."));
    EXPECT_EQ(set.txRcsekkIrszam.trimmed(), QStringLiteral("1024"));
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
        EXPECT_EQ(button.text(),
                  backShown ? QStringLiteral("Első oldal beállításai") : QStringLiteral("Hátoldal beállításai"));
        button.click();
    }
    button.click();
    setup.type("txRcsekkFeladoHatoldal_x", QStringLiteral("82"));
    setup.press("cmdRCsekkMentes", Answer::yes);
    EXPECT_EQ(readRecord<SetRcsekk>(folder).txRcsekkFeladoHatoldal_x, Cur(82));
}

TEST(SetupDialog, PrintBoxesShowTheStoredFlagsUnlessNobodyEverChose) {
    struct {
        bool gate;
        std::array<int, 8> stored, shown;
    } const rows[] = {
        {false, {0, 0, 0, 0, 0, 0, 0, 0}, {1, 1, 1, 1, 1, 1, 0, 1}}, // the state of a new record
        {false, {1, 0, 0, 0, 0, 0, 1, 0}, {1, 0, 0, 0, 0, 0, 0, 0}},
        {true, {0, 0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 0}},
        {true, {0, 1, 1, 0, 1, 0, 1, 1}, {0, 1, 1, 0, 1, 0, 1, 1}},
    };
    for (const auto& row : rows) {
        const TestFolder folder;
        updateRecord<Set>(folder, [&](Set& set) {
            set.chkNyomtatandoKilepes = row.gate;
            for (std::size_t i = 0; i < 8; ++i)
                set.chkNyomtatando[i] = row.stored[i] != 0;
        });
        OpenedSetup setup(folder);
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(setup.text(("chkNyomtatando_" + std::to_string(i)).c_str()), QString::number(row.shown[i])) << i;
    }
}

TEST(SetupDialog, TheBoxForKeepingAtExitDrivesTheGate) {
    const TestFolder folder;
    OpenedSetup setup(folder);
    for (const bool keep : {true, false}) {
        setup.type("chkNyomtatando_6", QString::number(keep ? 1 : 0));
        setup.press("Command1", Answer::yes);
        const auto set = readRecord<Set>(folder);
        EXPECT_EQ(bool{set.chkNyomtatandoKilepes}, keep);
        EXPECT_EQ(bool{set.chkNyomtatando[6]}, keep);
        EXPECT_TRUE(bool{set.chkNyomtatando[7]});
    }
}

TEST(SetupDialog, EnterPressesNothingAndClosingStoresNothing) {
    struct {
        const char* way;
        void (*close)(OpenedSetup&);
    } const rows[] = {
        {"Esc", [](OpenedSetup& setup) { sendKey(setup.widget("Textosszeg_x1"), Qt::Key_Escape); }},
        {"Command3", [](OpenedSetup& setup) { setup.widget<QPushButton>("Command3").click(); }},
    };
    for (const auto& row : rows) {
        const TestFolder folder;
        folder.setBytes(QStringLiteral("Set.dat"), strangeBytes<Set>());
        OpenedSetup setup(folder);
        setup.dialog.show();
        setup.type("Textosszeg_x1", QStringLiteral("1"));
        for (const char* box : {"Textosszeg_x1", "ComboBetuTipus1", "chkFizHat"})
            sendKey(setup.widget(box), Qt::Key_Return);
        EXPECT_TRUE(setup.prompts.asked.empty() && setup.dialog.isVisible()) << row.way;
        row.close(setup);
        EXPECT_FALSE(setup.dialog.isVisible()) << row.way;
        EXPECT_EQ(folder.bytes(QStringLiteral("Set.dat")), strangeBytes<Set>()) << row.way;
    }
}

TEST(SetupDialog, TellsWhenARecordCannotBeWritten) {
    for (const char* button : {"Command1", "Command2"}) {
        const TestFolder folder;
        QDir().mkdir(folder.folder().file(QStringLiteral("Set.dat")));
        OpenedSetup setup(folder);
        setup.type("Textosszeg_x1", QStringLiteral("99"));
        setup.press(button, Answer::yes);
        ASSERT_EQ(setup.prompts.told.size(), 1U) << button;
        EXPECT_EQ(setup.prompts.told[0].icon, Icon::critical);
        EXPECT_EQ(setup.prompts.told[0].title, QStringLiteral("Hiba"));
        EXPECT_EQ(setup.text("Textosszeg_x1"), QStringLiteral("99"));
    }
}
