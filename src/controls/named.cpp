#include "controls/named.h"

#include <QTextDocument>

QString plainToolTip(const QString& text) { return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text; }
