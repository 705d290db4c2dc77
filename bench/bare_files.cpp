#include "bare_files.h"

#include "exchange/csv_clients.h"
#include "records/page_buffer.h"

#include <QFile>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t pieceSize = 1 << 20;

class BareWriter {
public:
    explicit BareWriter(const QString& path)
        : path_(QFile::encodeName(path))
        , file_(::open((path_ + ".uj").constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {
        buffer_.reserve(pieceSize);
    }
    BareWriter(const BareWriter&) = delete;
    BareWriter& operator=(const BareWriter&) = delete;
    ~BareWriter() { ::close(file_); }

    void write(const void* bytes, std::size_t size) {
        const auto* first = static_cast<const char*>(bytes);
        if (buffer_.size() + size > pieceSize) empty();
        if (size > pieceSize) return writeThrough(first, size);
        buffer_.insert(buffer_.end(), first, first + size);
    }
    void putInPlace() {
        empty();
        if (::fsync(file_) != 0 || std::rename((path_ + ".uj").constData(), path_.constData()) != 0)
            qFatal("a bare file could not be put in its place");
    }

private:
    void empty() {
        writeThrough(buffer_.data(), buffer_.size());
        buffer_.clear();
    }
    void writeThrough(const char* bytes, std::size_t size) const {
        if (::write(file_, bytes, size) != static_cast<ssize_t>(size)) qFatal("a bare write failed");
    }

    QByteArray path_;
    int file_;
    std::vector<char> buffer_;
};

void splitLine(const char* at, const char* end, Client& client) {
    std::memset(static_cast<void*>(&client), ' ', sizeof client);
    client.client.Osszegek.fill(I32(0));
    client.client.Kulfoldi = false;
    for (const CsvColumn& column : importColumns) {
        const char* stop = std::find(at, end, ';');
        char* field = reinterpret_cast<char*>(&client) + column.offset;
        if (column.rule == CsvRule::amount) {
            std::int32_t forints = 0;
            std::from_chars(at, stop, forints);
            const I32 stored = forints;
            std::memcpy(field, &stored, sizeof stored);
        } else {
            std::memcpy(field, at, std::min(column.width, static_cast<std::size_t>(stop - at)));
        }
        if (stop == end) return;
        at = stop + 1;
    }
}

// Splits all whole lines and returns where the rest begins.
const char* splitLines(const char* at, const char* end, BareWriter& clients, BareWriter& twins) {
    Client client;
    while (true) {
        const char* stop = std::find(at, end, '\r');
        if (end - stop < 2) return at;
        splitLine(at, stop, client);
        clients.write(&client.client, sizeof client.client);
        twins.write(&client.twin, sizeof client.twin);
        at = stop + 2;
    }
}

} // namespace

QByteArrayView bareRead(const QString& path) {
    static PageBuffer memory;
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    if (file < 0 || ::fstat(file, &about) != 0) qFatal("nothing to read");
    memory.resize(about.st_size);
    if (::read(file, memory.data(), static_cast<std::size_t>(about.st_size)) != about.st_size)
        qFatal("the bare read failed");
    ::close(file);
    return {memory.constData(), memory.size()};
}

void bareImport(const QString& csv, const QString& folder, const QString& present) {
    BareWriter clients(folder + u'/' + QLatin1String(ClientRec::fileName));
    BareWriter twins(folder + u'/' + QLatin1String(TwinRec::fileName));
    const auto copy = [&present](const char* name, BareWriter& to) {
        const QByteArrayView all = bareRead(present + u'/' + QLatin1String(name));
        to.write(all.data(), static_cast<std::size_t>(all.size()));
    };
    if (!present.isEmpty()) {
        copy(ClientRec::fileName, clients);
        copy(TwinRec::fileName, twins);
    }
    const int file = ::open(QFile::encodeName(csv).constData(), O_RDONLY | O_CLOEXEC);
    std::vector<char> buffer(2 * pieceSize);
    std::size_t kept = 0;
    while (true) {
        const ssize_t length = ::read(file, buffer.data() + kept, pieceSize);
        if (length <= 0) break;
        const char* end = buffer.data() + kept + length;
        const char* rest = splitLines(buffer.data(), end, clients, twins);
        kept = static_cast<std::size_t>(end - rest);
        std::memmove(buffer.data(), rest, kept);
    }
    ::close(file);
    clients.putInPlace();
    twins.putInPlace();
}

void bareExport(const QString& path, int lines) {
    constexpr std::size_t lineLength = 331;
    constexpr std::size_t linesEach = pieceSize / lineLength;
    const std::vector<char> line(lineLength, 'x');
    std::vector<char> buffer;
    buffer.reserve(pieceSize);
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const auto flush = [&] {
        if (::write(file, buffer.data(), buffer.size()) != static_cast<ssize_t>(buffer.size()))
            qFatal("the bare export failed");
        buffer.clear();
    };
    for (int i = 0; i < lines; ++i) {
        buffer.insert(buffer.end(), line.begin(), line.end());
        if (buffer.size() == linesEach * lineLength) flush();
    }
    flush();
    if (::fsync(file) != 0) qFatal("the bare export failed");
    ::close(file);
}

void bareDelete(const QString& from, const QString& to) {
    const struct {
        const char* name;
        qsizetype length; // of a record
    } files[] = {{ClientRec::fileName, sizeof(ClientRec)}, {TwinRec::fileName, sizeof(TwinRec)}};
    for (const auto& [name, length] : files) {
        const QByteArrayView all = bareRead(from + u'/' + QLatin1String(name));
        const qsizetype half = all.size() / length / 2 * length;
        BareWriter written(to + u'/' + QLatin1String(name));
        written.write(all.data(), static_cast<std::size_t>(half));
        written.write(all.data() + half + length, static_cast<std::size_t>(all.size() - half - length));
        written.putInPlace();
    }
}
