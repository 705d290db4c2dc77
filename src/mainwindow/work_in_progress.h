#pragma once

#include <QElapsedTimer>
#include <QObject>

class StatusLine;
class QWidget;

// Work that holds the window's thread. While a Turn lives, no click and no key reaches the program, also none that
// waited in the queue when it ended: a press of a button that came in while pages were printed must not print them
// again. What reaches a modal box of the work itself is let through. Work that reports its steps is seen by the clerk
// at once by the wait cursor, and after half a second by a line of text and a bar: the window goes on painting itself
// then, and "Mégse" and Esc cancel it.
class WorkInProgress : public QObject {
    Q_OBJECT
public:
    WorkInProgress(QWidget& window, StatusLine& line);

    // The time of one piece of work. They don't nest.
    class Turn {
    public:
        explicit Turn(WorkInProgress& work) : work_(work) { work_.begin(); }
        ~Turn() { work_.end(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        WorkInProgress& work_;
    };

    enum class Cancel { possible, impossible };
    // Part `done` of `total` is behind; `text` says so in words. False: the clerk cancelled.
    bool step(qint64 done, qint64 total, const QString& text, Cancel cancel);
    bool isBusy() const { return busy_; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void begin();
    void end();
    bool isHeldBack(QObject* object, QEvent* event);

    QWidget& window_;
    StatusLine& line_;
    bool busy_ = false;
    bool waiting_ = false; // wait cursor
    bool shown_ = false;   // bar
    bool cancellable_ = false;
    bool cancelled_ = false;
    bool closeWanted_ = false;
    QElapsedTimer sinceFirstStep_;
    QElapsedTimer sinceLastLook_;
};
