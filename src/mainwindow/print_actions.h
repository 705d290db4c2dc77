#pragma once

#include "mainwindow/bound_view.h"
#include "mainwindow/print_dispatch.h"
#include "mainwindow/window_services.h"

class ClientZone;
class PrintPanel;
class StatusLine;
class WorkInProgress;

// A press of a print button, from the questions ahead of it to the words about what came of it.
class PrintActions : public QObject {
    Q_OBJECT
public:
    // What the window has that a press needs; all of it outlives the actions.
    struct Desk {
        const ProgramFolder& folder;
        const WindowServices& services;
        PrintDevice& device;
        const FormTabs& tabs;
        const SelectedClient& selected;
        ClientZone& clients;
        PrintPanel& panel;
        StatusLine& line;
        WorkInProgress& work;
    };
    explicit PrintActions(const Desk& desk) : desk_(desk) {}

    // Prints the form of `tab` once or for each selected client. The focus stays where it was.
    void press(Press press, Tab tab);
    // Prints a yellow check for each client of the list, with no dialog and no question.
    void printUnattended();
    // Prints the names of the selected clients over the posting list.
    void mnuCimzettekNyomtatasa_Click();

Q_SIGNALS:
    // A press has been carried out, whatever came of it.
    void printed(Tab tab);

private:
    using Print = std::function<PrintOutcome(const PrintDesk&, const ListRows&)>;
    void carryOut(const Print& print);
    PrintOutcome run(const Print& print, bool attended);
    PrintOutcome printNow(const Print& print, bool attended);
    QString amountTrouble(const PrintRequest& request) const;
    void report(const PrintOutcome& outcome);

    Desk desk_;
};
