#include "mainwindow/client_list_model.h"
#include "support/test_folder.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace {

class ClientList : public testing::Test {
protected:
    void store(std::initializer_list<const char16_t*> names) {
        qint64 k = 0;
        for (const char16_t* name : names)
            folder.store(clientNamed(QString::fromUtf16(name)), ++k);
    }
    QString text(int row, int column) { return model.data(model.index(row, column), Qt::DisplayRole).toString(); }
    void setWritten(const QDateTime& time) const {
        QFile file(folder.folder().file(QStringLiteral("nevek1.dat")));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    // Of the records in view, parted by blanks.
    std::string numbers() const {
        std::string all;
        for (const int number : model.recordNumbers())
            all += (all.empty() ? "" : " ") + std::to_string(number);
        return all;
    }

    TestFolder folder;
    ClientListModel model;
};

TEST_F(ClientList, ShowsNameAddressAndNumber) {
    store({u"Kiss Anna", u" Nagy Éva "});
    model.Beolvas(folder);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(text(1, 0), QStringLiteral("Nagy Éva"));
    EXPECT_EQ(text(0, 1), QStringLiteral("1024   Budapest, ") + QStringLiteral("Fő utca 1.").leftJustified(45));
    EXPECT_EQ(text(1, 2), QStringLiteral("     2"));
    model.cmdBeolvas_Click(folder);
    EXPECT_EQ(text(1, 2), QStringLiteral("2"));
    EXPECT_EQ(model.recordNumber(1), 2);
    EXPECT_EQ(model.rowOf(2), 1);
    EXPECT_EQ(model.rowOf(3), -1);
    EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("rec"));
}

TEST_F(ClientList, OddFilesStandInTheListAsTheyAre) {
    constexpr qsizetype recordLength = 271;
    const auto rows = [&](const QByteArray& bytes) {
        folder.setBytes(QStringLiteral("nevek1.dat"), bytes);
        for (const int column : {0, 1, 2}) {
            model.setSort(column, Qt::AscendingOrder);
            model.Beolvas(folder);
        }
        for (int row = 0; row < model.rowCount(); ++row)
            EXPECT_EQ(text(row, 2).trimmed(), QString::number(model.recordNumber(row))) << text(row, 1).toStdString();
        model.search(folder, u"a");
        return model.rowCount();
    };
    model.Beolvas(folder); // no file yet
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(folder.has(QStringLiteral("nevek1.dat")));
    EXPECT_EQ(rows(QByteArray(recordLength - 1, 'a')), 0);
    EXPECT_EQ(rows(QByteArray(recordLength + 100, 'a')), 1);
    EXPECT_EQ(rows(QByteArray(3 * recordLength, '\0')), 0);
    EXPECT_EQ(rows(QByteArray(3 * recordLength, '\xFF')), 0);
    QByteArray afterNul(recordLength, ' ');
    afterNul.replace(0, 4, QByteArray("b\0a ", 4));
    EXPECT_EQ(rows(afterNul), 0); // a NUL ends the name
    EXPECT_EQ(model.data(QModelIndex(), Qt::DisplayRole), QVariant());
}

TEST_F(ClientList, SearchFindsPartsOfNamesInAnyCase) {
    store({u"Kovács Éva", u"KOVÁCSNÉ Ősz Anna", u"Szőke Béla?", u"nagy  éva", u"Ž. Łukasz"});
    const std::pair<const char*, std::vector<const char16_t*>> searches[] = {
        {"1 2 3 4 5", {u"", u"   "}},
        {"1 2", {u"kovács"}},
        {"1 4", {u" ÉVA "}},
        {"2 3", {u"ő", u"õ"}}, // the second by a keyboard without the Hungarian letter
        {"2", {u"an", u"nna"}},
        {"4", {u"nagy  éva"}},
        {"5", {u"ž. ł"}},
        {"3", {u"?"}},
        {"", {u"nagy éva", u"eva", u"Ω", u"cs n", u"Fő utca"}}}; // the address isn't looked at
    for (const auto& [found, texts] : searches) {
        for (const char16_t* text : texts) {
            model.search(folder, text);
            EXPECT_EQ(numbers(), found) << QString::fromUtf16(text).toStdString();
        }
    }
    model.search(folder, QString(300, u'a'));
    EXPECT_EQ(model.rowCount(), 0);
    model.search(folder, u"éva");
    EXPECT_EQ(text(1, 2), QStringLiteral("4")); // bare
    store({u"Éva is here now"});
    model.search(folder, u"éva"); // reads the file afresh
    EXPECT_EQ(numbers(), "1 4");
}

