#include "exchange/older_database.h"

#include "records/client_database.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <span>

namespace {

// Text has no control bytes but a tab that was pasted, and NULs only behind it: those of a field that was never
// written.
template<std::size_t n>
bool isText(const Text<n>& field) {
    const char* end = field.data() + n;
    const char* textEnd = std::find(field.data(), end, '\0');
    return std::none_of(field.data(), textEnd, [](char c) { return c > '\0' && c < ' ' && c != '\t'; }) &&
           std::all_of(textEnd, end, [](char c) { return c == '\0'; });
}

template<class... Fields>
double shareOfTexts(const Fields&... fields) {
    return static_cast<double>((int{isText(fields)} + ...)) / sizeof...(fields);
}

double sense(const ClientRec& r) {
    return shareOfTexts(r.Nev, r.Nev2, r.Helyseg, r.Cim, r.Irsz, r.Azonosito, r.FizHatIdo);
}

double sense(const OlderClientRec& r) { return shareOfTexts(r.Nev, r.Nev2, r.Helyseg, r.Cim, r.Azonosito); }

template<class Rec>
std::span<const Rec> recordsOf(const QByteArray& bytes) {
    return {reinterpret_cast<const Rec*>(bytes.constData()), static_cast<std::size_t>(bytes.size()) / sizeof(Rec)};
}

// How much of a file makes sense as records of a format: all 1, nothing 0. Fields are counted, since a byte that is no
// text may have come into a record of either format.
template<class Rec>
double senseAs(const QByteArray& bytes) {
    double sum = 0;
    const std::span<const Rec> records = recordsOf<Rec>(bytes);
    for (const Rec& record : records)
        sum += sense(record);
    return records.empty() ? 0 : sum / static_cast<double>(records.size());
}

// What lies behind a NUL was never text: the new field gets blanks there.
ClientRec current(const OlderClientRec& old) {
    ClientRec client = zeroRecord<ClientRec>();
    client.Nev.set(old.Nev.stored());
    client.Nev2.set(old.Nev2.stored());
    client.Helyseg.set(old.Helyseg.stored());
    client.Cim.set(old.Cim.stored());
    client.Irsz.set(QString::number(old.Irsz));
    std::copy_n(old.Osszegek.begin(), client.Osszegek.size(), client.Osszegek.begin());
    client.Azonosito.set(old.Azonosito.stored());
    client.FizHatIdo.set(QString());
    return client;
}

// The contents of a file; of one that isn't there, nothing. No value if it can't be read.
std::optional<QByteArray> contents(const ProgramFolder& folder, const char* name) {
    QFile file(folder.file(QString::fromLatin1(name)));
    if (!file.exists()) return QByteArray();
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    QByteArray bytes = file.readAll();
    if (bytes.size() != file.size()) return std::nullopt;
    return bytes;
}

Conversion replaceClients(const QByteArray& old, const ProgramFolder& folder, ClientReplacement& replacement) {
    const std::optional<QByteArray> twins = contents(folder, TwinRec::fileName);
    if (!twins) return Conversion::failed;
    const std::span<const OlderClientRec> records = recordsOf<OlderClientRec>(old);
    QByteArray clients;
    clients.reserve(static_cast<qsizetype>(records.size() * sizeof(ClientRec)));
    for (const OlderClientRec& record : records) {
        const ClientRec client = current(record);
        clients.append(reinterpret_cast<const char*>(&client), qsizetype{sizeof client});
    }
    replacement.append(clients, *twins);
    const CommitExtras extras{.keepOldClientsAs = QString::fromLatin1(keptOlderDatabase)};
    return replacement.commit(extras) ? Conversion::converted : Conversion::failed;
}

} // namespace

Conversion convertOlderDatabase(const ProgramFolder& folder) {
    ClientReplacement replacement(folder); // first: it finishes what a killed process left
    const std::optional<QByteArray> old = contents(folder, OlderClientRec::fileName);
    if (!old) return Conversion::failed;
    if (recordsOf<OlderClientRec>(*old).empty()) {
        // The working file of earlier versions, which they left behind here.
        const RawRecordFile created(folder, QStringLiteral("nevek.dat"), sizeof(ClientRec));
        return Conversion::nothingThere;
    }
    if (senseAs<ClientRec>(*old) > senseAs<OlderClientRec>(*old)) return Conversion::alreadyCurrent;
    if (QFileInfo::exists(folder.file(QString::fromLatin1(keptOlderDatabase)))) return Conversion::copyExists;
    return replaceClients(*old, folder, replacement);
}
