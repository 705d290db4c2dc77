#pragma once

#include "printing/form_tabs.h"
#include "prompts/prompts.h"
#include "records/client_records.h"
#include "records/program_folder.h"
#include "settings/envelope_label_settings.h"

#include <optional>

// The envelope. `reload` takes the sender from the settings when the tab comes into view.
void showClient(EnvelopeTab& tab, const ClientRec& client);
void reload(EnvelopeTab& tab, const boritek& set);

// The label sheet. Places are counted from 0, row by row.

struct LabelGrid {
    int columns = 0;
    int rows = 0;
    friend bool operator==(const LabelGrid&, const LabelGrid&) = default;
};
// The sheet that the ticks show; its first columns * rows places are on view.
LabelGrid labelGrid(const LabelTab& tab);

// The client's label as a preview, as stored. A postcode that isn't a number other than 0 doesn't print.
void showClient(LabelTab& tab, const ClientRec& client);

// The stored sheet at the start. Margins and counts that would be 0 show 5 mm, 5 mm, 2 columns, 6 rows; they are shown
// only, not stored.
void showSheet(LabelTab& tab, const CimkeSetup& set);

// The labels printed so far.
void showCount(LabelTab& tab, const CimkeSetup& set);

// The tab comes into view. The first visit stores the fallbacks of a sheet that was never fixed.
void openSheet(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts);
// What any later visit does: the ticks follow the columns and rows of the boxes, and so do the shown label sizes of up
// to 3 columns and 8 rows. Nothing is stored.
void layOutSheet(LabelTab& tab);

// Fixes the sheet: no tick and no client is left on it, columns and rows come from the boxes, and the label size
// divides the A4 sheet (with 1 or 2 rows the typed height stands). Then `set` holds what is to be stored; the count of
// printed labels stays. A message says why the sheet was refused: `set` is as it was, but the ticks are gone all the
// same.
[[nodiscard]] std::optional<Message> cmdCimkeMeretRogzites_Click(LabelTab& tab, CimkeSetup& set);
// The first box, as they stand on the tab, whose text refuses the sheet for not being a number; null for none.
const QString* wrongNumber(const LabelTab& tab);
// The same on the stored sheet.
void cmdCimkeMeretRogzites_Click(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts);

// Stores fonts and sizes of the five lines, and says what came of it.
void cmbBetutipusok_Click(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts);
