#include "records/catalogue.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray numbered(int entries) {
    QByteArray bytes;
    for (int i = 1; i <= entries; ++i)
        bytes += QByteArray::number(i).leftJustified(25, ' ');
    return bytes;
}

} // namespace

TEST(Catalogue, ACutEntryCountsForNothing) {
    const TestFolder folder;
    folder.setBytes(u"Kozlem.dat"_s, numbered(3).first(60));
    EXPECT_EQ(readEntries(folder, notices).size(), 2U);
    EXPECT_FALSE(removeEntry(folder, notices, 3));
    EXPECT_TRUE(appendEntry(folder, notices, u"3"));
    EXPECT_EQ(folder.bytes(u"Kozlem.dat"_s), numbered(3));
}

TEST(Catalogue, ADeletionTakesOneEntryAndLeavesNoOtherFile) {
    const TestFolder folder;
    folder.setBytes(u"nevx.dat"_s, QByteArray(271, 'x'));
    folder.setBytes(u"Kozlem.dat"_s, numbered(10000));
    for (const qint64 number : {0, -1, 10001})
        EXPECT_FALSE(removeEntry(folder, notices, number));
    EXPECT_EQ(folder.bytes(u"Kozlem.dat"_s), numbered(10000));
    EXPECT_TRUE(removeEntry(folder, notices, 9000));
    EXPECT_EQ(folder.bytes(u"Kozlem.dat"_s), numbered(10000).remove(25 * 8999, 25));
    EXPECT_EQ(folder.bytes(u"nevx.dat"_s), QByteArray(271, 'x')) << "of the client database";
    EXPECT_EQ(QDir(folder.folder().path()).entryList(QDir::Files).size(), 2);
}
