#include "mainwindow/database_actions.h"

#include "exchange/line_count.h"
#include "exchange/watched_folder.h"
#include "mainwindow/guarded.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/work_in_progress.h"
#include "prompts/messages.h"
#include "settings/general_settings.h"

#include <QCursor>
#include <QDir>
#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString importTitle = u"Adatbázis importálása"_s;

// The hourglass for as long as it lives.
struct WaitCursor {
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

// "Nem" is preset: an ENTER too many must not take clients away.
bool confirms(Prompts& prompts, const QString& title, const QString& question) {
    return prompts.ask({Icon::question, title, question}, Answer::no) == Answer::yes;
}

} // namespace

DatabaseActions::DatabaseActions(const ProgramFolder& folder, Prompts& prompts, WorkInProgress& work)
    : folder_(folder)
    , prompts_(prompts)
    , work_(work) {}

void DatabaseActions::connectMenu(const QMenuBar& bar) {
    const auto on = [&](const char* name, void (DatabaseActions::*action)()) {
        onMenu(bar, name, this, [this, action] {
            guarded(prompts_, [&] {
                Q_EMIT said({}); // what came of the last action
                (this->*action)();
            });
        });
    };
    on("mnuAdatCsvbol", &DatabaseActions::mnuAdatCsvbol_Click);
    on("mnuKonertal", &DatabaseActions::mnuKonertal_Click);
    on("mnuMentCSVbe", &DatabaseActions::mnuMentCSVbe_Click);
    on("mnuAdatbazisTorles", &DatabaseActions::mnuAdatbazisTorles_Click);
}

void DatabaseActions::checkAtStart() {
    const Recovery recovery = finishInterruptedCommit(folder_);
    if (recovery == Recovery::clientsFound)
        prompts_.tell({Icon::information, titles::attention,
                       u"Az ügyfelek adatbázisa hiányzott, a félretett példánya visszakerült a helyére."_s});
    if (recovery == Recovery::oldPairKept)
        prompts_.tell({Icon::information, titles::attention,
                       u"Az ügyfelek adatbázisának cseréje legutóbb félbeszakadt,\nés nem fejezhető be. "
                       "A korábbi adatbázis maradt meg."_s});
    if (!folder_.isWritable())
        prompts_.tell({Icon::information, titles::attention,
                       u"A program mappája nem írható,\naz adatok és a beállítások nem menthetők!"_s});
}

void DatabaseActions::cmdDel_Click(int rekordszam, const QString& shownName) {
    if (rekordszam < 1 || rekordszam > clientCount(folder_)) return prompts_.tell(messages::nobodyPicked());
    const QString storedName = RecordFile<ClientRec>(folder_).read(rekordszam).Nev.trimmed();
    const QString name = trimBlanks(shownName) == storedName ? shownName : storedName;
    if (!confirms(prompts_, u"Feladó törlése"_s, u"Biztos mehet \n%1\n\ntörlése?"_s.arg(name.toUpper()))) return;
    const bool deleted = [&] {
        const WaitCursor wait;
        const WorkInProgress::Turn turn(work_);
        return deleteClient(folder_, rekordszam);
    }();
    if (!deleted) return prompts_.tell(messages::notWritten());
    afterwards([&] {
        Q_EMIT changed({ClientsChanged::removed, rekordszam});
        Q_EMIT said(u"Az ügyfél törölve, %1 ügyfél maradt."_s.arg(clientCount(folder_)));
    });
}

void DatabaseActions::mnuAdatbazisTorles_Click() {
    const QString question = u"Biztos benne hogy TÖRLI \na teljes adatbázist?\n\nMehet a TÖRLÉS?"_s;
    if (!confirms(prompts_, u"Adatbázis törlése"_s, question)) return;
    if (!wipeClients(folder_)) return prompts_.tell(messages::notWritten());
    Q_EMIT changed({ClientsChanged::replaced});
    Q_EMIT said(u"Az adatbázis üres."_s);
}

