#include "mainwindow/hungarian_order.h"
#include "records/windows1250.h"

#include <QCollator>

#include <gtest/gtest.h>

namespace {

std::string keyOf(const QString& text) {
    const QByteArray bytes = windows1250::encode(text);
    std::string key(hungarian_order::keyRoom(static_cast<std::size_t>(bytes.size())), '\x7F');
    const char* end = hungarian_order::writeKey(bytes, key.data());
    EXPECT_LE(end, key.data() + key.size());
    return key.c_str();
}

int sign(int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; }

// Each stands before the next, unless it begins with '=', which makes it equal to the one before.
const char16_t* const inOrder[] = {
    u" Zoltán", u"_alsó",     u"-",          u"(név nélkül)", u"&Co",         u"0 Kft.",   u"10 Kft.",  u"3 Kft.",
    u"Abay",    u"Ábay",      u"Acél",       u"Áder",         u"Bodó",        u"Bódó",     u"Cukor",    u"Czukor",
    u"Csák",    u"=CSÁK",     u"Csók",       u"Damjanich",    u"Dzeta",       u"Dzsida",   u"Elek",     u"Élő",
    u"Gazdag",  u"Gyarmati",  u"Kasza",      u"Kassza",       u"Kis",         u"Kis Anna", u"Kis-Nagy", u"Kisbán",
    u"Kiss",    u"Kiss Béla", u"Kovács Éva", u"Kovács Zoé",   u"Kovács-Nagy", u"Kovácsné", u"Labanc",   u"Lakatos",
    u"Lyka",    u"Nagy",      u"Nógrádi",    u"Nyáry",        u"Obersovszky", u"Ózdi",     u"Ökrös",    u"Ősz",
    u"Özséb",   u"Pap",       u"Papp",       u"Sas",          u"Soós",        u"Szabó",    u"=szabÓ",   u"Szűcs",
    u"Takács",  u"Tóth",      u"Tyukodi",    u"Ubrizsy",      u"Üdvös",       u"Űr",       u"Üveges",   u"Zala",
    u"Zrínyi",  u"Zsák",      u"=Zsák",
};

TEST(HungarianOrder, ListsNamesAsADirectoryDoes) {
    QString before;
    for (const char16_t* row : inOrder) {
        QString name = QString::fromUtf16(row);
        const bool same = name.startsWith(u'=');
        if (same) name.remove(0, 1);
        if (!before.isEmpty()) {
            EXPECT_EQ(sign(keyOf(before).compare(keyOf(name))), same ? 0 : -1)
                << before.toStdString() << " / " << name.toStdString();
        }
        before = name;
    }
    EXPECT_EQ(keyOf(QStringLiteral("ssz")), keyOf(QStringLiteral("szsz")));
    EXPECT_EQ(keyOf(QStringLiteral("ddzs")), keyOf(QStringLiteral("dzsdzs")));
    EXPECT_EQ(keyOf(QString()), std::string());
}

// Compares with the toolkit's collator every name of the list with every other.
TEST(HungarianOrder, AgreesWithTheCollator) {
    QCollator collator(QLocale(QLocale::Hungarian, QLocale::Hungary));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    if (collator.compare(u"cukor", u"csap") >= 0 || collator.compare(u"ob", u"öa") >= 0)
        GTEST_SKIP() << "this build of the toolkit knows no Hungarian order";
    QStringList names;
    for (const char16_t* row : inOrder)
        names << QString::fromUtf16(row);
    for (const QString& a : names)
        for (const QString& b : names)
            EXPECT_EQ(sign(keyOf(a).compare(keyOf(b))), sign(collator.compare(a, b)))
                << a.toStdString() << " / " << b.toStdString();
}

TEST(HungarianOrder, TakesAnyBytes) {
    QByteArray all(256, '\0');
    for (int i = 1; i < 256; ++i)
        all[i - 1] = static_cast<char>(i);
    all.chop(1);
    std::string key(hungarian_order::keyRoom(255), '\0');
    EXPECT_LE(hungarian_order::writeKey(all, key.data()), key.data() + key.size());
}

} // namespace
