#include "platform/fonts.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(FontBook, oldAndForeignNamesAreServedByWhatIsInstalled) {
    const QStringList debian{u"DejaVu Sans"_s, u"Liberation Mono"_s, u"Liberation Sans"_s, u"Liberation Serif"_s};
    const QStringList windows{u"Arial"_s, u"Courier New"_s, u"Times New Roman"_s};
    const std::pair<QStringList, QString> rows[] = {
        {debian, u"Arial CE=Liberation Sans;Arial=Liberation Sans;Times New Roman CE=Liberation Serif;"
                 "times new roman ce=Liberation Serif;Courier New CE       =Liberation Mono;"
                 "DejaVu Sans CE=DejaVu Sans;Nincs Ilyen CE=;=; CE="_s},
        {windows, u"Arial CE=Arial;Times New Roman          =Times New Roman;Liberation Sans="_s},
        {{}, u"Arial CE="_s},
    };
    for (const auto& [installed, families] : rows)
        for (const QString& row : families.split(u';'))
            EXPECT_EQ(FontBook(installed).familyFor(row.section(u'=', 0, 0)).value_or(QString()), row.section(u'=', 1))
                << row.toStdString();
}

TEST(FontBook, offersTheOldNamesThatItServes) {
    EXPECT_EQ(FontBook({u"Liberation Sans"_s, u"Zapf"_s}).names(),
              QStringList({u"Arial CE"_s, u"Liberation Sans"_s, u"Zapf"_s}));
    EXPECT_EQ(FontBook({u"Arial CE"_s}).names(), QStringList({u"Arial CE"_s}));
}

TEST(FontBook, aNameThatItsFieldCutsStandsForTheOneFamilyThatBeginsWithIt) {
    const QString base = u"Abcdefghijklmnopqrstuvwxy"_s; // fills a field of 25
    const std::tuple<QStringList, QString, QString, QString> rows[] = {
        // installed; offered; asked; family
        {{base + u"Zed"_s}, base + u"Zed"_s, base, base + u"Zed"_s},
        {{base + u"Zed"_s}, base + u"Zed"_s, base.toUpper(), base + u"Zed"_s},
        {{base + u"Zed"_s}, base + u"Zed"_s, base.chopped(1), {}}, // no field has cut it here
        {{base + u"Zed"_s, base + u"Zoo"_s}, {}, base, {}},        // either may be meant
        {{base, base + u"Zed"_s}, base, base, base},               // itself comes first, the other can't be told
        {{base + u"12345six"_s}, base + u"12345six"_s, base + u"12345"_s, base + u"12345six"_s}, // a field of 30
        {{u"Abcdefghijklmnopqrstuvwx Long"_s},
         u"Abcdefghijklmnopqrstuvwx Long"_s,
         u"Abcdefghijklmnopqrstuvwx  "_s,
         u"Abcdefghijklmnopqrstuvwx Long"_s},                                                // cut behind a blank
        {{u"Őrség"_s, u"源ノ明朝"_s, u"Ωmega"_s}, u"Őrség"_s, u"源ノ明朝"_s, u"源ノ明朝"_s}, // no letters for these
    };
    for (const auto& [installed, offered, asked, family] : rows) {
        EXPECT_EQ(FontBook(installed).names().join(u';').toStdString(), offered.toStdString());
        EXPECT_EQ(FontBook(installed).familyFor(asked).value_or(QString()).toStdString(), family.toStdString())
            << asked.toStdString();
    }
}

TEST(FontBook, sizesAreExactAndManyFontsDoNoHarm) {
    FontBook book;
    const auto width = [&](float size) {
        return book.face({u"Arial CE"_s, size}).metrics.horizontalAdvance(u"Őrült űr"_s);
    };
    const double ten = width(10);
#ifdef Q_OS_WIN
    const double tolerance = ten / 400; // letters advance by whole units of the paper, which shows at 1 point
#else
    const double tolerance = ten / 1000;
#endif
    for (int size = 1; size < 200; ++size)
        EXPECT_NEAR(width(static_cast<float>(size)) / size, ten / 10, tolerance);
    EXPECT_DOUBLE_EQ(width(10), ten);
}
