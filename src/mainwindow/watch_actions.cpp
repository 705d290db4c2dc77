#include "mainwindow/watch_actions.h"

#include "exchange/dialogs/frmAutBeolvas.h"
#include "mainwindow/guarded.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/print_actions.h"
#include "mainwindow/status_line.h"
#include "mainwindow/work_in_progress.h"
#include "prompts/titles.h"

#include <QApplication>
#include <QDateTime>
#include <QTimer>

#include <optional>

using namespace Qt::Literals::StringLiterals;

WatchActions::WatchActions(const Desk& desk) : desk_(desk), Timer1_(new QTimer(&desk.window)) {
    Timer1_->setObjectName(u"Timer1"_s);
    Timer1_->setInterval(5000);
    connect(Timer1_, &QTimer::timeout, this, &WatchActions::Timer1_Timer);
    Timer1_->start();
    showWatch();
}

void WatchActions::connectMenu(const QMenuBar& bar) {
    onMenu(bar, "mnuAutoBeolvasas", this, &WatchActions::showDialog);
}

// Boxes, dialogs and progress run the timer too. A database must not change behind a question about a client, or under
// the hands of a print: the file waits.
void WatchActions::Timer1_Timer() {
    const bool isOccupied =
        desk_.work.isBusy() || QApplication::activeModalWidget() || QApplication::activePopupWidget();
    if (isOccupied) return;
    Timer1_->stop();
    // Without a box, which would stop the unattended run.
    const QString trouble = troubleOf([this] { lookAndImport(); });
    if (trouble.isEmpty()) return;
    state_ = trouble;
    desk_.line.showWatch(u"?"_s, state_);
    Timer1_->start();
}

void WatchActions::lookAndImport() {
    const TickOutcome outcome = tick();
    const bool isEvent = outcome.result == TickOutcome::Result::imported || outcome.isPassedOver;
    state_ = isEvent ? QString() : tickText(outcome);
    if (isEvent) last_ = QTime::currentTime().toString(u"HH:mm  "_s) + tickText(outcome);
    showWatch();
    if (isEvent) desk_.line.say(tickText(outcome));
    if (outcome.result == TickOutcome::Result::imported) finishImport(outcome);
    if (outcome.timerGoesOn()) Timer1_->start();
}

TickOutcome WatchActions::tick() {
    std::optional<WorkInProgress::Turn> turn; // only once there is a file: a look of every five seconds drops no key
    return watchTick(desk_.folder, QDateTime::currentDateTime(), [&](qint64 done, qint64 total) {
        if (!turn) turn.emplace(desk_.work);
        desk_.work.step(done, total, u"Automatikus beolvasás…"_s, WorkInProgress::Cancel::impossible);
    });
}

void WatchActions::finishImport(const TickOutcome& outcome) {
    Q_EMIT changed({outcome.mode == ImportMode::overwrite ? ClientsChanged::replaced : ClientsChanged::appended});
    if (outcome.import.endedAtEmptyLine) return;
    if (!outcome.prints)
        return desk_.prompts.tell({Icon::information, titles::attention,
                                   u"Az automatikus nyomtatás beállítás \nablakában az automatikus nyomtatás \n"
                                   "nincs kipipálva!"_s});
    if (outcome.import.withoutAmount > 0)
        return desk_.prompts.tell(
            {Icon::information, u"HIBA"_s,
             u"A beolvasott adatokból %1 rekord nem tartalmaz összeget, így nem nyomtatható "
             "automatikusan csekk!\nEllenőrízd a ''csv'' fájl helyességét."_s.arg(outcome.import.withoutAmount)});
    desk_.printing.printUnattended();
}

void WatchActions::showDialog() {
    Timer1_->stop();
    frmAutBeolvas(desk_.folder, desk_.prompts, &desk_.window).exec();
    Timer1_->start();
    state_.clear();
    showWatch();
    Q_EMIT dialogClosed();
}

void WatchActions::showWatch() {
    const WatchSettings watch(readRecord<Set>(desk_.folder));
    if (!watch.isOn) return desk_.line.showWatch({}, {});
    desk_.line.showWatch(watch.folder, state_.isEmpty() ? last_ : state_);
}
