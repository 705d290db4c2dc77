#include "records/delivered_files.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(DeliveredFiles, WhatIsLackingComesAndWhatIsThereStays) {
    const TestFolder folder;
    const QString delivered = folder.folder().file(deliveredFolder);
    EXPECT_TRUE(placeDelivered(delivered, folder).isEmpty()) << "nothing was delivered";
    ASSERT_TRUE(QDir().mkpath(delivered));
    for (const QString& name : {u"Changed.dat"_s, u"Empty.dat"_s, u"Feladójegyzéküres.xls"_s, u"Set.dat"_s})
        folder.setBytes(deliveredFolder + u'/' + name, "delivered");
    folder.setBytes(u"Changed.dat"_s, "own");
    folder.setBytes(u"Empty.dat"_s, "");
    folder.block(u"Set.dat"_s);

    for (int start = 0; start < 2; ++start) { // the second finds what the first has left
        EXPECT_EQ(placeDelivered(delivered, folder), QStringList{u"Set.dat"_s});
        EXPECT_EQ(folder.bytes(u"Changed.dat"_s), QByteArray("own"));
        EXPECT_EQ(folder.bytes(u"Empty.dat"_s), QByteArray("delivered"));
        EXPECT_EQ(folder.bytes(u"Feladójegyzéküres.xls"_s), QByteArray("delivered"));
    }
    EXPECT_EQ(QDir(folder.folder().path()).entryList(QDir::Files).size(), 3) << "nothing half-done lies about";
    EXPECT_EQ(folder.bytes(deliveredFolder + u"/Empty.dat"_s), QByteArray("delivered"));
}
