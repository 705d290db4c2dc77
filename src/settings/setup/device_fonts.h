#pragma once

#include <QStringList>

#include <functional>

// The fonts of the current print device.
struct DeviceFonts {
    QStringList names;                         // to choose from, in the device's order
    std::function<bool(const QString&)> knows; // also true of a name that isn't offered but can be printed
};
