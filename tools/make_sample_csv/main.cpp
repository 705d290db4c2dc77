#include "records/windows1250.h"

#include <QCoreApplication>
#include <QSaveFile>
#include <QStringList>

#include <cstdio>
#include <random>

// make_sample_csv <count> <target file>
// Writes so many invented clients in the format of the CSV import. The same count gives the same file on every machine.

namespace {

using Names = std::initializer_list<const char16_t*>;

const Names familyNames = {u"Nagy",     u"Kovács", u"Tóth",   u"Szabó",  u"Horváth",  u"Varga",  u"Kiss",   u"Molnár",
                           u"Németh",   u"Farkas", u"Balogh", u"Papp",   u"Lakatos",  u"Takács", u"Juhász", u"Oláh",
                           u"Mészáros", u"Simon",  u"Rácz",   u"Fekete", u"Szilágyi", u"Török",  u"Fehér",  u"Balázs",
                           u"Gál",      u"Szűcs",  u"Kocsis", u"Ősz",    u"Pintér",   u"Fodor",  u"Sipos",  u"Lukács",
                           u"Gulyás",   u"Bíró",   u"Király", u"Katona", u"Bogdán",   u"Győri",  u"Üveges", u"Somogyi",
                           u"Csonka",   u"Dzsida", u"Gyenes", u"Lyka",   u"Nyíri",    u"Széll",  u"Tyukos", u"Zsíros"};
const Names givenNames = {u"László", u"István",    u"József",  u"János",    u"Zoltán",  u"Sándor",    u"Gábor",
                          u"Ferenc", u"Attila",    u"Péter",   u"Tamás",    u"Zsolt",   u"Ödön",      u"Győző",
                          u"Béla",   u"Örs",       u"Mária",   u"Erzsébet", u"Katalin", u"Ilona",     u"Éva",
                          u"Anna",   u"Zsuzsanna", u"Margit",  u"Judit",    u"Ágnes",   u"Andrea",    u"Ildikó",
                          u"Erika",  u"Krisztina", u"Tünde",   u"Emőke",    u"Csaba",   u"Dzsenifer", u"György",
                          u"Lyvia",  u"Nyina",     u"Szilvia", u"Tyra",     u"Zsófia"};
const Names streets = {
    u"Fő utca",         u"Petőfi Sándor utca", u"Kossuth Lajos utca", u"Rákóczi út", u"Ady Endre utca",
    u"Dózsa György út", u"Arany János utca",   u"Jókai Mór utca",     u"Béke tér",   u"Deák Ferenc utca",
    u"Széchenyi tér",   u"Táncsics utca",      u"Bem József utca",    u"Virág utca", u"Akácfa utca",
    u"Hunyadi utca",    u"Zrínyi Miklós utca", u"Mező utca",          u"Fűzfa köz",  u"Erdősor"};
struct Town {
    const char16_t* postcode;
    const char16_t* name;
};
const std::initializer_list<Town> towns = {
    {u"1024", u"Budapest"},       {u"1051", u"Budapest"},    {u"1117", u"Budapest"},  {u"1188", u"Budapest"},
    {u"2000", u"Szentendre"},     {u"2600", u"Vác"},         {u"3300", u"Eger"},      {u"3525", u"Miskolc"},
    {u"4024", u"Debrecen"},       {u"4400", u"Nyíregyháza"}, {u"5000", u"Szolnok"},   {u"5600", u"Békéscsaba"},
    {u"6000", u"Kecskemét"},      {u"6720", u"Szeged"},      {u"7100", u"Szekszárd"}, {u"7621", u"Pécs"},
    {u"8000", u"Székesfehérvár"}, {u"8200", u"Veszprém"},    {u"9021", u"Győr"},      {u"9400", u"Sopron"},
};
const Names notices = {u"", u"Közös költség", u"Tagdíj", u"Étkezési díj", u"Bérleti díj", u"Szemétszállítás"};
const Names documents = {u"", u"", u"Határozat", u"Értesítés", u"Végzés", u"Felszólítás"};

// Draws from the tables; only the generator itself is the same everywhere, the library's distributions are not.
class Dice {
public:
    int below(int limit) { return static_cast<int>(generator_() % static_cast<unsigned>(limit)); }
    template<class Item>
    Item from(std::initializer_list<Item> items) {
        return items.begin()[below(static_cast<int>(items.size()))];
    }
    QString name(const Names& names) { return QString::fromUtf16(from(names)); }

private:
    std::mt19937 generator_{20240229};
};

// Of two family names or two given ones, so that most of some ten thousand clients differ.
QString fullName(Dice& dice) {
    const bool twoFamilies = dice.below(2) == 0;
    const QString family = dice.name(familyNames);
    const QString given = dice.name(givenNames);
    return twoFamilies ? family + u'-' + dice.name(familyNames) + u' ' + given
                       : family + u' ' + given + u' ' + dice.name(givenNames);
}

QString line(Dice& dice, int number) {
    const Town town = dice.from(towns);
    const QString document = dice.name(documents);
    const bool hasDocument = !document.isEmpty();
    const QStringList fields = {
        fullName(dice),
        dice.below(10) == 0 ? QStringLiteral("és családja") : QString(),
        QStringLiteral("UGY-%1").arg(number, 8, 10, QChar(u'0')),
        QString::fromUtf16(town.name),
        QString::fromUtf16(town.postcode),
        QStringLiteral("%1 %2.").arg(dice.name(streets)).arg(1 + dice.below(120)),
        dice.below(25) == 0 ? QString() : QString::number(500 + 50 * dice.below(900)),
        dice.name(notices),
        QStringLiteral("%1. %2. 15.").arg(2025 + dice.below(2)).arg(1 + dice.below(12), 2, 10, QChar(u'0')),
        hasDocument ? QStringLiteral("%1/2025").arg(100 + dice.below(9000)) : QString(),
        document,
        hasDocument && dice.below(2) == 0 ? QStringLiteral("1 melléklet") : QString(),
        hasDocument ? QStringLiteral("RL%1").arg(dice.below(1000000000), 9, 10, QChar(u'0')) : QString(),
        hasDocument ? QStringLiteral("J-%1").arg(number) : QString(),
    };
    return fields.join(u';') + QStringLiteral("\r\n");
}

int fail(const char* message) {
    std::fprintf(stderr, "make_sample_csv: %s\n", message);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool isNumber = false;
    const int count = arguments.value(1).toInt(&isNumber);
    if (arguments.size() != 3 || !isNumber || count < 0) return fail("usage: make_sample_csv <count> <target file>");

    QSaveFile target(arguments[2]);
    if (!target.open(QIODevice::WriteOnly)) return fail("the target can't be written");
    Dice dice;
    for (int number = 1; number <= count; ++number)
        target.write(windows1250::encode(line(dice, number)));
    if (!target.flush() || !target.commit()) return fail("the target could not be written whole");
    return 0;
}
