#pragma once

#include <QMenuBar>

// Fills the menu bar. Each entry's objectName is its control's name; entries whose dialog isn't built are disabled.
void buildMainMenu(QMenuBar& bar);
