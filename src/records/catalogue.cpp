#include "records/catalogue.h"

#include "records/file_replacement.h"

namespace {

constexpr qsizetype entryLength = sizeof(CatalogueEntry);

QString nameOf(const Catalogue& catalogue) { return QString::fromLatin1(catalogue.fileName); }

// Throws UnreadableFile.
QByteArray readWhole(const ProgramFolder& folder, const Catalogue& catalogue) {
    QByteArray entries;
    if (!RawRecordFile(folder, nameOf(catalogue), entryLength).readAllInto(entries))
        throw UnreadableFile(nameOf(catalogue));
    return entries;
}

std::vector<CatalogueEntry> entriesOf(const QByteArray& bytes) {
    std::vector<CatalogueEntry> entries(static_cast<std::size_t>(bytes.size() / entryLength));
    if (!entries.empty())
        std::memcpy(static_cast<void*>(entries.data()), bytes.constData(), entries.size() * sizeof(CatalogueEntry));
    return entries;
}

std::optional<std::vector<CatalogueEntry>> replaced(const ProgramFolder& folder, const Catalogue& catalogue,
                                                    const QByteArray& bytes) {
    if (!replaceFile(folder.file(nameOf(catalogue)), bytes)) return std::nullopt;
    return entriesOf(bytes);
}

} // namespace

std::vector<CatalogueEntry> readEntries(const ProgramFolder& folder, const Catalogue& catalogue) {
    return entriesOf(readWhole(folder, catalogue));
}

std::optional<std::vector<CatalogueEntry>> appendEntry(const ProgramFolder& folder, const Catalogue& catalogue,
                                                       QStringView text) {
    const CatalogueEntry entry{text};
    return replaced(folder, catalogue, readWhole(folder, catalogue) + QByteArray(entry.Szoveg.data(), entryLength));
}

std::optional<std::vector<CatalogueEntry>> removeEntry(const ProgramFolder& folder, const Catalogue& catalogue,
                                                       qint64 number) {
    QByteArray entries = readWhole(folder, catalogue);
    if (number < 1 || number > entries.size() / entryLength) return std::nullopt;
    return replaced(folder, catalogue, entries.remove((number - 1) * entryLength, entryLength));
}
