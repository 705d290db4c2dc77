#include "records/record_file.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"Proba.dat"_s;

struct Rec {
    static constexpr auto fileName = "Proba.dat";
    Text<3> text;
};

QByteArray bytesOf(const Rec& rec) { return {rec.text.data(), 3}; }

const Rec abc{QStringView(u"abc")};

} // namespace

TEST(RecordFile, ReadsAndWritesWhateverTheFileHolds) {
    const QByteArray zeros(3, '\0');
    const QByteArray ones(3, '\xFF');
    struct {
        const char* what;
        QByteArray before;
        qint64 count, readAt;
        QByteArray read;
        qint64 writeAt;
        QByteArray after; // of writing "abc"
    } const rows[] = {
        {"empty", "", 0, 1, zeros, 1, "abc"},
        {"one", "xyz", 1, 1, "xyz", 2, "xyzabc"},
        {"overwritten", "uvwxyz", 2, 2, "xyz", 1, "abcxyz"},
        {"odd tail is not read", "xyzO", 1, 2, zeros, 1, "abcO"},
        {"odd tail is overwritten by an append", "xyzOO", 1, 1, "xyz", 2, "xyzabc"},
        {"only a tail", "OO", 0, 1, zeros, 1, "abc"},
        {"gap", "xyz", 1, 9, zeros, 3, "xyz" + zeros + "abc"},
        {"gap over a tail", "xyzOO", 1, 0, zeros, 3, "xyz" + zeros + "abc"},
        {"all 0xFF", ones + ones + "\xFF", 2, 2, ones, 2, ones + "abc\xFF"},
        {"all NUL", zeros + zeros, 2, 2, zeros, 3, zeros + zeros + "abc"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const TestFolder folder;
        folder.setBytes(name, row.before);
        RecordFile<Rec> file(folder);
        EXPECT_EQ(file.count(), row.count);
        EXPECT_EQ(bytesOf(file.read(row.readAt)), row.read);
        EXPECT_EQ(file.readAll(), row.before.first(3 * row.count));
        EXPECT_EQ(folder.bytes(name), row.before) << "reading changed the file";
        EXPECT_TRUE(file.write(row.writeAt, abc));
        EXPECT_EQ(folder.bytes(name), row.after);
        EXPECT_FALSE(file.write(0, abc));
    }
}

TEST(RecordFile, IsReadWholeToTheBeginningOfAPage) {
    const TestFolder folder;
    PageBuffer bytes;
    for (const int count : {0, 3, 2, 4000, 4001}) {
        const QByteArray stored(count * 3, static_cast<char>('a' + count % 7));
        folder.setBytes(name, stored + "xy"); // an incomplete tail
        ASSERT_TRUE(RecordFile<Rec>(folder).readAllInto(bytes));
        EXPECT_EQ(QByteArrayView(bytes.constData(), bytes.size()), stored) << count;
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes.constData()) % 4096, 0U);
    }
}

TEST(RecordFile, OpeningCreatesAMissingFileEmptyAndUpdateKeepsWhatTheCallerDoesNotOwn) {
    const TestFolder folder;
    EXPECT_EQ(bytesOf(readRecord<Rec>(folder)), QByteArray(3, '\0'));
    EXPECT_TRUE(folder.has(name));
    EXPECT_EQ(folder.bytes(name), QByteArray());
    for (const auto& [before, after] : {std::pair{"xyzO", "x!zO"}, {"xyz", "x!z"}}) {
        folder.setBytes(name, before);
        EXPECT_TRUE(updateRecord<Rec>(folder, [](Rec& rec) { rec.text.data()[1] = '!'; }));
        EXPECT_EQ(folder.bytes(name), QByteArray(after));
    }
    folder.setBytes(name, "x"); // a record that lost its end keeps what it has
    EXPECT_EQ(bytesOf(readRecord<Rec>(folder)), QByteArray("x\0\0", 3));
}

TEST(RecordFile, WhatCannotBeOpenedIsNoEmptyFile) {
    const TestFolder folder;
    QDir(folder.folder().path()).mkdir(name);
    RecordFile<Rec> file(folder);
    EXPECT_EQ(file.count(), 0);
    EXPECT_THROW(file.read(1), UnreadableFile);
    EXPECT_THROW(file.readAll(), UnreadableFile);
    EXPECT_THROW(updateRecord<Rec>(folder, [](Rec&) {}), UnreadableFile);
    EXPECT_FALSE(file.isWritable());
    EXPECT_FALSE(file.write(1, abc));
}

TEST(RecordFile, WriteProtectedFileIsStillRead) {
    const TestFolder folder;
    folder.setBytes(name, "xyz");
    const QString path = folder.folder().file(name);
    QFile::setPermissions(path, QFile::ReadOwner);
    if (QFile probe(path); probe.open(QIODevice::ReadWrite)) GTEST_SKIP() << "this user may write anything";
    EXPECT_EQ(bytesOf(readRecord<Rec>(folder)), QByteArray("xyz"));
    EXPECT_FALSE(updateRecord<Rec>(folder, [](Rec& rec) { rec = abc; }));
    EXPECT_EQ(folder.bytes(name), QByteArray("xyz"));
}
