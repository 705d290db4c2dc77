#include "printing/form_routine.h"

#include "prompts/titles.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int manyPages = 20;                   // from here on a batch without a dialog is asked for
constexpr std::int32_t largestAmount = 9999999; // that can be put in words

bool isClientNumber(int number) { return number >= 1 && number <= maxClientNumber; }

QString amountsOf(const ProgramFolder& folder, const std::vector<int>& numbers) {
    int missing = 0;
    int tooLarge = 0;
    RecordFile<ClientRec> clients(folder);
    for (const int number : numbers) {
        const std::int32_t amount = clients.read(number).Osszegek[0];
        missing += amount == 0 ? 1 : 0;
        tooLarge += amount > largestAmount ? 1 : 0;
    }
    QStringList parts;
    if (missing > 0) parts << u"%1 összeg nélkül"_s.arg(missing);
    if (tooLarge > 0) parts << u"%1 túl nagy összeggel"_s.arg(tooLarge);
    return parts.isEmpty() ? QString() : u", ebből "_s + parts.join(u", "_s);
}

// The clerk learns what is coming, and may still say no.
void announce(Pen& pen, const PrintDesk& desk, const FormRoutine& routine, const std::vector<int>& numbers) {
    if (!desk.attended || pen.stopped()) return;
    if (routine.asksForPrinter) {
        const QString amounts = routine.printsAmount ? amountsOf(desk.folder, numbers) : QString();
        return pen.ShowPrinter(u"%1 %2"_s.arg(numbers.size()).arg(routine.noun) + amounts);
    }
    askForManyPages(pen, desk, static_cast<int>(numbers.size()));
}

// The numbers are known by now, so the rows may go. They go even if the device should fail from here on.
void takeClientsOut(const Pen& pen, const PrintDesk& desk, const Set& set) {
    if (!pen.stopped() && set.chkPrintDel > 0 && desk.takeSelectedOut) desk.takeSelectedOut();
}

void printPages(Pen& pen, const ProgramFolder& folder, bool readsTwin, const std::vector<int>& numbers,
                const std::function<void(const Client&)>& printPage) {
    std::optional<RecordFile<TwinRec>> twins;
    if (readsTwin) twins.emplace(folder);
    RecordFile<ClientRec> clients(folder);
    for (int done = 0; const int number : numbers) {
        if (pen.stopped()) return;
        if (isClientNumber(number)) {
            printPage({clients.read(number), twins ? twins->read(number) : zeroRecord<TwinRec>()});
            pen.EndForm(FormEnd::page);
        }
        pen.PageWritten(++done, static_cast<int>(numbers.size()));
    }
}

} // namespace

void checkNumbers(Pen& pen, const std::vector<int>& numbers) {
    if (numbers.empty()) pen.Note(u"Nincs kijelölt ügyfél."_s);
    if (!std::all_of(numbers.begin(), numbers.end(), isClientNumber)) pen.Fail(6, u"Túlcsordulás"_s);
}

void askForManyPages(Pen& pen, const PrintDesk& desk, int pages) {
    if (!desk.attended || pen.stopped() || pages < manyPages) return;
    const QString question = u"%1 oldal nyomtatása következik.\n\nMehet?"_s.arg(pages);
    if (desk.prompts.ask({Icon::question, titles::warning, question}) == Answer::no)
        pen.Drop(u"A nyomtatást nem kérted."_s);
}

PrintOutcome printOne(const PrintDesk& desk, const FormRoutine& routine, const PrintForm& print,
                      const std::optional<Message>& missing) {
    Pen pen(desk, routine.failureWay, routine.jobTitle.toString());
    if (missing) {
        pen.Reject(*missing);
        return pen.outcome();
    }
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set, routine.track);
    pen.OpenForm(routine.page);
    print(pen, set);
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}

PrintOutcome printEach(const PrintDesk& desk, const FormRoutine& routine, const ListRows& rows,
                       const PrintClient& print) {
    Pen pen(desk, routine.failureWay, routine.jobTitle.toString());
    const auto set = readRecord<Set>(desk.folder);
    pen.SelectPrinter(set, routine.track);
    const bool takesAll = routine.allRowsWhenAutomatic && set.chkAutoPrint != 0;
    const std::vector<int>& numbers = takesAll ? rows.all : rows.selected;
    announce(pen, desk, routine, numbers);
    checkNumbers(pen, numbers);
    if (routine.takesClientsOut) takeClientsOut(pen, desk, set);
    if (!routine.opensPerClient) pen.OpenForm(routine.page);
    printPages(pen, desk.folder, routine.readsTwin, numbers, [&](const Client& client) {
        if (routine.opensPerClient) pen.OpenForm(routine.page);
        print(pen, set, client);
    });
    pen.EndForm(FormEnd::job);
    return pen.outcome();
}
