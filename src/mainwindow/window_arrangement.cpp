#include "mainwindow/window_arrangement.h"

#include "mainwindow/client_zone.h"
#include "mainwindow/print_panel.h"
#include "mainwindow/tab_strip.h"
#include "records/file_replacement.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize designSize(1240, 10665 / 15); // the height in twips, 15 to a pixel
constexpr QMargins windowFrame(4, 32, 4, 4);  // about what a window manager adds
constexpr int formHeight = 470;               // of tabs and print panel: a check at its natural size

constexpr auto geometryKey = "ablak/hely"_L1;
constexpr auto splitterKey = "ablak/osztas"_L1;
constexpr auto columnsKey = "lista/oszlopok"_L1;

QString path(const ProgramFolder& folder) { return folder.file(u"ablak.ini"_s); }

QByteArray bytesIn(const QSettings& stored, QLatin1StringView key) {
    return QByteArray::fromHex(stored.value(key).toByteArray());
}

void centre(QWidget& window) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry().marginsRemoved(windowFrame);
    window.resize(designSize.boundedTo(screen.size()));
    // The window is moved by its frame, the middle is that of what it frames.
    window.move(screen.center() - window.rect().center() - QPoint(windowFrame.left(), windowFrame.top()));
}

} // namespace

QSplitter* arrange(const WindowParts& parts) {
    auto* top = new QWidget;
    auto* topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->addWidget(parts.tabs, 1);
    topLayout->addWidget(parts.panel);
    parts.pane->addWidget(parts.clients);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setObjectName(u"splitter"_s);
    splitter->setContentsMargins(8, 6, 8, 0);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(top);
    splitter->addWidget(parts.pane);
    // The form has enough at its natural size; the list takes what a large window has more.
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    return splitter;
}

void restoreArrangement(const ProgramFolder& folder, QWidget& window, QSplitter& splitter, ClientZone& clients) {
    const QSettings stored(path(folder), QSettings::IniFormat);
    if (!window.restoreGeometry(bytesIn(stored, geometryKey))) centre(window);
    if (!splitter.restoreState(bytesIn(stored, splitterKey)))
        splitter.setSizes({formHeight, window.height() - formHeight});
    const int listWidth = qMax(400, window.width() - 290); // beside its buttons and the record numbers
    QList<int> widths{qMin(353, listWidth * 2 / 5), qMin(470, listWidth / 2)}; // of the design: 5292 and 7056 twips
    if (stored.contains(columnsKey)) widths.clear();
    for (const QVariant& width : stored.value(columnsKey).toList())
        widths << width.toInt();
    clients.setColumnWidths(widths);
}

bool storeArrangement(const ProgramFolder& folder, const QWidget& window, const QSplitter& splitter,
                      const ClientZone& clients) {
    const QList<int> widths = clients.columnWidths();
    // Not by the toolkit's settings, whose lock and new file outlive a kill.
    const QByteArray text =
        "[ablak]\nhely=" + window.saveGeometry().toHex() + "\nosztas=" + splitter.saveState().toHex() +
        "\n\n[lista]\noszlopok=" + QByteArray::number(widths[0]) + ", " + QByteArray::number(widths[1]) + '\n';
    return replaceFile(path(folder), text);
}