void DatabaseActions::mnuAdatCsvbol_Click() {
    const QString filter = u"*.csv"_s;
    const ImportMode mode = readRecord<Set>(folder_).opHozzafuzes_1 ? ImportMode::overwrite : ImportMode::append;
    // The mode is set in another dialog and there is no further question: the title says what will happen.
    const QString path =
        prompts_.openFile(mode == ImportMode::overwrite ? u"Importálás - a meglévő adatbázis FELÜLÍRÁSÁVAL"_s
                                                        : u"Importálás - hozzáfűzés"_s,
                          filter);
    if (path.isEmpty() || path == filter || !mayImport(path)) return;
    const ImportOutcome outcome = import(path, mode);
    const auto refuse = [this](const QString& why) {
        prompts_.tell({Icon::critical, titles::error, why + u", az adatbázis nem változott."_s});
    };
    switch (outcome.result) {
    case ImportOutcome::Result::imported:
        return afterwards([&] {
            Q_EMIT changed({mode == ImportMode::overwrite ? ClientsChanged::replaced : ClientsChanged::appended});
            Q_EMIT said(u"%1 ügyfél beolvasva, az adatbázisban %2 ügyfél van."_s.arg(outcome.clients)
                            .arg(clientCount(folder_)));
            tellImported(outcome);
        });
    case ImportOutcome::Result::empty:
        return refuse(u"A fájl üres"_s);
    case ImportOutcome::Result::calledOff: // nobody does
    case ImportOutcome::Result::unreadable:
        return refuse(u"A fájl nem olvasható"_s);
    case ImportOutcome::Result::notWritten:
        return prompts_.tell(messages::notWritten());
    }
}

bool DatabaseActions::mayImport(const QString& path) {
    const qint64 lines = [&path] {
        const WaitCursor wait;
        return lineCount(path);
    }();
    if (lines < manyLines) return true;
    return confirms(prompts_, titles::warning, u"A fájl %1 sort tartalmaz.\n\nMehet az importálás?"_s.arg(lines));
}

ImportOutcome DatabaseActions::import(const QString& path, ImportMode mode) {
    const WaitCursor wait;
    const WorkInProgress::Turn turn(work_);
    return importClients(path, folder_, {mode}, shownProgress(u"Beolvasás"_s));
}

ProgressFn DatabaseActions::shownProgress(const QString& work) {
    return [this, work](qint64 done, qint64 total) {
        const qint64 percent = total > 0 ? done * 100 / total : 0;
        work_.step(done, total, u"%1: %2 %…"_s.arg(work).arg(percent), WorkInProgress::Cancel::impossible);
    };
}

// The closing messages, once the list stands.
void DatabaseActions::tellImported(const ImportOutcome& outcome) {
    const QString faults = faultLines(outcome).join(u'\n');
    const QString check = u"Ellenőrízd a ''csv'' fájl helyességét."_s;
    if (outcome.badAmounts > 0)
        prompts_.tell({Icon::information, importTitle,
                       u"A beolvasott adatokból %1 rekord összege nem értelmezhető, ezek összege 0 lett.\n"_s.arg(
                           outcome.badAmounts) +
                           check,
                       faults});
    else if (outcome.cutTexts > 0)
        prompts_.tell({Icon::information, importTitle,
                       u"A beolvasott adatokból %1 szöveg nem fért el a mezőjében.\n"_s.arg(outcome.cutTexts) + check,
                       faults});
    prompts_.tell({Icon::information, importTitle,
                   u"Az adatbázis importálása befejeződött.\n\n"
                   "Ha a listamezőben az adatbázis nem megfelelő,\n"
                   "törölje az adatbázist és ellenőrízze a ''csv'' fájlt,\n"
                   "majd indítsa el újra az importálást."_s});
    if (clientCount(folder_) > maxClientNumber)
        prompts_.tell({Icon::information, titles::attention,
                       u"Az adatbázis 32767-nél több ügyfelet tartalmaz,\n"
                       "a többi a listából nem választható ki!"_s});
}

