#pragma once

#include "prompts/prompts.h"
#include "settings/setup/box_frame.h"
#include "settings/setup/record_boxes.h"

#include <map>

class ButtonBar;
class QGridLayout;
class QHBoxLayout;
class QPushButton;
class SaveNote;

// What a page needs from outside.
struct SetupContext {
    const ProgramFolder& folder;
    Prompts& prompts;
    const DeviceFonts& fonts;
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
// time of the save is shown beside the button, until a box of the page is edited. Where `refuses` answers true, it has
// said why, and nothing is asked or written.
struct SaveRow {
    const char* name;
    const char16_t* caption;
    Question question;
    std::function<bool()> save;
    std::function<bool()> refuses = {};
};

// What stands at the foot of a frame that is stored for itself.
struct SaveFoot {
    SaveNote* note;
    std::vector<QPushButton*> buttons; // in the order of their rows
};

// A button that opens another dialog, modal over `parent`.
struct LinkRow {
    const char* name;
    const char16_t* caption;
    std::function<void(QWidget* parent)> open;
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
public:
    // Whether a box differs from what is stored.
    bool isEdited() const;
Q_SIGNALS:
    void changed(); // what stands in a box of the page, or what is stored of it
};

// Puts a page together: a head with the explanation and the unit, frames of boxes which scroll if the window is small,
// and the buttons below. The prompts must outlive the page; folder and fonts are copied.
class PageBuilder {
public:
    explicit PageBuilder(const SetupContext& context);

    // What positions are, said with the name of the form.
    void explain(const char16_t* form);

    // A frame of boxes; add() puts further rows below, which may belong to another record.
    template<class Rec>
    BoxFrame* frame(const FrameLook& look, std::span<const BoxRow<Rec>> rows, RecordBoxes<Rec>& boxes) {
        auto* frame = new BoxFrame(look);
        add(*frame, rows, boxes);
        return frame;
    }
    // Answers the boxes in the order of the rows.
    template<class Rec>
    std::vector<QWidget*> add(BoxFrame& frame, std::span<const BoxRow<Rec>> rows, RecordBoxes<Rec>& boxes) {
        std::vector<QWidget*> widgets = addBoxes(frame, {rows.begin(), rows.end()});
        for (std::size_t i = 0; i < rows.size(); ++i)
            boxes.bind(rows[i], widgets[i]);
        watch(frame, [boxes] { return boxes.isEdited(); });
        return widgets;
    }
    // The halves of add(), for boxes that serve more than one record or part of it.
    std::vector<QWidget*> addBoxes(BoxFrame& frame, const std::vector<BoxLook>& looks);
    void watch(const BoxFrame& frame, std::function<bool()> isEdited);

    void place(QWidget* frame, Cell cell);

    // `shown` is in view first, `hidden` after a click on the button, which stands at the left below the page. Both
    // have the same size; the answer holds them and is placed instead of them.
    QWidget* swapped(const SwapRow& row, QWidget* shown, QWidget* hidden);

    // Below the page, in order: links at the left, what changes the record at the right.
    void addLink(const LinkRow& row);
    void addSave(const SaveRow& row);
    // At the foot of a frame, for boxes that the buttons of the page leave alone; called at most once for a frame. The
    // page sees to it that one of several buttons is in view.
    SaveFoot addSaves(BoxFrame& frame, const std::vector<SaveRow>& rows);

    // For what the page connects to. It is complete after finish(), which comes when all of its parts are in.
    SetupPage* page() const { return page_; }
    SetupPage* finish();

private:
    SaveNote* makeNote();
    QPushButton* makeSave(const SaveRow& row, SaveNote* note);

    DeviceFonts fonts_;
    Prompts& prompts_;
    SetupPage* page_;
    QWidget* content_;
    QHBoxLayout* head_;
    QGridLayout* frames_;
    ButtonBar* buttons_;
    SaveNote* note_;
    std::map<const BoxFrame*, SaveNote*> frameNotes_; // of the frames with a save of their own
    struct Watched {
        const BoxFrame* frame;
        std::function<bool()> isEdited;
    };
    std::vector<Watched> watched_;
};
