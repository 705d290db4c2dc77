#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "settings/receipt_layouts.h"
#include "settings/setup/font_box.h"
#include "setup_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

TEST(SetupDialog, OpensOnThePageAskedForOrTheFirst) {
    const TestFolder folder;
    const QStringList captions =
        u"Csekk|Tértivevény|Feladóvevény|Boríték|Térti Irathoz|Rózsaszín csekk|Utánvételi lap"_s.split(u'|');
    for (const int setupOldal : {0, 1, 2, 3, 4, 5, 6, -1, 7}) {
        OpenedSetup setup(folder, setupOldal);
        auto& tabs = setup.widget<QTabWidget>("SSTab1");
        EXPECT_EQ(tabs.tabText(tabs.currentIndex()), captions.value(setupOldal, captions[0])) << setupOldal;
    }
}

TEST(SetupDialog, TypedTextsAreStoredByTheirLeadingNumber) {
    // The box, what is typed, and what it shows after the save and at the next opening.
    const QStringList yellow =
        u"Textosszeg_x1=12.3456 mm=12.3456;Textosszeg_x1=12,5=12.5;Textosszeg_x1=abc=0;Textosszeg_x1==0;"
        "Textosszeg_x1=-4=-4;Textosszeg_x1=1e9=1;Textosszeg_x1= 12 "
        "=12;TextVkorrekcio=-3=-3;TextBetuMeret2=10,5=11;TextBetuMeret2=70000=32767;"
        "ComboBetuTipus1=Egyedi Betű=Egyedi Betű;ComboBetuTipus2=Huszonöt betűnél hosszabb név=Huszonöt betűnél "
        "hosszabb;txtFizHat=Határidő: tizenöt felett=Határidő: tizen;"
        "chkFizHat=1=1"_s.split(u';');
    const QStringList receipt = u"txtTertiCimzett_x=-20,5=-20.5;KTertiKulVisszaSorem=8,75=8.75"_s.split(u';');
    for (const auto& [save, rows] : {std::pair("Command1", yellow), {"cmdTertiMentes", receipt}}) {
        for (const QString& row : rows) {
            const TestFolder folder;
            const QByteArray box = row.section(u'=', 0, 0).toLatin1();
            OpenedSetup setup(folder);
            setup.type(box, row.section(u'=', 1, 1));
            setup.press(save, Answer::yes);
            EXPECT_EQ(setup.text(box), row.section(u'=', 2)) << row.toStdString();
            EXPECT_EQ(OpenedSetup(folder).text(box), row.section(u'=', 2)) << row.toStdString();
        }
    }
}

TEST(SetupDialog, ABoxWithoutANumberIsMarkedWhileItIsTyped) {
    const TestFolder folder;
    OpenedSetup setup(folder);
    const auto& box = setup.widget("Textosszeg_x1");
    const QStringList rows = u"abc|1;|1;-|1;.|1;+ 5|1;mm 5|1;5|0; -.5 mm|0;5abc|0;0|0;,5|0;12.5.3|0"_s.split(u';');
    for (const QString& row : rows) {
        const bool marked = row.endsWith(u'1');
        setup.type("Textosszeg_x1", row.section(u'|', 0, 0));
        EXPECT_EQ(box.toolTip(), marked ? u"Nem szám: 0 lesz belőle"_s : QString()) << row.toStdString();
        for (const QColor& base : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
            QPalette palette;
            palette.setColor(QPalette::Base, base);
            palette.setColor(QPalette::Text, base == Qt::white ? Qt::black : Qt::white);
            setup.dialog.setPalette(palette);
            const QColor shown = box.palette().color(QPalette::Base);
            EXPECT_EQ(shown != base, marked) << row.toStdString();
            EXPECT_LT(std::abs(shown.lightness() - base.lightness()), 64) << "the letters must stand out";
        }
    }
}

TEST(SetupDialog, APageTellsWhatIsNotSavedAndWhenItWasSaved) {
    // The last is the frame that the button stands in, if it does.
    const std::tuple<int, const char*, const char*, const char*> rows[] = {
        {0, "Command1", "chkFizHat", ""},
        {0, "Command2", "ComboBetuTipus1", ""},
        {1, "cmdTertiMentes", "txtTertiVisszakuldNev", ""},
        {3, "cmdBoritekMeretSave_0", "Text1_0", "Frame4"},
        {3, "cmdBoritekFeladoSave", "txtBoritekFeladoNev", "Frame2_1"},
        {5, "cmdRCsekkMentes", "RcsekkTextosszeg_x1", ""},
        {5, "cmdRcsekkCimzettMent", "txRcsekkNev", "Frame1_1"},
        {6, "cmdULapMentes", "opULapCizett_0", ""},
    };
    for (const auto& [page, button, box, inFrame] : rows) {
        SCOPED_TRACE(button);
        const TestFolder folder;
        OpenedSetup setup(folder);
        const auto told = [&setup, tab = page] { // with a star for the mark on the tab
            QString texts = setup.widget<QTabWidget>("SSTab1").tabText(tab).endsWith(u" *") ? u"* "_s : u""_s;
            for (const QLabel* note : setup.dialog.findChildren<QLabel*>(u"lbElmentve"_s))
                if (!note->text().isEmpty()) texts += note->parentWidget()->objectName() + note->text();
            return texts;
        };
        const QString frame = QString::fromLatin1(inFrame);
        const QString unsaved = u"* "_s + frame + u"Nem mentett módosítások"_s;
        const QString stored = setup.text(box);
        EXPECT_EQ(told(), QString());
        setup.type(box, u"1"_s);
        EXPECT_EQ(told(), unsaved);
        if (page < 6) { // an option isn't taken back by itself
            setup.type(box, stored);
            EXPECT_EQ(told(), QString());
            setup.type(box, u"1"_s);
        }
        if (page != 3) {
            setup.press(button, Answer::no);
            EXPECT_EQ(told(), unsaved);
            setup.prompts.answers.push_back(Answer::yes);
        }
        setup.widget<QPushButton>(button).click();
        const QRegularExpression saved(u'^' + frame + u"Elmentve \\d\\d:\\d\\d:\\d\\d$"_s);
        EXPECT_TRUE(saved.match(told()).hasMatch()) << told().toStdString();
        setup.type(box, u"0"_s);
        setup.type("opULapCizett_1", u"1"_s);
        EXPECT_TRUE(told().startsWith(unsaved));
    }
}

