#include "settings/setup/box_frame.h"

#include "controls/named.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int longestLine = 40; // a longer label takes two lines

QLabel* makeLabel(const BoxLook& look, QWidget* box) {
    auto* label = new QLabel(QString::fromUtf16(look.label), box->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setWordWrap(label->text().size() > longestLine);
    label->setBuddy(box);
    return label;
}

// The box, and beside it what belongs to its kind.
QLayout* withCompanion(const BoxLook& look, QWidget* box) {
    auto* line = new QHBoxLayout;
    line->addWidget(box);
    if (look.kind->companion) line->addWidget(look.kind->companion(*box), 1);
    if (!look.kind->isWide) line->addStretch();
    return line;
}

// A hidden widget keeps its room, so that nothing jumps.
void showWhile(const QAbstractButton& button, QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->setVisible(button.isChecked());
    QObject::connect(&button, &QAbstractButton::toggled, widget, &QWidget::setVisible);
}

} // namespace

BoxFrame::BoxFrame(const FrameLook& look)
    : QGroupBox(QString::fromUtf16(look.title))
    , grid_(new QGridLayout(this))
    , columns_(look.columns) {
    if (look.name) named(this, look.name);
}

std::vector<QWidget*> BoxFrame::addBoxes(const std::vector<BoxLook>& looks, const DeviceFonts& fonts) {
    std::vector<QWidget*> boxes;
    const int rows = (static_cast<int>(looks.size()) + columns_ - 1) / columns_;
    const int first = freshRows(rows);
    for (const BoxLook& look : looks) {
        const int place = static_cast<int>(boxes.size());
        boxes.push_back(makeBox(look, fonts, this));
        addBox(look, boxes.back(), first + place % rows, place / rows);
    }
    // Room that is left over goes into wide boxes, else between the columns.
    constexpr int gap = 24;
    for (int column = 0; column < columns_; ++column) {
        if (grid_->columnStretch(3 * column + 1) == 0) grid_->setColumnStretch(3 * column + 2, 1);
        if (column + 1 < columns_) grid_->setColumnMinimumWidth(3 * column + 2, gap);
    }
    return boxes;
}

// Each column of boxes takes three of the grid: labels, boxes, and a gap.
void BoxFrame::addBox(const BoxLook& look, QWidget* box, int row, int column) {
    const auto* shownWhile =
        look.shownWhile ? findChild<QAbstractButton*>(QString::fromLatin1(look.shownWhile)) : nullptr;
    if (shownWhile) showWhile(*shownWhile, box);
    if (!look.kind->isTyped) {
        grid_->addWidget(box, row, 3 * column, 1, 2);
        return;
    }
    QLabel* label = makeLabel(look, box);
    if (shownWhile) showWhile(*shownWhile, label);
    grid_->addWidget(label, row, 3 * column);
    grid_->addLayout(withCompanion(look, box), row, 3 * column + 1);
    if (look.kind->isWide) grid_->setColumnStretch(3 * column + 1, 1);
}

void BoxFrame::addNote(const char16_t* text) {
    auto* note = new QLabel(QString::fromUtf16(text));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    grid_->addWidget(note, freshRows(1), 0, 1, -1);
}

void BoxFrame::addRow(QLayout* row) { grid_->addLayout(row, freshRows(1), 0, 1, -1); }

// The first of `rows` rows at the foot of the grid; the last row of all takes the room that is left over.
int BoxFrame::freshRows(int rows) {
    const int first = grid_->rowCount() - 1;
    grid_->setRowStretch(first, 0);
    grid_->setRowStretch(first + rows, 1);
    return first;
}
