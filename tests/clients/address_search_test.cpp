#include "clients/address_search.h"
#include "records/reference_records.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// A few settlements and streets, with records of NULs and cut ends among them.
struct Tables : TestFolder {
    Tables() {
        const auto settlement = [this](qint64 k, QStringView name, QStringView part, int postcode) {
            store(SettlementRec{name, part, I16(static_cast<std::int16_t>(postcode))}, k);
        };
        settlement(1, u"Abony", u"", 2740);
        settlement(2, u"Győr", u"", 9000);
        settlement(3, u"Győr", u"Likócs", 9011);
        settlement(5, u"Zalaköveskút", u"", 8354);
        settlement(6, u"Karmacs", u"", 8354);
        const auto street = [this](qint64 k, int postcode, QStringView name, QStringView kind, int from, int to) {
            store(BudapestRec{I16(static_cast<std::int16_t>(postcode)), name, kind, QStringView(u"Belváros"),
                              I16(static_cast<std::int16_t>(from)), I16(static_cast<std::int16_t>(to)),
                              QStringView(u"V.")},
                  k);
        };
        street(2, 1051, u"Őrház", u"utca", 0, 0);
        street(3, 1052, u"Váci", u"utca", -2, 14);
        street(4, 1053, u"Váci", u"utca", -1, 0);
        street(5, 1051, u"Sas", u"köz", -3, 7);
        setBytes(u"Budapest.dat"_s, bytes(u"Budapest.dat"_s) + "cut");
    }
};

// The three texts and, behind them, the rows of the list.
std::string told(const ClientEntry& entry, const AddressChoice& choice) {
    QStringList rows{entry.txBefizetoCim1, entry.txBefizetoIrsz, entry.txBefizetoCim2};
    for (const AddressHit& hit : choice.hits)
        rows << hit.columns.join(u',') + u'#' + QString::number(hit.record);
    return rows.join(u'|').toStdString();
}

struct Case {
    AddressChoice (*search)(const ProgramFolder&, ClientEntry&);
    const char16_t *settlement, *postcode, *street;
    const char* expected;
};
constexpr Case cases[] = {
    {searchSettlement, u" abony ", u"1", u"Fő út 1", "Abony|2740|Fő út 1"},
    {searchSettlement, u"ABON", u"1111", u"Fő út 1", "||Fő út 1"},
    {searchSettlement, u"gyŐR", u"", u"", "gyŐR|||9000,Győr,#2|9011,Győr,Likócs#3"},
    {searchSettlement, u"", u"1111", u"x", "||x"},
    {searchStreet, u"Abony", u"2740", u"őrház", "Budapest|1051|Őrház utca"},
    {searchStreet, u"Abony", u"2740", u"Váci",
     "Budapest||Váci|1052,Váci,utca,Belváros,Páros,14,V.#3|1053,Váci,utca,Belváros,Páratlan,Végig,V.#4"},
    {searchStreet, u"Abony", u"2740", u"Váci utca", "Budapest||"},
    {searchPostcode, u"Abony", u"8354", u"x", "|8354|x|8354,Zalaköveskút,#5|8354,Karmacs,#6"},
    {searchPostcode, u"", u"2740  ", u"x", "Abony|2740|x"},
    {searchPostcode, u"Abony", u"2741", u"x", "||x"},
    {searchPostcode, u"Abony", u"0000", u"x", "||x"}, // what a record of NULs holds
    {searchPostcode, u"Abony", u"274", u"x", "Abony|274|x"},
    {searchPostcode, u"Abony", u"10511", u"x", "Abony|10511|x"},
    {searchPostcode, u"Abony", u"1053", u"x", "Budapest|1053|x"}, // a single street isn't filled in
    {searchPostcode, u"Abony", u"1051", u"x",
     "Budapest|1051|x|1051,Őrház,utca,Belváros,Mind,Végig,V.#2|1051,Sas,köz,Belváros,Többi,7,V.#5"},
    {searchPostcode, u"Abony", u"1a5b", u"x", "Budapest||x"},
};

} // namespace

TEST(AddressSearch, FillsInWhatFollowsAndOffersTheRest) {
    const Tables tables;
    const TestFolder none;
    for (const Case& row : cases) {
        ClientEntry entry;
        entry.txBefizetoCim1 = QString::fromUtf16(row.settlement);
        entry.txBefizetoIrsz = QString::fromUtf16(row.postcode);
        entry.txBefizetoCim2 = QString::fromUtf16(row.street);
        ClientEntry inNone = entry;
        const AddressChoice choice = row.search(tables, entry);
        EXPECT_EQ(told(entry, choice), row.expected);
        EXPECT_TRUE(row.search(none, inNone).hits.empty()); // without tables the program works on
    }
}

TEST(AddressSearch, ChoosesByRecordNumber) {
    const Tables tables;
    ClientEntry entry;
    entry.txBefizetoCim2 = u"Fő út 1"_s;
    chooseAddress(tables, KeresesMod::settlements, 3, entry);
    EXPECT_EQ(told(entry, {}), "Győr|9011|Fő út 1");
    for (const KeresesMod streets : {KeresesMod::streetsByName, KeresesMod::streetsByPostcode}) {
        entry = {};
        chooseAddress(tables, streets, 4, entry);
        EXPECT_EQ(told(entry, {}), "Budapest|1053|Váci utca");
    }
    for (const qint64 nobody : {0, 6, -1})
        chooseAddress(tables, KeresesMod::streetsByName, nobody, entry);
    chooseAddress(tables, KeresesMod::nothing, 1, entry);
    EXPECT_EQ(told(entry, {}), "Budapest|1053|Váci utca");
}
