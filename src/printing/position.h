#pragma once

#include "records/stored_types.h"

#include <array>
#include <cmath>
#include <cstddef>

// How a routine runs: the way of the form through the printer, and whether its data come from the tab or from clients.
enum class Run { upright, uprightBatch, sideways, sidewaysBatch };

constexpr bool isUpright(Run run) { return run == Run::upright || run == Run::uprightBatch; }

// Whole mm that a routine adds to a stored position.
class Offset {
public:
    constexpr Offset() = default;
    constexpr Offset(int upright, int sideways) : mm_{upright, upright, sideways, sideways} {}

    // Where the batches have numbers of their own.
    constexpr Offset inBatch(int upright, int sideways) const {
        Offset offset = *this;
        offset.mm_[static_cast<std::size_t>(Run::uprightBatch)] = upright;
        offset.mm_[static_cast<std::size_t>(Run::sidewaysBatch)] = sideways;
        return offset;
    }

    constexpr int in(Run run) const { return mm_[static_cast<std::size_t>(run)]; }

private:
    std::array<int, 4> mm_{};
};

// A stored length in mm, in fixed point or in single precision; none adds nothing.
template<class Rec>
class Length {
public:
    constexpr Length() = default;
    constexpr Length(Cur Rec::*field) : fixed_(field) {}  // NOLINT: a table names the field
    constexpr Length(F32 Rec::*field) : single_(field) {} // NOLINT

    constexpr bool isSet() const { return fixed_ != nullptr || single_ != nullptr; }
    // Its two parts, of which one is 0: whole ten-thousandths, and mm. What no sheet could hold is a damaged record.
    double tenThousandths(const Rec& rec) const {
        return fixed_ == nullptr ? 0 : static_cast<double>((rec.*fixed_).tenThousandths());
    }
    double mm(const Rec& rec) const {
        constexpr float absurd = 1e9F;
        const float mm = single_ == nullptr ? 0 : float(rec.*single_);
        return std::abs(mm) < absurd ? static_cast<double>(mm) : 0;
    }

private:
    Cur Rec::*fixed_ = nullptr;
    F32 Rec::*single_ = nullptr;
};

// Where a row of a form stands on one axis: a stored field, if need be with some stored line steps. `Rec` may derive
// from several records; their fields serve alike.
template<class Rec>
class Position {
public:
    constexpr Position() = default;
    constexpr Position(Cur Rec::*field) : base_(field) {} // NOLINT: a table names the field
    constexpr Position(F32 Rec::*field) : base_(field) {} // NOLINT

    constexpr Position plus(int times, Length<Rec> step) const {
        Position position = *this;
        position.times_ = times;
        position.step_ = step;
        return position;
    }

    constexpr bool isSet() const { return base_.isSet(); }
    // The sum is exact as far as the types are, and becomes a float once, here.
    float in(const Rec& rec, int wholeMm) const {
        const double fixed = wholeMm * 10000.0 + base_.tenThousandths(rec) + times_ * step_.tenThousandths(rec);
        return static_cast<float>(fixed / 10000.0 + base_.mm(rec) + times_ * step_.mm(rec));
    }

private:
    Length<Rec> base_, step_;
    int times_ = 0;
};
