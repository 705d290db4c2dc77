#include "settings/envelope_label_settings.h"
#include "setup_fixture.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int page = 3;

// The twelve positions of the three types: 1 to 12.
TestFolder numberedPositions() {
    TestFolder folder;
    auto set = zeroRecord<boritek>();
    auto* position = &set.boritekC6Felado_x;
    for (std::int16_t i = 0; i < 12; ++i)
        position[i] = static_cast<std::int16_t>(i + 1);
    folder.store(set);
    return folder;
}

QString positions(OpenedSetup& setup) {
    return (QStringList() << setup.text("Text1_0") << setup.text("Text1_1") << setup.text("Text1_2")
                          << setup.text("Text1_3"))
        .join(u' ');
}

} // namespace

TEST(EnvelopePage, TheFourBoxesServeTheChosenTypeOnly) {
    struct Row {
        const char *option, *save;
        const char16_t *positions, *name, *width, *height;
    };
    const Row rows[] = {
        {"OpB1", "cmdBoritekMeretSave_0", u"1 2 3 4", u"C6 Normál boríték", u"162 mm", u"114 mm"},
        {"OpB2", "cmdBoritekMeretSave_1", u"5 6 7 8", u"C5 boríték", u"229 mm", u"162 mm"},
        {"OpB3", "cmdBoritekMeretSave_2", u"9 10 11 12", u"C5/6 csekk boríték", u"229 mm", u"114 mm"},
    };
    const TestFolder folder = numberedPositions();
    OpenedSetup setup(folder, page);
    EXPECT_EQ(setup.text("OpB1"), u"1"_s) << "whatever type the window uses";
    QByteArray expected = folder.bytes(u"boritek.dat"_s);
    for (std::size_t i = 0; i < 3; ++i) {
        const Row& row = rows[i];
        setup.type(row.option, u"1"_s);
        EXPECT_EQ(positions(setup), QString::fromUtf16(row.positions));
        EXPECT_EQ(setup.widget<QLabel>("lbBoritekSzeles").text(), QString::fromUtf16(row.width));
        EXPECT_EQ(setup.widget<QLabel>("lbBoritekMagas").text(), QString::fromUtf16(row.height));
        const QSize sample = setup.widget<QFrame>("BoritekMinta").minimumSize();
        EXPECT_EQ(sample, QSize(2 * setup.widget<QLabel>("lbBoritekSzeles").text().section(u' ', 0, 0).toInt(),
                                2 * setup.widget<QLabel>("lbBoritekMagas").text().section(u' ', 0, 0).toInt()));
        int named = 0;
        for (const QLabel* label : setup.dialog.findChildren<QLabel*>())
            named += label->text() == QString::fromUtf16(row.name) ? 1 : 0;
        EXPECT_EQ(named, 2) << "on the sample and below it";
        for (const Row& other : rows)
            EXPECT_EQ(setup.widget<QPushButton>(other.save).isEnabled(), other.save == row.save);
        setup.type("Text1_3", u"77"_s);
        setup.widget<QPushButton>(row.save).click();
        expected[static_cast<qsizetype>(8 * i + 6)] = 77;
        EXPECT_EQ(folder.bytes(u"boritek.dat"_s), expected);
    }
}

TEST(EnvelopePage, AnotherTypeTakesUnsavedPositionsAwayButTellsSo) {
    const TestFolder folder = numberedPositions();
    OpenedSetup setup(folder, page);
    setup.type("Text1_0", u"99"_s);
    setup.type("OpB2", u"1"_s);
    EXPECT_EQ(positions(setup), u"5 6 7 8"_s);
    auto* note = setup.widget("Frame4").findChild<QLabel*>(u"lbElmentve"_s);
    EXPECT_EQ(note->text(), u"Nem lett rögzítve: C6 Normál boríték"_s);
    setup.type("OpB1", u"1"_s);
    EXPECT_EQ(positions(setup), u"1 2 3 4"_s);
    EXPECT_EQ(note->text(), QString());
}

TEST(EnvelopePage, OnlyWholeNumbersOfTheFieldAreStored) {
    const TestFolder folder = numberedPositions();
    OpenedSetup setup(folder, page);
    setup.dialog.show();
    const auto save = [&](const char16_t* typed) {
        setup.type("Text1_2", QString::fromUtf16(typed));
        setup.widget<QPushButton>("cmdBoritekMeretSave_0").click();
    };
    for (const char16_t* good : {u"12", u" 12 ", u"-3", u"32767"}) {
        save(good);
        EXPECT_EQ(readRecord<boritek>(folder).boritekC6Cimzett_y, QString::fromUtf16(good).toInt());
    }
    EXPECT_TRUE(setup.prompts.told.empty());
    const QByteArray before = folder.bytes(u"boritek.dat"_s);
    const auto& box = setup.widget<QLineEdit>("Text1_2");
    for (const char16_t* bad : {u"", u" ", u"abc", u"12,5", u"12.5", u"1e9", u"5 mm", u"32768", u"%1"}) {
        setup.type("Text1_0", u"50"_s);
        save(bad);
        EXPECT_EQ(setup.prompts.told.back().icon, Icon::critical);
        EXPECT_EQ(setup.prompts.told.back().title + u'|' + setup.prompts.told.back().text,
                  u"Hiba|Hibás szám: ''"_s + QString::fromUtf16(bad) + u"''\nIde csak szám írható!"_s);
        EXPECT_EQ(setup.dialog.focusWidget(), &box);
        EXPECT_EQ(box.selectedText(), box.text());
        EXPECT_EQ(folder.bytes(u"boritek.dat"_s), before);
    }
    EXPECT_EQ(setup.prompts.told.size(), 9U);
}

TEST(EnvelopePage, ASizeBelowOneBecomesTenButNotWhileItIsTyped) {
    const TestFolder folder;
    OpenedSetup setup(folder, page);
    auto& size = setup.widget<QLineEdit>("txtBoritekNevBetumeret");
    const auto& sample = setup.widget<QLabel>("lbMinta");
    EXPECT_EQ(size.text(), u"10"_s);
    for (const char16_t* typed : {u"", u"0", u"-5", u"abc"}) {
        for (const bool byFont : {true, false}) {
            setup.type("txtBoritekNevBetumeret", QString::fromUtf16(typed));
            EXPECT_EQ(size.text(), QString::fromUtf16(typed));
            if (byFont)
                setup.type("cmbBoritekNevBetutipus", setup.text("cmbBoritekNevBetutipus") + u'x');
            else
                Q_EMIT size.editingFinished();
            EXPECT_EQ(size.text(), u"10"_s);
        }
    }
    setup.type("txtBoritekFeladoNev", u"Őri Kft."_s);
    setup.type("cmbBoritekNevBetutipus", u"Arial CE"_s);
    setup.type("txtBoritekNevBetumeret", u"14"_s);
    EXPECT_EQ(sample.text(), u"Őri Kft."_s);
    EXPECT_EQ(sample.font(), QFont(u"Arial CE"_s, 14));
    setup.type("txtBoritekNevBetumeret", u"0"_s);
    setup.widget<QPushButton>("cmdBoritekFeladoSave").click();
    EXPECT_EQ(readRecord<boritek>(folder).txtBoritekNevBetumeret, 10);
    EXPECT_EQ(OpenedSetup(folder, page).widget<QLabel>("lbMinta").text(), u"Őri Kft."_s);
}
