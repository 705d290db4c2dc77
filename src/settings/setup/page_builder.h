#pragma once

#include "prompts/prompts.h"
#include "settings/setup/record_boxes.h"

#include <QGroupBox>

#include <functional>

class QGridLayout;
class QHBoxLayout;
class QPushButton;

// What a page needs from outside.
struct SetupContext {
    const ProgramFolder& folder;
    Prompts& prompts;
    const QStringList& fonts; // of the current print device, in its order
};

// A frame of boxes, which run down the first of its columns, then down the next. `name` is null if it has none.
struct FrameLook {
    const char* name;
    const char16_t* title;
    int columns = 1;
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

// A button of a page. `effect` returns false if something could not be written, which the user is then told; a button
// without an effect is disabled.
struct ButtonRow {
    const char* name;
    const char16_t* caption;
    Question question;
    std::function<bool()> effect;
};

enum class ButtonSide { left, right };

// A button that swaps two frames lying in one place; its caption tells what the next click does.
struct SwapRow {
    const char* name;
    const char16_t* captionWhileHidden;
    const char16_t* captionWhileShown;
};

// Puts a page together: a head with the explanation and the unit, frames of boxes which scroll if the window is small,
// and a row of buttons below. The prompts must outlive the page; folder and fonts are copied.
class PageBuilder {
public:
    explicit PageBuilder(const SetupContext& context);

    void explain(const char16_t* text);

    template<class Rec>
    QGroupBox* frame(const FrameLook& look, std::span<const BoxRow<Rec>> rows, RecordBoxes<Rec>& boxes) {
        const std::vector<BoxLook> looks(rows.begin(), rows.end());
        std::vector<QWidget*> widgets;
        QGroupBox* frame = layOut(look, looks, widgets);
        for (std::size_t i = 0; i < rows.size(); ++i)
            boxes.bind(rows[i], widgets[i]);
        return frame;
    }
    void place(QWidget* frame, Cell cell);

    // `shown` is in view first, `hidden` after a click on the button, which stands at the left below the page. Both
    // have the same size; the answer holds them and is placed instead of them.
    QWidget* swapped(const SwapRow& row, QWidget* shown, QWidget* hidden);

    // Below the page, in order: what leads elsewhere at the left, what changes the record at the right.
    void addButton(ButtonSide side, const ButtonRow& row);
    // At the foot of a frame, for boxes that the buttons of the page leave alone.
    void addButton(QGroupBox* frame, const ButtonRow& row);

    // The page, after all of its parts are in.
    QWidget* finish();

private:
    QGroupBox* layOut(const FrameLook& look, const std::vector<BoxLook>& looks, std::vector<QWidget*>& widgets);
    QPushButton* makeButton(const ButtonRow& row);

    QStringList fonts_;
    Prompts& prompts_;
    QWidget* page_;
    QWidget* content_;
    QHBoxLayout* head_;
    QGridLayout* frames_;
    QHBoxLayout* leftButtons_;
    QHBoxLayout* rightButtons_;
};
