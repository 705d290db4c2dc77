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
    tab.captions[place] = RecordFile<ClientRec>(folder).read(selected.rekordszam).Nev.trimmed();
}

QString placeTip(const LabelTab& tab, std::size_t place, const ProgramFolder& folder) {
    if (!tab.chkCimke1[place] || tab.cimkeRekord[place] == 0) return {};
    const ClientRec client = RecordFile<ClientRec>(folder).read(tab.cimkeRekord[place]);
    return QStringList{client.Nev.trimmed(), client.Nev2.trimmed(), client.Helyseg.trimmed(), client.Cim.trimmed(),
                       client.Irsz.stored()}
        .join(u" - "_s);
}

void dropClient(LabelTab& tab, int recordNumber) {
    for (std::size_t place = 0; place < tab.cimkeRekord.size(); ++place) {
        int& client = tab.cimkeRekord[place];
        if (client == recordNumber)
            freePlace(tab, place);
        else if (client > recordNumber)
            --client;
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
