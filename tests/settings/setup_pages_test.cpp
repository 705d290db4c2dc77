#include "record_fields.h"
#include "settings/check_layouts.h"
#include "settings/general_settings.h"
#include "settings/receipt_layouts.h"
#include "setup_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

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
        {u"check_layouts.h"_s, u"SetUlap"_s},
        {u"receipt_layouts.h"_s, u"SetTerti"_s},
        {u"receipt_layouts.h"_s, u"SetFveveny"_s},
        {u"receipt_layouts.h"_s, u"SetIrat2"_s},
        {u"envelope_label_settings.h"_s, u"boritek"_s},
    };
    return rows;
}

struct Range {
    int from, to; // bytes of a record
};
constexpr Range yellowLayout[] = {{4, 178}, {198, 214}, {527, 529}};
constexpr Range pinkLayout[] = {{0, 198}, {378, 394}};
constexpr Range returnReceiptLayout[] = {{0, 107}, {237, 345}};
constexpr Range postingReceiptLayout[] = {{0, 75}, {195, 341}};
constexpr Range documentReceiptLayout[] = {{0, 155}};
constexpr Range cashOnDeliveryLayout[] = {{0, 104}};

template<class Rec>
QByteArray factoryBytes() {
    const Rec factory = Rec::factory();
    return {reinterpret_cast<const char*>(&factory), sizeof factory};
}

// Every button that writes; the default buttons with what they restore.
struct ButtonCase {
    int setupOldal;
    const char* button;
    const char16_t* question; // null for none
    const char16_t* file = nullptr;
    std::span<const Range> restored = {};
    QByteArray (*factory)() = nullptr;
};
constexpr auto sure = u" Módosítás |Biztos módosítod a beállításokat?";
constexpr auto toDefaults = u" Visszaállítás alapértékekre. |Biztos mehet a visszaállítás?";
const ButtonCase buttons[] = {
    {0, "Command1", sure},
    {0, "Command2", u" Módosítás |Biztos módosítod a beállításokat\naz alapértelmezett értékekre?", u"Set.dat",
     yellowLayout, factoryBytes<Set>},
    {1, "cmdTertiMentes", sure},
    {1, "cmdTertiAlapbeallitas", toDefaults, u"SetTerti.dat", returnReceiptLayout, factoryBytes<SetTerti>},
    {2, "cmdFeladovevenyMentes", sure},
    {2, "cmdFeladovevenyAlapbeallitas", toDefaults, u"SetFveveny.dat", postingReceiptLayout, factoryBytes<SetFveveny>},
    {3, "cmdBoritekMeretSave_0", nullptr},
    {3, "cmdBoritekFeladoSave", nullptr},
    {4, "cmdIratTertiMentes", sure},
    {4, "cmdIratTertiAlapbeallitas", toDefaults, u"SetIrat2.dat", documentReceiptLayout, factoryBytes<SetIrat2>},
    {5, "cmdRCsekkMentes", sure},
    {5, "cmdRCsekkAlapertelm", u" Módosítás |Biztos visszaállítod a beállításokat\naz alapértelmezett értékekre?",
     u"SetRcsekk.dat", pinkLayout, factoryBytes<SetRcsekk>},
    {5, "cmdRcsekkCimzettMent", u" Mentés |Biztos menthető a címzett adatai?"},
    {6, "cmdULapMentes", sure},
    {6, "cmdUlapAlapertelmezettre", u" Módosítás |Biztos visszaállíthatók az alapértékek?", u"SetUlap.dat",
     cashOnDeliveryLayout, factoryBytes<SetUlap>},
};

void storeDistinct(const TestFolder& folder) {
    for (const RecordRow& row : records())
        folder.setBytes(row.file, row.distinct);
}

// The name of the field that a box shows; the envelope page opens on C6.
QString fieldOf(const QString& box) {
    static const QMap<QString, QString> others = {{u"Text1_0"_s, u"boritekC6Felado_x"_s},
                                                  {u"Text1_1"_s, u"boritekC6Felado_y"_s},
                                                  {u"Text1_2"_s, u"boritekC6Cimzett_y"_s},
                                                  {u"Text1_3"_s, u"boritekC6Cimzett_x"_s}};
    return others.value(box, box);
}

// The records of two receipts hold 20 mm more than most of their boxes for distances from the left.
QString shownOf(const QString& name, const QString& stored) {
    static const QRegularExpression less20(u"^(txtTerti(?!Pipa)|txt?Feladoveveny).*_x$"_s);
    return less20.match(name).hasMatch() ? Cur::fromText(stored).plusWhole(-20).text() : stored;
}

