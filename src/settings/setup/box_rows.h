#pragma once

#include "records/number_text.h"

#include <algorithm>
#include <limits>

// A setup page is tables of rows, and a row is one box: its control name, its label, and the rule by which the text of
// the box and the field of the record become each other. The rules are the functions at the end of this file:
//
//     number<&Set::Textosszeg_y>("Textosszeg_y", u"Numerikus összeg fentről:")
//
// What a box holds is always a text; a tick or an option is "1" or "0".

struct BoxKind; // in setting_boxes.h
extern const BoxKind numberBox, wholeBox, textBox, fontBox, tickBox, optionBox;

// What the default button does with a box.
enum class Restore {
    no,      // neither box nor field is touched
    yes,     // both take the factory value
    ifEmpty, // the same, but only if both are blank: a text of the user is never lost
};

// The part of a row that the layout needs.
struct BoxLook {
    const char* name; // objectName
    const char16_t* label;
    const BoxKind* kind = &numberBox;
    Restore restore = Restore::yes;
    int maxLength = 32767; // letters that the field has room for
    const char16_t* toolTip = u"";
    const char* shownWhile = nullptr; // the tick or option of the same frame that must be on, or the box is hidden
};

template<class Rec>
struct BoxRow : BoxLook {
    QString (*show)(const Rec&) = nullptr;
    void (*store)(Rec&, QStringView) = nullptr;

    constexpr BoxRow restored(Restore how) const {
        BoxRow row = *this;
        row.restore = how;
        return row;
    }
    constexpr BoxRow withToolTip(const char16_t* tip) const {
        BoxRow row = *this;
        row.toolTip = tip;
        return row;
    }
    constexpr BoxRow onlyWhile(const char* tickOrOption) const {
        BoxRow row = *this;
        row.shownWhile = tickOrOption;
        return row;
    }
};

// Field to text and back. A text without a leading number stores 0, and what is beyond a field's range stores its end.
namespace field_text {

inline QString show(const Cur& field) { return field.text(); }
inline QString show(const F32& field) { return plainText(field); }
inline QString show(const I16& field) { return QString::number(field); }
template<std::size_t n>
QString show(const Text<n>& field) {
    return field.trimmed();
}

inline void store(Cur& field, QStringView text) { field = Cur::fromText(text); }
inline void store(F32& field, QStringView text) {
    constexpr double limit = std::numeric_limits<float>::max();
    field = static_cast<float>(std::clamp(leadingNumber(text), -limit, limit));
}
inline void store(I16& field, QStringView text) { field = leadingI16(text); }
template<std::size_t n>
void store(Text<n>& field, QStringView text) {
    field.set(text);
}

inline QString showTick(bool on) { return on ? QStringLiteral("1") : QStringLiteral("0"); }
inline bool isTicked(QStringView text) { return text == u"1"; }

} // namespace field_text

template<class Rec, class Field>
Rec recordOf(Field Rec::*);
template<auto field>
using RecordOf = decltype(recordOf(field));

template<auto field>
constexpr BoxRow<RecordOf<field>> plainRow(const BoxLook& look) {
    using Rec = RecordOf<field>;
    return {look, [](const Rec& record) { return field_text::show(record.*field); },
            [](Rec& record, QStringView text) { field_text::store(record.*field, text); }};
}

// A position in mm, or a size. The field's type decides what is kept: four decimals, single precision, or whole.
template<auto field>
constexpr auto number(const char* name, const char16_t* label) {
    return plainRow<field>({name, label});
}

// A position in mm of which the record holds 20 more than the box shows.
template<auto field>
constexpr BoxRow<RecordOf<field>> numberLess20(const char* name, const char16_t* label) {
    using Rec = RecordOf<field>;
    return {{name, label},
            [](const Rec& record) { return (record.*field).plusWhole(-20).text(); },
            [](Rec& record, QStringView text) { record.*field = Cur::fromText(text).plusWhole(20); }};
}

// A font name, picked or typed; one that isn't offered is kept as well.
template<auto field>
constexpr auto font(const char* name, const char16_t* label) {
    return plainRow<field>({name, label, &fontBox});
}

// A text of the user, which has no factory value.
template<auto field>
constexpr auto text(const char* name, const char16_t* label) {
    constexpr auto width = std::remove_reference_t<decltype(std::declval<RecordOf<field>>().*field)>::width;
    return plainRow<field>({name, label, &textBox, Restore::no, static_cast<int>(width)});
}

// A tick box; `label` is its caption. The field may be a Bool16 or an I16 that holds 1 or 0.
template<auto field>
constexpr BoxRow<RecordOf<field>> tick(const char* name, const char16_t* label) {
    using Rec = RecordOf<field>;
    return {{name, label, &tickBox, Restore::no},
            [](const Rec& record) { return field_text::showTick(record.*field != 0); },
            [](Rec& record, QStringView text) { record.*field = field_text::isTicked(text); }};
}

// One of the options of a frame, of which one at a time is on: the one that stands for a true field, and its
// counterpart, which stands for a false one.
template<auto field>
constexpr BoxRow<RecordOf<field>> option(const char* name, const char16_t* label) {
    BoxRow<RecordOf<field>> row = tick<field>(name, label);
    row.kind = &optionBox;
    return row;
}
template<auto field>
constexpr BoxRow<RecordOf<field>> counterOption(const char* name, const char16_t* label) {
    using Rec = RecordOf<field>;
    return {{name, label, &optionBox, Restore::no},
            [](const Rec& record) { return field_text::showTick(record.*field == 0); },
            [](Rec& record, QStringView text) { record.*field = !field_text::isTicked(text); }};
}
