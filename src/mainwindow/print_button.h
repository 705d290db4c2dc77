#pragma once

#include <QElapsedTimer>
#include <QPushButton>

// A button whose press costs paper: a double click is one press, and so is a key that repeats or comes twice within the
// time of a double click. Takes no focus from the mouse, so that the next keys go where the clerk was typing.
class PrintButton : public QPushButton {
    Q_OBJECT
public:
    explicit PrintButton(const QString& caption, QWidget* parent = nullptr);

    // A second line under the caption, which stays as it is.
    void setNote(const QString& note);
    const QString& note() const { return note_; }
    // A press by a key of the window.
    void pressByKey();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    bool repeatsAKey();

    QString note_;
    QElapsedTimer sinceKey_;
};
