#include "picture/picture_file.h"

#include "support/test_folder.h"

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray encoded(const char* format, QImage::Format pixels = QImage::Format_RGB32, QColor color = Qt::white) {
    QImage image(QSize(40, 20), QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    image.convertToFormat(pixels).save(&buffer, format);
    return buffer.data();
}

// A camera that was turned by a quarter.
QByteArray turned() {
    const QByteArray exif = QByteArray::fromHex("ffe10022457869660000" // Exif
                                                "49492a0008000000"     // little-endian, directory at 8
                                                "0100120103000100000006000000"
                                                "00000000");
    return encoded("JPG").insert(2, exif);
}

// A white one, then a black one.
QByteArray twoFrames() {
    return QByteArray::fromHex("47494638396102000100800000ffffff000000"
                               "2c00000000020001000002 02 040a 00"
                               "2c00000000020001000002 02 4c0a 00 3b");
}

TEST(PictureFile, ReadsWhatAnOfficeMayHave) {
    const TestFolder files;
    const struct {
        const char* what;
        QByteArray bytes;
        QSize pixels; // invalid for what is no picture
    } rows[] = {
        {"BMP of 24 bits", encoded("BMP"), {40, 20}},
        {"BMP of 8 bits", encoded("BMP", QImage::Format_Indexed8), {40, 20}},
        {"BMP of 1 bit", encoded("BMP", QImage::Format_Mono), {40, 20}},
        {"JPEG", encoded("JPG"), {40, 20}},
        {"grey JPEG", encoded("JPG", QImage::Format_Grayscale8), {40, 20}},
        {"turned JPEG", turned(), {40, 20}},
        {"transparent PNG", encoded("PNG", QImage::Format_ARGB32, Qt::transparent), {40, 20}},
        {"GIF of two frames", twoFrames(), {2, 1}},
        {"cut JPEG", encoded("JPG").left(200), {}},
        {"cut BMP", encoded("BMP").left(40), {}},
        {"nothing", {}, {}},
        {"text", "BM nem kép", {}},
        {"BMP of absurd size", encoded("BMP").replace(18, 8, QByteArray::fromHex("ffffff7fffffff7f")), {}},
    };
    const QString path = files.folder().file(u"kép.bmp"_s); // the ending says nothing
    for (const auto& row : rows) {
        files.setBytes(u"kép.bmp"_s, row.bytes);
        const PictureFile file = readPicture(path, 4096);
        EXPECT_EQ(file.image.isNull(), !row.pixels.isValid()) << row.what;
        if (!row.pixels.isValid()) continue;
        EXPECT_EQ(file.pixels, row.pixels) << row.what;
        EXPECT_EQ(file.image.pixelColor(0, 0), QColor(Qt::white)) << row.what;
    }
}

TEST(PictureFile, WhatIsNoFileIsNoPicture) {
    const TestFolder files;
    const QString folder = files.folder().path();
    const QString loop = files.folder().file(u"kör.jpg"_s);
    QFile::link(loop, loop);
    for (const QString& path : {QString(), folder, folder + u"/nincs.jpg"_s, loop})
        EXPECT_TRUE(readPicture(path, 100).image.isNull()) << path.toStdString();
}

TEST(PictureFile, IsDecodedAsSmallAsItIsAskedFor) {
    const TestFolder files;
    const QString path = files.folder().file(u"kép.jpg"_s);
    files.setBytes(u"kép.jpg"_s, encoded("JPG"));
    for (const auto& [most, size] :
         {std::pair{10, QSize(10, 5)}, {1, QSize(1, 1)}, {40, QSize(40, 20)}, {4096, QSize(40, 20)}}) {
        const PictureFile file = readPicture(path, most);
        EXPECT_EQ(file.image.size(), size);
        EXPECT_EQ(file.pixels, QSize(40, 20));
    }
}

} // namespace
