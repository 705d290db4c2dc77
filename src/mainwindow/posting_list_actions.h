#pragma once

#include "mainwindow/window_services.h"
#include "records/program_folder.h"

#include <QObject>

class PrintActions;
class QMainWindow;

// The menu of the posting list: its blank form, the names printed over it, its settings. Belongs to the window.
class PostingListActions : public QObject {
    Q_OBJECT
public:
    // Takes the entries of the window's menu on.
    PostingListActions(QMainWindow& window, const ProgramFolder& folder, const WindowServices& services,
                       PrintActions& printing);

Q_SIGNALS:
    // The dialog of the settings has closed.
    void settingsClosed();

private:
    // Opens the workbook in the spreadsheet program. Where that fails, the settings open, so that the path can be
    // corrected.
    void mnuUresFeladojegyzek_Click();
    void mnuFeladojegyzekSetup_Click();

    QMainWindow& window_;
    const ProgramFolder& folder_;
    const WindowServices& services_;
};
