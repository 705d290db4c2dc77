#pragma once

#include "controls/dialog.h"
#include "prompts/prompts.h"
#include "records/catalogue.h"

#include <span>

// What one catalogue takes of its dialog: a box for a new entry, the list, and the buttons that add and delete.
struct CatalogueHalf {
    const Catalogue& catalogue;
    const char* box;
    const char16_t* boxLabel;
    const char* add;
    const char16_t* addCaption;
    const char* remove;
    const char16_t* removeCaption;
    const char* list;
    const char16_t* column;
};

struct CatalogueLook {
    const char* name;
    const char16_t* title;
    std::span<const CatalogueHalf> halves;
};
extern const CatalogueLook frmJogcimek, frmKozlemeny;

// The texts of a catalogue, to add and to delete, each at once and for good. Folder and prompts must outlive it. Show
// it with exec().
class CatalogueDialog : public Dialog {
    Q_OBJECT
public:
    CatalogueDialog(const CatalogueLook& look, const ProgramFolder& folder, Prompts& prompts,
                    QWidget* parent = nullptr);
};
