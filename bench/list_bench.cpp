#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "mainwindow/client_list_model.h"
#include "mainwindow/client_zone.h"
#include "records/client_database.h"
#include "samples.h"

#include <QApplication>
#include <QCollator>

#include <cstring>
#include <memory>

namespace {

constexpr int fullList = maxClientNumber;

QString clientFile(int clients) { return sampleFolder(clients).file(QLatin1String(ClientRec::fileName)); }

double timeOfLoad(int clients) {
    const ProgramFolder& folder = sampleFolder(clients);
    ClientListModel model;
    return secondsOf([&] { model.Beolvas(folder); });
}

double timeOfBareRead(int clients) {
    const QString path = clientFile(clients);
    BareBytes read;
    return secondsOf([&] { read = bareRead(path); });
}

// The third letter typed into the name box. The list lives on from key to key.
double timeOfSearch(int clients) {
    static ClientListModel model;
    const ProgramFolder& folder = sampleFolder(clients);
    model.search(folder, u"ko");
    return secondsOf([&] { model.search(folder, u"kov"); });
}

// The same with the list on view and a client to be selected again. Painting is not counted: it is the same for any
// list.
class ListOnView {
public:
    double timeOfSearch() {
        if (!zone_) open();
        zone_->search(QStringLiteral("ko"), 0);
        QApplication::processEvents();
        return secondsOf([&] { zone_->search(QStringLiteral("kov"), 1); });
    }

private:
    void open() {
        zone_ = std::make_unique<ClientZone>(sampleFolder(fullList));
        zone_->resize(1200, 200);
        zone_->show();
    }

    std::unique_ptr<ClientZone> zone_;
};

// The names alone, one behind the other, searched in one call after the other; the case counts.
double timeOfMemmem(int clients) {
    static const QByteArray names = [clients] {
        const BareBytes file = bareRead(clientFile(clients));
        QByteArray all;
        for (std::size_t at = 0; at < file.size; at += sizeof(ClientRec))
            all.append(file.bytes.get() + at, sizeof(ClientRec::Nev));
        return all;
    }();
    volatile int found = 0;
    return secondsOf([&] {
        int hits = 0;
        const char* at = names.begin();
        while ((at = static_cast<const char*>(memmem(at, static_cast<std::size_t>(names.end() - at), "Kov", 3)))) {
            ++hits;
            at += 3;
        }
        found = hits;
    });
}

double timeOfSort(int clients) {
    ClientListModel model;
    model.Beolvas(sampleFolder(clients));
    return secondsOf([&] { model.setSort(ClientListModel::Nev, Qt::AscendingOrder); });
}

double timeOfCollatorSort(int clients) {
    static const QByteArray records = RecordFile<ClientRec>(sampleFolder(clients)).readAll();
    const auto* client = reinterpret_cast<const ClientRec*>(records.constData());
    std::vector<QString> names;
    for (int i = 0; i < clients; ++i)
        names.push_back(client[i].Nev.trimmed());
    return secondsOf([&] {
        const QCollator collator(QLocale(QLocale::Hungarian));
        std::vector<QCollatorSortKey> keys;
        keys.reserve(names.size());
        for (const QString& name : names)
            keys.push_back(collator.sortKey(name));
        std::sort(keys.begin(), keys.end());
    });
}

double timeOfDelete(int clients) {
    const ProgramFolder& folder = sampleFolder(clients);
    const qint64 number = clients / 2;
    const Client client{RecordFile<ClientRec>(folder).read(number), RecordFile<TwinRec>(folder).read(number)};
    bool done = false;
    const double seconds = secondsOf([&] { done = deleteClient(folder, number); });
    if (!done) qFatal("the client could not be deleted");
    // Behind the last one, where the list is as long as before.
    const qint64 last = clientCount(folder) + 1;
    RecordFile<TwinRec>(folder).write(last, client.twin);
    RecordFile<ClientRec>(folder).write(last, client.client);
    return seconds;
}

// Every third row taken out of the list, as the Delete key does with a selection.
double timeOfRemoval(int clients) {
    ClientListModel model;
    model.Beolvas(sampleFolder(clients));
    QList<int> rows;
    for (int row = 0; row < clients; row += 3)
        rows.append(row);
    return secondsOf([&] { model.removeRows(rows); });
}

Run with(double (*time)(int clients), int clients) {
    return [time, clients] { return time(clients); };
}

} // namespace

void addListBenches(Suite& suite) {
    const char* const read = "bare read() of the file";
    suite.add(Comparison{"Beolvas, 32767 clients",
                         with(timeOfLoad, fullList),
                         read,
                         with(timeOfBareRead, fullList),
                         {Aim::Kind::timesLimit, 2}});
    suite.add(Comparison{"Beolvas, 300000 clients",
                         with(timeOfLoad, 300'000),
                         read,
                         with(timeOfBareRead, 300'000),
                         {Aim::Kind::timesLimit, 2}});
    const char* const memmemName = "memmem over the name bytes";
    suite.add(Comparison{"search keystroke, 32767 clients",
                         with(timeOfSearch, fullList),
                         memmemName,
                         with(timeOfMemmem, fullList),
                         {Aim::Kind::timesLimit, 6}});
    suite.add(Comparison{"search keystroke with the list on view",
                         [list = std::make_shared<ListOnView>()] { return list->timeOfSearch(); },
                         memmemName,
                         with(timeOfMemmem, fullList),
                         {Aim::Kind::timesLimit, 6}});
    suite.add(Comparison{"sort in Hungarian order, 32767 names",
                         with(timeOfSort, fullList),
                         "sort by QCollator's keys",
                         with(timeOfCollatorSort, fullList),
                         {Aim::Kind::milliseconds, 20}});

    suite.add(Growth{"Beolvas", timeOfLoad});
    suite.add(Growth{"search keystroke", timeOfSearch});
    suite.add(Growth{"sort by name", timeOfSort});
    suite.add(Growth{"rows out of the list", timeOfRemoval});
    suite.add(Growth{"delete one client", timeOfDelete});
}
