#include "picture/dialogs/picture_browser.h"

#include "controls/folder_chooser.h"
#include "picture/dialogs/folder_error.h"
#include "records/record_file.h"
#include "settings/other_settings.h"
#include "support/scripted_prompts.h"
#include "support/test_folder.h"

#include <QCheckBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class PictureBrowser : public testing::Test {
protected:
    TestFolder files; // the program folder; pictures lie in "képek"
    ScriptedPrompts prompts;
    std::unique_ptr<kep_browse> dialog;

    PictureBrowser() {
        QDir(files.folder().path()).mkdir(u"képek"_s);
        save(u"a nagy.jpg"_s, 400, 200);
        save(u"b [kis].JPG"_s, 96, 48);
        save(u"c.bmp"_s, 160, 160);
        files.setBytes(u"képek/d.txt"_s, "szöveg");
        files.setBytes(u"képek/e.jpg"_s, "nem kép");
        open(u"képek"_s);
    }
    void save(const QString& name, int width, int height) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(path(name)));
    }
    QString path(const QString& name) const { return files.folder().file(u"képek/"_s + name); }
    // Opens on a folder that the last run left.
    void open(const QString& folder) {
        auto last = readRecord<BrowsePat>(files);
        last.BrowseUtvonal.set(files.folder().file(folder));
        files.store(last);
        dialog = std::make_unique<kep_browse>(files, prompts);
        dialog->show();
        QTest::qWait(0);
    }
    template<class Widget>
    Widget& find(const char* name) const {
        return *dialog->findChild<Widget*>(QLatin1String(name));
    }
    std::string listed() const {
        QStringList names;
        const auto& list = find<QListView>("File1");
        for (int row = 0; row < list.model()->rowCount(); ++row)
            names << list.model()->index(row, 0).data().toString();
        return names.join(u'|').toStdString();
    }
    void click(int row) const {
        auto& list = find<QListView>("File1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
        QTest::qWait(0);
    }
    void type(const QString& text) const {
        find<QLineEdit>("Text1").setText(text);
        QTest::qWait(0);
    }
    // Caption of Command2, in brackets while it is disabled.
    std::string answer() const {
        const auto& button = find<QPushButton>("Command2");
        return (button.isEnabled() ? button.text() : u'[' + button.text() + u']').toStdString();
    }
    QSize preview() const {
        const QPixmap pixmap = find<QLabel>("Image1").pixmap(Qt::ReturnByValue);
        return pixmap.isNull() ? QSize() : pixmap.deviceIndependentSize().toSize();
    }
    const char* focus() const { return dialog->focusWidget()->metaObject()->className(); }
};

TEST_F(PictureBrowser, OpensOnThePicturesOfTheLastFolder) {
    EXPECT_EQ(listed(), "a nagy.jpg|b [kis].JPG|c.bmp|e.jpg");
    EXPECT_EQ(answer(), "[&Rendben]");
    EXPECT_EQ(dialog->kepFajl(), QString());
    EXPECT_EQ(find<QLineEdit>("Label1").text(), QDir::toNativeSeparators(files.folder().file(u"képek"_s)));
    EXPECT_TRUE(find<QLineEdit>("Text1").hasFocus());
    find<QRadioButton>("Option1_0").click();
    EXPECT_EQ(listed(), "a nagy.jpg|b [kis].JPG|c.bmp|d.txt|e.jpg");
}

TEST_F(PictureBrowser, AClickShowsTheFileAndSaysWhetherItIsAPicture) {
    find<QRadioButton>("Option1_0").click();
    const struct {
        int row;
        const char* name;
        bool preview;
        const char* answer;
        QSize shown; // device-independent pixels
    } clicks[] = {
        {0, "a nagy.jpg", true, "&Rendben", {281, 140}},    {3, "d.txt", true, "[Nem kép fájl...]", {}},
        {1, "b [kis].JPG", true, "&Rendben", {96, 48}},     {4, "e.jpg", false, "&Rendben", {96, 48}},
        {3, "d.txt", false, "[Nem kép fájl...]", {96, 48}}, {1, "b [kis].JPG", false, "&Rendben", {96, 48}},
        {2, "c.bmp", true, "&Rendben", {281, 281}},
    };
    for (const auto& row : clicks) {
        find<QCheckBox>("Check1").setChecked(row.preview);
        click(row.row);
        EXPECT_EQ(dialog->kepFajl(), QDir::toNativeSeparators(path(QString::fromUtf8(row.name))));
        EXPECT_EQ(answer(), row.answer) << row.name;
        EXPECT_EQ(preview(), row.shown) << row.name;
    }
}

TEST_F(PictureBrowser, OfKeysThatWaitOnlyTheLastFileIsShown) {
    click(0);
    auto& list = find<QListView>("File1");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(answer(), "[Kis Türelem...]");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(dialog->kepFajl(), QDir::toNativeSeparators(path(u"c.bmp"_s)));
    QTest::qWait(0);
    EXPECT_EQ(answer(), "&Rendben");
    EXPECT_EQ(preview(), QSize(281, 281));
}

