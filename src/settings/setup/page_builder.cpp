#include "settings/setup/page_builder.h"

#include "prompts/titles.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

// Wants the whole of what it scrolls; a scroll area of the toolkit would open at a size of its own.
class PageScroll : public QScrollArea {
public:
    explicit PageScroll(QWidget* content) {
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(content);
        viewport()->setAutoFillBackground(false);
        content->setAutoFillBackground(false); // the page looks like the tab that it stands in
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

QLabel* makeUnit(QWidget* parent) {
    auto* unit = new QLabel(QStringLiteral("mm"), parent);
    unit->setFrameStyle(QFrame::StyledPanel);
    unit->setMargin(4);
    unit->setToolTip(QStringLiteral("A pozíciók mértékegysége a milliméter."));
    return unit;
}

constexpr int longestLine = 40; // a longer label takes two lines

QLabel* makeLabel(const BoxLook& look, QWidget* box, QWidget* parent) {
    auto* label = new QLabel(QString::fromUtf16(look.label), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setWordWrap(label->text().size() > longestLine);
    label->setBuddy(box);
    return label;
}

bool isWide(BoxKind kind) { return kind == BoxKind::text || kind == BoxKind::font; }

// One box with its label; each column of boxes takes three of the grid: labels, boxes, and a gap.
void addRow(QGridLayout& grid, const BoxLook& look, QWidget* box, int row, int column) {
    if (look.kind == BoxKind::tick) {
        grid.addWidget(box, row, 3 * column, 1, 2);
        return;
    }
    grid.addWidget(makeLabel(look, box, box->parentWidget()), row, 3 * column);
    grid.addWidget(box, row, 3 * column + 1);
    if (isWide(look.kind)) grid.setColumnStretch(3 * column + 1, 1);
}

// Room that is left over goes into wide boxes, else between the columns, and below the rows.
void addGaps(QGridLayout& grid, int rows, int columns) {
    constexpr int gap = 24;
    for (int column = 0; column < columns; ++column) {
        if (grid.columnStretch(3 * column + 1) == 0) grid.setColumnStretch(3 * column + 2, 1);
        if (column + 1 < columns) grid.setColumnMinimumWidth(3 * column + 2, gap);
    }
    grid.setRowStretch(rows, 1);
}

} // namespace

PageBuilder::PageBuilder(const SetupContext& context)
    : fonts_(context.fonts)
    , prompts_(context.prompts)
    , page_(new QWidget)
    , content_(new QWidget(page_)) {
    head_ = new QHBoxLayout;
    head_->addStretch();
    head_->addWidget(makeUnit(content_), 0, Qt::AlignTop);
    frames_ = new QGridLayout;
    auto* contentLayout = new QVBoxLayout(content_);
    contentLayout->addLayout(head_);
    contentLayout->addLayout(frames_);
    contentLayout->addStretch();

    leftButtons_ = new QHBoxLayout;
    rightButtons_ = new QHBoxLayout;
}

// The scroll area measures its content as soon as it gets it, so it comes last.
QWidget* PageBuilder::finish() {
    auto* buttons = new QHBoxLayout;
    buttons->addLayout(leftButtons_);
    buttons->addStretch();
    buttons->addLayout(rightButtons_);
    auto* layout = new QVBoxLayout(page_);
    layout->addWidget(new PageScroll(content_), 1);
    layout->addLayout(buttons);
    return page_;
}

void PageBuilder::explain(const char16_t* text) {
    auto* explanation = new QLabel(QString::fromUtf16(text));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    head_->insertWidget(0, explanation, 1);
}

QGroupBox* PageBuilder::layOut(const FrameLook& look, const std::vector<BoxLook>& looks,
                               std::vector<QWidget*>& widgets) {
    auto* frame = new QGroupBox(QString::fromUtf16(look.title));
    if (look.name) frame->setObjectName(QString::fromLatin1(look.name));
    auto* grid = new QGridLayout(frame);
    const int rows = (static_cast<int>(looks.size()) + look.columns - 1) / look.columns;
    for (const BoxLook& boxLook : looks) {
        const int place = static_cast<int>(widgets.size());
        widgets.push_back(makeBox(boxLook, fonts_, frame));
        addRow(*grid, boxLook, widgets.back(), place % rows, place / rows);
    }
    addGaps(*grid, rows, look.columns);
    return frame;
}

void PageBuilder::place(QWidget* frame, Cell cell) {
    frames_->addWidget(frame, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
}

QWidget* PageBuilder::swapped(const SwapRow& row, QWidget* shown, QWidget* hidden) {
    auto* place = new QStackedWidget;
    place->addWidget(shown);
    place->addWidget(hidden);
    QPushButton* button = makeButton({row.name, row.captionWhileHidden, {}, [] { return true; }});
    QObject::connect(button, &QPushButton::clicked, place, [=] {
        const bool nowShown = place->currentWidget() == shown;
        place->setCurrentWidget(nowShown ? hidden : shown);
        button->setText(QString::fromUtf16(nowShown ? row.captionWhileShown : row.captionWhileHidden));
    });
    leftButtons_->addWidget(button);
    return place;
}

void PageBuilder::addButton(ButtonSide side, const ButtonRow& row) {
    (side == ButtonSide::left ? leftButtons_ : rightButtons_)->addWidget(makeButton(row));
}

void PageBuilder::addButton(QGroupBox* frame, const ButtonRow& row) {
    auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    const int foot = grid->rowCount() - 1; // so far the row that takes the room left over
    grid->setRowStretch(foot, 0);
    grid->setRowStretch(foot + 1, 1);
    grid->addWidget(makeButton(row), foot, 0, 1, grid->columnCount(), Qt::AlignRight);
}

QPushButton* PageBuilder::makeButton(const ButtonRow& row) {
    auto* button = new QPushButton(QString::fromUtf16(row.caption));
    button->setObjectName(QString::fromLatin1(row.name));
    button->setAutoDefault(false); // ENTER in a box must not store anything
    button->setEnabled(static_cast<bool>(row.effect));
    QObject::connect(button, &QPushButton::clicked, button, [row, prompts = &prompts_] {
        const Message question{Icon::question, QString::fromUtf16(row.question.title),
                               QString::fromUtf16(row.question.text)};
        if (row.question.title && prompts->ask(question) == Answer::no) return;
        if (row.effect()) return;
        prompts->tell({Icon::critical, titles::error,
                       QStringLiteral("A beállításokat nem sikerült elmenteni!\n"
                                      "Ellenőrizd, hogy a program mappája írható-e!")});
    });
    return button;
}
