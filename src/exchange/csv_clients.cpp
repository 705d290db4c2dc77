#include "exchange/csv_clients.h"

#include "records/number_text.h"
#include "records/windows1250.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>

// A Client is one run of bytes, so that one offset tells both the record and the field.
static_assert(sizeof(Client) == sizeof(ClientRec) + sizeof(TwinRec) && alignof(Client) == 1);

const std::array<CsvColumn, 14> importColumns = {{
    {offsetof(Client, client.Nev), sizeof(ClientRec::Nev), CsvRule::asItStands, u"a Név"},
    {offsetof(Client, client.Nev2), sizeof(ClientRec::Nev2), CsvRule::trimmed, u"a Név 2. sora"},
    {offsetof(Client, client.Azonosito), sizeof(ClientRec::Azonosito), CsvRule::trimmed, u"a Befizetőazonosító"},
    {offsetof(Client, client.Helyseg), sizeof(ClientRec::Helyseg), CsvRule::trimmed, u"a Helység"},
    {offsetof(Client, client.Irsz), sizeof(ClientRec::Irsz), CsvRule::trimmed, u"az Irányítószám"},
    {offsetof(Client, client.Cim), sizeof(ClientRec::Cim), CsvRule::trimmed, u"a Cím"},
    {offsetof(Client, client.Osszegek), sizeof(I32), CsvRule::amount, u"az összeg"},
    {offsetof(Client, twin.Kozl3Sor), sizeof(TwinRec::Kozl3Sor), CsvRule::trimmed, u"a Közlemény 3. sora"},
    {offsetof(Client, client.FizHatIdo), sizeof(ClientRec::FizHatIdo), CsvRule::trimmed, u"a Fizetési határidő"},
    {offsetof(Client, twin.IratSzama), sizeof(TwinRec::IratSzama), CsvRule::trimmed, u"az Irat száma"},
    {offsetof(Client, twin.IratFajtaja), sizeof(TwinRec::IratFajtaja), CsvRule::trimmed, u"az Irat fajtája"},
    {offsetof(Client, twin.IratMelleklet), sizeof(TwinRec::IratMelleklet), CsvRule::trimmed, u"az Irat melléklete"},
    {offsetof(Client, twin.KuldemenyAzonosito), sizeof(TwinRec::KuldemenyAzonosito), CsvRule::trimmed,
     u"a Küldemény azonosítója"},
    {offsetof(Client, twin.SajatJelzes), sizeof(TwinRec::SajatJelzes), CsvRule::trimmed, u"az Ügyfél saját jelzése"},
}};

const std::array<CsvColumn, 10> watchColumns = [] {
    std::array<CsvColumn, 10> columns;
    std::copy_n(importColumns.begin(), columns.size(), columns.begin());
    columns.back() = importColumns[10];
    return columns;
}();

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

// The amount of a field; nothing if it is none. "Ft" and the ",-" of round sums may stand behind it.
std::optional<std::int32_t> forints(QByteArrayView field) {
    std::int32_t plain = 0; // most are digits alone, and a file has many lines
    const auto [end, error] = std::from_chars(field.begin(), field.end(), plain);
    if (error == std::errc() && end == field.end() && plain >= 0) return plain;
    const QString letters = QString::fromLatin1(field);
    QStringView text = letters;
    for (const QStringView ending : {u"ft.", u"ft", u",-"}) {
        text = trimBlanks(text);
        if (text.size() > ending.size() && text.endsWith(ending, Qt::CaseInsensitive)) text.chop(ending.size());
    }
    const std::optional<std::int64_t> amount = plainAmount(text);
    if (!amount || *amount > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return static_cast<std::int32_t>(*amount);
}

} // namespace

CsvClientReader::CsvClientReader(std::span<const CsvColumn> columns, EmptyLine emptyLine, Sink sink)
    : columns_(columns)
    , emptyLine_(emptyLine)
    , sink_(std::move(sink))
    , client_(blankClient()) {}

void CsvClientReader::feed(QByteArrayView text) {
    const char* at = text.begin();
    while (at != text.end() && !hasEnded_) {
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
        if (!endsCrLf && !lineHasBegun_ && emptyLine_ == EmptyLine::end)
            hasEnded_ = true;
        else if (!endsCrLf)
            endLine();
        lastWasCr_ = mark == '\r';
        return;
    }
    if (mark == '\0') {
        hasSeenNul_ = true;
        return takeText(" ");
    }
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
    const QByteArrayView surplus = text.sliced(static_cast<qsizetype>(length));
    isCut_ = isCut_ || std::any_of(surplus.begin(), surplus.end(), [](char c) { return c != ' '; });
}

// A run of blanks counts as one.
void CsvClientReader::takeAmountText(QByteArrayView text) {
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == noBreakSpace;
        if (isBlank && (used_ == 0 || amount_[used_ - 1] == ' ')) continue;
        if (used_ < amount_.size()) amount_[used_++] = isBlank ? ' ' : c;
    }
}

void CsvClientReader::storeAmount(const CsvColumn& column) {
    const QByteArrayView text(amount_.data(), static_cast<qsizetype>(used_));
    const auto value = used_ < amount_.size() ? forints(text) : std::nullopt;
    if (!value) note(column, windows1250::decode(text.trimmed()));
    const I32 stored = value.value_or(0);
    std::memcpy(reinterpret_cast<char*>(&client_) + column.offset, &stored, sizeof stored);
}

void CsvClientReader::note(const CsvColumn& column, const QString& amount) {
    ++(column.rule == CsvRule::amount ? faults_.badAmounts : faults_.cutTexts);
    if (faults_.first.size() == CsvFaults::mostListed) return;
    faults_.first.push_back({line_, client_.client.Nev.trimmed(), column, amount});
}

void CsvClientReader::endField() {
    if (column_ < columns_.size()) {
        const CsvColumn& column = columns_[column_];
        if (column.rule == CsvRule::amount) storeAmount(column);
        if (isCut_) note(column);
    }
    ++column_;
    used_ = 0;
    isCut_ = false;
}

void CsvClientReader::endLine() {
    static const Client blank = blankClient();
    endField();
    sink_(client_);
    client_ = blank;
    column_ = 0;
    lineHasBegun_ = false;
    ++line_;
}
