#pragma once

#include "records/program_folder.h"

class ClientZone;
class PrintPanel;
class QSplitter;
class QStackedWidget;
class QWidget;
class TabStrip;

// The parts of the window: tabs and print panel above, below them a pane that shows the client list at first.
struct WindowParts {
    TabStrip* tabs;
    PrintPanel* panel;
    ClientZone* clients;
    QStackedWidget* pane;
};
QSplitter* arrange(const WindowParts& parts);

// How the clerk has arranged the window: its place and size, the splitter and the widths of the list's columns. Kept in
// a small file of its own, "ablak.ini", since nothing else depends on it.

// A missing or damaged file gives the design: the form at its natural size, on the middle of the screen. Call it when
// the layouts know what is hidden: a size set earlier would be pushed up by it.
void restoreArrangement(const ProgramFolder& folder, QWidget& window, QSplitter& splitter, ClientZone& clients);
// False: it could not be written.
[[nodiscard]] bool storeArrangement(const ProgramFolder& folder, const QWidget& window, const QSplitter& splitter,
                                    const ClientZone& clients);
