#include "picture/envelope_picture.h"

#include "records/record_file.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

class EnvelopePictureTest : public testing::Test {
protected:
    TestFolder files;
    EnvelopePicture picture;
    QString path = files.folder().file(u"kép.bmp"_s);
    Kepment stored = zeroRecord<Kepment>();

    EnvelopePictureTest() {
        stored.kepFajl.set(path);
        stored.Left = 620;
        stored.Top = 1240;
        stored.Width = Cur(2000);
        stored.Height = Cur(1000);
        QLocale::setDefault(QLocale::Hungarian);
    }
    void save(int width, int height) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.setDotsPerMeterX(10000); // counts for nothing
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(path));
    }
    // The next start.
    void restore() {
        picture = {};
        restorePicture(picture, stored);
        fitPicture(picture);
    }
    void resize(int side) {
        picture.HScroll1 = side;
        fitPicture(picture);
    }
    std::string position() const { return (picture.lbXpoz + u' ' + picture.lbYpoz).toStdString(); }
};

TEST_F(EnvelopePictureTest, IsFittedIntoItsSquareOrKeepsItsOwnSize) {
    const struct {
        int width, height, side;          // of the file in pixels, of the square in twips
        const char *kepSzeles, *kepMagas; // cm
        QSizeF box;                       // twips
        const char *lbSzeles, *lbMagas;
        int most, scroll; // of HScroll1 afterwards
    } pictures[] = {{800, 400, 2000, "3.6832", "1.8416", {2000, 1000}, "3,7 cm", "1,8 cm", 21165, 2000},
                    {400, 800, 2000, "1.8416", "3.6832", {1000, 2000}, "1,8 cm", "3,7 cm", 21165, 2000},
                    {320, 320, 8000, "14.733", "14.733", {8000, 8000}, "14,7 cm", "14,7 cm", 8465, 8000},
                    {800, 4, 2000, "3.6832", "0.0184", {2000, 10}, "3,7 cm", ",0 cm", 21165, 2000},
                    {36, 18, 2000, "1.7541", "0.8771", {2000, 2000}, "1,8 cm", ",9 cm", 1900, 1900},
                    {96, 12, 3000, "4.6777", "0.5847", {3000, 3000}, "4,7 cm", ",6 cm", 2539, 2539}};
    for (const auto& row : pictures) {
        save(row.width, row.height);
        restore();
        picture.HScroll1Max = row.side;
        resize(row.side);
        EXPECT_EQ(picture.kepSzeles.text(), QLatin1String(row.kepSzeles));
        EXPECT_EQ(picture.kepMagas.text(), QLatin1String(row.kepMagas));
        EXPECT_EQ(picture.Image3, QRectF(QPointF(620, 1240), row.box));
        EXPECT_EQ(picture.lbSzeles, QString::fromUtf8(row.lbSzeles));
        EXPECT_EQ(picture.lbMagas, QString::fromUtf8(row.lbMagas));
        EXPECT_EQ(picture.HScroll1Max, row.most);
        EXPECT_EQ(picture.HScroll1, row.scroll);
        EXPECT_DOUBLE_EQ(pictureOnEnvelope(picture).width(), picture.kepSzeles.text().toDouble() * 10);
    }
}

TEST_F(EnvelopePictureTest, WithoutAPictureOnlyTheBoxIsSized) {
    stored = zeroRecord<Kepment>(); // the first start
    restore();
    EXPECT_EQ(picture.Image3, QRectF(0, 0, 1900, 1900));
    resize(5000);
    EXPECT_EQ(picture.Image3, QRectF(0, 0, 5000, 5000));
    EXPECT_EQ(picture.lbSzeles, QString());
    picture.kepFajl = path; // not there
    resize(3000);
    EXPECT_EQ(picture.Image3, QRectF(0, 0, 3000, 3000));
    EXPECT_EQ(picture.HScroll1Max, 8000);
}

TEST_F(EnvelopePictureTest, FollowsItsFileFromOneActivationToTheNext) {
    save(800, 400);
    restore();
    const qint64 key = picture.picture.cacheKey();
    resize(2100);
    EXPECT_EQ(picture.picture.cacheKey(), key); // not read again
    save(400, 400);
    resize(2100);
    EXPECT_EQ(picture.pixels, QSize(400, 400));
    QFile::remove(path);
    resize(2200);
    EXPECT_TRUE(picture.picture.isNull()); // nothing is painted
    EXPECT_EQ(picture.lbSzeles, u"3,9 cm"_s);
}

