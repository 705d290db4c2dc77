#include "mainwindow/database_actions.h"

#include "prompts/titles.h"
#include "settings/general_settings.h"

#include <QCursor>
#include <QGuiApplication>

namespace {

const QString importTitle = QStringLiteral("Adatbázis importálása");

void tellNotWritten(Prompts& prompts) {
    prompts.tell(
        {Icon::critical, titles::error, QStringLiteral("Az adatbázis nem írható, a korábbi állapot maradt meg.")});
}

// The hourglass for as long as it lives.
struct WaitCursor {
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace

bool cmdDel_Click(const ProgramFolder& folder, Prompts& prompts, int rekordszam, const QString& shownName) {
    if (rekordszam < 1 || rekordszam > clientCount(folder)) {
        prompts.tell({Icon::information, titles::attention, QStringLiteral(" Nincs kijelölve ügyfél a listáról...")});
        return false;
    }
    const QString storedName = RecordFile<ClientRec>(folder).read(rekordszam).Nev.trimmed();
    const QString name = trimBlanks(shownName) == storedName ? shownName : storedName;
    const QString question = QStringLiteral("Biztos mehet \n%1\n\ntörlése?").arg(name.toUpper());
    if (prompts.ask({Icon::question, QStringLiteral("Feladó törlése"), question}) == Answer::no) return false;
    const bool deleted = deleteClient(folder, rekordszam);
    if (!deleted) tellNotWritten(prompts);
    return deleted;
}

bool mnuAdatbazisTorles_Click(const ProgramFolder& folder, Prompts& prompts) {
    const QString question = QStringLiteral("Biztos benne hogy TÖRLI \na teljes adatbázist?\n\nMehet a TÖRLÉS?");
    if (prompts.ask({Icon::question, QStringLiteral("Adatbázis törlése"), question}) == Answer::no) return false;
    const bool wiped = wipeClients(folder);
    if (!wiped) tellNotWritten(prompts);
    return wiped;
}

ImportResult mnuAdatCsvbol_Click(const ProgramFolder& folder, Prompts& prompts, const ProgressFn& progress) {
    ImportResult result;
    const QString filter = QStringLiteral("*.csv");
    result.mode = readRecord<Set>(folder).opHozzafuzes_1 ? ImportMode::overwrite : ImportMode::append;
    // The mode is set in another dialog and there is no further question: the title says what will happen.
    const QString path = prompts.openFile(result.mode == ImportMode::overwrite
                                              ? QStringLiteral("Importálás - a meglévő adatbázis FELÜLÍRÁSÁVAL")
                                              : QStringLiteral("Importálás - hozzáfűzés"),
                                          filter);
    if (path.isEmpty() || path == filter) return result;
    const ImportOutcome outcome = [&] {
        const WaitCursor wait;
        return importClients(path, folder, result.mode, progress);
    }();
    switch (outcome.result) {
    case ImportOutcome::Result::imported:
        result.clients = outcome.clients;
        result.badAmounts = outcome.badAmounts;
        break;
    case ImportOutcome::Result::empty:
        prompts.tell({Icon::critical, titles::error, QStringLiteral("A fájl üres, az adatbázis nem változott.")});
        break;
    case ImportOutcome::Result::unreadable:
        prompts.tell(
            {Icon::critical, titles::error, QStringLiteral("A fájl nem olvasható, az adatbázis nem változott.")});
        break;
    case ImportOutcome::Result::notWritten:
        tellNotWritten(prompts);
        break;
    }
    return result;
}

void tellImported(const ProgramFolder& folder, Prompts& prompts, const ImportResult& result) {
    if (result.badAmounts > 0)
        prompts.tell({Icon::information, importTitle,
                      QStringLiteral("A beolvasott adatokból %1 rekord összege nem értelmezhető, ezek összege 0 lett.\n"
                                     "Ellenőrízd a ''csv'' fájl helyességét.")
                          .arg(result.badAmounts)});
    prompts.tell({Icon::information, importTitle,
                  QStringLiteral("Az adatbázis importálása befejeződött.\n\n"
                                 "Ha a listamezőben az adatbázis nem megfelelő,\n"
                                 "törölje az adatbázist és ellenőrízze a ''csv'' fájlt,\n"
                                 "majd indítsa el újra az importálást.")});
    if (clientCount(folder) > maxClientNumber)
        prompts.tell({Icon::information, titles::attention,
                      QStringLiteral("Az adatbázis 32767-nél több ügyfelet tartalmaz,\n"
                                     "a többi a listából nem választható ki!")});
}