TEST_F(ClientList, SearchReadsAFileAgainOnlyWhenItHasBeenWritten) {
    store({u"Zita", u"Éva"});
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime written = now.addSecs(-60);
    const QDateTime later = now.addSecs(-58); // clocks of disks step by up to two seconds
    setWritten(written);
    model.setSort(0, Qt::AscendingOrder);
    model.search(folder, {});
    EXPECT_EQ(numbers(), "2 1");
    const auto storeAs = [&](std::initializer_list<const char16_t*> names, const QDateTime& time) {
        store(names);
        setWritten(time);
        model.search(folder, {});
        return numbers();
    };
    EXPECT_EQ(storeAs({u"Bea", u"Éva"}, written), "2 1") << "the same size and time";
    EXPECT_EQ(storeAs({u"Bea", u"Éva"}, later), "1 2");
    EXPECT_EQ(storeAs({u"Bea", u"Éva", u"Ida"}, later), "1 2 3");
    EXPECT_EQ(storeAs({u"Zita"}, now), "2 3 1");
    EXPECT_EQ(storeAs({u"Bea"}, now), "1 2 3") << "a file written just now may be written again at the same time";
    EXPECT_TRUE(QFile::remove(folder.folder().file(QStringLiteral("nevek1.dat"))));
    model.search(folder, u"a");
    EXPECT_EQ(model.clientCount(), 0);
}

TEST_F(ClientList, SortIsOffUntilSetAndThenKeptAsRowsLeave) {
    store({u"Zsolt", u"Ádám", u"zoltán", u"Adam", u"ádám", u" Vezető blank"});
    model.Beolvas(folder);
    EXPECT_EQ(numbers(), "1 2 3 4 5 6");
    const QPersistentModelIndex selected = model.index(0, 1);
    model.setSort(0, Qt::AscendingOrder);
    EXPECT_EQ(numbers(), "6 4 2 5 3 1");    // 2 and 5 are equal: as in the file
    EXPECT_EQ(selected, model.index(5, 1)); // the selection goes along
    model.setSort(0, Qt::DescendingOrder);
    EXPECT_EQ(numbers(), "1 3 2 5 4 6");
    model.Beolvas(folder);
    EXPECT_EQ(numbers(), "1 3 2 5 4 6");
    const QPersistentModelIndex last = model.index(5, 0);
    model.removeRows({2, 1, 2});
    EXPECT_EQ(numbers(), "1 5 4 6");
    EXPECT_EQ(last.row(), 3); // a block goes without disturbing the others
    model.removeRows({0, 2});
    model.setSort(0, Qt::AscendingOrder);
    EXPECT_EQ(numbers(), "6 5"); // what has left the list stays out
    EXPECT_EQ(model.sortColumn(), 0);
    model.search(folder, u"d");
    EXPECT_EQ(numbers(), "4 2 5"); // until the file is read again
}

TEST_F(ClientList, NumbersSortAsTexts) {
    for (qint64 k = 1; k <= 100; ++k)
        folder.store(clientNamed(QStringLiteral("A")), k);
    model.setSort(2, Qt::AscendingOrder);
    model.Beolvas(folder);
    EXPECT_EQ(model.recordNumbers()[1], 2); // the blanks ahead put them in numeric order
    model.cmdBeolvas_Click(folder);
    EXPECT_EQ(numbers().rfind("1 10 100 11 ", 0), 0U);
    setWritten(QDateTime::currentDateTime().addSecs(-60));
    model.Beolvas(folder);
    model.search(folder, u"a");
    EXPECT_EQ(numbers().rfind("1 10 100 11 ", 0), 0U) << "the numbers have become bare";
}

TEST_F(ClientList, AddressesSortInHungarianOrderToo) {
    for (qint64 k = 0; const auto& [town, postcode] :
                       {std::pair{u"Szeged", u"6720"}, {u"Sopron", u"6720"}, {u"Berlin", u""}, {u"Ózd", u"3600"}}) {
        ClientRec client = clientNamed(QStringLiteral("A"));
        client.Helyseg.set(town);
        client.Irsz.set(postcode);
        folder.store(client, ++k);
    }
    model.Beolvas(folder);
    model.setSort(1, Qt::AscendingOrder);
    EXPECT_EQ(numbers(), "3 4 2 1");
}

} // namespace
