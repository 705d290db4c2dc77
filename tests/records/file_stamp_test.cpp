#include "records/file_stamp.h"
#include "support/test_folder.h"

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(FileStamp, TellsAFileByItsSizeAndTime) {
    const TestFolder folder;
    const QString path = folder.folder().file(u"Proba.dat"_s);
    EXPECT_FALSE(fileStamp(path));

    const QDateTime now = QDateTime::currentDateTime();
    const auto stampOf = [&](const QByteArray& bytes, const QDateTime& written) {
        folder.setBytes(u"Proba.dat"_s, bytes);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(written, QFileDevice::FileModificationTime));
        return *fileStamp(path);
    };
    const FileStamp stamp = stampOf("abc", now.addSecs(-60));
    EXPECT_EQ(stamp, stampOf("xyz", now.addSecs(-60)));
    EXPECT_NE(stamp, stampOf("abcd", now.addSecs(-60)));
    EXPECT_NE(stamp, stampOf("abc", now.addSecs(-58))) << "clocks of disks step by up to two seconds";

    EXPECT_TRUE(showsNextWrite(stamp));
    EXPECT_FALSE(showsNextWrite(stampOf("abc", now)));
    EXPECT_FALSE(showsNextWrite(stampOf("abc", now.addSecs(60)))) << "the clock of a server may be ahead";
}
