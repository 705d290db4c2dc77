#pragma once

#include "printing/pen.h"
#include "printing/position.h"

#include <initializer_list>

// A form is a table: rows of constant data, each one step of the pen, with the text as a member of the form's page
// struct and the position as members of its settings record. printItems walks any such table for any run. A form that
// needs more than these rows is better written as a function.

// What the rows depend on beside page and record.
struct PrintOptions {
    Run run = Run::upright;
    std::array<bool, 8> flags{}; // which groups of items print; a form names them by an enum
    int extraX = 0;              // mm added to every x
};

// The size of a font: a field of the record, or points that no setting changes.
template<class Rec>
class FontSize {
public:
    constexpr FontSize() = default;
    constexpr FontSize(I16 Rec::*field) : field_(field) {} // NOLINT: a table names the field
    constexpr FontSize(int points) : points_(points) {}    // NOLINT
    int in(const Rec& rec) const { return field_ == nullptr ? points_ : int(rec.*field_); }

private:
    I16 Rec::*field_ = nullptr;
    int points_ = 0;
};

template<class Page, class Rec>
class Item {
public:
    using TextOf = QString Page::*;
    using At = Position<Rec>;
    using FontName = Text<25> Rec::*;

    static constexpr Item font(FontName name, FontSize<Rec> size) {
        Item item(Step::font);
        item.fontName_ = name;
        item.fontSize_ = size;
        return item;
    }
    // Another size of the font in force.
    static constexpr Item size(FontSize<Rec> size) { return Item(Step::size).with(&Item::fontSize_, size); }
    static constexpr Item hold(TextOf text, At x, Offset dx) { return {Step::hold, text, x, dx}; }
    static constexpr Item hold(TextOf text, At x, Offset dx, At y, Offset dy) {
        return hold(text, x, dx).onLine(y, dy);
    }
    static constexpr Item text(TextOf text, At x, Offset dx, At y, Offset dy) {
        return next(text, x, dx).onLine(y, dy);
    }
    static constexpr Item next(TextOf text, At x, Offset dx) { return {Step::line, text, x, dx}; }
    // An X in a box of the form.
    static constexpr Item tick(bool Page::*ticked, At x, Offset dx, At y, Offset dy) {
        return text(nullptr, x, dx, y, dy).when(ticked);
    }
    static constexpr Item moveTo(At y, Offset dy) { return Item(Step::move).onLine(y, dy); }
    static constexpr Item skip() { return Item(Step::skip); }

    // A font without a weight keeps the one in force.
    constexpr Item weight(Weight weight) const { return with(&Item::weight_, weight); }

    // A row prints where all its conditions hold: a flag of the options is so, a member of the page is true, the run is
    // one of these.
    constexpr Item flag(int number, bool on = true) const {
        return with(&Item::flag_, number).with(&Item::flagOn_, on);
    }
    constexpr Item when(bool Page::*condition) const { return with(&Item::condition_, condition); }
    constexpr Item only(std::initializer_list<Run> runs) const {
        Item item = *this;
        item.runs_ = {};
        for (const Run run : runs)
            item.runs_[static_cast<std::size_t>(run)] = true;
        return item;
    }

    void print(Pen& pen, const Page& page, const Rec& rec, const PrintOptions& options) const {
        if (!isWanted(page, options)) return;
        const float x = x_.in(rec, dx_.in(options.run) + options.extraX);
        if (y_.isSet()) pen.MoveToLine(y_.in(rec, dy_.in(options.run)));
        switch (step_) {
        case Step::font:
            return pen.SetFont((rec.*fontName_).stored(), fontSize_.in(rec), weight_);
        case Step::size:
            return pen.SetFontSize(fontSize_.in(rec));
        case Step::hold:
            return pen.PlaceHold(x, {}, textOn(page));
        case Step::line:
            return pen.PlaceNext(x, textOn(page));
        case Step::skip:
            return pen.SkipLine();
        case Step::move:
            return;
        }
    }

private:
    enum class Step { font, size, hold, line, move, skip };

    constexpr explicit Item(Step step) : step_(step) {}
    constexpr Item(Step step, TextOf text, At x, Offset dx) : step_(step), text_(text), x_(x), dx_(dx) {}

    template<class Value>
    constexpr Item with(Value Item::*member, std::type_identity_t<Value> value) const {
        Item item = *this;
        item.*member = value;
        return item;
    }
    constexpr Item onLine(At y, Offset dy) const { return with(&Item::y_, y).with(&Item::dy_, dy); }

    bool isWanted(const Page& page, const PrintOptions& options) const {
        if (condition_ != nullptr && !(page.*condition_)) return false;
        if (flag_ >= 0 && options.flags[static_cast<std::size_t>(flag_)] != flagOn_) return false;
        return runs_[static_cast<std::size_t>(options.run)];
    }
    QString textOn(const Page& page) const { return text_ == nullptr ? QString(u'X') : page.*text_; }

    Step step_;
    TextOf text_ = nullptr; // none: an X
    At x_, y_;              // a row without y stands where the pen is
    Offset dx_, dy_;
    FontName fontName_ = nullptr;
    FontSize<Rec> fontSize_;
    std::optional<Weight> weight_ = {};
    int flag_ = -1; // none
    bool flagOn_ = true;
    bool Page::*condition_ = nullptr;
    std::array<bool, 4> runs_{true, true, true, true};
};

template<class Page, class Rec, std::size_t n>
void printItems(Pen& pen, const Item<Page, Rec> (&items)[n], const Page& page, const Rec& rec,
                const PrintOptions& options) {
    for (const auto& item : items)
        item.print(pen, page, rec, options);
}
