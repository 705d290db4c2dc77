#pragma once

#include "clients/clients_changed.h"
#include "exchange/csv_export.h"
#include "exchange/csv_import.h"
#include "exchange/older_database.h"
#include "mainwindow/bound_view.h"

class QMenuBar;
class WorkInProgress;

// What the menu and the buttons do to the client database as a whole, with the questions and messages that belong to
// it. Whoever shows clients hears of the change first; what it came to is said last.
class DatabaseActions : public QObject {
    Q_OBJECT
public:
    DatabaseActions(const ProgramFolder& folder, Prompts& prompts, WorkInProgress& work);

    // Enables the entries of the menu that are carried out here.
    void connectMenu(const QMenuBar& bar);
    // Finishes what a killed process left, and tells of that and of a folder that can't be written.
    void checkAtStart();
    // `shownName` is the name that the window shows; the question names the person of the record if the two differ.
    void cmdDel_Click(int rekordszam, const QString& shownName);
    void mnuAdatbazisTorles_Click();
    // Asks for the file and imports it in the mode of Set.dat.
    void mnuAdatCsvbol_Click();
    // Asks for the file and exports to it.
    void mnuMentCSVbe_Click();
    // Turns a database of the earlier version into the current one, after a question.
    void mnuKonertal_Click();

Q_SIGNALS:
    void changed(const ClientsChanged& change);
    // For the status line.
    void said(const QString& text);
    // The same, with the path of a file in it.
    void saidOfFile(const QString& text, const QString& file);

private:
    bool mayImport(const QString& path);
    ImportOutcome import(const QString& path, ImportMode mode);
    void tellImported(const ImportOutcome& outcome);
    ProgressFn shownProgress(const QString& work);
    bool mayExportTo(const QString& path);
    void tellConverted(Conversion conversion);
    void tellExported(const QString& path, const ExportOutcome& outcome);

    const ProgramFolder& folder_;
    Prompts& prompts_;
    WorkInProgress& work_;
};
