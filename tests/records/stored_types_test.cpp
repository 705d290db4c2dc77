#include "records/stored_types.h"
#include "records/windows1250.h"

#include <gtest/gtest.h>

TEST(Windows1250, EveryByteSurvives) {
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, static_cast<char>(value));
        EXPECT_EQ(windows1250::encode(windows1250::decode(byte)), byte) << value;
    }
}

TEST(Windows1250, LettersOutsideGetLookAlikesOrAQuestionMark) {
    EXPECT_EQ(windows1250::encode(u"őűŐŰ–"), QByteArray("\xF5\xFB\xD5\xDB\x96"));
    EXPECT_EQ(windows1250::encode(u"õûÕÛ"), QByteArray("\xF5\xFB\xD5\xDB"));
    EXPECT_EQ(windows1250::encode(u"Ж\U0001F600"), QByteArray("??"));
    EXPECT_TRUE(windows1250::canEncode(u"Árvíztűrő"));
    EXPECT_FALSE(windows1250::canEncode(u"mûve"));
}

TEST(Text, PadsCutsAndEndsAtTheFirstNul) {
    Text<6> field{};
    EXPECT_EQ(field.stored(), QString());
    field.set(u" őű");
    EXPECT_EQ(field.stored(), QStringLiteral(" őű   "));
    EXPECT_EQ(field.trimmed(), QStringLiteral("őű"));
    field.set(u"abcdefgh");
    EXPECT_EQ(field.stored(), QStringLiteral("abcdef"));
    field.data()[3] = '\0';
    EXPECT_EQ(field.stored(), QStringLiteral("abc"));
}

TEST(TypedNumbers, ReadByTheirHead) {
    struct Row {
        const char16_t* typed;
        const char* cur;
        int i16;
    };
    const Row rows[] = {
        {u"12.5", "12.5", 13},
        {u"  -3", "-3", -3},
        {u"12,5", "12", 12},
        {u"abc", "0", 0},
        {u"", "0", 0},
        {u"-", "0", 0},
        {u"12.34565x", "12.3457", 12},
        {u"+7 mm", "7", 7},
        {u".25", "0.25", 0},
        {u"99999", "99999", 32767},
        {u"-99999", "-99999", -32768},
        {u"1e3", "1", 1},
        {u"99999999999999999999", "922337203685477.5807", 32767},
    };
    for (const Row& row : rows) {
        const QString typed = QString::fromUtf16(row.typed);
        EXPECT_EQ(Cur::fromText(typed).text().toStdString(), row.cur) << typed.toStdString();
        EXPECT_EQ(leadingI16(typed), row.i16) << typed.toStdString();
    }
}

TEST(Cur, SumIsExactAndBecomesTheNearestFloat) {
    EXPECT_EQ(Cur::fromText(u"12.3456").plusWhole(10).toFloat(), 22.3456F);
    EXPECT_EQ(Cur::fromText(u"-0.0001").text(), QStringLiteral("-0.0001"));
    const Cur top = Cur::fromTenThousandths(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(top.plusWhole(1), top);
}

TEST(Bool16, AnyNonZeroIsTrueAndTrueIsMinusOne) {
    Bool16 flag = true;
    EXPECT_EQ(std::memcmp(&flag, "\xFF\xFF", 2), 0);
    std::memcpy(static_cast<void*>(&flag), "\x01\x00", 2);
    EXPECT_TRUE(flag);
}

TEST(PlainText, IsTheShortestThatReadsBack) {
    EXPECT_EQ(plainText(12.3F), QStringLiteral("12.3"));
    EXPECT_EQ(plainText(-8.0F), QStringLiteral("-8"));
}
