#pragma once

#include "clients/clients_changed.h"
#include "mainwindow/form_context.h"
#include "printing/form_tabs.h"

// The places of the label sheet and what prints on them. Places are counted from 0, row by row.

// A tick of a place gives it the client last clicked, its removal frees the place. Without a client the tick goes
// again, after a message. For a custom label it is a tick and no more: whoever has the place keeps it.
void chkCimke1_Click(LabelTab& tab, std::size_t place, const SelectedClient& selected, const ProgramFolder& folder,
                     Prompts& prompts);
// Who prints on a ticked place, from the client's record as it is now; empty for all other places.
QString placeTip(const LabelTab& tab, std::size_t place, const ProgramFolder& folder);

// The places follow their clients: one that was deleted frees its places and moves the numbers behind it, a modified
// one shows its new name; where nobody is who he was, no place has a tick or a client any more.
void followClients(LabelTab& tab, const ClientsChanged& change, const ProgramFolder& folder);
// No place has a tick or a client any more.
void clearCells(LabelTab& tab);
// Places without a client show their numbers.
void showFreeNumbers(LabelTab& tab);

// The custom label. The preview is what prints: switching empties it, the typed lines fill it, and so does a click on a
// client.
void chkEgyediCimke_Click(LabelTab& tab);
void txEgyediCimke_Change(LabelTab& tab);
