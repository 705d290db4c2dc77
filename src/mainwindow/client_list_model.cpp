#include "mainwindow/client_list_model.h"

#include "mainwindow/hungarian_order.h"
#include "records/record_file.h"
#include "records/windows1250.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <numeric>
#include <unordered_set>
#include <utility>

namespace {

// A field's bytes up to the first NUL.
template<std::size_t n>
QByteArrayView storedBytes(const Text<n>& field) {
    const void* nul = std::memchr(field.data(), '\0', n);
    return {field.data(), nul == nullptr ? field.data() + n : static_cast<const char*>(nul)};
}

QByteArrayView withoutBlanksBehind(QByteArrayView text) {
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

QByteArrayView withoutBlanks(QByteArrayView text) {
    while (text.startsWith(' '))
        text = text.sliced(1);
    return withoutBlanksBehind(text);
}

constexpr std::size_t nameWidth = decltype(ClientRec::Nev)::width;
constexpr std::size_t addressWidth = sizeof(ClientRec::Irsz) + sizeof(ClientRec::Helyseg) + sizeof(ClientRec::Cim) + 3;

// The address column as bytes: what it shows, but for the blanks behind it.
class AddressBytes {
public:
    explicit AddressBytes(const ClientRec& client) {
        add(storedBytes(client.Irsz));
        add(" ");
        add(withoutBlanks(storedBytes(client.Helyseg)));
        add(", ");
        add(withoutBlanksBehind(storedBytes(client.Cim)));
    }
    QByteArrayView view() const { return {bytes_.data(), used_}; }

private:
    void add(QByteArrayView part) { used_ = std::copy(part.begin(), part.end(), used_); }

    std::array<char, addressWidth> bytes_;
    char* used_ = bytes_.data();
};

// Looks for a text in names whatever the case. Most names lack one of its letters, which is seen at a far higher speed
// than bytes are compared one by one.
class NameFinder {
public:
    explicit NameFinder(QByteArrayView wanted) {
        for (const char byte : wanted)
            wanted_.push_back(bothCases(byte));
    }

    bool isIn(const Text<nameWidth>& name) const {
        const auto holds = [&name](char byte) { return std::memchr(name.data(), byte, nameWidth) != nullptr; };
        for (const Letter& letter : wanted_)
            if (!holds(letter.small) && !holds(letter.capital)) return false;
        const QByteArrayView text = storedBytes(name);
        return std::search(text.begin(), text.end(), wanted_.begin(), wanted_.end(),
                           [](char byte, const Letter& letter) {
                               return byte == letter.capital || byte == letter.small;
                           }) != text.end();
    }

private:
    struct Letter {
        char capital, small;
    };
    static Letter bothCases(char byte) {
        Letter letter{windows1250::fold(byte), byte};
        for (int other = 0; other < 256; ++other)
            if (static_cast<char>(other) != letter.capital &&
                windows1250::fold(static_cast<char>(other)) == letter.capital)
                letter.small = static_cast<char>(other);
        return letter;
    }

    std::vector<Letter> wanted_;
};

// One row's place in a sort. Most comparisons end at the first eight bytes of the key, which lie at hand.
struct SortEntry {
    std::uint64_t keyHead;
    std::uint32_t key; // where the key begins
    int recordNumber;
};

std::uint64_t headOf(const char* key) {
    std::uint64_t head = 0;
    for (int shift = 56; shift >= 0 && *key != '\0'; shift -= 8)
        head |= std::uint64_t{static_cast<unsigned char>(*key++)} << shift;
    return head;
}

// Negative, zero or positive, as for strcmp.
int compareKeys(const SortEntry& a, const SortEntry& b, const char* keys) {
    if (a.keyHead != b.keyHead) return a.keyHead < b.keyHead ? -1 : 1;
    return std::strcmp(keys + a.key, keys + b.key);
}

} // namespace

void ClientListModel::Beolvas(const ProgramFolder& folder) { readAnew(folder, Numbers::padded); }

void ClientListModel::cmdBeolvas_Click(const ProgramFolder& folder) { readAnew(folder, Numbers::bare); }

void ClientListModel::search(const ProgramFolder& folder, QStringView text) { refill(folder, Numbers::bare, text); }

void ClientListModel::readAnew(const ProgramFolder& folder, Numbers numbers) {
    stamp_.reset();
    refill(folder, numbers, {});
}

void ClientListModel::refill(const ProgramFolder& folder, Numbers numbers, QStringView name) {
    beginResetModel();
    const bool otherTexts = std::exchange(numbers_, numbers) != numbers;
    if (otherTexts && sortColumn() == rec) order_.clear();
    const bool isRead = readIfWritten(folder);
    rows_ = rowsWithName(name);
    endResetModel();
    if (!isRead) throw UnreadableFile(QString::fromLatin1(ClientRec::fileName));
}

// Opens the file at any rate: over a network that alone brings its true size and time. False: it can't be read.
bool ClientListModel::readIfWritten(const ProgramFolder& folder) {
    RecordFile<ClientRec> file(folder);
    const std::optional<FileStamp> stamp = fileStamp(folder.file(QString::fromLatin1(ClientRec::fileName)));
    if (file.isReadable() && stamp && stamp == stamp_) return true;
    stamp_ = stamp && showsNextWrite(*stamp) ? stamp : std::nullopt;
    order_.clear();
    const bool isRead = file.readAllInto(clients_);
    if (!isRead) stamp_.reset();
    return isRead;
}

ClientListModel::Rows ClientListModel::rowsWithName(QStringView text) {
    const QByteArray wanted = windows1250::encode(trimBlanks(text));
    if (wanted.isEmpty()) return order();
    if (wanted.count('?') != text.count(u'?')) return {}; // no name holds a letter from outside the code page
    const NameFinder finder(wanted);
    std::vector<bool> found(static_cast<std::size_t>(clientCount()) + 1);
    for (std::size_t number = 1; number < found.size(); ++number)
        found[number] = finder.isIn(client(static_cast<int>(number)).Nev);
    return inOrder(found);
}

// The clients whose record numbers are marked, as they are sorted.
ClientListModel::Rows ClientListModel::inOrder(const std::vector<bool>& wanted) {
    Rows rows;
    std::copy_if(order().begin(), order().end(), std::back_inserter(rows),
                 [&wanted](int number) { return wanted[static_cast<std::size_t>(number)]; });
    return rows;
}

const ClientListModel::Rows& ClientListModel::order() {
    if (!order_.empty()) return order_;
    order_.resize(static_cast<std::size_t>(clientCount()));
    std::iota(order_.begin(), order_.end(), 1);
    sortNumbers(order_);
    return order_;
}

void ClientListModel::setSort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> clients;
    clients.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& index : before)
        clients.push_back(recordNumber(index.row()));

    sort_ = Sort{column, order};
    order_.clear();
    std::vector<bool> shown(static_cast<std::size_t>(clientCount()) + 1);
    for (const int number : rows_)
        shown[static_cast<std::size_t>(number)] = true;
    rows_ = inOrder(shown);

    if (!before.isEmpty()) {
        std::vector<int> rowOfRecord(static_cast<std::size_t>(clientCount()) + 1, -1);
        for (std::size_t row = 0; row < rows_.size(); ++row)
            rowOfRecord[static_cast<std::size_t>(rows_[row])] = static_cast<int>(row);
        QModelIndexList after;
        after.reserve(before.size());
        for (qsizetype i = 0; i < before.size(); ++i)
            after.append(
                index(rowOfRecord[static_cast<std::size_t>(clients[static_cast<std::size_t>(i)])], before[i].column()));
        changePersistentIndexList(before, after);
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void ClientListModel::sortNumbers(Rows& numbers) const {
    if (!sort_) return;
    const std::size_t room = hungarian_order::keyRoom(sort_->column == Nev ? nameWidth : addressWidth);
    const auto keys = std::make_unique_for_overwrite<char[]>(numbers.size() * room);
    std::vector<SortEntry> entries;
    entries.reserve(numbers.size());
    char* end = keys.get();
    for (const int number : numbers) {
        char* const key = end;
        end = writeSortKey(number, key);
        entries.push_back({headOf(key), static_cast<std::uint32_t>(key - keys.get()), number});
    }
    const bool descending = sort_->order == Qt::DescendingOrder;
    std::sort(entries.begin(), entries.end(), [&keys, descending](const SortEntry& a, const SortEntry& b) {
        const int order = compareKeys(a, b, keys.get());
        if (order == 0) return a.recordNumber < b.recordNumber;
        return descending ? order > 0 : order < 0;
    });
    std::transform(entries.begin(), entries.end(), numbers.begin(), [](const SortEntry& e) { return e.recordNumber; });
}

char* ClientListModel::writeSortKey(int recordNumber, char* to) const {
    switch (sort_->column) {
    case Nev:
        return hungarian_order::writeKey(withoutBlanksBehind(storedBytes(client(recordNumber).Nev)), to);
    case Cim:
        return hungarian_order::writeKey(AddressBytes(client(recordNumber)).view(), to);
    default:
        for (const QChar digit : numberText(recordNumber))
            *to++ = digit.toLatin1();
        *to++ = '\0';
        return to;
    }
}

void ClientListModel::removeRows(QList<int> rows) {
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows.isEmpty()) return;
    // A block is taken out in place, so that the view stays where it is; scattered rows in one go, since telling of
    // each of them would grow with their square.
    const bool block = rows.last() - rows.first() + 1 == rows.size();
    if (block)
        beginRemoveRows({}, rows.first(), rows.last());
    else
        beginResetModel();
    auto next = rows.cbegin();
    int row = 0;
    rows_.erase(std::remove_if(rows_.begin(), rows_.end(),
                               [&](int) {
                                   const bool out = next != rows.cend() && *next == row++;
                                   if (out) ++next;
                                   return out;
                               }),
                rows_.end());
    if (block)
        endRemoveRows();
    else
        endResetModel();
}

