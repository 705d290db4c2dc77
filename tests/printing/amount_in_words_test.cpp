#include "printing/amount_in_words.h"
#include "support/recording_service.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

QString shown(const WordLines& lines) { return lines.upper + u'|' + lines.lower; }

TEST(AmountInWords, WorkedResults) {
    const QStringList rows =
        u"0=| 7=|hét 10=|tíz 11=|tizenegy 20=|húsz 21=|huszonegy 58=|ötvennyolc 69=|hatvankilenc 73=|hetvenhárom "
        "86=|nyolcvanhat 99=|kilencvenkilenc 120=|egyszázhúsz 405=|négyszázöt 830=|nyolcszázharminc 1000=egyezer-| "
        "1100=egyezer-|egyszáz 2000=kettőezer-| 2001=kettőezer-|egy 10000=tízezer| 11000=tizenegyezer-| "
        "12345=tizenkettőezer-|háromszáznegyvenöt 20000=húszezer| 20001=húszezer-|egy 100000=egyszázezer| "
        "100100=egyszázezer|egyszáz 101000=egyszázegyezer-| 101001=egyszázegyezer-|egy 111000=egyszáztizenegyezer-| "
        "100345=egyszázezer|háromszáznegyvenöt 110000=egyszáztízezer| "
        "110001=egyszáztízezer-|egy 1000000=egymillió| 1000345=egymillió|háromszáznegyvenöt "
        "1010000=egymilliótízezer| 1100000=egymillióegyszázezer| 1100345=egymillióegyszázezer|háromszáznegyvenöt "
        "1234567=egymilliókettőszázharmincnégyezer-|ötszázhatvanhét 2000500=kettőmillió|ötszáz "
        "9999999=kilencmilliókilencszázkilencvenkilencezer-|kilencszázkilencvenkilenc"_s.split(u' ');
    for (const QString& row : rows) {
        const QString amount = row.section(u'=', 0, 0);
        for (const WordLines& lines : {azaz_rutin(amount), Razaz_rutin(amount), azaz1(amount.toInt())})
            EXPECT_EQ(shown(lines).toStdString(), row.section(u'=', 1).toStdString()) << amount.toStdString();
    }
}

TEST(AmountInWords, LimitsDiffer) {
    const QString max8 = u"MAX BEÍRHATÓ ÖSSZEG:|99.999.999"_s;
    const QString max7 = u"MAX BEÍRHATÓ ÖSSZEG:|9.999.999"_s;
    using Limits = std::numeric_limits<std::int32_t>;
    const std::pair<QString, std::vector<WordLines>> rows[] = {
        {u"tízmillió|"_s, {azaz_rutin(u"10000000")}},
        {u"tizenkettőmillióegyszázezer|"_s, {azaz_rutin(u"12100000")}},
        {u"tizenkettőmillióháromszáznegyvenötezer-|hatszázhetvennyolc"_s, {azaz_rutin(u"12345678")}},
        {u"húszmillió|"_s, {azaz_rutin(u"20000000")}},
        {u"kilencvenkilencmilliókilencszázkilencvenkilencezer-|kilencszázkilencvenkilenc"_s, {azaz_rutin(u"99999999")}},
        {max8, {azaz_rutin(u"100000000"), azaz_rutin(u"99999999999999999999999")}},
        {max7, {Razaz_rutin(u"10000000"), azaz1(10000000), azaz1(Limits::max())}},
        {u"|"_s, {azaz1(-5), azaz1(Limits::min()), azaz_rutin(u"-5"), azaz_rutin(u"")}},
    };
    for (const auto& [words, results] : rows)
        for (const WordLines& lines : results)
            EXPECT_EQ(shown(lines).toStdString(), words.toStdString());
}

TEST(AmountInWords, FitsTheWordRows) {
    RecordingService service;
    PrintDevice device(service);
    const QString font = u"Arial CE                 "_s;
    const WordLines thousands{u"ötezer-"_s, u"hat"_s}; // 10 mm at 10 points
    const std::tuple<WordLines, QString, int, float, const char*> rows[] = {
        {thousands, font, 10, 10, "*Ötezer-hat*|"}, // exactly the limit
        {thousands, font, 10, 9.9F, "*Ötezer-|hat*"},
        {thousands, font, 9, 9.9F, "*Ötezer-hat*|"},
        {{{}, u"hétszáz"_s}, font, 10, 45, "*hétszáz*|"},
        {{{}, u"hétszáz"_s}, font, 10, 5, "*|hétszáz*"},
        {{}, font, 10, 45, "**|"},
        // What cannot be measured counts as 0 wide, whatever font was set before.
        {thousands, u"Nincs ilyen"_s, 10, 1, "*Ötezer-hat*|"},
        {thousands, {}, 10, 1, "*Ötezer-hat*|"},
        {thousands, font, 0, 1, "*Ötezer-hat*|"},
    };
    for (const auto& [words, fontName, size, limit, wordRows] : rows) {
        const WordRows fitted = fitForForm(words, device, fontName, size, limit);
        EXPECT_EQ((fitted.row1 + u'|' + fitted.row2).toStdString(), wordRows);
    }
    EXPECT_EQ(rowsOfTab(u"Ezer-"_s, u"hat"_s).row2, u"hat*"_s);
    EXPECT_EQ(rowsOfTab(u"Hét"_s, QString()).row1, u"*Hét*"_s);
}

} // namespace
