#include "printing/posting_list.h"

#include "printing/form_routine.h"
#include "settings/other_settings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int namesPerPage = 14;
constexpr int lineStep = 8;                     // mm from one name to the next
constexpr int postcodeFrom = 45, townFrom = 62; // mm right of the name

// As stored: a name that is long enough runs into the postcode.
void printLine(Pen& pen, const FjSet& margins, int line, const ClientRec& client) {
    const auto mm = [](int whole) { return static_cast<float>(whole); };
    const int x = margins.txtBal;
    const float y = mm(margins.txtFelso + line * lineStep);
    pen.PlaceText(mm(x), y, client.Nev.stored());
    pen.PlaceText(mm(x + townFrom), y, client.Helyseg.stored());
    pen.PlaceText(mm(x + postcodeFrom), y, client.Irsz.stored());
}

} // namespace

PrintOutcome PrintFeladojegyzek(const PrintDesk& desk, const FormTabs& /*tabs*/, const ListRows& rows) {
    Pen pen(desk, FailureWay::message, u"feladojegyzek"_s, FirstPage::asLeft);
    pen.OpenForm({2, {}, {}});
    pen.SetFont(u"Times New Roman CE"_s, 8);
    const auto margins = readRecord<FjSet>(desk.folder);
    const auto count = static_cast<int>(rows.selected.size());
    const int pages = (count + namesPerPage - 1) / namesPerPage;
    checkNumbers(pen, rows.selected);
    askForManyPages(pen, desk, pages);
    RecordFile<ClientRec> clients(desk.folder);
    for (int done = 0; done < count && !pen.stopped();) {
        printLine(pen, margins, done % namesPerPage, clients.read(rows.selected[static_cast<std::size_t>(done)]));
        ++done;
        if (done % namesPerPage != 0 && done < count) continue;
        pen.EndForm(FormEnd::page);
        pen.PageWritten((done + namesPerPage - 1) / namesPerPage, pages);
    }
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}