TEST_F(PictureBrowser, TypingNarrowsTheListToPicturesOfOneKind) {
    const std::pair<const char16_t*, const char*> texts[] = {{u"a", "a nagy.jpg"},
                                                             {u"A N", "a nagy.jpg"},
                                                             {u" ", "a nagy.jpg|b [kis].JPG"},
                                                             {u"[k", "b [kis].JPG"},
                                                             {u"k?s]", "b [kis].JPG"},
                                                             {u"[ab]", ""},
                                                             {u"c", ""},
                                                             {u"", "a nagy.jpg|b [kis].JPG|e.jpg"}};
    for (const auto& [text, names] : texts) {
        type(QString::fromUtf16(text));
        EXPECT_EQ(listed(), names);
        EXPECT_TRUE(find<QLineEdit>("Text1").hasFocus());
    }
    EXPECT_EQ(dialog->kepFajl(), QDir::toNativeSeparators(path(u"b [kis].JPG"_s))); // was the only one listed
    EXPECT_EQ(answer(), "&Rendben");
}

TEST_F(PictureBrowser, AFolderShowsItsFirstFile) {
    open({});
    auto& folders = *dialog->findChild<FolderChooser*>();
    Q_EMIT folders.pathChanged({}); // of an empty list nothing is clicked
    EXPECT_EQ(dialog->kepFajl(), QString());
    folders.setPath(files.folder().file(u"képek"_s));
    Q_EMIT folders.pathChanged({});
    QTest::qWait(0);
    EXPECT_EQ(dialog->kepFajl(), QDir::toNativeSeparators(path(u"a nagy.jpg"_s)));
    EXPECT_TRUE(find<QListView>("File1").hasFocus());
    auto& root = find<QPushButton>("Command1");
    EXPECT_EQ(root.text(), folders.drive());
    root.click();
    EXPECT_EQ(find<QLineEdit>("Label1").text(), folders.drive());
}

TEST_F(PictureBrowser, AnyEndKeepsTheFolderAndOnlyRendbenAccepts) {
    const struct {
        std::function<void()> end;
        bool accepted;
    } ends[] = {{[&] { find<QPushButton>("Command2").click(); }, true},
                {[&] { QTest::keyClick(&find<QListView>("File1"), Qt::Key_Return); }, true},
                {[&] { find<QPushButton>("Command3").click(); }, false},
                {[&] { QTest::keyClick(&find<QListView>("File1"), Qt::Key_Escape); }, false},
                {[&] { QTest::keyClick(&find<QLineEdit>("Text1"), Qt::Key_Escape); }, false},
                {[&] { dialog->close(); }, false}};
    for (int number = 0; const auto& row : ends) {
        SCOPED_TRACE(++number);
        open({});
        files.setBytes(u"browse.pat"_s, QByteArray(516, 'x')); // the other bytes are kept
        dialog->findChild<FolderChooser*>()->setPath(files.folder().file(u"képek"_s));
        find<QRadioButton>("Option1_1").click();
        click(0);
        row.end();
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(dialog->result() == QDialog::Accepted, row.accepted);
        const auto stored = readRecord<BrowsePat>(files);
        EXPECT_EQ(stored.BrowseUtvonal.trimmed(), QDir::toNativeSeparators(files.folder().file(u"képek"_s)));
        EXPECT_EQ(files.bytes(u"browse.pat"_s).right(16), QByteArray(16, 'x'));
    }
}

TEST_F(PictureBrowser, ADamagedRecordOpensTheProgramFolder) {
    for (const char byte : {'\xff', '\0', '9', '/'})
        for (const int length : {1, 515, 516, 2000}) {
            files.setBytes(u"browse.pat"_s, QByteArray(length, byte));
            const kep_browse damaged(files, prompts);
            const QString folder = damaged.findChild<QLineEdit*>(u"Label1"_s)->text();
            EXPECT_TRUE(QDir(folder).exists());
        }
}

TEST_F(PictureBrowser, ADriveThatCannotBeOpenedIsTold) {
    const QString missing = files.folder().file(u"nincs"_s);
    Q_EMIT dialog->findChild<FolderChooser*>()->driveFailed(missing);
    EXPECT_EQ(prompts.told.at(0).title, u"! H I B A ! "_s);
    EXPECT_TRUE(prompts.told[0].text.startsWith(
        u"A kijelölt elérési út nem található.\nRT. Hibakód :     76\nA hiba fajtálya:  "_s))
        << prompts.told[0].text.toStdString();
    Q_EMIT dialog->findChild<FolderChooser*>()->driveFailed(files.folder().path()); // it came back
    EXPECT_EQ(prompts.told.size(), 1U);
}

} // namespace
