#pragma once

#include "exchange/watched_folder.h"
#include "mainwindow/database_actions.h"

class PrintActions;
class QTimer;
class StatusLine;

// The watched folder in the window: `Timer1` looks into it, and what is found is imported, told and, if so set, printed
// with nobody at the keys. While watching is on, the status line says so at its right end.
class WatchActions : public QObject {
    Q_OBJECT
public:
    // What the window has that a tick needs; all of it outlives the actions.
    struct Desk {
        QWidget& window;
        const ProgramFolder& folder;
        Prompts& prompts;
        PrintActions& printing;
        StatusLine& line;
        WorkInProgress& work;
    };
    explicit WatchActions(const Desk& desk);

    // Enables the entry of the dialog.
    void connectMenu(const QMenuBar& bar);

Q_SIGNALS:
    void changed(const ClientsChanged& change);
    // The program's own dialog has closed.
    void dialogClosed();

private:
    void Timer1_Timer();
    void lookAndImport();
    TickOutcome tick();
    void finishImport(const TickOutcome& outcome);
    void showDialog();
    void showWatch();

    Desk desk_;
    QTimer* Timer1_; // of the window
    QString last_;   // what the last import came to, and when
    QString state_;  // what is the matter now; empty if all is in order
};
