#include "mainwindow/main_menu.h"

namespace {

enum class Built { yes, no };

struct Entry {
    const char* menu; // name of the menu, empty for an entry of the bar itself
    const char* name;
    const char* caption;
    Built built;
};

constexpr Entry entries[] = {
    {"", "mnuKilep", "&Kilépés", Built::yes},
    {"", "mnuUjcimzett", "&Új címzett", Built::no},
    {"", "mnuSetup", "&Beállítások", Built::yes},
    {"mnuAdatbazis", "mnuAdatCsvbol", "Adatbázis importálása &CSV fájlból", Built::yes},
    {"mnuAdatbazis", "mnuAdatbazisTorles", "&Adatbázis törlése", Built::yes},
    {"mnuAdatbazis", "mnuAutoBeolvasas", "A&utomatikus beolvasás", Built::no},
    {"mnuAdatbazis", "mnuMentCSVbe", "Adatbázis &mentése CSV fájlba", Built::no},
    {"mnuAdatbazis", "mnuImportHelp", "&Segítség az importáláshoz...", Built::yes},
    {"mnuAdatbazis", "mnuKonertal", "Adastbázis &konvertálása előző verzióból", Built::no},
    {"mnuFeladojegyzek", "mnuUresFeladojegyzek", "Üres nyomtatvány", Built::no},
    {"mnuFeladojegyzek", "mnuCimzettekNyomtatasa", "&Címzettek nyomtatása", Built::no},
    {"mnuFeladojegyzek", "mnuFeladojegyzekSetup", "&Beállítások", Built::no},
    {"", "mnuAbout", "Névjegy", Built::yes},
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
        action->setEnabled(entry.built == Built::yes);
        action->setMenuRole(QAction::NoRole);
    }
}
