#pragma once

#include "../peak_memory.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>

// Tells on the standard output that the window has been painted for the first time, all its children included, and how
// much memory that took, and ends the process there.
class EndAtFirstPaint : public QObject {
public:
    explicit EndAtFirstPaint(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // The window itself is painted before its children: the round of events ends with the last of them.
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, this, &EndAtFirstPaint::end);
        return QObject::eventFilter(watched, event);
    }

private:
    void end() {
        std::printf("%f\n", peakMegabytes());
        std::fflush(stdout);
        std::_Exit(0);
    }
};
