#include "records/number_text.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(NumberText, ReadByItsHead) {
    // What is typed, then as a Cur and as a 16 bit number.
    const QStringList rows = u"12.5|12.5|13;  -3|-3|-3;12,5|12|12;abc|0|0;|0|0;-|0|0;12.34565x|12.3457|12;+7 mm|7|7;"
                             ".25|0.25|0;99999|99999|32767;-99999|-99999|-32768;1e3|1|1;"
                             "99999999999999999999|922337203685477.5807|32767"_s.split(u';');
    for (const QString& row : rows) {
        const QString typed = row.section(u'|', 0, 0);
        EXPECT_EQ(Cur::fromText(typed).text(), row.section(u'|', 1, 1)) << row.toStdString();
        EXPECT_EQ(leadingI16(typed), row.section(u'|', 2).toInt()) << row.toStdString();
    }
}

TEST(NumberText, ReadStrictly) {
    // What is typed, then as a whole number and as a decimal one; empty where it is none.
    const QStringList rows =
        u"12|12|12; -3 |-3|-3;0|0|0;12,5||12.5;-.25||-0.25;5.||5;12.34565||12.3457;|||;-||;.||;+7||;"
        "12a||;1 2||;1.2.3||;1,2.3||;--1||;1e3||;99999999999999999999|9223372036854775807|"
        "922337203685477.5807"_s.split(u';');
    for (const QString& row : rows) {
        const auto whole = wholeNumber(row.section(u'|', 0, 0));
        const auto decimal = decimalNumber(row.section(u'|', 0, 0));
        EXPECT_EQ(whole ? QString::number(*whole) : QString(), row.section(u'|', 1, 1)) << row.toStdString();
        EXPECT_EQ(decimal ? decimal->text() : QString(), row.section(u'|', 2, 2)) << row.toStdString();
    }
}

TEST(NumberText, AmountsPartThousandsByBlanksPointsAndCommas) {
    const QStringList plain =
        u"=0;  =0;0500=500;1\u00A0234\u2009567\u202F8=12345678;12.500=12500;12,500=12500;1.234.567=1234567;"
        "1,234,567=1234567;1.234,567=1234567;1234.567=1234567;12. 500=12500;0.500=500;"
        "9.223.372.036.854.775.808=9223372036854775807"_s.split(u';');
    const QStringList others =
        u"abc=0;12a=12;  12 500 Ft=12500;12.500 Ft=12500;12.500,-=12500;12.4=12;12.5=13;12,5=12;12.50=13;12.49999=12;"
        "1.2345=1;1.234567=1;1.234,50=1234;1.234.49=1234;12.500.=12500;1.2.9=1;.5=1;.500=1;,500=0;12,=12;+7=7;-7=-7;"
        "-12.500=-12500;-7.50=-7;-7.51=-8;7-3=7;--7=0;1e6=1;9223372036854775807.9=9223372036854775807"_s.split(u';');
    const auto check = [](const QStringList& rows, bool isPlain) {
        for (const QString& row : rows) {
            const QString typed = row.section(u'=', 0, 0);
            EXPECT_EQ(amountOf(typed), row.section(u'=', 1).toLongLong()) << row.toStdString();
            EXPECT_EQ(plainAmount(typed), isPlain ? std::optional(amountOf(typed)) : std::nullopt) << row.toStdString();
        }
    };
    check(plain, true);
    check(others, false);
    EXPECT_EQ(amountOf(QString(400, u'9')), std::numeric_limits<std::int64_t>::max());
}
