#include "printing/amount_in_words.h"
#include "support/recording_service.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

QString shown(const WordLines& lines) { return lines.upper + u'|' + lines.lower; }

// The rule told digit by digit, as clerks learn it; the program's tables must agree with it everywhere.
class SlowWords {
public:
    static WordLines of(std::int64_t amount) {
        SlowWords slow(QString::number(amount));
        slow.millions();
        slow.thousands();
        slow.rest();
        return slow.lines_;
    }

private:
    explicit SlowWords(QString digits) : digits_(std::move(digits)) {}

    // Digit at a place counted from 1 for the units; 0 where the amount has none.
    int d(int place) const { return place <= digits_.size() ? digits_.at(digits_.size() - place).digitValue() : 0; }
    bool has(int place) const { return digits_.size() >= place; }

    QString unit(int digit) const {
        static const QStringList words = QStringLiteral(" egy kettő három négy öt hat hét nyolc kilenc").split(u' ');
        return words.at(digit);
    }
    QString ten(int place) const {
        static const QStringList alone =
            QStringLiteral(" tíz húsz harminc negyven ötven hatvan hetven nyolcvan kilencven").split(u' ');
        static const QStringList joined =
            QStringLiteral(" tizen huszon harminc negyven ötven hatvan hetven nyolcvan kilencven").split(u' ');
        return (d(place - 1) == 0 ? alone : joined).at(d(place));
    }
    QString hundred(int place) const { return d(place) == 0 ? QString() : unit(d(place)) + QStringLiteral("száz"); }

    void millions() {
        if (has(8)) lines_.upper += ten(8);
        if (has(7)) lines_.upper += unit(d(7)) + QStringLiteral("millió");
    }
    void thousands() {
        const QString thousand = QStringLiteral("ezer");
        if (has(6)) lines_.upper += hundred(6);
        if (has(6) && d(6) != 0 && d(5) == 0 && d(4) == 0) lines_.upper += thousand;
        if (has(5)) lines_.upper += ten(5);
        if (has(5) && d(5) != 0 && digits_.endsWith(QStringLiteral("0000"))) lines_.upper += thousand;
        if (has(5) && d(5) != 0 && d(4) == 0 && !lines_.upper.endsWith(thousand)) lines_.upper += thousand + u'-';
        if (has(4) && d(4) != 0) lines_.upper += unit(d(4)) + thousand + u'-';
    }
    void rest() {
        if (has(3)) lines_.lower += hundred(3);
        if (has(2)) lines_.lower += ten(2);
        lines_.lower += unit(d(1));
    }

    QString digits_;
    WordLines lines_;
};

TEST(AmountInWords, WorkedResults) {
    const std::pair<int, const char*> rows[] = {
        {0, "|"},
        {7, "|hét"},
        {10, "|tíz"},
        {11, "|tizenegy"},
        {20, "|húsz"},
        {21, "|huszonegy"},
        {120, "|egyszázhúsz"},
        {1000, "egyezer-|"},
        {1100, "egyezer-|egyszáz"},
        {2000, "kettőezer-|"},
        {2001, "kettőezer-|egy"},
        {10000, "tízezer|"},
        {11000, "tizenegyezer-|"},
        {12345, "tizenkettőezer-|háromszáznegyvenöt"},
        {20000, "húszezer|"},
        {20001, "húszezer-|egy"},
        {100000, "egyszázezer|"},
        {100100, "egyszázezer|egyszáz"},
        {100345, "egyszázezer|háromszáznegyvenöt"},
        {110000, "egyszáztízezer|"},
        {110001, "egyszáztízezer-|egy"},
        {1000000, "egymillió|"},
        {1000345, "egymillió|háromszáznegyvenöt"},
        {1010000, "egymilliótízezer|"},
        {1100000, "egymillióegyszázezer|"},
        {1100345, "egymillióegyszázezer|háromszáznegyvenöt"},
        {1234567, "egymilliókettőszázharmincnégyezer-|ötszázhatvanhét"},
        {2000500, "kettőmillió|ötszáz"},
        {9999999, "kilencmilliókilencszázkilencvenkilencezer-|kilencszázkilencvenkilenc"},
    };
    for (const auto& [amount, words] : rows) {
        const QString text = QString::number(amount);
        for (const WordLines& lines : {azaz_rutin(text), Razaz_rutin(text), azaz1(amount)})
            EXPECT_EQ(shown(lines).toStdString(), words) << amount;
    }
}

