#include "bare_files.h"
#include "benches.h"
#include "comparison.h"
#include "mainwindow/client_list_model.h"
#include "mainwindow/client_zone.h"
#include "records/client_database.h"
#include "records/windows1250.h"
#include "samples.h"

#include <QApplication>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>

namespace {

constexpr int fullList = maxClientNumber;

QString clientFile(int clients) { return sampleFolder(clients).file(QLatin1String(ClientRec::fileName)); }

// The first one, into memory that the system gives at that moment.
double timeOfFirstLoad(int clients) {
    const ProgramFolder& folder = sampleFolder(clients);
    ClientListModel model;
    return secondsOf([&] { model.Beolvas(folder); });
}

// Any further one, as by F5.
double timeOfLoad(int clients) {
    static std::map<int, ClientListModel> models;
    const ProgramFolder& folder = sampleFolder(clients);
    ClientListModel& model = models[clients];
    if (model.clientCount() == 0) model.Beolvas(folder);
    return secondsOf([&] { model.Beolvas(folder); });
}

double timeOfBareRead(int clients) {
    return secondsOf([path = clientFile(clients)] { bareRead(path); });
}

const std::vector<QString>& typedTexts() {
    static const std::vector<QString> texts = [] {
        std::vector<QString> all;
        for (const char16_t* word : typedWords)
            for (qsizetype length = 1; length <= 6; ++length)
                all.push_back(QString::fromUtf16(word, length));
        return all;
    }();
    return texts;
}

// Of one key, the mean over all of them. The list lives on from key to key.
template<class Search>
double meanTimeOfKeys(Search&& search) {
    const double seconds = secondsOf([&] { std::for_each(typedTexts().begin(), typedTexts().end(), search); });
    return seconds / static_cast<double>(typedTexts().size());
}

enum class Order { ofFile, byName };

double timeOfSearch(int clients) {
    ClientListModel model;
    const ProgramFolder& folder = restingFolder(clients);
    model.Beolvas(folder);
    return meanTimeOfKeys([&](const QString& text) { model.search(folder, text); });
}

// The same with the list on view, a client to be selected again, and painting.
class ListOnView {
public:
    ListOnView(int clients, Order order) : clients_(clients), order_(order) {}

    double timeOfSearch() {
        if (!zone_) open();
        return meanTimeOfKeys([this](const QString& text) {
            zone_->search(text, 1);
            QApplication::processEvents();
        });
    }

private:
    void open() {
        zone_ = std::make_unique<ClientZone>(restingFolder(clients_), prompts_);
        zone_->resize(1200, 200);
        zone_->show();
        zone_->Beolvas();
        if (order_ == Order::byName) zone_->setAscending(true);
        QApplication::processEvents();
    }

    int clients_;
    Order order_;
    QuietPrompts prompts_;
    std::unique_ptr<ClientZone> zone_;
};

// The names alone, one behind the other, searched in one call after the other; the case counts.
double timeOfMemmem(int clients) {
    static std::map<int, QByteArray> namesOf;
    QByteArray& names = namesOf[clients];
    if (names.isEmpty()) {
        const QByteArrayView file = bareRead(clientFile(clients));
        for (qsizetype at = 0; at < file.size(); at += sizeof(ClientRec))
            names.append(file.sliced(at, sizeof(ClientRec::Nev)));
    }
    volatile int found = 0;
    return meanTimeOfKeys([&](const QString& text) {
        const QByteArray wanted = windows1250::encode(text);
        int hits = 0;
        const char* at = names.begin();
        while ((at = static_cast<const char*>(memmem(at, static_cast<std::size_t>(names.end() - at), wanted.data(),
                                                     static_cast<std::size_t>(wanted.size()))))) {
            ++hits;
            at += wanted.size();
        }
        found = hits;
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
    for (const int clients : {fullList, 300'000}) {
        const auto add = [clients](const char* item, double (*time)(int), const Aim& aim) {
            return Comparison{item + std::to_string(clients) + " clients", with(time, clients),
                              "read() into memory that is there", with(timeOfBareRead, clients), aim};
        };
        suite.add(add("Beolvas, ", timeOfLoad, {Aim::Kind::timesLimit, 2}));
        suite.add(add("Beolvas, the first, ", timeOfFirstLoad, {}));
    }
    const char* const memmemName = "memmem over the name bytes";
    const struct {
        int clients;
        double mostMs;
    } sizes[] = {{fullList, 5}, {300'000, 40}};
    for (const auto& [clients, mostMs] : sizes) {
        const std::string size = std::to_string(clients) + " clients";
        suite.add(Comparison{"search keystroke, " + size,
                             with(timeOfSearch, clients),
                             memmemName,
                             with(timeOfMemmem, clients),
                             {Aim::Kind::timesLimit, 6}});
        for (const auto& [order, name] : {std::pair{Order::ofFile, "painted, "}, {Order::byName, "painted, sorted, "}})
            suite.add(Comparison{"search keystroke " + (name + size),
                                 [list = std::make_shared<ListOnView>(clients, order)] { return list->timeOfSearch(); },
                                 memmemName,
                                 with(timeOfMemmem, clients),
                                 {Aim::Kind::milliseconds, mostMs}});
    }
    suite.add(Growth{"Beolvas", timeOfLoad});
    suite.add(Growth{"search keystroke", timeOfSearch});
    suite.add(Growth{"rows out of the list", timeOfRemoval});
    suite.add(Growth{"delete one client", timeOfDelete});
}
