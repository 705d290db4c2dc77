#include "controls/entry_combo.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

EntryCombo::EntryCombo(QWidget* parent) : SteadyCombo(parent) {
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void EntryCombo::offer(const QStringList& entries) {
    const QSignalBlocker block(this);
    const QSignalBlocker blockEdit(lineEdit());
    const QString text = currentText();
    clear();
    addItems(entries);
    setCurrentIndex(-1);
    setEditText(text);
}

void EntryCombo::showText(const QString& text) {
    const QSignalBlocker block(this);
    const QSignalBlocker blockEdit(lineEdit());
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void SteadyCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }
