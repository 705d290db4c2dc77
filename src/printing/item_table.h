#pragma once

#include "printing/pen.h"
#include "records/stored_types.h"

#include <array>
#include <cstddef>

// A form is a table: rows of constant data, each one step of the pen, with the text as a member of the form's page
// struct and the position as members of its settings record. printItems walks any such table for any feed. A form that
// needs more than these rows is better written as a function.

// How a routine runs: how the form goes through the printer, and whether its data come from the tab or from clients.
enum class FormRun { upright, uprightBatch, sideways, sidewaysBatch };

constexpr bool isUpright(FormRun feed) { return feed == FormRun::upright || feed == FormRun::uprightBatch; }

// Whole mm that a feed adds to a stored position.
class Offset {
public:
    constexpr Offset() = default;
    constexpr Offset(int upright, int sideways) : mm_{upright, upright, sideways, sideways} {}
    constexpr Offset(int upright, int uprightBatch, int sideways, int sidewaysBatch)
        : mm_{upright, uprightBatch, sideways, sidewaysBatch} {}
    constexpr int in(FormRun feed) const { return mm_[static_cast<std::size_t>(feed)]; }

private:
    std::array<int, 4> mm_{};
};

// What the rows depend on beside page and record.
struct Sheet {
    FormRun feed = FormRun::upright;
    std::array<bool, 8> flags{}; // which groups of items print
    int extraX = 0;              // mm added to every x
};

template<class Page, class Rec>
class Item {
public:
    using TextOf = QString Page::*;
    using Field = Cur Rec::*;
    using FontField = Text<25> Rec::*;
    using SizeField = I16 Rec::*;

    static constexpr Item font(FontField name, SizeField size) { return font(name, size, size); }
    static constexpr Item font(FontField name, SizeField size, SizeField sizeInUprightBatch) {
        Item item(Step::font);
        item.fontName_ = name;
        item.size_ = size;
        item.sizeInUprightBatch_ = sizeInUprightBatch;
        return item;
    }
    static constexpr Item hold(TextOf text, Field x, Offset dx) { return {Step::hold, text, x, dx}; }
    static constexpr Item hold(TextOf text, Field x, Offset dx, Field y, Offset dy) {
        return hold(text, x, dx).onLine(y, dy);
    }
    static constexpr Item text(TextOf text, Field x, Offset dx, Field y, Offset dy) {
        return Item(Step::text, text, x, dx).onLine(y, dy);
    }
    static constexpr Item next(TextOf text, Field x, Offset dx) { return {Step::next, text, x, dx}; }
    static constexpr Item skip() { return Item(Step::skip); }

    // Left out while flag `number` of the sheet is off...
    constexpr Item flag(int number) const {
        Item item = *this;
        item.flag_ = number;
        return item;
    }
    // ...with an empty line in its place, at the height where the pen stands,
    constexpr Item orSkipLine() const {
        Item item = *this;
        item.skipsLine_ = true;
        return item;
    }
    // in one feed at the row's own height.
    constexpr Item orSkipLine(FormRun atOwnHeight) const {
        Item item = orSkipLine();
        item.skipsAtOwnHeight_ = atOwnHeight;
        return item;
    }
    // Left out unless this member of the page is true.
    constexpr Item when(bool Page::*condition) const {
        Item item = *this;
        item.condition_ = condition;
        return item;
    }

    void print(Pen& pen, const Page& page, const Rec& rec, const Sheet& sheet) const {
        if (condition_ != nullptr && !(page.*condition_)) return;
        if (flag_ >= 0 && !sheet.flags[static_cast<std::size_t>(flag_)]) return printSkipped(pen, rec, sheet);
        switch (step_) {
        case Step::font:
            return pen.SetFont((rec.*fontName_).stored(),
                               rec.*(sheet.feed == FormRun::uprightBatch ? sizeInUprightBatch_ : size_));
        case Step::hold:
            return pen.PlaceHold(x(rec, sheet), y_ == nullptr ? std::optional<float>() : y(rec, sheet), page.*text_);
        case Step::text:
            return pen.PlaceText(x(rec, sheet), y(rec, sheet), page.*text_);
        case Step::next:
            return pen.PlaceNext(x(rec, sheet), page.*text_);
        case Step::skip:
            return pen.SkipLine();
        }
    }

private:
    enum class Step { font, hold, text, next, skip };

    constexpr explicit Item(Step step) : step_(step) {}
    constexpr Item(Step step, TextOf text, Field x, Offset dx) : step_(step), text_(text), x_(x), dx_(dx) {}

    constexpr Item onLine(Field y, Offset dy) const {
        Item item = *this;
        item.y_ = y;
        item.dy_ = dy;
        return item;
    }

    void printSkipped(Pen& pen, const Rec& rec, const Sheet& sheet) const {
        if (!skipsLine_) return;
        if (skipsAtOwnHeight_ == sheet.feed) pen.MoveToLine(y(rec, sheet));
        pen.SkipLine();
    }

    // The sum is exact; it leaves fixed point once, here.
    float x(const Rec& rec, const Sheet& sheet) const {
        return (rec.*x_).plusWhole(dx_.in(sheet.feed) + sheet.extraX).toFloat();
    }
    float y(const Rec& rec, const Sheet& sheet) const { return (rec.*y_).plusWhole(dy_.in(sheet.feed)).toFloat(); }

    Step step_;
    TextOf text_ = nullptr;
    Field x_ = nullptr, y_ = nullptr;
    Offset dx_, dy_;
    FontField fontName_ = nullptr;
    SizeField size_ = nullptr, sizeInUprightBatch_ = nullptr;
    int flag_ = -1; // none
    bool skipsLine_ = false;
    std::optional<FormRun> skipsAtOwnHeight_ = {};
    bool Page::*condition_ = nullptr;
};

template<class Page, class Rec, std::size_t n>
void printItems(Pen& pen, const Item<Page, Rec> (&items)[n], const Page& page, const Rec& rec, const Sheet& sheet) {
    for (const auto& item : items)
        item.print(pen, page, rec, sheet);
}
