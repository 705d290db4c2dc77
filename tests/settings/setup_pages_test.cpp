#include "record_fields.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "setup_fixture.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

struct RecordRow {
    QString header; // in src/settings
    QString record; // which names its file, too
    QMap<QString, RecordField> fields = fieldsOf(header, record);
    QByteArray distinct = distinctRecord(fields);
    QString file = record + u".dat"_s;
};

// Every record that a page edits.
const std::vector<RecordRow>& records() {
    static const std::vector<RecordRow> rows = {
        {u"general_settings.h"_s, u"Set"_s},
        {u"check_layouts.h"_s, u"SetRcsekk"_s},
    };
    return rows;
}

struct Range {
    int from, to; // bytes of a record
};
constexpr Range yellowLayout[] = {{4, 178}, {198, 214}, {527, 529}};
constexpr Range pinkLayout[] = {{0, 198}, {378, 394}};

template<class Rec>
QByteArray factoryBytes() {
    const Rec factory = Rec::factory();
    return {reinterpret_cast<const char*>(&factory), sizeof factory};
}

// Every button that writes; the default buttons with what they restore.
struct ButtonCase {
    int setupOldal;
    const char* button;
    const char16_t* question;
    const char16_t* file = nullptr;
    std::span<const Range> restored = {};
    QByteArray (*factory)() = nullptr;
};
constexpr auto sure = u" Módosítás |Biztos módosítod a beállításokat?";
const ButtonCase buttons[] = {
    {0, "Command1", sure},
    {0, "Command2", u" Módosítás |Biztos módosítod a beállításokat\naz alapértelmezett értékekre?", u"Set.dat",
     yellowLayout, factoryBytes<Set>},
    {5, "cmdRCsekkMentes", sure},
    {5, "cmdRCsekkAlapertelm", u" Módosítás |Biztos visszaállítod a beállításokat\naz alapértelmezett értékekre?",
     u"SetRcsekk.dat", pinkLayout, factoryBytes<SetRcsekk>},
    {5, "cmdRcsekkCimzettMent", u" Mentés |Biztos menthető a címzett adatai?"},
};

void storeDistinct(const TestFolder& folder) {
    for (const RecordRow& row : records())
        folder.setBytes(row.file, row.distinct);
}

// Every box shows the field that bears its name.
void expectBoxesShowRecords(const OpenedSetup& setup, const TestFolder& folder) {
    for (const QWidget* box : boxesOf(setup.dialog)) {
        bool found = false;
        for (const RecordRow& row : records()) {
            const auto field = row.fields.constFind(box->objectName());
            if (field == row.fields.constEnd()) continue;
            found = true;
            EXPECT_EQ(shownText(*box), fieldText(*field, folder.bytes(row.file))) << box->objectName().toStdString();
        }
        EXPECT_TRUE(found) << box->objectName().toStdString() << " is no field";
    }
}

} // namespace

TEST(SetupPages, AButtonOnUntouchedBoxesWritesWhatItRestoresAndNothingElse) {
    for (const ButtonCase& row : buttons) {
        SCOPED_TRACE(row.button);
        const TestFolder folder;
        storeDistinct(folder);
        OpenedSetup setup(folder, row.setupOldal);
        expectBoxesShowRecords(setup, folder);
        setup.press(row.button, Answer::yes);
        for (const RecordRow& record : records()) {
            QByteArray expected = record.distinct;
            if (row.file && record.file == QString::fromUtf16(row.file))
                for (const Range& range : row.restored)
                    expected.replace(range.from, range.to - range.from,
                                     row.factory().sliced(range.from, range.to - range.from));
            EXPECT_EQ(folder.bytes(record.file), expected);
        }
        expectBoxesShowRecords(setup, folder);
    }
}

TEST(SetupPages, AfterNoRecordsAndBoxesAreAsTheyWere) {
    for (const ButtonCase& row : buttons) {
        SCOPED_TRACE(row.button);
        const TestFolder folder;
        storeDistinct(folder);
        OpenedSetup setup(folder, row.setupOldal);
        QStringList typed, after;
        for (QWidget* box : boxesOf(setup.dialog)) {
            typeInto(*box, u"99"_s);
            typed << shownText(*box);
        }
        setup.press(row.button, Answer::no);
        ASSERT_EQ(setup.prompts.asked.size(), 1U);
        const Message& asked = setup.prompts.asked[0];
        EXPECT_EQ(asked.icon, Icon::question);
        EXPECT_EQ(asked.title + u'|' + asked.text, QString::fromUtf16(row.question));
        for (const QWidget* box : boxesOf(setup.dialog))
            after << shownText(*box);
        EXPECT_EQ(after, typed);
        for (const RecordRow& record : records())
            EXPECT_EQ(folder.bytes(record.file), record.distinct);
    }
}

TEST(SetupPages, EnterInABoxPressesNothingAndClosingStoresNothing) {
    const auto send = [](QWidget* to, Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(to, &press);
    };
    for (const bool byEscape : {true, false}) {
        const TestFolder folder;
        storeDistinct(folder);
        OpenedSetup setup(folder, byEscape ? 0 : 5);
        setup.dialog.show();
        // Said of each button, since ENTER alone might find but one that is disabled or on another page.
        for (const QPushButton* button : setup.dialog.findChildren<QPushButton*>())
            EXPECT_FALSE(button->isDefault() || button->autoDefault()) << button->objectName().toStdString();
        const std::vector<QWidget*> boxes = boxesOf(setup.dialog);
        for (QWidget* box : boxes) {
            typeInto(*box, u"1"_s);
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
                send(box, key);
            ASSERT_TRUE(setup.prompts.asked.empty() && setup.dialog.isVisible()) << box->objectName().toStdString();
        }
        if (byEscape)
            send(boxes.front(), Qt::Key_Escape);
        else
            setup.widget<QPushButton>("Command3").click();
        EXPECT_FALSE(setup.dialog.isVisible());
        for (const RecordRow& record : records())
            EXPECT_EQ(folder.bytes(record.file), record.distinct);
    }
}
