#pragma once

#include "records/record_file.h"
#include "settings/setup/setting_boxes.h"

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

// The boxes of a page that belong to one record and are stored together. Copies share their boxes, so that a button may
// take its copy before the last frame is in; they serve as long as these widgets live. Writing reads the record first
// and changes only the fields of these boxes; false means that the record could not be written, and then record and
// boxes are as they were. After it the boxes show what was stored.
template<class Rec>
class RecordBoxes {
public:
    explicit RecordBoxes(ProgramFolder folder) : folder_(std::move(folder)) {}

    void bind(const BoxRow<Rec>& row, QWidget* box) { bound_->push_back({row, box}); }

    // Record to boxes.
    void fill() const {
        const auto record = readRecord<Rec>(folder_);
        std::vector<Entry> entries;
        for (Bound& bound : *bound_)
            entries.push_back({&bound, bound.row.show(record)});
        show(entries);
    }

    // Whether a box was changed since it was filled or stored.
    bool isEdited() const {
        return std::any_of(bound_->begin(), bound_->end(),
                           [](const Bound& bound) { return bound.text() != bound.stored; });
    }

    // Boxes to record.
    bool store() const { return write(typed()); }

    // Factory values to record and boxes; boxes and fields without one keep what they hold.
    bool restoreFactory() const { return write(factory()); }

    // The same, but what stands in the boxes without a factory value is stored as well.
    bool storeWithFactory() const {
        std::vector<Entry> entries = typed();
        const std::vector<Entry> restored = factory();
        entries.insert(entries.end(), restored.begin(), restored.end());
        return write(entries);
    }

private:
    struct Bound {
        BoxRow<Rec> row;
        QWidget* box;
        QString stored = {}; // what the box showed when it agreed with the record
        QString text() const { return row.kind->text(*box); }
    };
    struct Entry {
        Bound* bound;
        QString text;
    };

    std::vector<Entry> typed() const {
        std::vector<Entry> entries;
        for (Bound& bound : *bound_)
            entries.push_back({&bound, bound.text()});
        return entries;
    }

    std::vector<Entry> factory() const {
        const auto present = readRecord<Rec>(folder_);
        std::vector<Entry> entries;
        for (Bound& bound : *bound_) {
            const bool blank = bound.row.show(present).isEmpty() && trimBlanks(bound.text()).isEmpty();
            if (bound.row.restore == Restore::yes || (bound.row.restore == Restore::ifEmpty && blank))
                entries.push_back({&bound, bound.row.show(Rec::factory())});
        }
        return entries;
    }

    // A tick stands as it was set; what was typed may have been rounded or cut.
    bool write(std::vector<Entry> entries) const {
        Rec stored;
        const bool written = updateRecord<Rec>(folder_, [&](Rec& record) {
            for (const Entry& entry : entries)
                entry.bound->row.store(record, entry.text);
            stored = record;
        });
        if (!written) return false;
        for (Entry& entry : entries)
            if (entry.bound->row.kind->isTyped) entry.text = entry.bound->row.show(stored);
        show(entries);
        return true;
    }

    // Noted when all are shown: one option switches another off.
    static void show(const std::vector<Entry>& entries) {
        for (const Entry& entry : entries)
            entry.bound->row.kind->show(*entry.bound->box, entry.text);
        for (const Entry& entry : entries)
            entry.bound->stored = entry.bound->text();
    }

    ProgramFolder folder_;
    std::shared_ptr<std::vector<Bound>> bound_ = std::make_shared<std::vector<Bound>>();
};
