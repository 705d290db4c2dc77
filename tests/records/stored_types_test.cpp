#include "records/stored_types.h"
#include "records/windows1250.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

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
}

TEST(Text, PadsCutsAndEndsAtTheFirstNul) {
    Text<6> field{};
    EXPECT_EQ(field.stored(), QString());
    field.set(u" őű");
    EXPECT_EQ(field.stored(), u" őű   "_s);
    EXPECT_EQ(field.trimmed(), u"őű"_s);
    field.set(u"abcdefgh");
    EXPECT_EQ(field.stored(), u"abcdef"_s);
    field.data()[3] = '\0';
    EXPECT_EQ(field.stored(), u"abc"_s);
}

TEST(StoredNumbers, KeepTheirBytesAndBecomeTheNearestFloatAndTheShortestText) {
    EXPECT_EQ(Cur::fromText(u"12.3456").plusWhole(10).toFloat(), 22.3456F);
    EXPECT_EQ(Cur::fromText(u"-0.0001").text(), u"-0.0001"_s);
    const Cur top = Cur::fromTenThousandths(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(top.plusWhole(1), top);
    EXPECT_EQ(plainText(12.3F), u"12.3"_s);
    EXPECT_EQ(plainText(-8.0F), u"-8"_s);
    Bool16 flag = true;
    EXPECT_EQ(std::memcmp(&flag, "\xFF\xFF", 2), 0);
    std::memcpy(static_cast<void*>(&flag), "\x01\x00", 2);
    EXPECT_TRUE(flag);
}
