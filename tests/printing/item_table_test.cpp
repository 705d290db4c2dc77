#include "printing/item_table.h"

#include "check_fixture.h"
#include "settings/receipt_layouts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A form that nobody has, with every kind of row, on two records at once.
struct Page {
    QString name = u"név"_s;
    bool ticked = true, hidden = false;
};
struct Layout : SetTerti, SetRcsekk {};
using Row = Item<Page, Layout>;
struct Group {
    enum Flag { first, second };
};

constexpr Position<Layout> returnAddress = &Layout::KTertiKulVissza_y;

constexpr Row rows[] = {
    Row::font(&Layout::cmbTertiBetuTipus, &Layout::txtTertiBetuMeret).weight(Weight::bold),
    Row::text(&Page::name, &Layout::KTertiKulPri_x, {10, 0}, &Layout::KTertiKulSK_y, {-1, 1}),
    Row::font(&Layout::cmbRcsekkNumBetuTipus, 24).weight(Weight::normal),
    Row::tick(&Page::ticked, &Layout::RcsekkTextcim_x1, Offset(1, 2).inBatch(3, 4), &Layout::RcsekkTextcim_y, {}),
    Row::tick(&Page::hidden, &Layout::RcsekkTextcim_x1, {}, &Layout::RcsekkTextcim_y, {}),
    Row::font(&Layout::cmbTertiBetuTipus, 10),
    Row::text(&Page::name, &Layout::RcsekkTextcim_x1, {}, returnAddress.plus(2, &Layout::KTertiKulVisszaSorem),
              {47, 0}),
    Row::text(&Page::name, &Layout::RcsekkTextcim_x1, {}, returnAddress.plus(3, &Layout::RcsekkTextcim_y), {}),
    Row::moveTo(&Layout::RcsekkTextcim_y, {30, 31}).flag(Group::second, false).only({Run::upright, Run::sideways}),
    Row::skip().flag(Group::second, false),
    Row::next(&Page::name, &Layout::RcsekkTextcim_x1, {}).flag(Group::second),
    Row::hold(&Page::name, &Layout::RcsekkTextcim_x1, {}).when(&Page::ticked).flag(Group::first).only({Run::sideways}),
};

class ItemTable : public CheckTest {
protected:
    Layout stored{SetTerti::factory(), SetRcsekk::factory()};

    std::string print(const PrintOptions& options) {
        Pen pen(desk, FailureWay::silent, u"form"_s);
        printItems(pen, rows, Page(), stored, options);
        pen.EndForm(FormEnd::job);
        QStringList texts = lines();
        texts.replaceInStrings(u" Arial CE"_s, QString());
        return joined(texts);
    }
};

} // namespace

TEST_F(ItemTable, RowsStandWhereTheRecordsPutThem) {
    stored.cmbTertiBetuTipus.set(u"Arial CE");
    stored.txtTertiBetuMeret = 20;
    stored.KTertiKulPri_x = 2.5F;
    stored.KTertiKulSK_y = 8;
    stored.RcsekkTextcim_x1 = Cur(5);
    stored.RcsekkTextcim_y = Cur::fromText(u"12.25");
    stored.KTertiKulVissza_y = Cur(50);
    stored.KTertiKulVisszaSorem = 4.75F;
    const std::pair<PrintOptions, const char*> cases[] = {
        {{Run::upright, {true, true}, 0},
         "12.50 7 20|név; 6 12.25 24|X; 5 106.50 10|név; 5 86.75 10|név; 5 90.75 10|név"},
        {{Run::uprightBatch, {true, false}, -2},
         "10.50 7 20|név; 6 12.25 24|X; 3 106.50 10|név; 3 86.75 10|név; 0 90.75 10| "},
        {{Run::sideways, {true, false}, 0},
         "2.50 9 20|név; 7 12.25 24|X; 5 59.50 10|név; 5 86.75 10|név; 0 43.25 10| ; 5 47.25 10|név"},
        {{Run::sidewaysBatch, {false, true}, 0},
         "2.50 9 20|név; 9 12.25 24|X; 5 59.50 10|név; 5 86.75 10|név; 5 90.75 10|név"},
    };
    for (const auto& [options, texts] : cases)
        EXPECT_EQ(print(options), texts);
    const auto isBold = [this](std::size_t row) {
        return std::get<PlacedText>(lastJob().job.pages[0].items[row]).font.bold;
    };
    EXPECT_TRUE(isBold(0));
    EXPECT_FALSE(isBold(1));
}

TEST_F(ItemTable, SumsAreExactAndDamageIsNoPosition) {
    Layout damaged = stored;
    damaged.RcsekkTextcim_y = Cur::fromText(u"12.3456");
    damaged.RcsekkTextcim_x1 = Cur::fromText(u"0.1");
    const auto exact = Position<Layout>(&Layout::RcsekkTextcim_y);
    EXPECT_EQ(exact.in(damaged, 10), 22.3456F);
    EXPECT_EQ(exact.plus(3, &Layout::RcsekkTextcim_x1).in(damaged, 10), 22.6456F);
    for (const float broken :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38F}) {
        damaged.KTertiKulPri_x = broken;
        EXPECT_EQ(Position<Layout>(&Layout::KTertiKulPri_x).plus(9, &Layout::KTertiKulPri_x).in(damaged, 7), 7.0F);
    }
}
