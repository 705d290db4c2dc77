#pragma once

#include "mainwindow/client_pour.h"
#include "mainwindow/database_actions.h"
#include "mainwindow/form_views.h"
#include "mainwindow/print_dispatch.h"
#include "mainwindow/window_services.h"

#include <QMainWindow>

class ClientZone;
class PrintPanel;
class QProgressBar;
class QTabWidget;

// The main window: eight tabs of forms, the client list, the print panel and the menu. It owns the values of the tabs
// and carries each event to the rules; no work of a tab is done here. The folder and the services must outlive it.
class frmTarlimo : public QMainWindow {
    Q_OBJECT
public:
    frmTarlimo(const ProgramFolder& folder, const WindowServices& services);

    // Stores what the window remembers: at the closing and at the end of the session.
    void storeState();
    // Record number of the client last clicked, 0 for none.
    int rekordszam() const { return selected_.rekordszam; }
    const FormTabs& tabs() const { return tabs_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    void buildTabs();
    void connectMenu();

    void load();
    void restoreControls();
    void fillFonts();
    // Refills the catalogue boxes. Runs at the start and on the return from the program's own windows, not after
    // message boxes or print dialogs: it empties notice and titles, which a running batch still needs.
    void activate();

    void tabClicked(int tab);
    void reloadTab(int tab);
    void rowClicked(int row);
    void pour(const Client& client);
    void applyButtonRule();
    // `keep` is the client whose row is selected again; 0 for none.
    void searchList(const QString& text, int keep);
    void showAll();

    void followDefault();
    void press(Press press);
    void report(const PrintOutcome& outcome);
    void deleteClient();
    void wipeDatabase();
    void importCsv();
    void showProgress(qint64 done, qint64 total);
    void clientsGone();
    void showSetup();
    void askAndClose();

    const ProgramFolder& folder_;
    WindowServices services_;
    PrintDevice device_;
    FormTabs tabs_;
    SelectedClient selected_;
    int setupOldal_ = 0;

    QTabWidget* SSTab1_;
    ClientZone* clients_;
    PrintPanel* panel_;
    QProgressBar* progress_;
    YellowCheckView* yellowCheck_ = nullptr;
    LabelView* labels_ = nullptr;
    std::vector<BoundView*> views_; // by tab
};
