#include "exchange/dialogs/posting_list_setup.h"

#include "settings/other_settings.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class PostingListSetup : public testing::Test {
protected:
    TestFolder files;
    ScriptedPrompts prompts;
    frmFjSetup dialog{files, prompts};

    QLineEdit& box(const char* name) const { return *dialog.findChild<QLineEdit*>(QLatin1String(name)); }
    void press(const char* name) const { dialog.findChild<QPushButton*>(QLatin1String(name))->click(); }
    FjSet stored() const { return readRecord<FjSet>(files); }
};

TEST_F(PostingListSetup, StoresThreeBoxesAfterTheQuestion) {
    EXPECT_EQ(box("txtBal").text() + box("txtFelso").text(), u"00"_s); // an empty record replaces the first values
    box("txtBal").setText(u" -12 "_s);
    box("txtFelso").setText(u"32767"_s);
    box("txtExcelUtvonal").setText(u" /opt/táblázat kezelő/calc "_s);
    prompts.answers = {Answer::no, Answer::yes};
    press("cmdMent");
    EXPECT_EQ(stored().txtFelso, 0);
    press("cmdMent");
    EXPECT_EQ(prompts.asked.back().title + prompts.asked.back().text,
              u" Módosítás Biztos módosítod a beállításokat?"_s);
    EXPECT_EQ(stored().txtBal, -12);
    EXPECT_EQ(stored().txtFelso, 32767);
    EXPECT_EQ(dialog.findChild<QLabel*>(u"lbElmentve"_s)->text(), u"Elmentve"_s);
    const frmFjSetup next(files, prompts);
    EXPECT_EQ(next.findChild<QLineEdit*>(u"txtExcelUtvonal"_s)->text(), u"/opt/táblázat kezelő/calc"_s);
}

TEST_F(PostingListSetup, ABadBoxStoresNothingAndIsGoneTo) {
    const QString path(101, u'x');
    const std::pair<const char*, QString> boxes[] = {{"txtBal", {}},
                                                     {"txtBal", u"12 mm"_s},
                                                     {"txtBal", u"1,5"_s},
                                                     {"txtBal", u"32768"_s},
                                                     {"txtFelso", u"hét"_s},
                                                     {"txtExcelUtvonal", path},
                                                     {"txtExcelUtvonal", u"/opt/Ж"_s}};
    for (const auto& [name, text] : boxes) {
        const QString before = box(name).text();
        box(name).setText(text);
        press("cmdMent");
        EXPECT_EQ(box(name).selectedText(), text);
        EXPECT_EQ(prompts.told.back().title, u"Hiba"_s);
        EXPECT_TRUE(prompts.told.back().text.contains(u"''"_s + text + u"''"_s)) << text.toStdString();
        box(name).setText(before);
    }
    EXPECT_EQ(prompts.told.at(0).text, u"Hibás szám: ''''\nIde csak szám írható!"_s);
    EXPECT_EQ(prompts.told.size(), std::size(boxes));
    EXPECT_TRUE(files.bytes(u"FjSet.dat"_s).isEmpty());
}

TEST_F(PostingListSetup, BrowsingTakesAPathOrLeavesTheOldOne) {
    prompts.files = {u"/usr/bin/calc"_s, {}};
    for (int times = 2; times > 0; --times)
        press("cmdTalloz");
    EXPECT_EQ(box("txtExcelUtvonal").text(), QDir::toNativeSeparators(u"/usr/bin/calc"_s));
}

} // namespace
