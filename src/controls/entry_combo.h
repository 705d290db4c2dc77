#pragma once

#include <QComboBox>

// A choice that the mouse wheel never changes: scrolling past it must not pick another printer or amount unseen.
class SteadyCombo : public QComboBox {
    Q_OBJECT
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// A text box that also offers a list. The list never touches what stands in the box: no completion ("15" must not
// become a stored "1500"), no new entries on ENTER, no first item taken over when it is filled.
class EntryCombo : public SteadyCombo {
    Q_OBJECT
public:
    explicit EntryCombo(QWidget* parent = nullptr);

    // Replaces the list and keeps the text of the box. No signal.
    void offer(const QStringList& entries);
    // Shows a text, and moves the list to its entry if there is one, so that the arrow keys go on from there. No
    // signal.
    void showText(const QString& text);
};
