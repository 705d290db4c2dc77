#include "mainwindow/label_cells.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

QString placeNumber(std::size_t place) { return QString::number(place + 1); }

void freePlace(LabelTab& tab, std::size_t place) {
    tab.chkCimke1[place] = false;
    tab.cimkeRekord[place] = 0;
    tab.captions[place] = placeNumber(place);
}

QString nameOf(int recordNumber, const ProgramFolder& folder) {
    return RecordFile<ClientRec>(folder).read(recordNumber).Nev.trimmed();
}

void showLines(LabelTab& tab, const std::array<QString, 5>& lines) {
    std::tie(tab.lbNev1, tab.lbNev2, tab.lbHelyseg, tab.lbCim, tab.lbIrsz) = std::tuple_cat(lines);
}

} // namespace

void chkCimke1_Click(LabelTab& tab, std::size_t place, const SelectedClient& selected, const ProgramFolder& folder,
                     Prompts& prompts) {
    if (tab.chkEgyediCimke) return;
    if (!tab.chkCimke1[place]) return freePlace(tab, place);
    if (selected.rekordszam == 0) {
        prompts.tell({Icon::information, u"Figyelem..."_s, u"Nincs kijelölve név a listamezőben!"_s});
        return freePlace(tab, place);
    }
    tab.cimkeRekord[place] = selected.rekordszam;
    tab.captions[place] = nameOf(selected.rekordszam, folder);
}

QString placeTip(const LabelTab& tab, std::size_t place, const ProgramFolder& folder) {
    if (!tab.chkCimke1[place] || tab.cimkeRekord[place] == 0) return {};
    const ClientRec client = RecordFile<ClientRec>(folder).read(tab.cimkeRekord[place]);
    return QStringList{client.Nev.trimmed(), client.Nev2.trimmed(), client.Helyseg.trimmed(), client.Cim.trimmed(),
                       client.Irsz.stored()}
        .join(u" - "_s);
}

void followClients(LabelTab& tab, const ClientsChanged& change, const ProgramFolder& folder) {
    if (change.what == ClientsChanged::replaced) return clearCells(tab);
    for (std::size_t place = 0; place < tab.cimkeRekord.size(); ++place) {
        int& client = tab.cimkeRekord[place];
        const bool isHis = client == change.number;
        if (change.what == ClientsChanged::removed && isHis)
            freePlace(tab, place);
        else if (change.what == ClientsChanged::removed && client > change.number)
            --client;
        else if (change.what == ClientsChanged::modified && isHis)
            tab.captions[place] = nameOf(client, folder);
    }
}

void clearCells(LabelTab& tab) {
    for (std::size_t place = 0; place < tab.cimkeRekord.size(); ++place)
        freePlace(tab, place);
}

void showFreeNumbers(LabelTab& tab) {
    for (std::size_t place = 0; place < tab.captions.size(); ++place)
        if (tab.cimkeRekord[place] == 0) tab.captions[place] = placeNumber(place);
}

void chkEgyediCimke_Click(LabelTab& tab) { showLines(tab, {}); }

void txEgyediCimke_Change(LabelTab& tab) { showLines(tab, tab.txEgyediCimke); }