TEST_F(EnvelopePictureTest, PositionLabelsFollowTheEnvelope) {
    restore();
    const std::tuple<EnvelopeType, const char*, const char*> types[] = {{EnvelopeType::C6, "14 28", "14 28"},
                                                                        {EnvelopeType::C5, "14 40", "20 40"},
                                                                        {EnvelopeType::C56, "14 28", "14 28"}};
    for (const auto& [type, shown, found] : types) {
        picture.type = type;
        showFoundPosition(picture);
        EXPECT_EQ(position(), found);
        showPicturePosition(picture);
        EXPECT_EQ(position(), shown);
        const QRectF place = pictureOnEnvelope(picture);
        EXPECT_EQ(twipsOf(picture, place.topLeft()), picture.Image3.topLeft());
    }
    const std::pair<double, const char*> positions[] = {
        {10, " "}, {-21, " "}, {22, "1 1"}, {-22, "-1 -1"}, {-220, "-5 -5"}};
    for (const auto& [twips, shown] : positions) {
        picture.Image3.moveTo(twips, twips);
        showPicturePosition(picture);
        EXPECT_EQ(position(), shown) << twips;
    }
}

TEST_F(EnvelopePictureTest, TheMouseDragsItFromWhereItHoldsIt) {
    restore();
    movePicture(picture, {500, 500}); // not held
    EXPECT_EQ(picture.Image3.topLeft(), QPointF(620, 1240));
    pressPicture(picture, {100.4, 49.6});
    movePicture(picture, {144, 6});
    EXPECT_EQ(picture.Image3.topLeft(), QPointF(664, 1196));
    EXPECT_EQ(position(), "15 27");
    movePicture(picture, {-9900, -9950}); // off the envelope
    EXPECT_EQ(picture.Image3.topLeft(), QPointF(-9336, -8804));
    releasePicture(picture);
    movePicture(picture, {500, 500});
    EXPECT_EQ(picture.Image3.topLeft(), QPointF(-9336, -8804));
}

TEST_F(EnvelopePictureTest, TheWarningTrailsByOneMoveUntilTheRelease) {
    save(320, 320);
    restore(); // 3,7 cm high
    const std::pair<EnvelopeType, int> types[] = {
        {EnvelopeType::C6, 77 * 44}, {EnvelopeType::C5, 125 * 31}, {EnvelopeType::C56, 77 * 44}};
    for (const auto& [type, lowest] : types) {
        picture.type = type;
        picture.Image3.moveTop(lowest);
        showPicturePosition(picture);
        const double millimetre = twipsOf(picture, {0, 1}).y();
        pressPicture(picture, {0, 0});
        movePicture(picture, {0, millimetre});
        EXPECT_EQ(picture.lbFigyelem, QString()); // it stood at the edge before the move
        movePicture(picture, {0, 0});
        EXPECT_EQ(picture.lbFigyelem, u"A kép alja lelóg a borítékról!"_s);
        movePicture(picture, {0, -millimetre});
        EXPECT_NE(picture.lbFigyelem, QString());
        releasePicture(picture);
        EXPECT_EQ(picture.lbFigyelem, QString());
    }
}

TEST_F(EnvelopePictureTest, ComesBackAsItWasStored) {
    save(800, 400);
    restore();
    resize(9000); // beyond the scroll bar's first maximum
    for (const auto& [placed, kept] :
         {std::pair{QPointF(-100.5, 0.4), QPoint(-101, 0)}, {QPointF(1e9, -1e9), QPoint(32767, -32768)}}) {
        picture.Image3.moveTopLeft(placed);
        ASSERT_TRUE(storePicture(picture, stored));
        const EnvelopePicture before = picture;
        restore();
        EXPECT_EQ(picture.Image3, QRectF(kept, before.Image3.size()));
        EXPECT_EQ(picture.kepFajl, path);
        EXPECT_EQ(picture.kepSzeles, before.kepSzeles);
    }
    const Kepment last = stored;
    for (const QString& bad : {u"/képek/Ж.jpg"_s, u'/' + QString(255, u'x'), u"/kép.jpg "_s}) {
        picture.kepFajl = bad;
        EXPECT_FALSE(storePicture(picture, stored)) << bad.toStdString();
        EXPECT_EQ(std::memcmp(&stored, &last, sizeof stored), 0);
    }
}

TEST_F(EnvelopePictureTest, ADamagedRecordLeavesAnEmptyBoxWithinReason) {
    for (const char byte : {'\xff', '\0', '9', '\x7f', '\x80'}) {
        std::memset(static_cast<void*>(&stored), byte, sizeof stored);
        restore();
        EXPECT_TRUE(picture.picture.isNull());
        EXPECT_EQ(picture.Image3.size(), QSizeF(1900, 1900));
        movePicture(picture, {0, 0});
        EXPECT_TRUE(storePicture(picture, stored));
    }
}

} // namespace
