#include "printing/label_sheet.h"

#include "printing/form_routine.h"
#include "printing/position.h"
#include "records/number_text.h"
#include "settings/envelope_label_settings.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

using Lines = std::array<QString, 5>;

struct LineFont {
    QString name;
    int points;
};
using LineFonts = std::array<LineFont, 5>;

// A line that has no font or no size of its own takes that of a fresh device.
LineFont lineFont(const QString& name, int points) {
    return {name.isEmpty() ? u"Times New Roman CE"_s : name, points < 1 ? 12 : points};
}

LineFonts storedFonts(const ProgramFolder& folder) {
    const auto names = readRecord<Betutip>(folder);
    const auto sizes = readRecord<Betumeret>(folder);
    LineFonts fonts;
    for (std::size_t line = 0; line < fonts.size(); ++line)
        fonts[line] = lineFont(names.ComboBetuTipus1[line].trimmed(), sizes.ComboBetuSize[line]);
    return fonts;
}

LineFonts shownFonts(const LabelTab& tab) {
    LineFonts fonts;
    for (std::size_t line = 0; line < fonts.size(); ++line)
        fonts[line] = lineFont(trimBlanks(tab.ComboBetuTipus1[line]).toString(), leadingI16(tab.ComboBetuSize[line]));
    return fonts;
}

// As stored, padding included. A postcode that isn't a number other than 0 leaves its line empty.
Lines linesOf(const ClientRec& client) {
    const QString postcode = client.Irsz.stored();
    return {client.Nev.stored(), client.Nev2.stored(), client.Helyseg.stored(), client.Cim.stored(),
            leadingNumber(postcode) == 0 ? QString() : postcode};
}

// One job on the sheet of the settings. Its places count from 0, row by row.
class LabelJob {
public:
    LabelJob(const PrintDesk& desk, const CimkeSetup& sheet, const LineFonts& fonts)
        : desk_(desk)
        , sheet_(sheet)
        , fonts_(fonts)
        , pen_(desk, FailureWay::message, u"cimke"_s, FirstPage::asLeft) {
        pen_.OpenForm({});
    }

    Pen& pen() { return pen_; }

    void print(int place, const Lines& lines) {
        using At = Position<CimkeSetup>;
        const int column = place % sheet_.txtOszlop;
        const int row = place / sheet_.txtOszlop;
        const float x = At(&CimkeSetup::txtLeft).plus(column, &CimkeSetup::txtSzeles).in(sheet_, 0);
        pen_.MoveToLine(At(&CimkeSetup::txtTop).plus(row, &CimkeSetup::txtMagas).in(sheet_, 0));
        for (std::size_t line = 0; line < lines.size(); ++line) {
            pen_.SetFont(fonts_[line].name, fonts_[line].points);
            pen_.PlaceNext(x, lines[line]);
        }
        ++labels_;
    }

    // Hands the sheets over and counts the labels. A job that came to nothing leaves the count alone.
    PrintOutcome finish() {
        pen_.EndForm(FormEnd::job);
        if (pen_.outcome().pages > 0 && !count()) pen_.Note(u"A cimkék száma nem tárolható."_s);
        return pen_.outcome();
    }

private:
    bool count() const {
        return updateRecord<CimkeSetup>(desk_.folder, [this](CimkeSetup& set) {
            const auto total = std::int64_t{set.lbKinyomottCimkeNum} + labels_;
            constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
            set.lbKinyomottCimkeNum = static_cast<std::int32_t>(std::min(total, most));
        });
    }

    const PrintDesk& desk_;
    const CimkeSetup& sheet_;
    const LineFonts fonts_;
    Pen pen_;
    int labels_ = 0;
};

int placesOn(const CimkeSetup& sheet) { return std::max<int>(0, sheet.txtOszlop) * std::max<int>(0, sheet.txtSor); }

std::vector<int> tickedPlaces(const LabelTab& tab, const CimkeSetup& sheet) {
    std::vector<int> places;
    for (int place = 0; place < std::min(placesOn(sheet), static_cast<int>(tab.chkCimke1.size())); ++place)
        if (tab.chkCimke1[static_cast<std::size_t>(place)]) places.push_back(place);
    return places;
}

PrintOutcome PrintEgyediCimke(const PrintDesk& desk, const LabelTab& tab, const CimkeSetup& sheet) {
    LabelJob job(desk, sheet, shownFonts(tab));
    const std::vector<int> places = tickedPlaces(tab, sheet);
    if (places.empty()) job.pen().Note(u"Nincs kipipált cimke."_s);
    for (const int place : places)
        job.print(place, {tab.lbNev1, tab.lbNev2, tab.lbHelyseg, tab.lbCim, tab.lbIrsz});
    return job.finish();
}

// A ticked place without a client stays free.
PrintOutcome printPlaces(const PrintDesk& desk, const LabelTab& tab, const CimkeSetup& sheet,
                         const std::vector<int>& places) {
    LabelJob job(desk, sheet, storedFonts(desk.folder));
    RecordFile<ClientRec> clients(desk.folder);
    bool found = false;
    for (const int place : places) {
        const int number = tab.cimkeRekord[static_cast<std::size_t>(place)];
        if (number > 0) job.print(place, linesOf(clients.read(number)));
        found = found || number > 0;
    }
    if (!found) job.pen().Note(u"A kipipált cimkékhez nem tartozik ügyfél."_s);
    return job.finish();
}

PrintOutcome CimkeListabol(const PrintDesk& desk, const CimkeSetup& sheet, const std::vector<int>& numbers) {
    LabelJob job(desk, sheet, storedFonts(desk.folder));
    Pen& pen = job.pen();
    RecordFile<ClientRec> clients(desk.folder);
    const auto count = static_cast<int>(numbers.size());
    const int places = placesOn(sheet);
    const int pages = (count + places - 1) / places;
    if (count == 0) pen.Note(u"Nincs kijelölt ügyfél."_s);
    askForManyPages(pen, desk, pages);
    for (int done = 0; done < count && !pen.stopped();) {
        job.print(done % places, linesOf(clients.read(numbers[static_cast<std::size_t>(done)])));
        ++done;
        if (done % places != 0 && done < count) continue;
        pen.EndForm(FormEnd::page);
        pen.PageWritten((done + places - 1) / places, pages);
    }
    return job.finish();
}

} // namespace

PrintOutcome PrintAlloCimke(const PrintDesk& desk, const FormTabs& tabs, const ListRows& rows) {
    const LabelTab& tab = tabs.label;
    const auto sheet = readRecord<CimkeSetup>(desk.folder);
    if (placesOn(sheet) == 0) return {0, {}, u"A cimkelap oszlopai és sorai nincsenek rögzítve."_s};
    if (tab.chkEgyediCimke) return PrintEgyediCimke(desk, tab, sheet);
    const std::vector<int> ticked = tickedPlaces(tab, sheet);
    return ticked.empty() ? CimkeListabol(desk, sheet, rows.selected) : printPlaces(desk, tab, sheet, ticked);
}
