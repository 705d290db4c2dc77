#include "mainwindow/hungarian_order.h"
#include "records/windows1250.h"

#include <QStringList>

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
const QStringList inOrder =
    QString::fromUtf8(
        " Zoltán|_alsó|-|(név nélkül)|&Co|0 Kft.|10 Kft.|3 Kft.|Abay|Ábay|Acél|Áder|Bodó|Bódó|Cukor|Czukor|"
        "Csák|=CSÁK|Csók|Damjanich|Dzeta|Dzsida|Elek|Élő|Gazdag|Gyarmati|Kasza|Kassza|Kis|Kis Anna|Kis-Nagy|"
        "Kisbán|Kiss|Kiss Béla|Kovács Éva|Kovács Zoé|Kovács-Nagy|Kovácsné|Labanc|Lakatos|Lyka|Nagy|Nógrádi|"
        "Nyáry|Obersovszky|Ózdi|Ökrös|Ősz|Özséb|Pap|Papp|Sas|Soós|Szabó|=szabÓ|Szűcs|Takács|Tóth|Tyukodi|"
        "Ubrizsy|Üdvös|Űr|Üveges|Zala|Zrínyi|Zsák|=Zsák")
        .split(u'|');

TEST(HungarianOrder, ListsNamesAsADirectoryDoes) {
    QString before;
    for (QString name : inOrder) {
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

TEST(HungarianOrder, TakesAnyBytes) {
    QByteArray all;
    for (int i = 1; i < 256; ++i)
        all += static_cast<char>(i);
    std::string key(hungarian_order::keyRoom(255), '\0');
    EXPECT_LE(hungarian_order::writeKey(all, key.data()), key.data() + key.size());
}

} // namespace
