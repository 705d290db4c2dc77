#pragma once

#include "records/record_file.h"
#include "settings/setup/setting_boxes.h"

#include <memory>
#include <span>
#include <vector>

// The boxes of a page that belong to one record and are stored together. Copies share their boxes, so that a button may
// take its copy before the last frame is in; they serve as long as these widgets live. Writing reads the record first
// and changes only the fields of these boxes; false means that the record could not be written, and then record and
// boxes are as they were.
template<class Rec>
class RecordBoxes {
public:
    explicit RecordBoxes(ProgramFolder folder) : folder_(std::move(folder)) {}

    void bind(const BoxRow<Rec>& row, QWidget* box) { bound_->push_back({row, box}); }

    // Record to boxes.
    void fill() const {
        const auto record = readRecord<Rec>(folder_);
        for (const Bound& bound : *bound_)
            bound.show(record);
    }

    // Boxes to record. What was typed then stands in the boxes as it was stored; a tick stands as it is.
    bool store() const {
        Rec stored;
        const bool written = updateRecord<Rec>(folder_, [&](Rec& record) {
            for (const Bound& bound : *bound_)
                bound.row.store(record, bound.text());
            stored = record;
        });
        if (!written) return false;
        for (const Bound& bound : *bound_)
            if (bound.row.kind->isTyped) bound.show(stored);
        return true;
    }

    // Factory values to the boxes only, for a page that then stores all its boxes.
    void showFactory() const {
        for (const Bound& bound : toRestore(Rec::factory()))
            bound.show(Rec::factory());
    }

    // Factory values to record and boxes; boxes and fields without one keep what they hold.
    bool restoreFactory() const {
        const Rec factory = Rec::factory();
        const auto restored = toRestore(readRecord<Rec>(folder_));
        const bool written = updateRecord<Rec>(folder_, [&](Rec& record) {
            for (const Bound& bound : restored)
                bound.row.store(record, bound.row.show(factory));
        });
        if (!written) return false;
        for (const Bound& bound : restored)
            bound.show(factory);
        return true;
    }

private:
    struct Bound {
        BoxRow<Rec> row;
        QWidget* box;
        QString text() const { return row.kind->text(*box); }
        void show(const Rec& record) const { row.kind->show(*box, row.show(record)); }
    };

    std::vector<Bound> toRestore(const Rec& present) const {
        std::vector<Bound> chosen;
        for (const Bound& bound : *bound_) {
            const bool blank = bound.row.show(present).isEmpty() && trimBlanks(bound.text()).isEmpty();
            if (bound.row.restore == Restore::yes || (bound.row.restore == Restore::ifEmpty && blank))
                chosen.push_back(bound);
        }
        return chosen;
    }

    ProgramFolder folder_;
    std::shared_ptr<std::vector<Bound>> bound_ = std::make_shared<std::vector<Bound>>();
};
