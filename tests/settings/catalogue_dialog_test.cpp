#include "settings/setup/catalogue_dialog.h"
#include "setup_fixture.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray entry(const char* text) { return QByteArray(text).leftJustified(25, ' '); }

struct OpenedCatalogue {
    explicit OpenedCatalogue(const TestFolder& folder, const CatalogueLook& look = frmJogcimek)
        : dialog(look, folder, prompts) {
        dialog.show();
    }
    template<class Widget>
    Widget& widget(const char* name) {
        return *dialog.findChild<Widget*>(QString::fromLatin1(name));
    }
    QString rows(const char* list) {
        QStringList rows;
        for (int i = 0; i < widget<QTreeWidget>(list).topLevelItemCount(); ++i) {
            const QTreeWidgetItem* row = widget<QTreeWidget>(list).topLevelItem(i);
            rows << row->text(1) + row->text(0);
        }
        return rows.join(u'|');
    }
    void pick(const char* list, int row) {
        auto& tree = widget<QTreeWidget>(list);
        tree.setCurrentItem(tree.topLevelItem(row));
    }

    ScriptedPrompts prompts;
    CatalogueDialog dialog;
};

} // namespace

TEST(CatalogueDialog, EachHalfAddsToItsOwnFileAndDeletesFromIt) {
    const struct {
        const CatalogueLook& look;
        const char *file, *box, *add, *remove, *list;
    } rows[] = {
        {frmJogcimek, "Jogcimek.dat", "txtJogcim1", "cmdFelvesz", "cmdDel", "ListView1"},
        {frmJogcimek, "Jogcimek2.dat", "txtJogcim2", "cmdFelvesz2", "cmdDel2", "ListView2"},
        {frmKozlemeny, "Kozlem.dat", "txtKozlemeny", "cmdFelvesz", "cmdDel", "ListView1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file);
        const TestFolder folder;
        const QString file = QString::fromLatin1(row.file);
        OpenedCatalogue opened(folder, row.look);
        auto& box = opened.widget<QLineEdit>(row.box);
        auto& add = opened.widget<QPushButton>(row.add);
        auto& remove = opened.widget<QPushButton>(row.remove);
        EXPECT_FALSE(add.isEnabled() || remove.isEnabled());
        box.setText(u"   "_s);
        EXPECT_FALSE(add.isEnabled());
        for (const char16_t* text : {u" egy", u"kettő", u"egy", u"huszonöt betűnél hosszabb szöveg"}) {
            box.setText(QString::fromUtf16(text));
            EXPECT_TRUE(add.isEnabled());
            add.click();
            EXPECT_TRUE(box.text().isEmpty() && !add.isEnabled());
            EXPECT_EQ(opened.dialog.focusWidget(), &box);
        }
        EXPECT_EQ(opened.rows(row.list), u"1egy|2kettő|3egy|4huszonöt betűnél hosszabb"_s);
        EXPECT_EQ(folder.bytes(file),
                  entry(" egy") + entry("kett\xF5") + entry("egy") + entry("huszon\xF6t bet\xFBn\xE9l hosszabb"));
        for (const int gone : {1, 2, 0, 0}) {
            opened.pick(row.list, gone);
            EXPECT_TRUE(remove.isEnabled());
            remove.click();
            EXPECT_FALSE(remove.isEnabled()) << "a new click is needed";
        }
        EXPECT_EQ(opened.rows(row.list), QString());
        EXPECT_TRUE(folder.has(file) && folder.bytes(file).isEmpty());
        EXPECT_TRUE(opened.prompts.told.empty());
    }
}

TEST(CatalogueDialog, EnterAddsAndNothingElseIsPressed) {
    const TestFolder folder;
    OpenedCatalogue opened(folder);
    auto& box = opened.widget<QLineEdit>("txtJogcim1");
    for (const char16_t* text : {u"  ", u"egy"}) {
        box.setText(QString::fromUtf16(text));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &enter);
        EXPECT_TRUE(opened.dialog.isVisible());
    }
    EXPECT_EQ(folder.bytes(u"Jogcimek.dat"_s), entry("egy"));
    EXPECT_EQ(folder.bytes(u"Jogcimek2.dat"_s), QByteArray());
}

TEST(CatalogueDialog, WhatCannotBeWrittenIsToldAndStays) {
    const TestFolder folder;
    folder.setBytes(u"Jogcimek.dat"_s, entry("egy"));
    OpenedCatalogue opened(folder);
    opened.pick("ListView1", 0);
    folder.block(u"Jogcimek.dat"_s);
    opened.widget<QPushButton>("cmdDel").click();
    opened.widget<QLineEdit>("txtJogcim1").setText(u"kettő"_s);
    opened.widget<QPushButton>("cmdFelvesz").click();
    EXPECT_EQ(opened.prompts.told.size(), 2U);
    EXPECT_EQ(opened.rows("ListView1"), u"1egy"_s);
    EXPECT_EQ(opened.widget<QLineEdit>("txtJogcim1").text(), u"kettő"_s);
}

TEST(CatalogueDialog, OpensFromTheFirstSetupPage) {
    const TestFolder folder;
    OpenedSetup setup(folder);
    for (const char* button : {"cmdJogcim", "cmdKozlemeny"}) {
        QString opened;
        QTimer::singleShot(0, [&] {
            opened = QApplication::activeModalWidget()->objectName();
            QApplication::activeModalWidget()->close();
        });
        setup.widget<QPushButton>(button).click();
        EXPECT_EQ(opened, button == std::string("cmdJogcim") ? u"frmJogcimek"_s : u"frmKozlemeny"_s);
    }
}
