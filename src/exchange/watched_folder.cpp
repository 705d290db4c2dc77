#include "exchange/watched_folder.h"

#include "exchange/import_notes.h"
#include "exchange/line_count.h"
#include "records/client_database.h"
#include "records/disk.h"
#include "records/file_replacement.h"

#include <QDirIterator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using Result = TickOutcome::Result;

// Plain files by name, in a stable order. The toolkit's own sorting would look at every file of the folder.
QFileInfoList csvFiles(const QString& folder) {
    QFileInfoList files;
    QDirIterator file(folder, {u"*.csv"_s}, QDir::Files | QDir::NoSymLinks); // whatever the case
    while (file.hasNext()) {
        file.next();
        files << file.fileInfo();
    }
    std::sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        const int order = a.fileName().compare(b.fileName(), Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.fileName() < b.fileName();
    });
    return files;
}

// A stamp in the future comes from another clock and says nothing.
bool isBeingWritten(const FileVersion& file, const QDateTime& now) {
    const qint64 age = now.toMSecsSinceEpoch() - file.changed;
    return age >= 0 && age < 2000;
}

FileVersion versionNow(const FileVersion& file) { return FileVersion(QFileInfo(file.path)); }

// Only the file that was read: lines that came later would be lost with it.
bool isDeleted(const FileVersion& file) {
    return (versionNow(file) == file && QFile::remove(file.path)) || !QFile::exists(file.path);
}

// One tick at work on the files of a folder.
class Tick {
public:
    Tick(const ProgramFolder& folder, const WatchSettings& watch, const ProgressFn& progress)
        : folder_(folder)
        , watch_(watch)
        , progress_(progress)
        , notes_(folder) {
        forgetGoneFiles();
    }

    TickOutcome takeFirstReady(const QDateTime& now) {
        TickOutcome waiting; // what is the matter with a file that can't be taken now
        for (const QFileInfo& info : csvFiles(watch_.folder)) {
            const FileVersion file(info);
            TickOutcome outcome;
            if (const auto note = notes_.find(file))
                outcome = look(file, *note);
            else if (!isBeingWritten(file, now))
                outcome = take(file);
            if (outcome.result == Result::imported || outcome.isPassedOver) return outcome;
            if (outcome.import.result == ImportOutcome::Result::notWritten) return outcome; // and so with the others
            if (!outcome.file.isEmpty()) waiting = outcome;
        }
        return waiting;
    }

private:
    bool storeNotes() const { return replaceFile(folder_.file(QString::fromLatin1(importNotesFile)), notes_.bytes()); }
    // Once they are gone for good: a file that a power failure brings back must still be known. What can't be stored
    // now is at the next tick.
    void forgetGoneFiles() {
        if (notes_.dropStale() && flushFolder(watch_.folder)) (void)storeNotes();
    }

    TickOutcome about(const FileVersion& file) const {
        return {.file = QFileInfo(file.path).fileName(), .mode = watch_.mode, .prints = watch_.prints};
    }

    // A file that was imported before, and could not be deleted then.
    TickOutcome look(const FileVersion& file, ImportNotes::Kind kind) const {
        if (kind == ImportNotes::Kind::passedOver || isDeleted(file)) return {};
        TickOutcome outcome = about(file);
        outcome.isStuck = true;
        return outcome;
    }

    TickOutcome take(const FileVersion& file) {
        if (progress_) progress_(0, file.size);
        TickOutcome outcome = about(file);
        outcome.isTooLong = file.size > mostWatchedLines && lineCount(file.path) > mostWatchedLines;
        if (outcome.isTooLong) return passOver(file, std::move(outcome));
        bool isText = true;
        ImportWay way{watch_.mode, watchColumns, EmptyLine::end};
        way.confirm = [&](const ImportOutcome& read) -> std::optional<QByteArray> {
            isText = !read.holdsNul;
            if (!isText || versionNow(file) != file) return std::nullopt;
            notes_.add(file, read.endedAtEmptyLine ? ImportNotes::Kind::passedOver : ImportNotes::Kind::imported);
            return notes_.bytes();
        };
        outcome.import = importClients(file.path, folder_, way, progress_);
        return finish(file, isText, std::move(outcome));
    }

    TickOutcome passOver(const FileVersion& file, TickOutcome outcome) {
        notes_.add(file, ImportNotes::Kind::passedOver);
        outcome.isPassedOver = storeNotes();
        outcome.result = Result::refused;
        return outcome;
    }

