#include "mainwindow/print_actions.h"

#include "mainwindow/client_zone.h"
#include "mainwindow/guarded.h"
#include "mainwindow/print_panel.h"
#include "mainwindow/status_line.h"
#include "mainwindow/work_in_progress.h"
#include "printing/yellow_check.h"
#include "records/number_text.h"

#include <QApplication>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

void PrintActions::press(Press press, Tab tab) {
    if (desk_.work.isBusy()) return;
    const PrintRequest request{tab, press, desk_.panel.feed()};
    carryOut([&](const PrintDesk& desk, const ListRows& rows) {
        PrintOutcome outcome =
            dispatchPrint(desk, desk_.tabs, request, rows, desk_.selected.record.client.Nev.trimmed());
        if (const QString differs = amountTrouble(request); outcome.pages > 0 && !differs.isEmpty())
            outcome.trouble += (outcome.trouble.isEmpty() ? QString() : u" "_s) + differs;
        return outcome;
    });
    Q_EMIT printed(tab);
}

void PrintActions::mnuCimzettekNyomtatasa_Click() {
    if (desk_.work.isBusy()) return;
    carryOut([&](const PrintDesk& desk, const ListRows& rows) { return dispatchPostingList(desk, desk_.tabs, rows); });
}

void PrintActions::carryOut(const Print& print) {
    if (!desk_.clients.checkFile()) return;
    const QPointer<QWidget> focus = QApplication::focusWidget();
    desk_.panel.setButtonsEnabled(false);
    const PrintOutcome outcome = run(print, true);
    desk_.panel.setButtonsEnabled(true);
    report(outcome);
    if (focus) focus->setFocus(); // a disabled button has passed it on
}

void PrintActions::printUnattended() {
    report(run([this](const PrintDesk& desk, const ListRows& rows) { return PrintCsAlloCsekk(desk, desk_.tabs, rows); },
               false));
    Q_EMIT printed(Tab::yellowCheck);
}

// A layout or a client that can't be read prints nothing, least of all at position 0. There is no box: an unattended
// print may be the one that is stopped.
PrintOutcome PrintActions::run(const Print& print, bool attended) {
    PrintOutcome outcome;
    const QString trouble = troubleOf([&] { outcome = printNow(print, attended); });
    if (trouble.isEmpty()) return outcome;
    desk_.device.KillDoc();
    return {0, {}, trouble};
}

PrintOutcome PrintActions::printNow(const Print& print, bool attended) {
    const WorkInProgress::Turn turn(desk_.work);
    // One bar for both stages: the pages are written in its first half and handed over in the second.
    const auto progress = [this](const PagesDone& pages) {
        const int before = pages.stage == PrintStage::handingOver ? pages.pages : 0;
        return desk_.work.step(before + pages.done, 2 * pages.pages,
                               u"%1. lap / %2…"_s.arg(pages.done).arg(pages.pages),
                               pages.canCancel ? WorkInProgress::Cancel::possible : WorkInProgress::Cancel::impossible);
    };
    const ListRows rows = desk_.clients.rows();
    std::size_t takenOut = 0;
    const auto takeSelectedOut = [&] {
        desk_.clients.removeSelected();
        takenOut = rows.selected.size();
    };
    PrintOutcome outcome =
        print({desk_.device, desk_.services.prompts, desk_.folder, attended, progress, takeSelectedOut}, rows);
    if (takenOut > 0) outcome.trouble.prepend(u"%1 sor levéve a listáról. "_s.arg(takenOut));
    return outcome;
}

// Digits print as they were typed, the words say what was read of them; a back has neither.
QString PrintActions::amountTrouble(const PrintRequest& request) const {
    const QString* amount = nullptr;
    if (request.tab == Tab::yellowCheck) amount = &desk_.tabs.yellowCheck.txOsszeg;
    const PinkCheckTab& pink = desk_.tabs.pinkCheck;
    if (request.tab == Tab::pinkCheck && pink.side == Side::front) amount = &pink.RtxOsszeg;
    const CashOnDeliveryTab& cash = desk_.tabs.cashOnDelivery;
    if (request.tab == Tab::cashOnDelivery && cash.side == Side::front) amount = &cash.txUosszeg;
    const bool agrees = amount == nullptr || request.press == Press::batch || isPlainAmount(*amount);
    return agrees ? QString() : u"Az összeg számjegyei és betűi nem egyeznek: "_s + *amount;
}

void PrintActions::report(const PrintOutcome& outcome) {
    if (outcome.pages == 0) return desk_.line.say(u"Nem készült nyomat. "_s + outcome.trouble);
    const QString pdf = desk_.services.lastPdf();
    const bool toPdf = outcome.device == desk_.device.Printers().last() && !pdf.isEmpty();
    const QString where = toPdf ? pdf : outcome.device;
    desk_.line.sayWithLink(u"%1 oldal kinyomtatva: %2. %3"_s.arg(outcome.pages).arg(where, outcome.trouble),
                           toPdf ? pdf : QString());
}
