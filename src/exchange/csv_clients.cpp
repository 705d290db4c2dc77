#include "exchange/csv_clients.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>

// A Client is one run of bytes, so that one offset tells both the record and the field.
static_assert(sizeof(Client) == sizeof(ClientRec) + sizeof(TwinRec) && alignof(Client) == 1);

const std::array<CsvColumn, 14> importColumns = {{
    {offsetof(Client, client.Nev), sizeof(ClientRec::Nev), CsvRule::asItStands},
    {offsetof(Client, client.Nev2), sizeof(ClientRec::Nev2), CsvRule::trimmed},
    {offsetof(Client, client.Azonosito), sizeof(ClientRec::Azonosito), CsvRule::trimmed},
    {offsetof(Client, client.Helyseg), sizeof(ClientRec::Helyseg), CsvRule::trimmed},
    {offsetof(Client, client.Irsz), sizeof(ClientRec::Irsz), CsvRule::trimmed},
    {offsetof(Client, client.Cim), sizeof(ClientRec::Cim), CsvRule::trimmed},
    {offsetof(Client, client.Osszegek), sizeof(I32), CsvRule::amount},
    {offsetof(Client, twin.Kozl3Sor), sizeof(TwinRec::Kozl3Sor), CsvRule::trimmed},
    {offsetof(Client, client.FizHatIdo), sizeof(ClientRec::FizHatIdo), CsvRule::trimmed},
    {offsetof(Client, twin.IratSzama), sizeof(TwinRec::IratSzama), CsvRule::trimmed},
    {offsetof(Client, twin.IratFajtaja), sizeof(TwinRec::IratFajtaja), CsvRule::trimmed},
    {offsetof(Client, twin.IratMelleklet), sizeof(TwinRec::IratMelleklet), CsvRule::trimmed},
    {offsetof(Client, twin.KuldemenyAzonosito), sizeof(TwinRec::KuldemenyAzonosito), CsvRule::trimmed},
    {offsetof(Client, twin.SajatJelzes), sizeof(TwinRec::SajatJelzes), CsvRule::trimmed},
}};

namespace {

constexpr char noBreakSpace = '\xA0'; // in Windows-1250; programs put it between thousands

constexpr std::array<bool, 256> isMark = [] {
    std::array<bool, 256> marks{};
    for (const char mark : {';', '"', '\r', '\n', '\0'})
        marks[static_cast<unsigned char>(mark)] = true;
    return marks;
}();

Client blankClient() {
    Client client;
    std::memset(static_cast<void*>(&client), ' ', sizeof client);
    client.client.Osszegek.fill(I32(0));
    client.client.Kulfoldi = false;
    return client;
}

// The amount, given without blanks; nothing if it is none. "Ft" and the ",-" of round sums may stand behind it.
std::optional<std::int32_t> forints(QByteArrayView text) {
    if (text.isEmpty()) return 0;
    for (const QByteArrayView ending : {"ft.", "ft", ",-"})
        if (text.size() > ending.size() && text.last(ending.size()).compare(ending, Qt::CaseInsensitive) == 0)
            text.chop(ending.size());
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value);
    if (error != std::errc() || end != text.end() || value < 0) return std::nullopt;
    return value;
}

} // namespace

CsvClientReader::CsvClientReader(std::span<const CsvColumn> columns, Sink sink)
    : columns_(columns)
    , sink_(std::move(sink))
    , client_(blankClient()) {}

void CsvClientReader::feed(QByteArrayView text) {
    const char* at = text.begin();
    while (at != text.end()) {
        const char* mark = std::find_if(at, text.end(), [](char c) { return isMark[static_cast<unsigned char>(c)]; });
        if (mark != at) takeText({at, mark});
        if (mark == text.end()) return;
        takeMark(*mark);
        at = mark + 1;
    }
}

void CsvClientReader::finish() {
    if (lineHasBegun_) endLine();
}

void CsvClientReader::takeMark(char mark) {
    if (mark == '\r' || mark == '\n') {
        const bool endsCrLf = mark == '\n' && lastWasCr_;
        if (!endsCrLf) endLine();
        lastWasCr_ = mark == '\r';
        return;
    }
    if (mark == '\0') return takeText(" ");
    lineHasBegun_ = true;
    lastWasCr_ = false;
    if (mark == ';') endField();
}

void CsvClientReader::takeText(QByteArrayView text) {
    lineHasBegun_ = true;
    lastWasCr_ = false;
    if (column_ >= columns_.size()) return;
    const CsvColumn& column = columns_[column_];
    if (column.rule == CsvRule::amount) return takeAmountText(text);
    // Blanks behind the text are those that pad the field.
    if (column.rule == CsvRule::trimmed && used_ == 0)
        while (text.startsWith(' '))
            text = text.sliced(1);
    const std::size_t length = std::min(static_cast<std::size_t>(text.size()), column.width - used_);
    std::memcpy(reinterpret_cast<char*>(&client_) + column.offset + used_, text.data(), length);
    used_ += length;
}

// One byte more than fits is counted but not kept: such an amount is none.
void CsvClientReader::takeAmountText(QByteArrayView text) {
    for (const char c : text) {
        if (c == ' ' || c == noBreakSpace || used_ > amount_.size()) continue;
        if (used_ < amount_.size()) amount_[used_] = c;
        ++used_;
    }
}

void CsvClientReader::endField() {
    if (column_ < columns_.size() && columns_[column_].rule == CsvRule::amount) {
        const bool fits = used_ <= amount_.size();
        const auto value = fits ? forints({amount_.data(), static_cast<qsizetype>(used_)}) : std::nullopt;
        const I32 stored = value.value_or(0);
        std::memcpy(reinterpret_cast<char*>(&client_) + columns_[column_].offset, &stored, sizeof stored);
        if (!value) ++badAmounts_;
    }
    ++column_;
    used_ = 0;
}

void CsvClientReader::endLine() {
    static const Client blank = blankClient();
    endField();
    sink_(client_);
    client_ = blank;
    column_ = 0;
    lineHasBegun_ = false;
}
