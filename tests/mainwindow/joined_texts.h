#pragma once

#include "prompts/prompts.h"

#include <QStringList>

#include <string>

// Texts parted by '|', to compare many in one line. Blanks at a text's end are written as its length: "Eger~40".
inline std::string joined(const QStringList& texts) {
    QStringList shown;
    for (const QString& text : texts) {
        const qsizetype end = text.size() - (u'.' + text).trimmed().size() + 1; // blanks at the end
        shown << (end == 0 ? text : text.chopped(end) + u'~' + QString::number(text.size()));
    }
    return shown.join(u'|').toStdString();
}

inline std::string joined(const Message& message) { return (message.title + u'|' + message.text).toStdString(); }
