#pragma once

#include "prompts/prompts.h"
#include "settings/setup/box_frame.h"
#include "settings/setup/record_boxes.h"

class ButtonBar;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

// What a page needs from outside.
struct SetupContext {
    const ProgramFolder& folder;
    Prompts& prompts;
    const QStringList& fonts; // of the current print device, in its order
};

// Where a frame stands among the others of its page.
struct Cell {
    int row, column;
    int rowSpan = 1, columnSpan = 1;
};

// The Yes and No question before a deed; without a title there is none.
struct Question {
    const char16_t* title = nullptr;
    const char16_t* text = nullptr;
};

// A button that writes. `save` returns false if something could not be written, which the user is then told; else the
// time of the save is shown beside the button, until a box of the page is edited.
struct SaveRow {
    const char* name;
    const char16_t* caption;
    Question question;
    std::function<bool()> save;
};

// A button that leads to another dialog; it is disabled without one.
struct LinkRow {
    const char* name;
    const char16_t* caption;
    std::function<void()> open;
};

// A button that swaps two frames lying in one place; its caption tells what the next click does.
struct SwapRow {
    const char* name;
    const char16_t* captionWhileHidden;
    const char16_t* captionWhileShown;
};

// A page of the setup dialog.
class SetupPage : public QWidget {
    Q_OBJECT
Q_SIGNALS:
    void edited(); // what stands in a box of the page has changed
};

// Puts a page together: a head with the explanation and the unit, frames of boxes which scroll if the window is small,
// and the buttons below. The prompts must outlive the page; folder and fonts are copied.
class PageBuilder {
public:
    explicit PageBuilder(const SetupContext& context);

    void explain(const char16_t* text);

    // A frame of boxes; add() puts further rows below, which may belong to another record.
    template<class Rec>
    BoxFrame* frame(const FrameLook& look, std::span<const BoxRow<Rec>> rows, RecordBoxes<Rec>& boxes) {
        auto* frame = new BoxFrame(look);
        add(*frame, rows, boxes);
        return frame;
    }
    template<class Rec>
    void add(BoxFrame& frame, std::span<const BoxRow<Rec>> rows, RecordBoxes<Rec>& boxes) {
        const std::vector<QWidget*> widgets = frame.addBoxes({rows.begin(), rows.end()}, fonts_);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            boxes.bind(rows[i], widgets[i]);
            rows[i].kind->onEdit(*widgets[i], [page = page_] { Q_EMIT page->edited(); });
        }
    }
    void place(QWidget* frame, Cell cell);

    // `shown` is in view first, `hidden` after a click on the button, which stands at the left below the page. Both
    // have the same size; the answer holds them and is placed instead of them.
    QWidget* swapped(const SwapRow& row, QWidget* shown, QWidget* hidden);

    // Below the page, in order: links at the left, what changes the record at the right.
    void addLink(const LinkRow& row);
    void addSave(const SaveRow& row);
    // At the foot of a frame, for boxes that the buttons of the page leave alone.
    void addSave(BoxFrame& frame, const SaveRow& row);

    // The page, after all of its parts are in.
    SetupPage* finish();

private:
    QLabel* makeNote();
    QPushButton* makeSave(const SaveRow& row, QLabel* note);

    QStringList fonts_;
    Prompts& prompts_;
    SetupPage* page_;
    QWidget* content_;
    QHBoxLayout* head_;
    QGridLayout* frames_;
    ButtonBar* buttons_;
    QLabel* note_;
};
