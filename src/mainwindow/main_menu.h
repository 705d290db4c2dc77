#pragma once

#include <QAction>
#include <QMenuBar>

// Fills the menu bar. Each entry's objectName is its control's name; all of them are disabled.
void buildMainMenu(QMenuBar& bar);

QAction& menuEntry(const QMenuBar& bar, const char* name);

// Gives an entry its handler and, by that, enables it.
template<class Receiver, class Handler>
QAction& onMenu(const QMenuBar& bar, const char* name, Receiver* receiver, Handler handler) {
    QAction& action = menuEntry(bar, name);
    QObject::connect(&action, &QAction::triggered, receiver, handler);
    action.setEnabled(true);
    return action;
}
