#include "exchange/csv_export.h"

#include "records/client_database.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

using Result = ExportOutcome::Result;

constexpr std::size_t lineLength = exportLineLength;
constexpr std::size_t lineEnd = lineLength - 2;

// Where a column begins in the line, and the field of a Client that it shows. It ends where the next one begins.
struct ExportColumn {
    std::size_t start;
    std::size_t offset;
};

constexpr std::size_t amountColumn = 6;
constexpr std::array<ExportColumn, 14> columns = {{
    {0, offsetof(Client, client.Nev)},
    {31, offsetof(Client, client.Nev2)},
    {62, offsetof(Client, client.Azonosito)},
    {93, offsetof(Client, client.Helyseg)},
    {114, offsetof(Client, client.Irsz)},
    {119, offsetof(Client, client.Cim)},
    {165, offsetof(Client, client.Osszegek)},
    {175, offsetof(Client, twin.Kozl3Sor)},
    {196, offsetof(Client, client.FizHatIdo)},
    {224, offsetof(Client, twin.IratSzama)},
    {245, offsetof(Client, twin.IratFajtaja)},
    {266, offsetof(Client, twin.IratMelleklet)},
    {287, offsetof(Client, twin.SajatJelzes)},
    {308, offsetof(Client, twin.KuldemenyAzonosito)},
}};

void putAmount(std::int32_t forints, char* at, std::size_t width) {
    std::array<char, 11> digits; // with a sign
    const char* end = std::to_chars(digits.begin(), digits.end(), forints).ptr;
    std::fill_n(at, width, ' ');
    std::copy_n(digits.begin(), std::min<std::size_t>(width, static_cast<std::size_t>(end - digits.begin())), at);
}

void putLine(const Client& client, char* line) {
    const char* record = reinterpret_cast<const char*>(&client);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::size_t separator = i == 0 ? 0 : 1;
        const std::size_t begin = columns[i].start + separator;
        const std::size_t width = (i + 1 < columns.size() ? columns[i + 1].start : lineEnd) - begin;
        if (i == amountColumn)
            putAmount(client.client.Osszegek[0], line + begin, width);
        else
            std::copy_n(record + columns[i].offset, width, line + begin);
    }
    std::replace_if(
        line, line + lineEnd, [](char c) { return c == '\0' || c == '\r' || c == '\n'; }, ' ');
    for (const ExportColumn& column : columns)
        if (column.start > 0) line[column.start] = ';';
    line[lineEnd] = '\r';
    line[lineEnd + 1] = '\n';
}

// Writes lines into an open file, each in its place.
class LineWriter {
public:
    LineWriter(QFile& file, const ClientPair& pair, const ProgressFn& progress)
        : file_(file)
        , clients_(reinterpret_cast<const ClientRec*>(pair.clients.constData()))
        , twins_(reinterpret_cast<const TwinRec*>(pair.twins.constData()))
        , total_(pair.clients.size() / qsizetype{sizeof(ClientRec)} * exportLineLength)
        , progress_(progress) {}

    // Lines from `first`, counted from 0, to the one before `last`.
    bool write(qint64 first, qint64 last) {
        constexpr qint64 most = (1 << 20) / exportLineLength;
        for (qint64 from = first; from < last; from += most)
            if (!writePiece(from, std::min(last, from + most))) return false;
        return true;
    }

private:
    bool writePiece(qint64 first, qint64 last) {
        const qint64 length = (last - first) * exportLineLength;
        buffer_.resize(static_cast<qsizetype>(length));
        for (qint64 i = first; i < last; ++i)
            putLine({clients_[i], twins_[i]}, buffer_.data() + (i - first) * exportLineLength);
        if (!file_.seek(first * exportLineLength) || file_.write(buffer_) != length) return false;
        done_ += length;
        if (progress_) progress_(done_, total_);
        return true;
    }

    QFile& file_;
    const ClientRec* clients_;
    const TwinRec* twins_;
    qint64 total_;
    qint64 done_ = 0;
    const ProgressFn& progress_;
    QByteArray buffer_;
};

// What the file grows by is written first: where the disk has no room for it, nothing of the old contents is touched.
Result writeAll(QFile& file, LineWriter& lines, qint64 count) {
    const qint64 oldSize = file.size();
    const qint64 oldLines = std::min(count, (oldSize + exportLineLength - 1) / exportLineLength);
    if (!lines.write(oldLines, count)) return file.resize(oldSize) ? Result::notWritten : Result::brokenOff;
    return lines.write(0, oldLines) ? Result::written : Result::brokenOff;
}

// The database itself, settings and the like. A CSV file may lie beside them.
bool isOwnFile(const QString& path, const ProgramFolder& folder) {
    const QFileInfo file(path);
    return file.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) != 0 && file.exists() &&
           QFileInfo(file.canonicalFilePath()).path() == QFileInfo(folder.path()).canonicalFilePath();
}

} // namespace

ExportOutcome exportClients(const QString& path, const ProgramFolder& folder, const ProgressFn& progress) {
    if (isOwnFile(path, folder)) return {Result::ownFile};
    const std::optional<ClientPair> pair = readClientPair(folder);
    if (!pair) return {Result::unreadable};
    const bool isNew = !QFileInfo::exists(path);
    // A device or a pipe has no places to write at. Open for reading too, or the toolkit would empty the file.
    QFile file(path);
    if ((!isNew && !QFileInfo(path).isFile()) || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) return {};

    const qint64 count = pair->clients.size() / qsizetype{sizeof(ClientRec)};
    LineWriter lines(file, *pair, progress);
    const Result result = writeAll(file, lines, count);
    const bool hasOldLines = file.size() > count * exportLineLength;
    file.close();
    if (isNew && result != Result::written) return {QFile::remove(path) ? Result::notWritten : Result::brokenOff};
    return {result, count, hasOldLines};
}
