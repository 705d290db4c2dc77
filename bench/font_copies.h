#pragma once

#include <QString>

// A configuration of fonts, to be named by FONTCONFIG_FILE, with so many families installed: those of the machine, and
// copies of one of them under other names for as many as are lacking.
QString fontConfiguration(int families);
