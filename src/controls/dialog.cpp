#include "controls/dialog.h"

#include "controls/named.h"

#include <QPushButton>
#include <QScreen>
#include <QStyle>

Dialog::Dialog(const char* name, const QString& title, QWidget* parent) : QDialog(parent) {
    named(this, name);
    setWindowTitle(title);
}

// All ways to open a dialog come through here. Each time, since content may have come in between.
void Dialog::setVisible(bool visible) {
    if (visible) {
        for (QPushButton* button : findChildren<QPushButton*>())
            button->setAutoDefault(false);
        if (!isVisible()) place();
    }
    QDialog::setVisible(visible);
}

// What the screen leaves for the content of a window with a frame.
QRect Dialog::room() const {
    const QScreen* shownOn = parentWidget() ? parentWidget()->screen() : screen();
    constexpr QMargins windowFrame(8, 32, 8, 8);
    return shownOn->availableGeometry().marginsRemoved(windowFrame);
}

void Dialog::place() {
    const QRect screen = room();
    const QSize size = sizeHint().boundedTo(screen.size());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, screen));
}

void Dialog::placeAt(const QPoint& corner) {
    const QRect screen = room();
    resize(sizeHint().boundedTo(screen.size()));
    // The minimum of its content may make it larger than a small screen: then its corner is what must be seen.
    move(qMax(screen.left(), qMin(corner.x(), screen.right() - width())),
         qMax(screen.top(), qMin(corner.y(), screen.bottom() - height())));
}
