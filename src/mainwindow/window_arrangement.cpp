#include "mainwindow/window_arrangement.h"

#include "mainwindow/client_zone.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QSplitter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize designSize(1240, 10665 / 15); // the height in twips, 15 to a pixel
constexpr QMargins windowFrame(4, 32, 4, 4);  // about what a window manager adds

constexpr auto geometryKey = "ablak/hely"_L1;
constexpr auto splitterKey = "ablak/osztas"_L1;
constexpr auto columnsKey = "lista/oszlopok"_L1;

QString path(const ProgramFolder& folder) { return folder.file(u"ablak.ini"_s); }

void centre(QWidget& window) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry().marginsRemoved(windowFrame);
    window.resize(designSize.boundedTo(screen.size()));
    window.move(screen.center() - window.rect().center());
}

} // namespace

void restoreArrangement(const ProgramFolder& folder, QWidget& window, QSplitter& splitter, ClientZone& clients) {
    const QSettings stored(path(folder), QSettings::IniFormat);
    if (!window.restoreGeometry(stored.value(geometryKey).toByteArray())) centre(window);
    if (!splitter.restoreState(stored.value(splitterKey).toByteArray()))
        splitter.setSizes({splitter.widget(0)->sizeHint().height(), window.height()});
    QList<int> widths;
    for (const QVariant& width : stored.value(columnsKey).toList())
        widths << width.toInt();
    clients.setColumnWidths(widths);
}

void storeArrangement(const ProgramFolder& folder, const QWidget& window, const QSplitter& splitter,
                      const ClientZone& clients) {
    const QList<int> widths = clients.columnWidths();
    QSettings stored(path(folder), QSettings::IniFormat);
    stored.setValue(geometryKey, window.saveGeometry());
    stored.setValue(splitterKey, splitter.saveState());
    stored.setValue(columnsKey, QVariantList(widths.begin(), widths.end()));
}
