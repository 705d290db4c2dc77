#include "settings/check_layouts.h"
#include "settings/receipt_layouts.h"
#include "settings/setup/page_builder.h"
#include "setup_fixture.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr BoxRow<SetTerti> receiptRows[] = {
    numberLess20<&SetTerti::txtTertiCimzett_x>("txtTertiCimzett_x", u"Címzett baloldaltól:"),
    number<&SetTerti::KTertiKulVisszaSorem>("KTertiKulVisszaSorem", u"Soremelés:"),
    text<&SetTerti::txtTertiVisszakuldNev>("txtTertiVisszakuldNev", u"Név:"),
};

// Of another record, in the same frame.
constexpr BoxRow<SetRcsekk> payeeRows[] = {
    option<&SetRcsekk::opULapCizett_0>("opULapCizett_0", u"Cím megadással"),
    counterOption<&SetRcsekk::opULapCizett_0>("opULapCizett_1", u"Bankszámla megadással"),
    text<&SetRcsekk::txtBankNeve>("txtBankNeve", u"Bank neve:").onlyWhile("opULapCizett_1"),
};

// A page of a form that has no dialog page yet: the rows are all that it takes. Its button comes before its boxes.
struct ReceiptPage {
    explicit ReceiptPage(const TestFolder& folder) : boxes(folder.folder()), payee(folder.folder()) {
        PageBuilder builder({folder, prompts, {{}, [](const QString&) { return true; }}});
        builder.addSave(
            {"save", u"Mentés", {}, [boxes = boxes, payee = payee] { return boxes.store() && payee.store(); }});
        BoxFrame* frame = builder.frame<SetTerti>({nullptr, u"Pozíciók"}, receiptRows, boxes);
        builder.add<SetRcsekk>(*frame, payeeRows, payee);
        frame->addNote(u"MEGEGYEZIK A TÉRTIVEVÉNY VISSZAKÜLDÉSI CÍMMEL!");
        builder.place(frame, {0, 0});
        page.reset(builder.finish());
        boxes.fill();
        payee.fill();
    }
    QWidget& box(const char* name) const { return *page->findChild<QWidget*>(QString::fromLatin1(name)); }
    QString text(const char* name) const { return shownText(box(name)); }
    void type(const char* name, const QString& text) const { typeInto(box(name), text); }
    void save() const { page->findChild<QPushButton*>(u"save"_s)->click(); }

    ScriptedPrompts prompts;
    RecordBoxes<SetTerti> boxes;
    RecordBoxes<SetRcsekk> payee;
    std::unique_ptr<QWidget> page;
};

} // namespace

TEST(PageBuilder, BoxesLess20AndSinglePrecisionSurviveARoundTripByAButtonThatCameFirst) {
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
    receipt.save();
    EXPECT_EQ(folder.bytes(u"SetTerti.dat"_s), before);

    receipt.type("txtTertiCimzett_x", u"-20,5"_s);
    receipt.type("KTertiKulVisszaSorem", u"8,75"_s);
    receipt.save();
    EXPECT_EQ(readRecord<SetTerti>(folder).txtTertiCimzett_x.text(), u"-0.5"_s);
    EXPECT_EQ(readRecord<SetTerti>(folder).KTertiKulVisszaSorem, 8.75F);
}

TEST(PageBuilder, OptionsExcludeEachOtherAndShowWhatBelongsToThem) {
    const TestFolder folder;
    for (const bool stored : {true, false}) {
        updateRecord<SetRcsekk>(folder, [=](SetRcsekk& set) { set.opULapCizett_0 = stored; });
        const ReceiptPage receipt(folder);
        receipt.page->show();
        for (const bool byAddress : {stored, !stored, stored}) {
            receipt.type(byAddress ? "opULapCizett_0" : "opULapCizett_1", u"1"_s);
            EXPECT_EQ(receipt.text(byAddress ? "opULapCizett_1" : "opULapCizett_0"), u"0"_s);
            EXPECT_EQ(receipt.box("txtBankNeve").isVisible(), !byAddress);
            for (const QLabel* label : receipt.page->findChildren<QLabel*>())
                if (label->buddy() == &receipt.box("txtBankNeve")) {
                    EXPECT_EQ(label->isVisible(), !byAddress);
                }
            receipt.save();
            EXPECT_EQ(bool{readRecord<SetRcsekk>(folder).opULapCizett_0}, byAddress);
        }
    }
}

TEST(PageBuilder, FactoryValuesAreStoredTogetherWithTheTextsThatHaveNone) {
    const TestFolder folder;
    const ReceiptPage receipt(folder);
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), u"-20"_s) << "of a record never written";
    receipt.type("txtTertiVisszakuldNev", u"Most írt név"_s);
    EXPECT_TRUE(receipt.boxes.storeWithFactory());
    EXPECT_EQ(receipt.text("txtTertiCimzett_x"), u"48"_s);
    const auto set = readRecord<SetTerti>(folder);
    EXPECT_EQ(set.txtTertiCimzett_x, Cur(68));
    EXPECT_EQ(set.txtTertiVisszakuldNev.trimmed(), u"Most írt név"_s);
}
