#include "settings/setup/page_builder.h"

#include "controls/named.h"
#include "controls/page_scroll.h"
#include "prompts/titles.h"
#include "settings/setup/button_bar.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTime>

namespace {

QLabel* makeUnit(QWidget* parent) {
    auto* unit = new QLabel(QStringLiteral("mm"), parent);
    unit->setFrameStyle(QFrame::StyledPanel);
    unit->setMargin(4);
    unit->setToolTip(QStringLiteral("A pozíciók mértékegysége a milliméter."));
    return unit;
}

QPushButton* makeButton(const char* name, const char16_t* caption) {
    return named(new QPushButton(QString::fromUtf16(caption)), name);
}

QString savedAt(QTime time) { return QStringLiteral("Elmentve ") + time.toString(QStringLiteral("hh:mm:ss")); }

} // namespace

PageBuilder::PageBuilder(const SetupContext& context)
    : fonts_(context.fonts)
    , prompts_(context.prompts)
    , page_(new SetupPage)
    , content_(new QWidget(page_))
    , buttons_(new ButtonBar(page_))
    , note_(makeNote()) {
    head_ = new QHBoxLayout;
    head_->addStretch();
    head_->addWidget(makeUnit(content_), 0, Qt::AlignTop);
    frames_ = new QGridLayout;
    auto* contentLayout = new QVBoxLayout(content_);
    contentLayout->addLayout(head_);
    contentLayout->addLayout(frames_);
    contentLayout->addStretch();
    buttons_->addRight(note_);
}

// The scroll area measures its content as soon as it gets it, so it comes last.
SetupPage* PageBuilder::finish() {
    auto* layout = new QVBoxLayout(page_);
    layout->addWidget(new PageScroll(content_), 1);
    layout->addWidget(buttons_);
    return page_;
}

void PageBuilder::explain(const char16_t* text) {
    auto* explanation = new QLabel(QString::fromUtf16(text));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    head_->insertWidget(0, explanation, 1);
}

void PageBuilder::place(QWidget* frame, Cell cell) {
    frames_->addWidget(frame, cell.row, cell.column, cell.rowSpan, cell.columnSpan);
}

QWidget* PageBuilder::swapped(const SwapRow& row, QWidget* shown, QWidget* hidden) {
    auto* place = new QStackedWidget;
    place->addWidget(shown);
    place->addWidget(hidden);
    QPushButton* button = makeButton(row.name, row.captionWhileHidden);
    QObject::connect(button, &QPushButton::clicked, place, [=] {
        const bool nowShown = place->currentWidget() == shown;
        place->setCurrentWidget(nowShown ? hidden : shown);
        button->setText(QString::fromUtf16(nowShown ? row.captionWhileShown : row.captionWhileHidden));
    });
    buttons_->addLeft(button);
    return place;
}

void PageBuilder::addLink(const LinkRow& row) {
    QPushButton* button = makeButton(row.name, row.caption);
    button->setEnabled(static_cast<bool>(row.open));
    if (row.open) QObject::connect(button, &QPushButton::clicked, button, row.open);
    buttons_->addLeft(button);
}

void PageBuilder::addSave(const SaveRow& row) { buttons_->addRight(makeSave(row, note_)); }

void PageBuilder::addSave(BoxFrame& frame, const SaveRow& row) {
    auto* foot = new QHBoxLayout;
    QLabel* note = makeNote();
    foot->addStretch();
    foot->addWidget(note);
    foot->addWidget(makeSave(row, note));
    frame.addFoot(foot);
}

QLabel* PageBuilder::makeNote() {
    auto* note = named(new QLabel, "lbElmentve");
    note->setMinimumWidth(note->fontMetrics().horizontalAdvance(savedAt({0, 0, 0})) + 8); // nothing moves when it comes
    note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QObject::connect(page_, &SetupPage::edited, note, &QLabel::clear);
    return note;
}

QPushButton* PageBuilder::makeSave(const SaveRow& row, QLabel* note) {
    QPushButton* button = makeButton(row.name, row.caption);
    QObject::connect(button, &QPushButton::clicked, button, [row, note, prompts = &prompts_] {
        const Message question{Icon::question, QString::fromUtf16(row.question.title),
                               QString::fromUtf16(row.question.text)};
        if (row.question.title && prompts->ask(question) == Answer::no) return;
        if (row.save()) {
            note->setText(savedAt(QTime::currentTime()));
            return;
        }
        note->clear(); // of an earlier save
        prompts->tell({Icon::critical, titles::error,
                       QStringLiteral("A beállításokat nem sikerült elmenteni!\n"
                                      "Ellenőrizd, hogy a program mappája írható-e!")});
    });
    return button;
}
