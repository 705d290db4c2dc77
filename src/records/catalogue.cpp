#include "records/catalogue.h"

#include "records/file_replacement.h"

#include <optional>

namespace {

constexpr qsizetype entryLength = sizeof(CatalogueEntry);

QString nameOf(const Catalogue& catalogue) { return QString::fromLatin1(catalogue.fileName); }

RawRecordFile open(const ProgramFolder& folder, const Catalogue& catalogue) {
    return {folder, nameOf(catalogue), entryLength};
}

// Nothing if the file is there but can't be read whole.
std::optional<QByteArray> readWhole(const ProgramFolder& folder, const Catalogue& catalogue) {
    RawRecordFile file = open(folder, catalogue);
    QByteArray entries = file.readAll();
    if (entries.size() != file.count() * entryLength) return std::nullopt;
    return entries;
}

} // namespace

std::vector<CatalogueEntry> readEntries(const ProgramFolder& folder, const Catalogue& catalogue) {
    const QByteArray bytes = open(folder, catalogue).readAll();
    std::vector<CatalogueEntry> entries(static_cast<std::size_t>(bytes.size() / entryLength));
    if (!entries.empty())
        std::memcpy(static_cast<void*>(entries.data()), bytes.constData(), entries.size() * sizeof(CatalogueEntry));
    return entries;
}

bool appendEntry(const ProgramFolder& folder, const Catalogue& catalogue, QStringView text) {
    RawRecordFile file = open(folder, catalogue);
    const CatalogueEntry entry{text};
    return file.write(file.count() + 1, entry.Szoveg.data());
}

bool removeEntry(const ProgramFolder& folder, const Catalogue& catalogue, qint64 number) {
    std::optional<QByteArray> entries = readWhole(folder, catalogue);
    if (!entries || number < 1 || number > entries->size() / entryLength) return false;
    entries->remove((number - 1) * entryLength, entryLength);
    return replaceFile(folder.file(nameOf(catalogue)), *entries);
}
