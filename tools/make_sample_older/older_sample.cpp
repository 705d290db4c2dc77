#include "older_sample.h"

#include "exchange/csv_clients.h"
#include "exchange/older_database.h"

#include <QFile>

namespace {

OlderClientRec older(const ClientRec& client) {
    OlderClientRec old;
    old.Nev.set(client.Nev.stored());
    old.Nev2.set(client.Nev2.stored());
    old.Helyseg.set(client.Helyseg.stored());
    old.Cim.set(client.Cim.stored());
    old.Irsz = static_cast<std::int16_t>(client.Irsz.trimmed().toInt());
    for (std::size_t i = 0; i < old.Osszegek.size(); ++i)
        old.Osszegek[i] = client.Osszegek[0] * static_cast<int>(i + 1);
    old.Azonosito.set(client.Azonosito.stored());
    return old;
}

} // namespace

QByteArray olderSample(const QString& csv) {
    QFile file(csv);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray bytes;
    CsvClientReader reader(importColumns, EmptyLine::client, [&](const Client& client) {
        const OlderClientRec old = older(client.client);
        bytes.append(reinterpret_cast<const char*>(&old), qsizetype{sizeof old});
    });
    reader.feed(file.readAll());
    reader.finish();
    return bytes;
}
