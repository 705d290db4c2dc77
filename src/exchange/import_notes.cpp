#include "exchange/import_notes.h"

#include "records/client_database.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>

namespace {

constexpr char importedMark[] = "beolvasva";
constexpr char passedOverMark[] = "kihagyva";

} // namespace

ImportNotes::ImportNotes(const ProgramFolder& folder) {
    const QString name = QString::fromLatin1(importNotesFile);
    if (!QFile::exists(folder.file(name))) return;
    for (const QByteArray& line : settings_file::read(folder, name).split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        const bool isImported = words[0] == importedMark;
        if (words.size() != 4 || (!isImported && words[0] != passedOverMark)) continue;
        const QString path = QString::fromUtf8(QByteArray::fromPercentEncoding(words[3]));
        notes_.push_back({FileVersion(path, words[1].toLongLong(), words[2].toLongLong()),
                          isImported ? Kind::imported : Kind::passedOver});
    }
}

std::optional<ImportNotes::Kind> ImportNotes::find(const FileVersion& file) const {
    const auto found = std::find_if(notes_.begin(), notes_.end(), [&](const Note& note) { return note.file == file; });
    return found == notes_.end() ? std::nullopt : std::optional(found->kind);
}

void ImportNotes::add(const FileVersion& file, Kind kind) {
    std::erase_if(notes_, [&](const Note& note) { return note.file.path == file.path; });
    notes_.push_back({file, kind});
}

bool ImportNotes::dropStale() {
    return std::erase_if(notes_, [](const Note& note) {
               const QFileInfo file(note.file.path);
               return QFileInfo(file.path()).isDir() && FileVersion(file) != note.file;
           }) > 0;
}

// Blanks and line ends of a path are escaped.
QByteArray ImportNotes::bytes() const {
    QByteArray text;
    for (const Note& note : notes_)
        text += QByteArray(note.kind == Kind::imported ? importedMark : passedOverMark) + ' ' +
                QByteArray::number(note.file.size) + ' ' + QByteArray::number(note.file.changed) + ' ' +
                note.file.path.toUtf8().toPercentEncoding("/:") + '\n';
    return text;
}
