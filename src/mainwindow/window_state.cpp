#include "mainwindow/window_state.h"

#include <algorithm>

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

void restoreTabs(FormTabs& tabs, const Set& set) {
    tabs.returnReceipt.txtTertiPosta = set.txtTertiPosta.trimmed();
    for (std::size_t i = 0; i < 3; ++i)
        tabs.documentReceipt.chkVisszaCimPrint[i] = set.chkVisszaCimPrint[i] != 0;
    tabs.documentReceipt.txtIratErtesites = set.txtIratErtesites.trimmed();
    tabs.envelope.chkKepPrint = set.chkKepPrint == 1;
    tabs.envelope.type = envelopeType(set.OpB);
    // A new record names neither; the addressee is then the fixed one.
    tabs.pinkCheck.opAllando = set.opAllando[1] && !set.opAllando[0] ? FixedParty::sender : FixedParty::addressee;
    tabs.yellowCheck.chkBefAzonMasolasa = set.chkBefAzonMasolasa;
}

void restoreBold(EnvelopeTab& tab, const boritek& set) {
    for (const BoldRow& row : boldRows)
        tab.*row.shown = set.*row.stored;
}

void restoreLabelFonts(LabelTab& tab, const Betutip& fonts, const Betumeret& sizes) {
    for (std::size_t line = 0; line < 5; ++line) {
        tab.ComboBetuTipus1[line] = fonts.ComboBetuTipus1[line].trimmed();
        const int size = sizes.ComboBetuSize[line];
        tab.ComboBetuSize[line] =
            size == 0 ? QString() : QString::number(size); // never stored: the box says the default
    }
}

void showPicturePlacement(EnvelopeTab& tab, const Kepment& stored) {
    // Twips of the screen to a millimetre of the envelope; a C5 envelope is shown flatter than the others.
    constexpr double across = 44;
    const double down = tab.type == EnvelopeType::C5 ? 31 : 44;
    constexpr double leastTwips = 1900; // of a picture that was never sized
    const auto size = [leastTwips](const Cur& twips) { return std::max(leastTwips, double{twips.toFloat()}); };
    tab.Image3 =
        QRectF(stored.Left / across, stored.Top / down, size(stored.Width) / across, size(stored.Height) / down);
    const auto shown = [](double mm) { return qRound(mm) == 0 ? QString() : QString::number(qRound(mm)); };
    tab.lbXpoz = shown(tab.Image3.x());
    tab.lbYpoz = shown(tab.Image3.y());
}

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
