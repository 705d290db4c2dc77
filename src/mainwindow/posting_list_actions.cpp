#include "mainwindow/posting_list_actions.h"

#include "exchange/dialogs/posting_list_setup.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/print_actions.h"
#include "records/record_file.h"
#include "settings/other_settings.h"

#include <QFile>
#include <QMainWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

// An office may keep its own form at the fixed place; the one in the program folder is always there.
QString blankWorkbook(const ProgramFolder& folder) {
    const QString name = u"Feladójegyzéküres.xls"_s;
#ifdef Q_OS_WIN
    if (const QString fixed = u"c:\\"_s + name; QFile::exists(fixed)) return fixed;
#endif
    return folder.file(name);
}

} // namespace

PostingListActions::PostingListActions(QMainWindow& window, const ProgramFolder& folder, const WindowServices& services,
                                       PrintActions& printing)
    : QObject(&window)
    , window_(window)
    , folder_(folder)
    , services_(services) {
    const QMenuBar& bar = *window.menuBar();
    onMenu(bar, "mnuUresFeladojegyzek", this, &PostingListActions::mnuUresFeladojegyzek_Click);
    onMenu(bar, "mnuCimzettekNyomtatasa", &printing, &PrintActions::mnuCimzettekNyomtatasa_Click);
    onMenu(bar, "mnuFeladojegyzekSetup", this, &PostingListActions::mnuFeladojegyzekSetup_Click);
}

void PostingListActions::mnuUresFeladojegyzek_Click() {
    const QString program = readRecord<FjSet>(folder_).txtExcelUtvonal.trimmed();
    if (services_.startProgram(program, blankWorkbook(folder_))) return;
    services_.prompts.tell({Icon::critical, u"HIBA"_s, u"Hibás az Excel útvonala...\nEllenőrízze a Beállításban!"_s});
    mnuFeladojegyzekSetup_Click();
}

void PostingListActions::mnuFeladojegyzekSetup_Click() {
    frmFjSetup(folder_, services_.prompts, &window_).exec();
    Q_EMIT settingsClosed();
}
