#pragma once

#include <QString>
#include <QWidget>

// A plain text as a tooltip takes it. The toolkit guesses whether a tooltip is markup; only a text that it would take
// for that is escaped, so "A<b>" and "''Delete\"" both show as they were written.
QString plainToolTip(const QString& text);

// Gives a widget its control name and, if there is one, a tooltip in plain text; answers the widget.
template<class Widget>
Widget* named(Widget* widget, const char* name, const QString& tip = {}) {
    widget->setObjectName(QString::fromLatin1(name));
    if (!tip.isEmpty()) widget->setToolTip(plainToolTip(tip));
    return widget;
}
