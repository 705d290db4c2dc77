#include "controls/colours.h"

#include <QApplication>
#include <QPalette>

void useOwnSelectionColours() {
    QColor pale = focusColour;
    pale.setAlpha(90); // over a light ground or a dark one
    QPalette palette;  // sets these roles alone
    palette.setColor(QPalette::Highlight, focusColour);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, pale);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QApplication::palette().color(QPalette::Text));
    QApplication::setPalette(palette);
}
