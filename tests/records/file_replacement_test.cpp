#include "records/file_replacement.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;

TEST(FileReplacement, PutsWholeFilesInPlaceAndClearsWhatAKillLeft) {
    const TestFolder folder;
    const QString path = folder.folder().file(u"a.dat"_s);
    for (const QByteArray& bytes : {QByteArray("first"), QByteArray(100000, 'x'), QByteArray()}) {
        EXPECT_TRUE(replaceFile(path, bytes));
        EXPECT_EQ(folder.bytes(u"a.dat"_s), bytes);
    }
    EXPECT_FALSE(replaceFile(folder.folder().file(u"nincs/a.dat"_s), "x"));

    for (const QString& name : {u"a.dat.~4711"_s, u"b.dat"_s, u"a.dat.mentes"_s, u"a.~1~"_s})
        folder.setBytes(name, "b");
    removeUnfinished(folder.folder().path());
    EXPECT_EQ(QDir(folder.folder().path()).entryList(QDir::Files),
              (QStringList{u"a.dat"_s, u"a.dat.mentes"_s, u"a.~1~"_s, u"b.dat"_s}));
    EXPECT_TRUE(moveOnto(folder.folder().file(u"b.dat"_s), path));
    EXPECT_EQ(folder.bytes(u"a.dat"_s), QByteArray("b"));
    EXPECT_FALSE(moveOnto(folder.folder().file(u"b.dat"_s), path));
}

// Where holding a file keeps others from replacing it (Windows) that alone is tried here.
TEST(FileReplacement, WaitsForWhoHoldsTheFileForAMoment) {
    const TestFolder folder;
    folder.setBytes(u"a.dat"_s, "old");
    const QString path = folder.folder().file(u"a.dat"_s);
    QFile held(path);
    ASSERT_TRUE(held.open(QIODevice::ReadOnly));
    const std::jthread backup([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        held.close();
    });
    EXPECT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(folder.bytes(u"a.dat"_s), QByteArray("new"));
}
