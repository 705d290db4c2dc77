#include "make_program_folder/postcode_tables.h"

#include "records/record_file.h"
#include "records/reference_records.h"

#include <algorithm>
#include <optional>

namespace {

using Fields = QList<QStringView>;

// Numbers of the tables are whole and fit 16 bits; a row with anything else is bad.
bool readNumber(QStringView text, I16& number) {
    bool ok = false;
    number = text.toShort(&ok);
    return ok;
}

bool fill(SettlementRec& record, const Fields& fields) {
    record.Helyseg.set(fields[0]);
    record.HelysegResz.set(fields[1]);
    return !fields[0].isEmpty() && readNumber(fields[2], record.Irsz);
}

bool fill(BudapestRec& record, const Fields& fields) {
    record.Utca.set(fields[1]);
    record.Kozterulet.set(fields[2]);
    record.Varosresz.set(fields[3]);
    record.Kerulet.set(fields[6]);
    return !fields[1].isEmpty() && readNumber(fields[0], record.Irsz) && readNumber(fields[4], record.HszTol) &&
           readNumber(fields[5], record.HszIg);
}

template<class Rec>
PostcodeTable table(QStringView csv, QLatin1String header) {
    PostcodeTable table;
    const qsizetype fieldCount = std::count(header.begin(), header.end(), ';') + 1;
    int line = 0;
    for (QStringView row : csv.split(u'\n')) {
        ++line;
        if (row.endsWith(u'\r')) row.chop(1);
        auto record = zeroRecord<Rec>();
        const Fields fields = row.split(u';');
        if (line == 1 && row != header) return {{}, line};
        if (line == 1 || row.isEmpty()) continue;
        if (fields.size() != fieldCount || !fill(record, fields)) return {{}, line};
        table.records.append(reinterpret_cast<const char*>(&record), sizeof record);
    }
    return table;
}

} // namespace

PostcodeTable settlementTable(QStringView csv) {
    return table<SettlementRec>(csv, QLatin1String("helyseg;helysegresz;irsz"));
}

PostcodeTable budapestTable(QStringView csv) {
    return table<BudapestRec>(csv, QLatin1String("irsz;utca;kozterulet;varosresz;hsztol;hszig;kerulet"));
}
