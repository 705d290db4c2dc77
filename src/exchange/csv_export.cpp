#include "exchange/csv_export.h"

#include "records/client_database.h"
#include "records/disk.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

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

// Nearly no line has such a byte: one look without branches, a few wide steps to the compiler, spares the loop.
void blankOutEnds(char* line) {
    unsigned char hasLow = 0;
    for (std::size_t i = 0; i < lineEnd; ++i)
        hasLow |= static_cast<unsigned char>(line[i]) <= '\r' ? 1 : 0;
    if (hasLow == 0) return;
    std::replace_if(
        line, line + lineEnd, [](char c) { return c == '\0' || c == '\r' || c == '\n'; }, ' ');
}

// Known while compiling, a column is a few moves instead of a call.
template<std::size_t i>
void putColumn(const Client& client, char* line) {
    constexpr std::size_t separator = i == 0 ? 0 : 1;
    constexpr std::size_t begin = columns[i].start + separator;
    constexpr std::size_t end = i + 1 < columns.size() ? columns[std::min(i + 1, columns.size() - 1)].start : lineEnd;
    if (separator > 0) line[columns[i].start] = ';';
    if (i == amountColumn)
        putAmount(client.client.Osszegek[0], line + begin, end - begin);
    else
        std::memcpy(line + begin, reinterpret_cast<const char*>(&client) + columns[i].offset, end - begin);
}

template<std::size_t... i>
void putColumns(const Client& client, char* line, std::index_sequence<i...> /*columns*/) {
    (putColumn<i>(client, line), ...);
}

void putLine(const Client& client, char* line) {
    putColumns(client, line, std::make_index_sequence<columns.size()>());
    blankOutEnds(line);
    line[lineEnd] = '\r';
    line[lineEnd + 1] = '\n';
}

// Takes lines from the database into an open file, each in its place. The pieces are small enough for the caches.
class LineWriter {
public:
    LineWriter(QFile& file, const ProgramFolder& folder, const ProgressFn& progress)
        : file_(file)
        , clients_(folder)
        , twins_(folder)
        , progress_(progress) {}

    bool canRead() const { return clients_.isReadable() && twins_.isReadable(); }
    qint64 count() const { return clients_.count(); }

    // Lines from `first`, counted from 0, to the one before `last`.
    bool write(qint64 first, qint64 last) {
        for (qint64 from = first; from < last; from += most)
            if (!writePiece(from, std::min(most, last - from))) return false;
        return true;
    }

private:
    bool writePiece(qint64 first, qint64 number) {
        const auto size = static_cast<std::size_t>(number);
        const std::span clients(clientBuffer_.data(), size);
        const std::span twins(twinBuffer_.data(), size);
        if (!clients_.readMany(first + 1, clients) || !twins_.readMany(first + 1, twins)) return false;
        for (std::size_t i = 0; i < size; ++i)
            putLine({clients[i], twins[i]}, lines_.data() + i * lineLength);
        const qint64 length = number * exportLineLength;
        if (!file_.seek(first * exportLineLength) || file_.write(lines_.data(), length) != length) return false;
        done_ += length;
        if (progress_) progress_(done_, count() * exportLineLength);
        return true;
    }

    static constexpr qint64 most = (1 << 18) / exportLineLength;
    QFile& file_;
    RecordFile<ClientRec> clients_;
    RecordFile<TwinRec> twins_;
    const ProgressFn& progress_;
    qint64 done_ = 0;
    std::vector<ClientRec> clientBuffer_ = std::vector<ClientRec>(most);
    std::vector<TwinRec> twinBuffer_ = std::vector<TwinRec>(most);
    std::vector<char> lines_ = std::vector<char>(most * lineLength);
};

// What the file grows by is written first: where the disk has no room for it, nothing of the old contents is touched.
Result writeAll(QFile& file, LineWriter& lines, qint64 count) {
    const qint64 oldSize = file.size();
    const qint64 oldLines = std::min(count, (oldSize + exportLineLength - 1) / exportLineLength);
    if (!lines.write(oldLines, count)) return file.resize(oldSize) ? Result::notWritten : Result::brokenOff;
    return lines.write(0, oldLines) && flushToDisk(file) ? Result::written : Result::brokenOff;
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
    const bool isNew = !QFileInfo::exists(path);
    // Open for reading too, or the toolkit would empty it.
    QFile file(path);
    if (finishInterruptedCommit(folder) == Recovery::oldPairKept) return {Result::unreadable};
    LineWriter lines(file, folder, progress);
    if (!lines.canRead()) return {Result::unreadable};
    // A device or a pipe has no places to write at.
    if ((!isNew && !QFileInfo(path).isFile()) || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) return {};

    const qint64 count = lines.count();
    const Result result = writeAll(file, lines, count);
    const bool hasOldLines = file.size() > count * exportLineLength;
    file.close();
    if (isNew && result != Result::written) return {QFile::remove(path) ? Result::notWritten : Result::brokenOff};
    if (isNew) (void)flushFolder(QFileInfo(path).absolutePath());
    return {result, count, hasOldLines};
}
