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

} // namespace

std::vector<CatalogueEntry> readEntries(const ProgramFolder& folder, const Catalogue& catalogue) {
    const QByteArray bytes = readWhole(folder, catalogue);
    std::vector<CatalogueEntry> entries(static_cast<std::size_t>(bytes.size() / entryLength));
    if (!entries.empty())
        std::memcpy(static_cast<void*>(entries.data()), bytes.constData(), entries.size() * sizeof(CatalogueEntry));
    return entries;
}

bool appendEntry(const ProgramFolder& folder, const Catalogue& catalogue, QStringView text) {
    const CatalogueEntry entry{text};
    return replaceFile(folder.file(nameOf(catalogue)),
                       readWhole(folder, catalogue) + QByteArray(entry.Szoveg.data(), entryLength));
}

bool removeEntry(const ProgramFolder& folder, const Catalogue& catalogue, qint64 number) {
    QByteArray entries = readWhole(folder, catalogue);
    if (number < 1 || number > entries.size() / entryLength) return false;
    entries.remove((number - 1) * entryLength, entryLength);
    return replaceFile(folder.file(nameOf(catalogue)), entries);
}
