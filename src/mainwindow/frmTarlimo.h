#pragma once

#include "mainwindow/client_actions.h"
#include "mainwindow/print_actions.h"
#include "mainwindow/watch_actions.h"
#include "mainwindow/window_services.h"
#include "mainwindow/work_in_progress.h"

#include <QMainWindow>

class ClientZone;
class PrintPanel;
class QSplitter;
class QStackedWidget;
class StatusLine;
class TabStrip;

// The main window: eight tabs of forms, the client list, the print panel and the menu. It owns the values of the tabs
// and carries each event to the rules; no work of a tab is done here. The folder and the services must outlive it.
class frmTarlimo : public QMainWindow {
    Q_OBJECT
public:
    frmTarlimo(const ProgramFolder& folder, const WindowServices& services);

    // Stores what the window remembers: at the closing and at the end of the session. False: not all of it was.
    bool storeState();
    // Record number of the client last clicked, 0 for none.
    int rekordszam() const { return selected_.rekordszam; }
    const FormTabs& tabs() const { return tabs_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void connectParts();
    void connectMenu();
    void connectKeys();

    void load();
    void restoreControls();
    // Refills the catalogue boxes. Runs at the start and on the return from the program's own windows, not after
    // message boxes or print dialogs: it empties notice and titles, which a running batch still needs.
    void activate();

    void rowClicked(int row);
    void applyButtonRule();
    // `keep` is the client whose row is selected again; 0 for none.
    void searchList(const QString& text, int keep);
    // The one place where those who hold or show clients follow a change of the database.
    void clientsChanged(const ClientsChanged& change);
    void followClients(const ClientsChanged& change);

    void showSetup();
    void askAndClose();

    const ProgramFolder& folder_;
    WindowServices services_;
    PrintDevice device_;
    FormTabs tabs_;
    SelectedClient selected_;

    TabStrip* SSTab1_;
    ClientZone* clients_;
    PrintPanel* panel_;
    QStackedWidget* pane_; // the client list
    QSplitter* splitter_;
    StatusLine* line_;

    WorkInProgress work_;
    DatabaseActions database_;
    ClientActions entry_;
    PrintActions printing_;
    WatchActions watching_;
};