// Every box shows its field.
void expectBoxesShowRecords(const OpenedSetup& setup, const TestFolder& folder) {
    static const QRegularExpression noField(u"^(OpB[123]|opULapCizett_1)$"_s);
    for (const QWidget* box : boxesOf(setup.dialog)) {
        const QString name = fieldOf(box->objectName());
        bool found = noField.match(name).hasMatch();
        for (const RecordRow& row : records()) {
            const auto field = row.fields.constFind(name);
            if (field == row.fields.constEnd()) continue;
            found = true;
            EXPECT_EQ(shownText(*box), shownOf(name, fieldText(*field, folder.bytes(row.file)))) << name.toStdString();
        }
        EXPECT_TRUE(found) << name.toStdString() << " is no field";
    }
}

QStringList shownTexts(const OpenedSetup& setup) {
    QStringList texts;
    for (const QWidget* box : boxesOf(setup.dialog))
        texts << box->objectName() + u'=' + shownText(*box);
    return texts;
}

QStringList typeEverywhere(const OpenedSetup& setup, const QString& text) {
    for (QWidget* box : boxesOf(setup.dialog))
        typeInto(*box, text);
    return shownTexts(setup);
}

void press(OpenedSetup& setup, const ButtonCase& row) {
    if (row.question) return setup.press(row.button, Answer::yes);
    setup.widget<QPushButton>(row.button).click();
}

// After a no, records and boxes are as they were.
void refuse(const TestFolder& folder, const ButtonCase& row) {
    OpenedSetup setup(folder, row.setupOldal);
    const QStringList typed = typeEverywhere(setup, u"99"_s);
    setup.press(row.button, Answer::no);
    ASSERT_EQ(setup.prompts.asked.size(), 1U);
    const Message& asked = setup.prompts.asked[0];
    EXPECT_EQ(asked.icon, Icon::question);
    EXPECT_EQ(asked.title + u'|' + asked.text, QString::fromUtf16(row.question));
    EXPECT_EQ(shownTexts(setup), typed);
    for (const RecordRow& record : records())
        EXPECT_EQ(folder.bytes(record.file), record.distinct);
}

} // namespace

TEST(SetupPages, AButtonWritesAfterAYesAloneWhatItRestoresAndNothingElse) {
    for (const ButtonCase& row : buttons) {
        SCOPED_TRACE(row.button);
        const TestFolder folder;
        storeDistinct(folder);
        if (row.question) refuse(folder, row);
        OpenedSetup setup(folder, row.setupOldal); // its boxes stay untouched
        expectBoxesShowRecords(setup, folder);
        press(setup, row);
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

TEST(SetupPages, ARecordThatCannotBeWrittenIsToldAndTheBoxesStayAsTyped) {
    for (const ButtonCase& row : buttons) {
        SCOPED_TRACE(row.button);
        const TestFolder folder;
        for (const RecordRow& record : records())
            folder.block(record.file);
        OpenedSetup setup(folder, row.setupOldal);
        const QStringList typed = typeEverywhere(setup, u"99"_s);
        press(setup, row);
        ASSERT_EQ(setup.prompts.told.size(), 1U);
        EXPECT_EQ(setup.prompts.told[0].icon, Icon::critical);
        EXPECT_EQ(setup.prompts.told[0].title, u"Hiba"_s);
        EXPECT_EQ(shownTexts(setup), typed);
        auto& tabs = setup.widget<QTabWidget>("SSTab1");
        EXPECT_TRUE(tabs.tabText(row.setupOldal).endsWith(u" *"));
        for (const QLabel* note : tabs.currentWidget()->findChildren<QLabel*>(u"lbElmentve"_s))
            EXPECT_FALSE(note->text().startsWith(u"Elmentve"));
    }
}

TEST(SetupPages, DamagedRecordsShowTextsThatASaveKeeps) {
    for (const int damage : {0, 1, 2, 3, 4, 5}) {
        SCOPED_TRACE(damage);
        const TestFolder folder;
        for (const RecordRow& record : records()) {
            const qsizetype size = record.distinct.size();
            const QByteArray bytes[] = {QByteArray(),
                                        QByteArray(3, '\xFF'),
                                        QByteArray(size, '\0'),
                                        QByteArray(size, '\xFF'),
                                        QByteArray(size, '\x7F'),
                                        record.distinct + QByteArray(100, 'x')};
            folder.setBytes(record.file, bytes[damage]);
        }
        OpenedSetup setup(folder);
        const QStringList shown = shownTexts(setup);
        EXPECT_EQ(shown.filter(u"nan"_s).size(), 0);
        for (const ButtonCase& row : buttons)
            if (!row.file) press(setup, row);
        EXPECT_EQ(shownTexts(setup), shown);
        EXPECT_EQ(shownTexts(OpenedSetup(folder)), shown);
        for (const RecordRow& record : records())
            if (damage == 5) {
                EXPECT_EQ(folder.bytes(record.file), record.distinct + QByteArray(100, 'x'));
            }
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
