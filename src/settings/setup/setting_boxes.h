#pragma once

#include "settings/setup/box_rows.h"
#include "settings/setup/device_fonts.h"

#include <functional>

class QWidget;

// What sets the boxes of a page apart: how one is made, read, filled and watched. makeBox adds name and tooltip; what
// is watched are the user's edits, with or without those of `show`.
struct BoxKind {
    QWidget* (*make)(const BoxLook& look, const DeviceFonts& fonts, QWidget* parent);
    QString (*text)(const QWidget& box);
    void (*show)(QWidget& box, const QString& text);
    void (*onEdit)(QWidget& box, std::function<void()> edited);
    bool isTyped = true; // beside its label, and what is typed may be stored rounded or cut; else a tick or an option
    bool isWide = false; // takes the room that is left over
    QWidget* (*companion)(const QWidget& box) = nullptr; // what stands beside a box of this kind
};

// The widget of a row, with the row's name and tooltip.
QWidget* makeBox(const BoxLook& look, const DeviceFonts& fonts, QWidget* parent);
