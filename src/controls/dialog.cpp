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
        if (!isPlaced_) centre();
        isPlaced_ = true;
    }
    QDialog::setVisible(visible);
}

void Dialog::centre() {
    const QScreen* shownOn = parentWidget() ? parentWidget()->screen() : screen();
    constexpr QMargins windowFrame(8, 32, 8, 8);
    const QRect room = shownOn->availableGeometry().marginsRemoved(windowFrame);
    const QSize size = sizeHint().boundedTo(room.size());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, room));
}
