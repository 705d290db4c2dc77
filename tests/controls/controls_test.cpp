#include "controls/dialog.h"
#include "controls/entry_combo.h"
#include "controls/folder_chooser.h"
#include "controls/named.h"
#include "support/test_folder.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Named, ATooltipShowsItsTextAsItWasWritten) {
    for (const QString& text : {u"''Delete\" & ''Insert\""_s, u"5 < 6"_s, u"A<b>B\nC"_s, u"&lt;"_s}) {
        QLineEdit box;
        EXPECT_EQ(named(&box, "txNev", text)->objectName(), u"txNev"_s);
        const QString tip = box.toolTip();
        QTextDocument shown;
        shown.setHtml(tip);
        EXPECT_EQ(Qt::mightBeRichText(tip) ? shown.toPlainText() : tip, text) << text.toStdString();
    }
}

TEST(Dialog, EnterPressesOnlyADefaultButtonAndEscapeLeaves) {
    for (const bool hasDefault : {false, true}) {
        Dialog dialog("frmProba", u"Próba"_s, nullptr);
        auto* layout = new QVBoxLayout(&dialog);
        auto* box = new QLineEdit;
        auto* button = new QPushButton(u"Mentés"_s);
        int pressed = 0;
        QObject::connect(button, &QPushButton::clicked, [&pressed] { ++pressed; });
        button->setDefault(hasDefault);
        layout->addWidget(box);
        layout->addWidget(button);
        dialog.show();
        box->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(box, &press);
        }
        EXPECT_EQ(pressed, hasDefault ? 2 : 0);
        EXPECT_FALSE(dialog.isVisible());
    }
}

TEST(Dialog, OpensInTheMiddleOfTheScreenAndNeverLarger) {
    for (const int side : {200, 5000}) {
        Dialog dialog("frmProba", u"Próba"_s, nullptr);
        auto* content = new QScrollArea;
        content->setSizeAdjustPolicy(QScrollArea::AdjustToContents);
        (new QVBoxLayout(&dialog))->addWidget(content);
        auto* inner = new QWidget;
        inner->setMinimumSize(side, side);
        content->setWidget(inner);
        dialog.show();
        const QRect room = dialog.screen()->availableGeometry();
        EXPECT_TRUE(room.contains(dialog.geometry())) << side;
        EXPECT_LT(std::abs(dialog.geometry().center().x() - room.center().x()), 2) << side;
    }
}

TEST(EntryCombo, KeepsItsTextWhateverTheListAndTheWheelDo) {
    EntryCombo box;
    box.setEditText(u"Egyedi"_s);
    box.offer({u"Arial"_s, u"Courier"_s});
    QWheelEvent wheel({5, 5}, {5, 5}, {0, 0}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentText(), u"Egyedi"_s);
    EXPECT_FALSE(wheel.isAccepted());
}

namespace {

QStringList shownFolders(const FolderChooser& chooser) {
    QStringList names;
    for (QTreeWidgetItemIterator item(chooser.findChild<QTreeWidget*>("Dir1")); *item; ++item)
        names << (*item)->text(0);
    return names;
}

void pressEnter(QWidget* widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QCoreApplication::processEvents();
}

} // namespace

TEST(FolderChooser, ShowsTheFolderOrTheNearestAboveItWithoutTellingAChange) {
    const TestFolder test;
    const QDir folder(test.folder().path());
    for (const char* name : {"be/zsák", "be/Alma", "be/körte"})
        folder.mkpath(QString::fromUtf8(name));
    FolderChooser chooser;
    int changes = 0;
    QObject::connect(&chooser, &FolderChooser::pathChanged, [&changes] { ++changes; });
    const QString be = folder.filePath(u"be"_s);
    const std::pair<QString, QString> cases[] = {
        {be, be},
        {be + u"/"_s, be},
        {be + u"/nincs/ott"_s, be},
        {be + u"/zsák"_s, be + u"/zsák"_s},
        {QDir::rootPath() + u"nincs ilyen/mappa"_s, QDir::rootPath()},
        {{}, QDir::homePath()},
        {u"be"_s, QDir::homePath()},
    };
    for (const auto& [path, shown] : cases) {
        chooser.setPath(path);
        EXPECT_EQ(chooser.path(), QDir::toNativeSeparators(shown)) << path.toStdString();
    }
    chooser.setPath(be);
    EXPECT_EQ(shownFolders(chooser).mid(shownFolders(chooser).indexOf(u"be"_s)),
              QStringList({u"be"_s, u"Alma"_s, u"körte"_s, u"zsák"_s}));
    EXPECT_EQ(shownFolders(chooser).first(), QDir::toNativeSeparators(QDir::rootPath()));
    EXPECT_EQ(changes, 0);
}

TEST(FolderChooser, OpensByKeyAndByDriveWhatCanBeRead) {
    const TestFolder test;
    QDir folder(test.folder().path());
    for (const char* name : {"a", "b"})
        folder.mkdir(QString::fromUtf8(name));
    FolderChooser chooser;
    QStringList told;
    QObject::connect(&chooser, &FolderChooser::pathChanged, [&told](const QString& path) { told << path; });
    QString failed;
    QObject::connect(&chooser, &FolderChooser::driveFailed, [&failed](const QString& root) { failed = root; });
    chooser.setPath(folder.path());
    auto* list = chooser.findChild<QTreeWidget*>("Dir1");
    QTreeWidgetItem* opened = list->currentItem();
    list->setCurrentItem(opened->child(1));
    folder.rmdir(u"b"_s);
    pressEnter(list);
    EXPECT_EQ(chooser.path(), QDir::toNativeSeparators(folder.path())); // gone meanwhile
    list->setCurrentItem(opened->child(0));
    pressEnter(list);
    EXPECT_EQ(chooser.path(), QDir::toNativeSeparators(folder.filePath(u"a"_s)));

    auto* drive = chooser.findChild<QComboBox*>("Drive1");
    const int before = drive->currentIndex();
    drive->addItem(u"Q:\\"_s, u"/nincs ilyen meghajtó"_s);
    drive->setCurrentIndex(drive->count() - 1);
    Q_EMIT drive->activated(drive->count() - 1);
    EXPECT_EQ(drive->currentIndex(), before);
    EXPECT_EQ(failed, QDir::toNativeSeparators(u"/nincs ilyen meghajtó"_s));
    EXPECT_EQ(chooser.drive(), drive->currentText());
    drive->setCurrentIndex(0);
    Q_EMIT drive->activated(0);
    EXPECT_EQ(chooser.path(), drive->itemText(0));
    EXPECT_EQ(told, QStringList({QDir::toNativeSeparators(folder.filePath(u"a"_s)), drive->itemText(0)}));
}
