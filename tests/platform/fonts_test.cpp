#include "platform/fonts.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(FontBook, oldAndForeignNamesAreServedByWhatIsInstalled) {
    const QStringList debian{u"DejaVu Sans"_s, u"Liberation Mono"_s, u"Liberation Sans"_s, u"Liberation Serif"_s};
    const QStringList windows{u"Arial"_s, u"Courier New"_s, u"Times New Roman"_s};
    const struct {
        const QStringList& installed;
        QString name, family;
    } cases[] = {
        {debian, u"Arial CE"_s, u"Liberation Sans"_s},
        {debian, u"Arial"_s, u"Liberation Sans"_s},
        {debian, u"Times New Roman CE"_s, u"Liberation Serif"_s},
        {debian, u"times new roman ce"_s, u"Liberation Serif"_s},
        {debian, u"Courier New CE       "_s, u"Liberation Mono"_s},
        {debian, u"DejaVu Sans CE"_s, u"DejaVu Sans"_s},
        {windows, u"Arial CE"_s, u"Arial"_s},
        {windows, u"Times New Roman          "_s, u"Times New Roman"_s},
        {windows, u"Liberation Sans"_s, {}},
        {debian, u"Nincs Ilyen CE"_s, {}},
        {debian, u""_s, {}},
        {debian, u" CE"_s, {}},
        {{}, u"Arial CE"_s, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        EXPECT_EQ(FontBook(c.installed).familyFor(c.name).value_or(QString()), c.family);
    }
}

TEST(FontBook, offersTheOldNamesThatItServes) {
    EXPECT_EQ(FontBook({u"Liberation Sans"_s, u"Zapf"_s}).names(),
              QStringList({u"Arial CE"_s, u"Liberation Sans"_s, u"Zapf"_s}));
    EXPECT_EQ(FontBook({u"Arial CE"_s}).names(), QStringList({u"Arial CE"_s}));
}

TEST(FontBook, sizesAreExactAndManyFontsDoNoHarm) {
    FontBook book;
    const auto width = [&](float size) {
        return book.face({u"Arial CE"_s, size}).metrics.horizontalAdvance(u"Őrült űr"_s);
    };
    const double ten = width(10);
    for (int size = 1; size < 200; ++size)
        EXPECT_NEAR(width(static_cast<float>(size)) / size, ten / 10, ten / 1000);
    EXPECT_DOUBLE_EQ(width(10), ten);
}
