#include "mainwindow/main_menu.h"

namespace {

struct Entry {
    const char* menu; // name of the menu, empty for an entry of the bar itself
    const char* name;
    const char* caption;
};

constexpr Entry entries[] = {
    {"", "mnuKilep", "&Kilépés"},
    {"", "mnuUjcimzett", "&Új címzett"},
    {"", "mnuSetup", "&Beállítások"},
    {"mnuAdatbazis", "mnuAdatCsvbol", "Adatbázis importálása &CSV fájlból"},
    {"mnuAdatbazis", "mnuAdatbazisTorles", "&Adatbázis törlése"},
    {"mnuAdatbazis", "mnuAutoBeolvasas", "A&utomatikus beolvasás"},
    {"mnuAdatbazis", "mnuMentCSVbe", "Adatbázis &mentése CSV fájlba"},
    {"mnuAdatbazis", "mnuImportHelp", "&Segítség az importáláshoz..."},
    {"mnuAdatbazis", "mnuKonertal", "Adastbázis &konvertálása előző verzióból"},
    {"mnuFeladojegyzek", "mnuUresFeladojegyzek", "Üres nyomtatvány"},
    {"mnuFeladojegyzek", "mnuCimzettekNyomtatasa", "&Címzettek nyomtatása"},
    {"mnuFeladojegyzek", "mnuFeladojegyzekSetup", "&Beállítások"},
    {"", "mnuAbout", "Névjegy"},
};

QMenu* menuNamed(QMenuBar& bar, const QString& name) {
    if (auto* menu = bar.findChild<QMenu*>(name)) return menu;
    QMenu* menu = bar.addMenu(name == u"mnuAdatbazis" ? QStringLiteral("Adatbázis") : QStringLiteral("F&eladójegyzék"));
    menu->setObjectName(name);
    return menu;
}

} // namespace

void buildMainMenu(QMenuBar& bar) {
    for (const Entry& entry : entries) {
        const QString menu = QLatin1String(entry.menu);
        const QString caption = QString::fromUtf8(entry.caption);
        QAction* action = menu.isEmpty() ? bar.addAction(caption) : menuNamed(bar, menu)->addAction(caption);
        action->setObjectName(QLatin1String(entry.name));
        action->setEnabled(false);
        action->setMenuRole(QAction::NoRole);
    }
}

QAction& menuEntry(const QMenuBar& bar, const char* name) {
    auto* action = bar.findChild<QAction*>(QLatin1String(name));
    Q_ASSERT(action != nullptr);
    return *action;
}
