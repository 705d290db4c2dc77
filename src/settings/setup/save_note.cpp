#include "settings/setup/save_note.h"

#include "controls/named.h"

#include <QTime>

#include <algorithm>

namespace {

const QString unsaved = QStringLiteral("Nem mentett módosítások");

QString savedAt(QTime time) { return QStringLiteral("Elmentve ") + time.toString(QStringLiteral("hh:mm:ss")); }

} // namespace

SaveNote::SaveNote() {
    named(this, "lbElmentve");
    const auto width = [this](const QString& text) { return fontMetrics().horizontalAdvance(text); };
    setMinimumWidth(std::max(width(unsaved), width(savedAt({0, 0, 0}))) + 8); // nothing moves when the text comes
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

bool SaveNote::isEdited() const {
    return std::any_of(watched_.begin(), watched_.end(), [](const auto& isEdited) { return isEdited(); });
}

void SaveNote::follow() { setText(isEdited() ? unsaved : QString()); }

// A button need not store all of the boxes.
void SaveNote::tellSaved() { setText(isEdited() ? unsaved : savedAt(QTime::currentTime())); }
