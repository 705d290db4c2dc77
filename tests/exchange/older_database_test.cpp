#include "exchange/older_database.h"

#include "records/client_database.h"
#include "support/test_folder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray number(qint64 value, int bytes) {
    return {reinterpret_cast<const char*>(&value), bytes}; // little-endian
}

// A record of the earlier version; the amounts are first, first + 1 and so on.
QByteArray olderRecord(const QByteArray& name, int postcode = 1024, int first = 0, char pad = ' ') {
    QByteArray record = name.leftJustified(30, pad) + QByteArray("Kft.").leftJustified(30, pad) +
                        QByteArray("Buda").leftJustified(20, pad) + QByteArray("F\xF5 utca 1.").leftJustified(45, pad) +
                        number(postcode, 2);
    for (int i = 0; i < 20; ++i)
        record += number(first == 0 ? 0 : first + i, 4);
    return record + QByteArray("azon").leftJustified(30, pad);
}

QByteArray currentRecords(int count, int amount) {
    QByteArray bytes;
    for (int i = 1; i <= count; ++i) {
        ClientRec client = clientNamed(u"Ügyfél %1"_s.arg(i), amount * i);
        bytes.append(reinterpret_cast<const char*>(&client), sizeof client);
    }
    return bytes;
}

class OlderDatabase : public testing::Test {
protected:
    TestFolder files;
};

} // namespace

TEST_F(OlderDatabase, EachFieldGoesToItsPlace) {
    const QByteArray old = olderRecord("\xD5ze", 1024, 500) + olderRecord("B", 0, -3, '\0') + olderRecord("C", -1) +
                           QByteArray(237, '\0') + "vége";
    files.setBytes(u"nevek1.dat"_s, old);
    files.setBytes(u"kozl3sor.dat"_s, "csonka");
    files.setBytes(u"nevek.dat"_s, "más");
    ASSERT_EQ(convertOlderDatabase(files), Conversion::converted);
    EXPECT_EQ(files.bytes(u"nevekR.dat"_s), old);
    EXPECT_EQ(files.bytes(u"kozl3sor.dat"_s), "csonka");
    EXPECT_EQ(files.bytes(u"nevek.dat"_s), QByteArray("más"));
    EXPECT_EQ(QDir(files.folder().path()).entryList(QDir::Files).size(), 4) << "something was left behind";

    ASSERT_EQ(clientCount(files), 4);
    RecordFile<ClientRec> clients(files);
    const ClientRec first = clients.read(1);
    EXPECT_EQ(first.Nev.stored(), u"Őze"_s.leftJustified(36));
    EXPECT_EQ(first.Nev2.stored(), u"Kft."_s.leftJustified(36));
    EXPECT_EQ(first.Helyseg.stored(), u"Buda"_s.leftJustified(40));
    EXPECT_EQ(first.Cim.stored(), u"Fő utca 1."_s.leftJustified(45));
    EXPECT_EQ(first.Irsz.stored(), u"1024  "_s);
    EXPECT_EQ(first.Osszegek[0], 500);
    EXPECT_EQ(first.Osszegek[11], 511);
    EXPECT_EQ(first.Azonosito.stored(), u"azon"_s.leftJustified(30));
    EXPECT_EQ(first.FizHatIdo.stored(), QString(28, u' '));
    EXPECT_FALSE(first.Kulfoldi);
    const ClientRec second = clients.read(2);
    EXPECT_EQ(QByteArray(second.Nev.data(), 36), QByteArray("B").leftJustified(36));
    EXPECT_EQ(second.Irsz.trimmed(), u"0"_s);
    EXPECT_EQ(second.Osszegek[0], -3);
    EXPECT_EQ(clients.read(3).Irsz.trimmed(), u"-1"_s);
}

TEST_F(OlderDatabase, WhatCannotBeConvertedStaysAsItIs) {
    QByteArray many;
    for (int i = 1; i <= 300; ++i)
        many += olderRecord((i % 5 == 0 ? "Kiss \x01" : "Kiss\t") + QByteArray::number(i), 1000 + 30 * i, i % 3 * 700);
    const QByteArray damaged = QByteArray(currentRecords(9, 900)).replace("Budapest", "Buda\x01est");
    // The copy is nevekR.dat, if there is one.
    const std::tuple<const char*, QByteArray, QByteArray, Conversion> cases[] = {
        {"empty", {}, {}, Conversion::nothingThere},
        {"cut", QByteArray(236, 'x'), {}, Conversion::nothingThere},
        {"nothing beside a copy", {}, "régi", Conversion::nothingThere},
        {"copy there", olderRecord("A"), "régi", Conversion::copyExists},
        {"one current client", currentRecords(1, 0), {}, Conversion::alreadyCurrent},
        {"two", currentRecords(2, 0), {}, Conversion::alreadyCurrent},
        {"current with amounts", currentRecords(40, 1234), {}, Conversion::alreadyCurrent},
        {"current, most with a byte that is no text", damaged + currentRecords(2, 0), {}, Conversion::alreadyCurrent},
        {"current, odd tail", currentRecords(7, 100) + "vége", "régi", Conversion::alreadyCurrent},
        {"older, some damaged", many, {}, Conversion::converted},
        {"rubbish", QByteArray(1000, '\x01'), {}, Conversion::converted},
    };
    for (const auto& [what, database, copy, expected] : cases) {
        for (const char* name : {"nevek.dat", "nevekR.dat", "kozl3sor.dat"})
            QFile::remove(files.folder().file(QString::fromLatin1(name)));
        files.setBytes(u"nevek1.dat"_s, database);
        if (!copy.isEmpty()) files.setBytes(u"nevekR.dat"_s, copy);
        EXPECT_EQ(convertOlderDatabase(files), expected) << what;
        const bool isConverted = expected == Conversion::converted;
        EXPECT_EQ(files.bytes(isConverted ? u"nevekR.dat"_s : u"nevek1.dat"_s), database) << what;
        EXPECT_TRUE(isConverted || copy.isEmpty() || files.bytes(u"nevekR.dat"_s) == copy) << what;
    }
}

TEST_F(OlderDatabase, UnreadableTwinsStopIt) {
    const QByteArray old = olderRecord("A") + olderRecord("B");
    files.setBytes(u"nevek1.dat"_s, old);
    ASSERT_TRUE(QDir(files.folder().path()).mkpath(u"kozl3sor.dat/x"_s));
    EXPECT_EQ(convertOlderDatabase(files), Conversion::failed);
    EXPECT_EQ(files.bytes(u"nevek1.dat"_s), old);
    EXPECT_EQ(QDir(files.folder().path()).entryList(QDir::Files), QStringList(u"nevek1.dat"_s));
}
