#include "mainwindow/work_in_progress.h"

#include "mainwindow/status_line.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QWindow>

namespace {

constexpr int cursorMs = 20; // shorter work shows nothing
constexpr int quietMs = 500; // longer work shows how far it is
constexpr int lookMs = 40;   // between two looks at what waits: a page is often done in less than a millisecond

} // namespace

WorkInProgress::WorkInProgress(QWidget& window, StatusLine& line) : window_(window), line_(line) {
    connect(&line_, &StatusLine::cancelPressed, this, [this] { cancelled_ = true; });
}

void WorkInProgress::begin() {
    busy_ = true;
    waiting_ = shown_ = cancellable_ = cancelled_ = closeWanted_ = false;
    sinceFirstStep_.invalidate();
    qApp->installEventFilter(this);
}

void WorkInProgress::end() {
    cancellable_ = false;
    QCoreApplication::processEvents(); // whatever came in meanwhile ends here
    qApp->removeEventFilter(this);
    busy_ = false;
    if (shown_) line_.hideProgress();
    if (waiting_) QGuiApplication::restoreOverrideCursor();
    if (closeWanted_) QMetaObject::invokeMethod(&window_, &QWidget::close, Qt::QueuedConnection);
}

bool WorkInProgress::step(qint64 done, qint64 total, const QString& text, Cancel cancel) {
    if (!busy_) return true;
    if (!sinceFirstStep_.isValid()) {
        sinceFirstStep_.start();
        sinceLastLook_.start();
    }
    if (!waiting_ && sinceFirstStep_.elapsed() >= cursorMs) {
        waiting_ = true;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    if (sinceFirstStep_.elapsed() < quietMs || (shown_ && sinceLastLook_.elapsed() < lookMs)) return !cancelled_;
    shown_ = true;
    cancellable_ = cancel == Cancel::possible;
    line_.say(text);
    line_.showProgress(done, total, cancellable_);
    QCoreApplication::processEvents();
    sinceLastLook_.restart();
    return !cancelled_;
}

bool WorkInProgress::eventFilter(QObject* object, QEvent* event) {
    // The work's own question or dialog; what lies behind it is out of reach anyway.
    if (QApplication::activeModalWidget() != nullptr) return false;
    return isHeldBack(object, event);
}

bool WorkInProgress::isHeldBack(QObject* object, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (cancellable_ && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) cancelled_ = true;
        return true;
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        // The toolkit's window passes them on to its widgets, of which one may have them.
        return !object->isWindowType() && !(cancellable_ && object == line_.cancelButton());
    case QEvent::Close:
        if (object != &window_) return false;
        closeWanted_ = true;
        cancelled_ = cancellable_;
        event->ignore();
        return true;
    default:
        return false;
    }
}
