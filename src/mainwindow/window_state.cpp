#include "mainwindow/window_state.h"

#include "mainwindow/guarded.h"
#include "mainwindow/pink_check_rules.h"
#include "mainwindow/yellow_check_rules.h"
#include "records/record_file.h"

namespace {

struct BoldRow {
    bool EnvelopeTab::*shown;
    Bool16 boritek::*stored;
};

constexpr BoldRow boldRows[] = {
    {&EnvelopeTab::chkFKFNev, &boritek::chkFKFNev},   {&EnvelopeTab::chkFKFCim1, &boritek::chkFKFCim1},
    {&EnvelopeTab::chkFKFCim2, &boritek::chkFKFCim2}, {&EnvelopeTab::chkFKFIrsz, &boritek::chkFKFIrsz},
    {&EnvelopeTab::chkFKCNev, &boritek::chkFKCNev},   {&EnvelopeTab::chkFKCCim1, &boritek::chkFKCCim1},
    {&EnvelopeTab::chkFKCCim2, &boritek::chkFKCCim2}, {&EnvelopeTab::chkFKCIrsz, &boritek::chkFKCIrsz},
    {&EnvelopeTab::chkFKCNev2, &boritek::chkFKCNev2},
};

EnvelopeType envelopeType(int stored) {
    return stored == 2 ? EnvelopeType::C5 : stored == 3 ? EnvelopeType::C56 : EnvelopeType::C6;
}

} // namespace

void restoreTabs(FormTabs& tabs, const Set& set, const ProgramFolder& folder) {
    tabs.returnReceipt.txtTertiPosta = set.txtTertiPosta.trimmed();
    for (std::size_t i = 0; i < 3; ++i)
        tabs.documentReceipt.chkVisszaCimPrint[i] = set.chkVisszaCimPrint[i] != 0;
    tabs.documentReceipt.txtIratErtesites = set.txtIratErtesites.trimmed();
    tabs.envelope.chkKepPrint = set.chkKepPrint == 1;
    tabs.envelope.type = envelopeType(set.OpB);
    // A new record names neither; the addressee is then the fixed one.
    tabs.pinkCheck.opAllando = set.opAllando[1] && !set.opAllando[0] ? FixedParty::sender : FixedParty::addressee;
    tabs.yellowCheck.chkBefAzonMasolasa = set.chkBefAzonMasolasa;
    if (set.chkBefAzonMasolasa) chkBefAzonMasolasa_Click(tabs.yellowCheck);
    if (set.opAllando[0] || set.opAllando[1]) opAllando_Click(tabs.pinkCheck, readRecord<SetRcsekk>(folder));
}

namespace {

void restoreBold(EnvelopeTab& tab, const boritek& set) {
    for (const BoldRow& row : boldRows)
        tab.*row.shown = set.*row.stored;
}

void restoreFonts(LabelTab& tab, const Betutip& fonts, const Betumeret& sizes) {
    for (std::size_t line = 0; line < 5; ++line) {
        tab.ComboBetuTipus1[line] = fonts.ComboBetuTipus1[line].trimmed();
        const int size = sizes.ComboBetuSize[line];
        tab.ComboBetuSize[line] =
            size == 0 ? QString() : QString::number(size); // never stored: the box says the default
    }
}

} // namespace

void restoreSheets(FormTabs& tabs, const ProgramFolder& folder) {
    restoreBold(tabs.envelope, readRecord<boritek>(folder));
    restoreFonts(tabs.label, readRecord<Betutip>(folder), readRecord<Betumeret>(folder));
    restorePicture(tabs.envelope, readRecord<Kepment>(folder));
}

namespace {

void storeTabs(const FormTabs& tabs, Set& set) {
    if (set.chkNyomtatandoKilepes) {
        set.txtTertiPosta.set(tabs.returnReceipt.txtTertiPosta);
        set.txtIratErtesites.set(tabs.documentReceipt.txtIratErtesites);
        for (const std::size_t i : {0U, 1U})
            set.chkVisszaCimPrint[i] = tabs.documentReceipt.chkVisszaCimPrint[i] ? 1 : 0;
        set.chkVisszaCimPrint[2] = 0;
    }
    set.OpB = static_cast<std::int16_t>(tabs.envelope.type);
    set.chkKepPrint = tabs.envelope.chkKepPrint ? 1 : 0;
    set.opAllando[0] = tabs.pinkCheck.opAllando == FixedParty::addressee;
    set.opAllando[1] = tabs.pinkCheck.opAllando == FixedParty::sender;
    set.chkBefAzonMasolasa = tabs.yellowCheck.chkBefAzonMasolasa;
}

void storeBold(const EnvelopeTab& tab, boritek& set) {
    for (const BoldRow& row : boldRows)
        set.*row.stored = tab.*row.shown;
}

} // namespace

bool storeWindow(const ProgramFolder& folder, const FormTabs& tabs, const WindowChoices& choices) {
    const auto change = [&](Set& set) {
        storeTabs(tabs, set);
        set.chkListaSorren = choices.ascending ? 1 : 0;
        set.OpOrientacioFekvo = choices.feed == Feed::sideways ? 1 : 0;
        set.opPrinter_1 = choices.systemDefault;
    };
    bool stored = false;
    const QString unreadable = troubleOf([&] {
        stored = updateRecord<Set>(folder, change);
        stored = updateRecord<boritek>(folder, [&](boritek& set) { storeBold(tabs.envelope, set); }) && stored;
    });
    return stored && unreadable.isEmpty();
}
