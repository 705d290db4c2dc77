#include "mainwindow/envelope_label_rules.h"

#include "mainwindow/label_cells.h"
#include "prompts/messages.h"
#include "records/number_text.h"
#include "records/record_file.h"

#include <algorithm>

namespace {

constexpr int sheetWidthMm = 210;
constexpr int sheetHeightMm = 297;
constexpr int fewestRows = 3; // that give the height of a label

QString unlessZero(const QString& shown, const QString& fallback) {
    return shown == QStringLiteral("0") ? fallback : shown;
}

// One of `parts` equal parts of a side of the sheet, to a ten-thousandth of a mm.
QString partOf(int sideMm, int parts) {
    return Cur::fromTenThousandths((std::int64_t{sideMm} * 10000 + parts / 2) / parts).text();
}

// Lays the ticks out by the boxes. Counts beyond the given ones leave the shown label size alone, as few rows do.
void layOut(LabelTab& tab, int mostColumns, int mostRows) {
    tab.gridColumns = std::max<int>(0, leadingI16(tab.txtOszlop));
    tab.gridRows = std::max<int>(0, leadingI16(tab.txtSor));
    showFreeNumbers(tab);
    if (tab.gridColumns >= 1 && tab.gridColumns <= mostColumns) tab.txtSzeles = partOf(sheetWidthMm, tab.gridColumns);
    if (tab.gridRows >= fewestRows && tab.gridRows <= mostRows) tab.txtMagas = partOf(sheetHeightMm, tab.gridRows);
}

// A box that the sheet is stored from must hold a number and nothing else.
bool isWhole(const QString& box) { return wholeI16(box).has_value(); }
bool isDecimal(const QString& box) { return decimalNumber(box).has_value(); }

Message refusal(const QString& text) { return {Icon::information, titles::attention, text}; }

} // namespace

void showClient(EnvelopeTab& tab, const ClientRec& client) {
    tab.txtBoritekCimzettNev = client.Nev.trimmed();
    tab.txtBoritekCimzettNev2 = client.Nev2.trimmed();
    tab.txtBoritekCimzettCim1 = client.Helyseg.trimmed();
    tab.txtBoritekCimzettCim2 = client.Cim.trimmed();
    tab.txtBoritekCimzettIrSzam = client.Kulfoldi ? QString() : client.Irsz.stored();
}

void reload(EnvelopeTab& tab, const boritek& set) {
    tab.txtBoritekFeladoNev = set.txtBoritekFeladoNev.trimmed();
    tab.txtBoritekFeladoCim1 = set.txtBoritekFeladoCim1.trimmed();
    tab.txtBoritekFeladoCim2 = set.txtBoritekFeladoCim2.trimmed();
    tab.txtBoritekFeladoIrSzam = set.txtBoritekFeladoIrSzam.trimmed();
}

LabelGrid labelGrid(const LabelTab& tab) { return {tab.gridColumns, tab.gridRows}; }

void showClient(LabelTab& tab, const ClientRec& client) {
    tab.lbNev1 = client.Nev.stored();
    tab.lbNev2 = client.Nev2.stored();
    tab.lbHelyseg = client.Helyseg.stored();
    tab.lbCim = client.Cim.stored();
    tab.lbIrsz = client.Irsz.stored();
    if (leadingNumber(tab.lbIrsz) == 0) tab.lbIrsz.clear();
}

void showSheet(LabelTab& tab, const CimkeSetup& set) {
    tab.txtLeft = unlessZero(set.txtLeft.text(), QStringLiteral("5"));
    tab.txtTop = unlessZero(set.txtTop.text(), QStringLiteral("5"));
    tab.txtOszlop = unlessZero(QString::number(set.txtOszlop), QStringLiteral("2"));
    tab.txtSor = unlessZero(QString::number(set.txtSor), QStringLiteral("6"));
    tab.txtSzeles = set.txtSzeles.text();
    tab.txtMagas = set.txtMagas.text();
    showCount(tab, set);
}

void showCount(LabelTab& tab, const CimkeSetup& set) {
    tab.lbKinyomottCimkeNum = QString::number(set.lbKinyomottCimkeNum);
}

void openSheet(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts) {
    if (readRecord<CimkeSetup>(folder).txtOszlop == 0)
        cmdCimkeMeretRogzites_Click(tab, folder, prompts);
    else
        layOutSheet(tab);
}

void layOutSheet(LabelTab& tab) { layOut(tab, 3, 8); }

const QString* wrongNumber(const LabelTab& tab) {
    for (const QString* box : {&tab.txtOszlop, &tab.txtSor})
        if (!isWhole(*box)) return box;
    // The typed width never counts, and the height only where the rows don't give it.
    if (leadingI16(tab.txtSor) < fewestRows && !isDecimal(tab.txtMagas)) return &tab.txtMagas;
    for (const QString* box : {&tab.txtLeft, &tab.txtTop})
        if (!isDecimal(*box)) return box;
    return nullptr;
}

std::optional<Message> cmdCimkeMeretRogzites_Click(LabelTab& tab, CimkeSetup& set) {
    clearCells(tab);
    if (const QString* wrong = wrongNumber(tab))
        return Message{Icon::critical, titles::error,
                       QStringLiteral("Hibás szám: ''%1''\nIde csak szám írható!").arg(*wrong)};
    // The limits are 4 and 10, the 40 places that there are, whatever the messages count.
    const std::int16_t columns = leadingI16(tab.txtOszlop);
    const std::int16_t rows = leadingI16(tab.txtSor);
    if (columns > 4) return refusal(QStringLiteral("Az oszlopok száma nem lehet több HÁROMNÁL!"));
    if (rows > 10) return refusal(QStringLiteral("A sorok száma nem lehet több NYOLCNÁL!"));
    if (columns < 1 || rows < 1) return refusal(QStringLiteral("Az oszlopok és a sorok száma legalább 1 legyen!"));
    layOut(tab, 4, 10);
    set.txtLeft = *decimalNumber(tab.txtLeft);
    set.txtTop = *decimalNumber(tab.txtTop);
    set.txtOszlop = columns;
    set.txtSor = rows;
    set.txtSzeles = *decimalNumber(tab.txtSzeles);
    set.txtMagas = *decimalNumber(tab.txtMagas);
    return std::nullopt;
}

void cmdCimkeMeretRogzites_Click(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts) {
    std::optional<Message> refused;
    const bool stored =
        updateRecord<CimkeSetup>(folder, [&](CimkeSetup& set) { refused = cmdCimkeMeretRogzites_Click(tab, set); });
    if (refused) return prompts.tell(*refused);
    if (!stored) prompts.tell(messages::settingNotWritten());
}

void cmbBetutipusok_Click(LabelTab& tab, const ProgramFolder& folder, Prompts& prompts) {
    const bool names = updateRecord<Betutip>(folder, [&tab](Betutip& set) {
        for (std::size_t line = 0; line < 5; ++line)
            set.ComboBetuTipus1[line].set(tab.ComboBetuTipus1[line]);
    });
    const bool sizes = updateRecord<Betumeret>(folder, [&tab](Betumeret& set) {
        for (std::size_t line = 0; line < 5; ++line)
            set.ComboBetuSize[line] = leadingI16(tab.ComboBetuSize[line]);
    });
    if (!names || !sizes) return prompts.tell(messages::settingNotWritten());
    prompts.tell(
        {Icon::none, QStringLiteral("! Rendben !"), QStringLiteral(" \nA betűtípusok mentése megtörtént...\n ")});
}
