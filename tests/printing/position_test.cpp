#include "printing/position.h"

#include "settings/check_layouts.h"
#include "settings/receipt_layouts.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Position, SumsAreExactAndDamageIsNoPosition) {
    struct Layout : SetTerti, SetRcsekk {};
    Layout layout{SetTerti::factory(), SetRcsekk::factory()};
    layout.RcsekkTextcim_y = Cur::fromText(u"12.3456");
    layout.RcsekkTextcim_x1 = Cur::fromText(u"0.1");
    const auto exact = Position<Layout>(&Layout::RcsekkTextcim_y);
    EXPECT_EQ(exact.in(layout, 10), 22.3456F);
    EXPECT_EQ(exact.plus(3, &Layout::RcsekkTextcim_x1).in(layout, 10), 22.6456F);
    for (const float broken :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38F}) {
        layout.KTertiKulPri_x = broken;
        EXPECT_EQ(Position<Layout>(&Layout::KTertiKulPri_x).plus(9, &Layout::KTertiKulPri_x).in(layout, 7), 7.0F);
    }
}
