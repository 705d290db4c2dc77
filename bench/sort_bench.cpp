#include "benches.h"
#include "comparison.h"
#include "mainwindow/client_list_model.h"
#include "mainwindow/hungarian_order.h"
#include "records/client_database.h"
#include "records/windows1250.h"
#include "samples.h"

#include <QCollator>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <span>
#include <vector>

namespace {

double timeOfSort(int clients, int column) {
    ClientListModel model;
    model.Beolvas(sampleFolder(clients));
    return secondsOf([&] { model.setSort(column, Qt::AscendingOrder); });
}

double timeOfSortByName(int clients) { return timeOfSort(clients, ClientListModel::Nev); }

// What a column shows.
const std::vector<QString>& textsOf(int clients, int column) {
    static std::map<std::pair<int, int>, std::vector<QString>> known;
    std::vector<QString>& texts = known[{clients, column}];
    if (!texts.empty()) return texts;
    ClientListModel model;
    model.Beolvas(sampleFolder(clients));
    for (int row = 0; row < clients; ++row)
        texts.push_back(model.data(model.index(row, column), Qt::DisplayRole).toString());
    return texts;
}

struct KeyHead {
    std::array<unsigned char, 8> bytes;
    const char* rest;
};

// Deals the keys out by one byte after the other, as long as there are enough of them to be worth it.
void radixSort(std::span<KeyHead> keys, std::span<KeyHead> room, std::size_t depth) {
    if (keys.size() < 48 || depth == sizeof(KeyHead::bytes)) {
        std::sort(keys.begin(), keys.end(), [](const KeyHead& a, const KeyHead& b) {
            const int order = std::memcmp(a.bytes.data(), b.bytes.data(), sizeof a.bytes);
            return order != 0 ? order < 0 : std::strcmp(a.rest, b.rest) < 0;
        });
        return;
    }
    std::array<std::size_t, 257> begins{};
    for (const KeyHead& key : keys)
        ++begins[key.bytes[depth] + 1U];
    for (std::size_t byte = 1; byte < begins.size(); ++byte)
        begins[byte] += begins[byte - 1];
    std::array<std::size_t, 257> next = begins;
    for (const KeyHead& key : keys)
        room[next[key.bytes[depth]]++] = key;
    std::copy_n(room.begin(), keys.size(), keys.begin());
    for (std::size_t byte = 0; byte < 256; ++byte)
        if (const std::size_t count = begins[byte + 1] - begins[byte]; count > 1)
            radixSort(keys.subspan(begins[byte], count), room, depth + 1);
}

// Makes the program's own keys and sorts them; there are no rows to put in order.
double timeOfRadixSort(int clients, int column) {
    std::vector<QByteArray> texts;
    std::size_t room = 0;
    for (const QString& text : textsOf(clients, column)) {
        texts.push_back(windows1250::encode(text));
        room += hungarian_order::keyRoom(static_cast<std::size_t>(text.size())) + sizeof(KeyHead::bytes);
    }
    std::vector<char> memory(room);
    std::vector<KeyHead> keys(texts.size());
    std::vector<KeyHead> spare(texts.size());
    return secondsOf([&] {
        char* end = memory.data();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            char* const key = end;
            end = hungarian_order::writeKey(texts[i], key);
            std::strncpy(reinterpret_cast<char*>(keys[i].bytes.data()), key, sizeof(KeyHead::bytes));
            keys[i].rest = key + std::min<std::ptrdiff_t>(sizeof(KeyHead::bytes), end - key - 1);
        }
        radixSort(keys, spare, 0);
    });
}

double timeOfCollatorSort(int clients, int column) {
    const std::vector<QString>& texts = textsOf(clients, column);
    return secondsOf([&] {
        const QCollator collator(QLocale(QLocale::Hungarian));
        std::vector<QCollatorSortKey> keys;
        keys.reserve(texts.size());
        for (const QString& text : texts)
            keys.push_back(collator.sortKey(text));
        std::sort(keys.begin(), keys.end());
    });
}

} // namespace

void addSortBenches(Suite& suite) {
    constexpr int clients = maxClientNumber;
    const struct {
        const char* name;
        int column;
    } columns[] = {{" names", ClientListModel::Nev}, {" addresses", ClientListModel::Cim}};
    for (const auto& [name, column] : columns) {
        const std::string item = "sort of " + std::to_string(clients) + name;
        const Run ours = [column] { return timeOfSort(clients, column); };
        suite.add(Comparison{item,
                             ours,
                             "radix sort of the same byte keys",
                             [column] { return timeOfRadixSort(clients, column); },
                             {Aim::Kind::milliseconds, 20}});
        suite.add(Comparison{item + ", peer",
                             ours,
                             "sort by QCollator's keys",
                             [column] { return timeOfCollatorSort(clients, column); },
                             {}});
    }
    suite.add(Growth{"sort by name", timeOfSortByName});
}
