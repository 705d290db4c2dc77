#include "settings/receipt_layouts.h"
#include "settings/setup/page_builder.h"
#include "setup_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr BoxRow<SetTerti> receiptRows[] = {
    numberLess20<&SetTerti::txtTertiCimzett_x>("txtTertiCimzett_x", u"Címzett baloldaltól:"),
    number<&SetTerti::KTertiKulVisszaSorem>("KTertiKulVisszaSorem", u"Soremelés:"),
    text<&SetTerti::txtTertiVisszakuldNev>("txtTertiVisszakuldNev", u"Név:"),
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
    const QByteArray before = folder.bytes(u"SetTerti.dat"_s);

    const ReceiptPage receipt(folder);
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), u"35.25"_s);
    EXPECT_EQ(receipt.text("KTertiKulVisszaSorem"), u"12.3"_s);
    EXPECT_TRUE(receipt.boxes.store());
    EXPECT_EQ(folder.bytes(u"SetTerti.dat"_s), before);

    receipt.type("txtTertiCimzett_x", u"-20,5"_s);
    receipt.type("KTertiKulVisszaSorem", u"8,75"_s);
    EXPECT_TRUE(receipt.boxes.store());
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x.text(), u"-0.5"_s);
    EXPECT_EQ(readRecord<SetTerti>(folder).KTertiKulVisszaSorem, 8.75F);
}

TEST(PageBuilder, FactoryValuesGoToTheBoxesFirstAndAreStoredWithTheRest) {
    const TestFolder folder;
    const ReceiptPage receipt(folder);
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), u"-20"_s) << "of a record never written";
    receipt.type("txtTertiVisszakuldNev", u"Most írt név"_s);
    receipt.boxes.showFactory();
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), u"48"_s);
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x, Cur(0));
    EXPECT_TRUE(receipt.boxes.store());
    const auto set = readRecord<SetTerti>(folder);
    EXPECT_EQ(set.txtTertiCimzett_x, Cur(68));
    EXPECT_EQ(set.txtTertiVisszakuldNev.trimmed(), u"Most írt név"_s);
}
