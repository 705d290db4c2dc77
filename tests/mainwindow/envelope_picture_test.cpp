#include "mainwindow/envelope_picture.h"

#include "records/record_file.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace {

class EnvelopePicture : public testing::Test {
protected:
    TestFolder files;
    EnvelopeTab tab;
    QString path = files.folder().file(QStringLiteral("kép.bmp"));
    Kepment stored = zeroRecord<Kepment>();

    EnvelopePicture() {
        stored.kepFajl.set(path);
        stored.Left = 620;
        stored.Top = 1240;
        stored.Width = Cur(2000);
        stored.Height = Cur(1000);
    }
    // In pixels, of 26.46 hundredths of a millimetre each, whatever the file says of their density.
    void savePicture(int width, int height) const {
        QImage image(width, height, QImage::Format_RGB32);
        image.setDotsPerMeterX(10000);
        image.setDotsPerMeterY(10000);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(path));
    }
    void restore() {
        tab = {};
        restorePicture(tab, stored);
    }
};

TEST_F(EnvelopePicture, ShrinksIntoItsStoredBox) {
    const struct {
        int width, height;                // of the file, pixels
        const char *kepSzeles, *kepMagas; // cm
        QSizeF box;                       // twips
    } pictures[] = {{800, 400, "3.6832", "1.8416", {2000, 1000}},
                    {400, 800, "1.8416", "3.6832", {1000, 2000}},
                    {320, 320, "3.6832", "3.6832", {2000, 2000}},
                    {36, 18, "1.7541", "0.8771", {2000, 2000}}}; // small enough as it is
    for (const auto& picture : pictures) {
        savePicture(picture.width, picture.height);
        restore();
        EXPECT_EQ(tab.kepSzeles.text(), QLatin1String(picture.kepSzeles));
        EXPECT_EQ(tab.kepMagas.text(), QLatin1String(picture.kepMagas));
        EXPECT_EQ(tab.Image3, QRectF(QPointF(620, 1240), picture.box));
        EXPECT_DOUBLE_EQ(pictureOnEnvelope(tab).width(), tab.kepSzeles.text().toDouble() * 10);
    }
}

TEST_F(EnvelopePicture, ItsPositionFollowsTheEnvelope) {
    restore();
    const std::pair<EnvelopeType, int> types[] = {
        {EnvelopeType::C6, 28}, {EnvelopeType::C5, 40}, {EnvelopeType::C56, 28}};
    for (const auto& [type, down] : types) {
        tab.type = type;
        showPicturePosition(tab);
        EXPECT_EQ(tab.lbXpoz, QStringLiteral("14"));
        EXPECT_EQ(tab.lbYpoz, QString::number(down));
    }
    stored.Left = 10; // a quarter of a millimetre
    restore();
    EXPECT_EQ(tab.lbXpoz, QString());
}

TEST_F(EnvelopePicture, AFileThatIsNoPictureLeavesTheBoxEmpty) {
    restore(); // gone
    EXPECT_TRUE(tab.picture.isNull());
    EXPECT_EQ(tab.kepFajl, path);
    files.setBytes(QStringLiteral("kép.bmp"), "BM nem kép");
    restore();
    EXPECT_TRUE(tab.picture.isNull());
    EXPECT_EQ(tab.kepSzeles, Cur(0));
    for (const char byte : {'\xff', '\0', '9'}) {
        std::memset(static_cast<void*>(&stored), byte, sizeof stored);
        restore();
        EXPECT_TRUE(tab.picture.isNull());
        EXPECT_GE(tab.Image3.width(), 1900); // the least that the box can be set to
        EXPECT_LE(tab.Image3.width(), 8000);
    }
}

TEST_F(EnvelopePicture, TransparencyBecomesWhite) {
    QImage image(200, 100, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(0, 0, Qt::red);
    ASSERT_TRUE(image.save(path, "PNG"));
    restore();
    EXPECT_FALSE(tab.picture.hasAlphaChannel());
    EXPECT_EQ(tab.picture.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(tab.picture.pixelColor(1, 0), QColor(Qt::white));
}

} // namespace
