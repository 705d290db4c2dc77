#include "settings/setup/page_builder.h"

#include "controls/named.h"
#include "controls/page_scroll.h"
#include "prompts/titles.h"
#include "settings/setup/button_bar.h"
#include "settings/setup/save_note.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

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

bool SetupPage::isEdited() const {
    const QList<SaveNote*> notes = findChildren<SaveNote*>();
    return std::any_of(notes.begin(), notes.end(), [](const SaveNote* note) { return note->isEdited(); });
}

// The scroll area measures its content as soon as it gets it, so it comes last.
SetupPage* PageBuilder::finish() {
    for (const Watched& watched : watched_) {
        const auto own = frameNotes_.find(watched.frame);
        (own == frameNotes_.end() ? note_ : own->second)->watch(watched.isEdited);
    }
    auto* layout = new QVBoxLayout(page_);
    layout->addWidget(new PageScroll(content_), 1);
    layout->addWidget(buttons_);
    return page_;
}

void PageBuilder::explain(const char16_t* form) {
    const QString text =
        QStringLiteral("A megadott pozíciók mindig az adott mező első karakterének a pozícióját adják meg "
                       "milliméterben, vízszintesen a %1 bal oldalától, ílletve függőlegesen a %1 felső oldalától!");
    auto* explanation = new QLabel(text.arg(QString::fromUtf16(form)));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    head_->insertWidget(0, explanation, 1);
}

std::vector<QWidget*> PageBuilder::addBoxes(BoxFrame& frame, const std::vector<BoxLook>& looks) {
    std::vector<QWidget*> widgets = frame.addBoxes(looks, fonts_);
    for (std::size_t i = 0; i < looks.size(); ++i)
        looks[i].kind->onEdit(*widgets[i], [page = page_] { Q_EMIT page->changed(); });
    return widgets;
}

void PageBuilder::watch(const BoxFrame& frame, std::function<bool()> isEdited) {
    watched_.push_back({&frame, std::move(isEdited)});
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
    QObject::connect(button, &QPushButton::clicked, button, [row, button] { row.open(button->window()); });
    buttons_->addLeft(button);
}

void PageBuilder::addSave(const SaveRow& row) { buttons_->addRight(makeSave(row, note_)); }

SaveFoot PageBuilder::addSaves(BoxFrame& frame, const std::vector<SaveRow>& rows) {
    SaveFoot made{makeNote(), {}};
    frameNotes_[&frame] = made.note;
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(made.note);
    for (const SaveRow& row : rows)
        foot->addWidget(made.buttons.emplace_back(makeSave(row, made.note)));
    frame.addRow(foot);
    return made;
}

SaveNote* PageBuilder::makeNote() {
    auto* note = new SaveNote;
    QObject::connect(page_, &SetupPage::changed, note, &SaveNote::follow);
    return note;
}

QPushButton* PageBuilder::makeSave(const SaveRow& row, SaveNote* note) {
    QPushButton* button = makeButton(row.name, row.caption);
    QObject::connect(button, &QPushButton::clicked, button, [row, note, prompts = &prompts_, page = page_] {
        if (row.refuses && row.refuses()) return;
        const Message question{Icon::question, QString::fromUtf16(row.question.title),
                               QString::fromUtf16(row.question.text)};
        if (row.question.title && prompts->ask(question) == Answer::no) return;
        const bool saved = row.save();
        Q_EMIT page->changed();
        if (saved) return note->tellSaved();
        prompts->tell({Icon::critical, titles::error,
                       QStringLiteral("Nem minden beállítást sikerült elmenteni!\n"
                                      "Ellenőrizd, hogy a program mappája írható-e!")});
    });
    return button;
}
