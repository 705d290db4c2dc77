#include "make_program_folder/postcode_tables.h"

#include <QString>

#include <gtest/gtest.h>

TEST(PostcodeTables, RowsBecomeTheBytesOfTheFiles) {
    const PostcodeTable settlements = settlementTable(u"helyseg;helysegresz;irsz\nGyőr;Ménfő;9012\n");
    EXPECT_EQ(settlements.badLine, 0);
    EXPECT_EQ(settlements.records,
              QByteArray("Gy\xF5r").leftJustified(20) + QByteArray("M\xE9nf\xF5").leftJustified(20) + "\x34\x23");

    const PostcodeTable budapest =
        budapestTable(u"irsz;utca;kozterulet;varosresz;hsztol;hszig;kerulet\r\n1024;Fő;utca;Vár;-2;18;II\r\n");
    EXPECT_EQ(budapest.badLine, 0);
    EXPECT_EQ(budapest.records, QByteArray("\0\x04", 2) + QByteArray("F\xF5").leftJustified(25) + "utca      " +
                                    QByteArray("V\xE1r").leftJustified(15) + QByteArray("\xFE\xFF\x12\0", 4) +
                                    "II    ");
}

TEST(PostcodeTables, ABadLineIsTold) {
    const std::pair<const char16_t*, int> rows[] = {
        {u"", 1},
        {u"irsz;helyseg\n", 1},
        {u"helyseg;helysegresz;irsz\n", 0},
        {u"helyseg;helysegresz;irsz\nAba;;8127\nAba;8127\n", 3},
        {u"helyseg;helysegresz;irsz\nAba;;81270\n", 2},
        {u"helyseg;helysegresz;irsz\nAba;;\n", 2},
        {u"helyseg;helysegresz;irsz\n;;8127\n", 2},
        {u"helyseg;helysegresz;irsz\n\nAba;;8127;\n", 3},
    };
    for (const auto& [csv, badLine] : rows)
        EXPECT_EQ(settlementTable(csv).badLine, badLine) << QString::fromUtf16(csv).toStdString();
}
