#include "clients/client_entry.h"

#include "records/windows1250.h"

using namespace Qt::Literals::StringLiterals;

ClientEntry entryOf(const Client& stored) {
    const ClientRec& client = stored.client;
    return {client.Nev.trimmed(), client.Nev2.trimmed(),      client.Helyseg.trimmed(),       client.Cim.trimmed(),
            client.Irsz.stored(), client.Azonosito.trimmed(), stored.twin.Kozl3Sor.trimmed(), bool{client.Kulfoldi}};
}

Client newClient(const ClientEntry& entry) {
    const QStringView blank;
    Client client{zeroRecord<ClientRec>(), {blank, blank, blank, blank, blank, blank}};
    put(entry, client);
    return client;
}

void put(const ClientEntry& entry, Client& client) {
    ClientRec& own = client.client;
    own.Nev.set(entry.txBefizetoNeve);
    own.Nev2.set(entry.txEtkezo);
    own.Helyseg.set(entry.txBefizetoCim1);
    own.Cim.set(entry.txBefizetoCim2);
    own.Irsz.set(trimBlanks(entry.txBefizetoIrsz));
    own.Azonosito.set(entry.txBefizAnonosito);
    own.FizHatIdo.set(QStringView());
    own.Kulfoldi = entry.chkKulfCim;
    client.twin.Kozl3Sor.set(entry.txtKozlem3sor);
    client.twin.IratFajtaja.set(QStringView());
}

std::optional<MissingText> firstMissing(const ClientEntry& entry) {
    const MissingText required[] = {
        {&ClientEntry::txBefizetoNeve, u"Nincs megadva a befizető neve"_s},
        {&ClientEntry::txBefizetoCim1, u"Nincs megadva helységnév"_s},
        {&ClientEntry::txBefizetoCim2, u"Nincs megadva a befizető címe"_s},
    };
    for (const MissingText& missing : required)
        if (trimBlanks(entry.*missing.text).isEmpty()) return missing;
    return std::nullopt;
}

QString storageWarning(const QString& text, qsizetype width) {
    const QByteArray bytes = windows1250::encode(text);
    const QString stored = windows1250::decode(bytes.first(qMin(bytes.size(), width)));
    if (text.startsWith(stored) && trimBlanks(QStringView(text).sliced(stored.size())).isEmpty()) return {};
    return u"Így tárolódik: %1"_s.arg(stored);
}
