#include "controls/entry_combo.h"
#include "settings/receipt_layouts.h"
#include "settings/setup/page_builder.h"
#include "setup_fixture.h"

#include <QWheelEvent>

namespace {

constexpr BoxRow<SetTerti> receiptRows[] = {
    numberLess20<&SetTerti::txtTertiCimzett_x>("txtTertiCimzett_x", u"Címzett baloldaltól:"),
    number<&SetTerti::txtTertiPipa_y>("txtTertiPipa_y", u"Jelölések fentről:"),
    number<&SetTerti::KTertiKulVisszaSorem>("KTertiKulVisszaSorem", u"Soremelés:"),
    text<&SetTerti::txtTertiVisszakuldNev>("txtTertiVisszakuldNev", u"Név:"),
    font<&SetTerti::cmbTertiBetuTipus>("cmbTertiBetuTipus", u"Betűtípus:"),
};

// A page of a form that has no dialog page yet: the rows are all that it takes.
struct ReceiptPage {
    explicit ReceiptPage(const TestFolder& folder) : boxes(folder.folder()) {
        PageBuilder builder({folder, prompts, QStringList()});
        builder.place(builder.frame<SetTerti>({nullptr, u"Pozíciók"}, receiptRows, boxes), {0, 0});
        page.reset(builder.finish());
        boxes.fill();
    }
    QWidget& box(const char* name) const { return *page->findChild<QWidget*>(QString::fromLatin1(name)); }
    QString text(const char* name) const { return boxText(box(name)); }
    void type(const char* name, const QString& text) const { setBoxText(box(name), text); }

    ScriptedPrompts prompts;
    RecordBoxes<SetTerti> boxes;
    std::unique_ptr<QWidget> page;
};

} // namespace

TEST(PageBuilder, BoxesLess20AndSinglePrecisionSurviveARoundTrip) {
    const TestFolder folder;
    auto set = SetTerti::factory();
    set.txtTertiCimzett_x = Cur::fromText(u"55.25");
    set.KTertiKulVisszaSorem = 12.3F;
    set.txtTertiVisszakuldNev.set(u"Minta Kft.");
    folder.store(set);
    const QByteArray before = folder.bytes(QStringLiteral("SetTerti.dat"));

    const ReceiptPage receipt(folder);
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), QStringLiteral("35.25"));
    EXPECT_EQ(receipt.text("KTertiKulVisszaSorem"), QStringLiteral("12.3"));
    EXPECT_TRUE(receipt.boxes.store());
    EXPECT_EQ(folder.bytes(QStringLiteral("SetTerti.dat")), before);

    receipt.type("txtTertiCimzett_x", QStringLiteral("-20,5"));
    receipt.type("KTertiKulVisszaSorem", QStringLiteral("8,75"));
    EXPECT_TRUE(receipt.boxes.store());
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x.text(), QStringLiteral("-0.5"));
    EXPECT_EQ(readRecord<SetTerti>(folder).KTertiKulVisszaSorem, 8.75F);
}

TEST(PageBuilder, ARecordThatWasNeverWrittenShowsMinus20) {
    const TestFolder folder;
    const ReceiptPage receipt(folder);
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), QStringLiteral("-20"));
    EXPECT_TRUE(receipt.boxes.store());
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x, Cur(0));
}

TEST(PageBuilder, FactoryValuesMayGoToTheBoxesFirstAndThenBeStoredWithTheRest) {
    const TestFolder folder;
    const ReceiptPage receipt(folder);
    receipt.type("txtTertiVisszakuldNev", QStringLiteral("Most írt név"));
    receipt.boxes.showFactory();
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), QStringLiteral("48"));
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x, Cur(0));
    EXPECT_TRUE(receipt.boxes.store());
    const auto set = readRecord<SetTerti>(folder);
    EXPECT_EQ(set.txtTertiCimzett_x, Cur(68));
    EXPECT_EQ(set.txtTertiPipa_y, Cur(15));
    EXPECT_EQ(set.txtTertiVisszakuldNev.trimmed(), QStringLiteral("Most írt név"));
}

TEST(EntryCombo, KeepsItsTextWhateverTheListAndTheWheelDo) {
    EntryCombo box;
    box.setEditText(QStringLiteral("Egyedi"));
    box.offer({QStringLiteral("Arial"), QStringLiteral("Courier")});
    QWheelEvent wheel({5, 5}, {5, 5}, {0, 0}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentText(), QStringLiteral("Egyedi"));
    EXPECT_FALSE(wheel.isAccepted());
}
