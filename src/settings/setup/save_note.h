#pragma once

#include <QLabel>

#include <functional>
#include <vector>

// The line beside the buttons that store: whether what stands in their boxes is stored, and when that was done.
class SaveNote : public QLabel {
    Q_OBJECT
public:
    SaveNote();

    // Boxes of which it tells.
    void watch(std::function<bool()> isEdited) { watched_.push_back(std::move(isEdited)); }
    // Whether a box differs from what is stored.
    bool isEdited() const;

    // After an edit, and after a save that was done.
    void follow();
    void tellSaved();

private:
    std::vector<std::function<bool()>> watched_;
};