TEST(SetupDialog, FontsThatTheDeviceDoesNotKnowAreMarkedAndStay) {
    const TestFolder folder;
    OpenedSetup setup(folder);
    auto& box = setup.widget<FontBox>("ComboBetuTipus1");
    for (const bool known : {true, false, true}) {
        const QString name = known ? u"Times New Roman CE"_s : u"Sosem Volt Betű"_s;
        setup.type("ComboBetuTipus1", name);
        EXPECT_EQ(box.lineEdit()->toolTip(), known ? QString() : u"A nyomtató nem ismeri ezt a betűtípust"_s);
        EXPECT_EQ(box.sample()->font().family(), name);
        setup.press("Command1", Answer::yes);
        OpenedSetup again(folder);
        EXPECT_EQ(again.text("ComboBetuTipus1"), name);
        EXPECT_EQ(again.widget<FontBox>("ComboBetuTipus1").sample()->font().family(), name);
    }
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

TEST(SetupDialog, ThePayeeIsGivenByOneOfTwoOptionsAndTheBankShowsWithItsOwn) {
    const TestFolder folder;
    for (const bool stored : {true, false}) {
        updateRecord<SetRcsekk>(folder, [=](SetRcsekk& set) { set.opULapCizett_0 = stored; });
        OpenedSetup setup(folder, 6);
        setup.dialog.show();
        const QWidget& bank = setup.widget("txtBankNeve");
        for (const bool byAddress : {stored, !stored, stored}) {
            setup.type(byAddress ? "opULapCizett_0" : "opULapCizett_1", u"1"_s);
            EXPECT_EQ(setup.text(byAddress ? "opULapCizett_1" : "opULapCizett_0"), u"0"_s);
            EXPECT_EQ(bank.isVisible(), !byAddress);
            for (const QLabel* label : setup.dialog.findChildren<QLabel*>())
                EXPECT_TRUE(label->buddy() != &bank || label->isVisible() == bank.isVisible());
            setup.press("cmdULapMentes", Answer::yes);
            EXPECT_EQ(bool{readRecord<SetRcsekk>(folder).opULapCizett_0}, byAddress);
        }
    }
}

TEST(SetupDialog, TextsThatHaveNoFactoryValueAreStoredWithTheDefaultsOrByTheirOwnButton) {
    const TestFolder folder;
    OpenedSetup setup(folder, 5);
    setup.type("txtTertiVisszakuldNev", u"Most írt név"_s);
    setup.press("cmdTertiAlapbeallitas", Answer::yes);
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiVisszakuldNev.trimmed(), u"Most írt név"_s);
    setup.type("txRcsekkNev", u"Őri Kft."_s);
    setup.type("txRcsekkIrszam", u"1024"_s);
    setup.press("cmdRCsekkMentes", Answer::yes);
    setup.press("cmdRCsekkAlapertelm", Answer::yes);
    EXPECT_EQ(setup.text("txRcsekkNev"), u"Őri Kft."_s);
    EXPECT_EQ(readRecord<SetRcsekk>(folder).txRcsekkNev.trimmed(), QString());
    setup.type("RcsekkTextosszeg_x1", u"8"_s);
    setup.press("cmdRcsekkCimzettMent", Answer::yes);
    const auto set = readRecord<SetRcsekk>(folder);
    EXPECT_EQ(set.RcsekkTextosszeg_x1, Cur(5)) << "the factory value";
    EXPECT_EQ(set.txRcsekkNev.trimmed(), u"Őri Kft."_s);
    EXPECT_EQ(set.txRcsekkIrszam.trimmed(), u"1024"_s);
}

TEST(SetupDialog, TheBackOfThePinkCheckLiesOverTheFront) {
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
}

TEST(SetupDialog, PrintBoxesShowTheStoredFlagsUnlessTheRecordIsNew) {
    const std::tuple<bool, bool, const char*, const char*> rows[] = {
        {true, false, "00000000", "11111101"},  {false, false, "00000000", "00000000"}, // all ticks taken out
        {false, false, "10000010", "10000000"}, {false, true, "00000000", "00000000"},
        {false, true, "01101011", "01101011"},
    };
    for (const auto& [isNew, gate, stored, expected] : rows) {
        const TestFolder folder;
        auto before = zeroRecord<Set>();
        if (!isNew) before.ComboBetuTipus1.set(u"");
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