int ClientListModel::rowOf(int recordNumber) const {
    const auto found = std::find(rows_.begin(), rows_.end(), recordNumber);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

QList<int> ClientListModel::rowsOf(const std::vector<int>& recordNumbers) const {
    const std::unordered_set<int> wanted(recordNumbers.begin(), recordNumbers.end());
    QList<int> rows;
    for (std::size_t row = 0; row < rows_.size(); ++row)
        if (wanted.contains(rows_[row])) rows << static_cast<int>(row);
    return rows;
}

int ClientListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ClientListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 3; }

QVariant ClientListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) return text(recordNumber(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && index.column() == rec) return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ClientListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::array<QString, 3> names{QStringLiteral("Név"), QStringLiteral("Cím"), QStringLiteral("rec")};
    if (orientation != Qt::Horizontal || section < 0 || section > rec) return {};
    if (role == Qt::DisplayRole) return names[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole) return int((section == rec ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return {};
}

QString ClientListModel::text(int recordNumber, int column) const {
    const ClientRec& shown = client(recordNumber);
    switch (column) {
    case Nev:
        return shown.Nev.trimmed();
    case Cim:
        return shown.Irsz.stored() + u' ' + shown.Helyseg.trimmed() + QStringLiteral(", ") + shown.Cim.stored();
    default:
        return numberText(recordNumber);
    }
}

QString ClientListModel::numberText(int recordNumber) const {
    const QString digits = QString::number(recordNumber);
    return numbers_ == Numbers::padded ? digits.rightJustified(6) : digits;
}

// The bytes are the record: its members have no alignment and no representation of their own.
const ClientRec& ClientListModel::client(int recordNumber) const {
    return reinterpret_cast<const ClientRec*>(clients_.constData())[recordNumber - 1];
}

ButtonRule buttonRule(int selectedRows, Tab tab) {
    if (selectedRows < 2 || tab == Tab::label) return {};
    return {true, QString::number(selectedRows)};
}