TEST(AmountInWords, LimitsDiffer) {
    struct Row {
        WordLines lines;
        const char* words;
    };
    const Row rows[] = {
        {azaz_rutin(u"10000000"), "tízmillió|"},
        {azaz_rutin(u"12100000"), "tizenkettőmillióegyszázezer|"},
        {azaz_rutin(u"12345678"), "tizenkettőmillióháromszáznegyvenötezer-|hatszázhetvennyolc"},
        {azaz_rutin(u"20000000"), "húszmillió|"},
        {azaz_rutin(u"99999999"), "kilencvenkilencmilliókilencszázkilencvenkilencezer-|kilencszázkilencvenkilenc"},
        {azaz_rutin(u"100000000"), "MAX BEÍRHATÓ ÖSSZEG:|99.999.999"},
        {azaz_rutin(u"99999999999999999999999"), "MAX BEÍRHATÓ ÖSSZEG:|99.999.999"},
        {Razaz_rutin(u"10000000"), "MAX BEÍRHATÓ ÖSSZEG:|9.999.999"},
        {azaz1(10000000), "MAX BEÍRHATÓ ÖSSZEG:|9.999.999"},
        {azaz1(std::numeric_limits<std::int32_t>::max()), "MAX BEÍRHATÓ ÖSSZEG:|9.999.999"},
        {azaz1(-5), "|"},
        {azaz1(std::numeric_limits<std::int32_t>::min()), "|"},
        {azaz_rutin(u"-5"), "|"},
        {azaz_rutin(u""), "|"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(shown(row.lines).toStdString(), row.words);
}

TEST(AmountInWords, TablesAgreeWithTheRuleDigitByDigit) {
    const auto check = [](std::int64_t amount) {
        const WordLines fast = azaz_rutin(QString::number(amount));
        const WordLines slow = SlowWords::of(amount);
        return fast.upper == slow.upper && fast.lower == slow.lower;
    };
    for (std::int64_t amount = 0; amount < 200000; ++amount)
        ASSERT_TRUE(check(amount)) << amount;
    std::mt19937 random(1); // always the same amounts
    std::uniform_int_distribution<std::int64_t> eightDigits(0, 99999999);
    for (int i = 0; i < 50000; ++i) {
        const std::int64_t amount = eightDigits(random);
        ASSERT_TRUE(check(amount)) << amount;
        ASSERT_TRUE(check(amount / 1000 * 1000)) << amount;
    }
}

TEST(AmountInWords, ReadsTypedAmounts) {
    const std::pair<QString, std::int64_t> rows[] = {
        {QString(), 0},
        {QStringLiteral("abc"), 0},
        {QStringLiteral("12a"), 12},
        {QStringLiteral("  12 500 Ft"), 12500},
        {QStringLiteral("1\u00A0234\u2009567\u202F8"), 12345678},
        {QStringLiteral("0500"), 500},
        {QStringLiteral("12.4"), 12},
        {QStringLiteral("12.5"), 13},
        {QStringLiteral("12.49999"), 12},
        {QStringLiteral("1.2.9"), 1},
        {QStringLiteral(".5"), 1},
        {QStringLiteral("12,9"), 12},
        {QStringLiteral("+7"), 7},
        {QStringLiteral("-7"), -7},
        {QStringLiteral("-7.5"), -7},
        {QStringLiteral("-7.51"), -8},
        {QStringLiteral("7-3"), 7},
        {QStringLiteral("--7"), 0},
        {QStringLiteral("1e6"), 1},
        {QStringLiteral("9223372036854775807.9"), std::numeric_limits<std::int64_t>::max()},
        {QString(400, u'9'), std::numeric_limits<std::int64_t>::max()},
    };
    for (const auto& [typed, amount] : rows)
        EXPECT_EQ(amountOf(typed), amount) << typed.toStdString();
}

TEST(AmountInWords, FitsTheWordRows) {
    RecordingService service;
    PrintDevice device(service);
    const QString font = QStringLiteral("Arial CE                 ");
    const WordLines thousands{QStringLiteral("ötezer-"), QStringLiteral("hat")}; // 10 mm at 10 points
    struct Row {
        WordLines words;
        QString font;
        int size;
        float limit;
        const char *row1, *row2;
    };
    const Row rows[] = {
        {thousands, font, 10, 10, "*Ötezer-hat*", ""}, // exactly the limit
        {thousands, font, 10, 9.9F, "*Ötezer-", "hat*"},
        {thousands, font, 9, 9.9F, "*Ötezer-hat*", ""},
        {{{}, QStringLiteral("hétszáz")}, font, 10, 45, "*hétszáz*", ""},
        {{{}, QStringLiteral("hétszáz")}, font, 10, 5, "*", "hétszáz*"},
        {{}, font, 10, 45, "**", ""},
        // What cannot be measured counts as 0 wide, whatever font was set before.
        {thousands, QStringLiteral("Nincs ilyen"), 10, 1, "*Ötezer-hat*", ""},
        {thousands, QString(), 10, 1, "*Ötezer-hat*", ""},
        {thousands, font, 0, 1, "*Ötezer-hat*", ""},
    };
    for (const Row& row : rows) {
        const WordRows fitted = fitForForm(row.words, device, row.font, row.size, row.limit);
        EXPECT_EQ(fitted.row1.toStdString(), row.row1);
        EXPECT_EQ(fitted.row2.toStdString(), row.row2);
    }
    EXPECT_EQ(rowsOfTab(QStringLiteral("Ezer-"), QStringLiteral("hat")).row2, QStringLiteral("hat*"));
    EXPECT_EQ(rowsOfTab(QStringLiteral("Hét"), QString()).row1, QStringLiteral("*Hét*"));
}

} // namespace