void DatabaseActions::mnuMentCSVbe_Click() {
    const QString filter = u"*.csv"_s;
    const QString path = prompts_.saveFile(u"Adatbázis mentése CSV fájlba"_s, filter);
    if (path.isEmpty() || path == filter || !mayExportTo(path)) return;
    const ExportOutcome outcome = [&] {
        const WaitCursor wait;
        const WorkInProgress::Turn turn(work_);
        return exportClients(path, folder_, shownProgress(u"Mentés"_s));
    }();
    tellExported(path, outcome);
}

bool DatabaseActions::mayExportTo(const QString& path) {
    if (!liesInWatchedFolder(path, WatchSettings(readRecord<Set>(folder_)))) return true;
    return confirms(prompts_, titles::attention,
                    u"Ez a figyelt mappa, a program a fájlt beolvassa és törli!\n\nMehet a mentés?"_s);
}

void DatabaseActions::tellExported(const QString& path, const ExportOutcome& outcome) {
    const auto refuse = [&](const QString& why) {
        prompts_.tell({Icon::warning, titles::warning,
                       u"A mentés nem sikerült:\n%1\n\n"_s.arg(QDir::toNativeSeparators(path)) + why});
    };
    switch (outcome.result) {
    case ExportOutcome::Result::written:
        Q_EMIT saidOfFile(u"%1 ügyfél mentve: %2"_s.arg(outcome.clients).arg(path), path);
        if (outcome.hasOldLines)
            prompts_.tell({Icon::information, titles::attention,
                           u"A választott fájl hosszabb volt, a végén régi sorok maradtak!"_s});
        return;
    case ExportOutcome::Result::ownFile:
        return refuse(u"Ez a program saját adatfájlja, nem írható felül."_s);
    case ExportOutcome::Result::unreadable:
        return refuse(u"Az adatbázis nem olvasható. A fájl nem változott."_s);
    case ExportOutcome::Result::notWritten:
        return refuse(u"A fájl nem írható, vagy nincs elég hely. Ami eddig ott volt, nem változott."_s);
    case ExportOutcome::Result::brokenOff:
        return refuse(u"Az írás félbeszakadt, a fájl tartalma hibás."_s);
    }
}

void DatabaseActions::mnuKonertal_Click() {
    const QString question = u"Az adatbázis első konvertálása automatikus!\n"
                             "Konvertálás után a régi adatbázis neve ''nevekR.dat'' néven mentésre kerül.\n"
                             "Újabb konvertálás a régi adatbázis ''nevek1.dat'' névre való\n"
                             "visszanevezése után lehetséges.\n"
                             " \n"
                             "Mehet a konvertálás?"_s;
    if (!confirms(prompts_, titles::warning, question)) return;
    const Conversion conversion = [&] {
        const WaitCursor wait;
        const WorkInProgress::Turn turn(work_);
        return convertOlderDatabase(folder_);
    }();
    tellConverted(conversion);
}

void DatabaseActions::tellConverted(Conversion conversion) {
    const auto refuse = [this](const QString& why) { prompts_.tell({Icon::warning, u"FIGYELEM!"_s, why}); };
    switch (conversion) {
    case Conversion::converted:
        afterwards([&] {
            Q_EMIT changed({ClientsChanged::replaced});
            Q_EMIT said(u"%1 ügyfél konvertálva."_s.arg(clientCount(folder_)));
        });
        return;
    case Conversion::nothingThere:
        return refuse(u"Nincsen elérhető konvertálandó fájl!\n"_s);
    case Conversion::alreadyCurrent:
        return refuse(u"A ''nevek1.dat'' már az új formátumú adatbázis,\nezért nem kell konvertálni!"_s);
    case Conversion::copyExists:
        return refuse(u"A ''nevekR.dat'' nevű mentés már létezik!\n"
                      "Nevezze át vagy helyezze át, majd indítsa el újra a konvertálást."_s);
    case Conversion::failed:
        return refuse(u"A konvertálás nem sikerült, a régi adatbázis változatlan maradt."_s);
    }
}
