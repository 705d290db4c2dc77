#pragma once

#include "exchange/csv_import.h"
#include "prompts/prompts.h"
#include "records/client_database.h"

// What the menu and the buttons do to the whole client database, with the questions and messages that belong to it.
// Each tells whether the database changed, so that the list and the held numbers can follow.

// `shownName` is the name that the window shows; the question names the person of the record if the two differ.
bool cmdDel_Click(const ProgramFolder& folder, Prompts& prompts, int rekordszam, const QString& shownName);

bool mnuAdatbazisTorles_Click(const ProgramFolder& folder, Prompts& prompts);

// Asks for the file and imports it in the mode of Set.dat. `clients` is how many came in, -1 if nothing was imported.
struct ImportResult {
    ImportMode mode = ImportMode::append;
    qint64 clients = -1;
    qint64 badAmounts = 0;
};
ImportResult mnuAdatCsvbol_Click(const ProgramFolder& folder, Prompts& prompts, const ProgressFn& progress);
// The closing messages, told once the list stands.
void tellImported(const ProgramFolder& folder, Prompts& prompts, const ImportResult& result);
