#pragma once

#include <QDialog>

// The base of this program's dialogs, modal or not. It opens in the middle of its parent's screen unless it has a place
// of its own, as large as its content wants but never larger than the screen. ENTER presses no button but one that was
// made the default: a box to type in must not store anything. Esc and the window's own button leave by reject(), as
// "Vissza" should.
class Dialog : public QDialog {
    Q_OBJECT
public:
    Dialog(const char* name, const QString& title, QWidget* parent);

    void setVisible(bool visible) override;

protected:
    // Where it would open: `corner` of the window's frame on the screen, kept whole on it.
    void placeAt(const QPoint& corner);
    // Called at each opening.
    virtual void place();

private:
    QRect room() const;
};