    TickOutcome finish(const FileVersion& file, bool isText, TickOutcome outcome) {
        switch (outcome.import.result) {
        case ImportOutcome::Result::imported:
            outcome.result = Result::imported;
            outcome.isPassedOver = outcome.import.endedAtEmptyLine;
            outcome.isStuck = !outcome.isPassedOver && !isDeleted(file);
            forgetGoneFiles();
            return outcome;
        case ImportOutcome::Result::calledOff:
            if (isText) return {}; // somebody is still writing it
            [[fallthrough]];
        case ImportOutcome::Result::empty:
            return passOver(file, std::move(outcome));
        case ImportOutcome::Result::unreadable:
            if (!QFile::exists(file.path)) return {}; // taken away meanwhile
            break;
        case ImportOutcome::Result::notWritten:
            break;
        }
        outcome.result = Result::refused;
        return outcome;
    }

    const ProgramFolder& folder_;
    const WatchSettings& watch_;
    const ProgressFn& progress_;
    ImportNotes notes_;
};

QString importedText(const TickOutcome& outcome) {
    const ImportOutcome& import = outcome.import;
    const QString clients = QString::number(import.clients);
    if (import.endedAtEmptyLine)
        return u"A(z) ''%1'' beolvasása üres sornál megszakadt, %2 ügyfél beolvasva."_s.arg(outcome.file, clients);
    QString text = u"A(z) ''%1'' fájlból %2 ügyfél beolvasva."_s.arg(outcome.file, clients);
    if (import.badAmounts > 0) text += u" %1 összeg nem értelmezhető."_s.arg(import.badAmounts);
    if (import.cutTexts > 0) text += u" %1 szöveg nem fért el a mezőjében."_s.arg(import.cutTexts);
    if (outcome.isStuck) text += u" A fájl nem törölhető!"_s;
    return text;
}

QString refusedText(const TickOutcome& outcome) {
    if (outcome.isTooLong)
        return u"A(z) ''%1'' túl hosszú (legfeljebb 300000 sor lehet), az adatbázis nem változott."_s;
    switch (outcome.import.result) {
    case ImportOutcome::Result::empty:
        return u"A(z) ''%1'' fájlban nincs ügyfél, az adatbázis nem változott."_s;
    case ImportOutcome::Result::calledOff:
        return u"A(z) ''%1'' nem szövegfájl, az adatbázis nem változott."_s;
    case ImportOutcome::Result::notWritten:
        return u"A(z) ''%1'' beolvasása nem sikerült: az adatbázis nem írható."_s;
    default:
        return u"A(z) ''%1'' fájl nem olvasható."_s;
    }
}

} // namespace

WatchSettings::WatchSettings(const Set& set)
    : isOn(set.chkAutBeolvas != 0 && !set.txtAutBeolvas.trimmed().isEmpty())
    , folder(set.txtAutBeolvas.trimmed())
    , mode(set.opHozzafuzes_1 ? ImportMode::overwrite : ImportMode::append)
    , prints(set.chkAutoPrint == 1 && mode == ImportMode::overwrite) {}

bool liesInWatchedFolder(const QString& path, const WatchSettings& watch) {
    return watch.isOn &&
           QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath() == QFileInfo(watch.folder).canonicalFilePath();
}

TickOutcome watchTick(const ProgramFolder& folder, const QDateTime& now, const ProgressFn& progress) {
    const WatchSettings watch(readRecord<Set>(folder));
    if (!watch.isOn) return {Result::off};
    // A path that isn't full would be looked for in a folder that nobody chose.
    const QFileInfo watched(watch.folder);
    if (watched.isRelative() || !watched.isDir() || !watched.isReadable()) return {Result::folderMissing};
    return Tick(folder, watch, progress).takeFirstReady(now);
}

QString tickText(const TickOutcome& outcome) {
    switch (outcome.result) {
    case Result::off:
        return {};
    case Result::folderMissing:
        return u"A figyelt mappa nem található!"_s;
    case Result::imported:
        return importedText(outcome);
    case Result::refused:
        return refusedText(outcome).arg(outcome.file);
    case Result::idle:
        return outcome.isStuck ? u"A(z) ''%1'' már be van olvasva, de nem törölhető!"_s.arg(outcome.file) : QString();
    }
    return {};
}
