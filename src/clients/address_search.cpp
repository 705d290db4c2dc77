#include "clients/address_search.h"

#include "records/number_text.h"
#include "records/reference_records.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString budapest = u"Budapest"_s;

template<class Rec>
struct Found {
    Rec record;
    qint64 number;
};

// Records without a name are none: a table full of NULs has no hits.
const Text<20>& nameOf(const SettlementRec& record) { return record.Helyseg; }
const Text<25>& nameOf(const BudapestRec& record) { return record.Utca; }

template<class Rec, class Matches>
std::vector<Found<Rec>> find(const ProgramFolder& folder, Matches matches) {
    std::vector<Found<Rec>> found;
    QByteArray bytes;
    if (!RecordFile<Rec>(folder).readAllInto(bytes)) return {};
    const auto* records = reinterpret_cast<const Rec*>(bytes.constData()); // alignment 1, as every record
    for (qint64 i = 0; i < bytes.size() / qint64{sizeof(Rec)}; ++i)
        if (matches(records[i]) && !nameOf(records[i]).trimmed().isEmpty()) found.push_back({records[i], i + 1});
    return found;
}

template<class Rec>
std::vector<Found<Rec>> named(const ProgramFolder& folder, QStringView text) {
    const QStringView name = trimBlanks(text);
    return find<Rec>(
        folder, [name](const Rec& record) { return nameOf(record).trimmed().compare(name, Qt::CaseInsensitive) == 0; });
}

template<class Rec>
std::vector<Found<Rec>> withPostcode(const ProgramFolder& folder, QStringView text) {
    const int postcode = leadingI16(text);
    return find<Rec>(folder, [postcode](const Rec& record) { return record.Irsz == postcode; });
}

QString firstHouse(int number) {
    static const QString codes[] = {u"Mind"_s, u"Páratlan"_s, u"Páros"_s, u"Többi"_s};
    return number <= 0 && number >= -3 ? codes[-number] : QString::number(number);
}

QString lastHouse(int number) { return number == 0 ? u"Végig"_s : QString::number(number); }

QStringList columns(const SettlementRec& record) {
    return {QString::number(record.Irsz), record.Helyseg.trimmed(), record.HelysegResz.trimmed()};
}

QStringList columns(const BudapestRec& record) {
    return {QString::number(record.Irsz), record.Utca.trimmed(),     record.Kozterulet.trimmed(),
            record.Varosresz.trimmed(),   firstHouse(record.HszTol), lastHouse(record.HszIg),
            record.Kerulet.trimmed()};
}

void fillIn(const SettlementRec& record, ClientEntry& entry) {
    entry.txBefizetoCim1 = record.Helyseg.trimmed();
    entry.txBefizetoIrsz = QString::number(record.Irsz);
}

void fillIn(const BudapestRec& record, ClientEntry& entry) {
    entry.txBefizetoCim2 = record.Utca.trimmed() + u' ' + record.Kozterulet.trimmed();
    entry.txBefizetoCim1 = budapest;
    entry.txBefizetoIrsz = QString::number(record.Irsz);
}

// What a search leaves to choose from. Without a hit the texts that it was to find are emptied.
template<class Rec>
AddressChoice offer(KeresesMod keresesMod, const std::vector<Found<Rec>>& found,
                    std::initializer_list<QString*> wanted) {
    if (found.empty())
        for (QString* text : wanted)
            text->clear();
    if (found.size() < 2) return {};
    AddressChoice choice{keresesMod, {}};
    for (const Found<Rec>& hit : found)
        choice.hits.push_back({columns(hit.record), hit.number});
    return choice;
}

template<class Rec>
void chooseFrom(const ProgramFolder& folder, qint64 number, ClientEntry& entry) {
    RecordFile<Rec> table(folder);
    Rec record;
    if (number >= 1 && number <= table.count() && table.read(number, record)) fillIn(record, entry);
}

} // namespace

AddressChoice searchSettlement(const ProgramFolder& folder, ClientEntry& entry) {
    const auto found = named<SettlementRec>(folder, entry.txBefizetoCim1);
    if (found.size() == 1) fillIn(found.front().record, entry);
    return offer(KeresesMod::settlements, found, {&entry.txBefizetoCim1, &entry.txBefizetoIrsz});
}

AddressChoice searchStreet(const ProgramFolder& folder, ClientEntry& entry) {
    entry.txBefizetoIrsz.clear();
    entry.txBefizetoCim1 = budapest;
    const auto found = named<BudapestRec>(folder, entry.txBefizetoCim2);
    if (found.size() == 1) fillIn(found.front().record, entry);
    return offer(KeresesMod::streetsByName, found, {&entry.txBefizetoCim2});
}

AddressChoice searchPostcode(const ProgramFolder& folder, ClientEntry& entry) {
    QStringView postcode = entry.txBefizetoIrsz;
    while (postcode.endsWith(u' ')) // the box shows a stored postcode with the blanks that pad it
        postcode.chop(1);
    if (postcode.size() != 4) return {};
    const bool isBudapest = postcode.startsWith(u'1');
    entry.txBefizetoCim1 = isBudapest ? budapest : QString();
    if (isBudapest)
        return offer(KeresesMod::streetsByPostcode, withPostcode<BudapestRec>(folder, postcode),
                     {&entry.txBefizetoIrsz});
    const auto found = withPostcode<SettlementRec>(folder, postcode);
    if (found.size() == 1) fillIn(found.front().record, entry);
    return offer(KeresesMod::settlements, found, {&entry.txBefizetoIrsz});
}

void chooseAddress(const ProgramFolder& folder, KeresesMod keresesMod, qint64 record, ClientEntry& entry) {
    switch (keresesMod) {
    case KeresesMod::nothing:
        return;
    case KeresesMod::settlements:
        return chooseFrom<SettlementRec>(folder, record, entry);
    case KeresesMod::streetsByName:
    case KeresesMod::streetsByPostcode:
        return chooseFrom<BudapestRec>(folder, record, entry);
    }
}
