#pragma once

#include "settings/envelope_label_settings.h"
#include "settings/setup/page_builder.h"

#include <array>

class QFrame;
class QLabel;
class QLineEdit;

// The options, the sample with its four boxes, and their buttons. The boxes belong to the chosen type.
class EnvelopeTypes : public QObject {
public:
    // Adds its frames to the page and belongs to it.
    EnvelopeTypes(PageBuilder& page, const SetupContext& context);

private:
    static constexpr std::size_t typeCount = 3;

    BoxFrame* makeOptions();
    BoxFrame* makeSample(PageBuilder& page);
    BoxFrame* makeBlock(PageBuilder& page, std::size_t first);
    QLayout* makeCaption();
    void addSaves(PageBuilder& page, BoxFrame& frame);
    void choose(std::size_t type);
    bool refuses() const;

    SetupPage* page_;
    Prompts& prompts_;
    std::array<RecordBoxes<boritek>, typeCount> boxes_; // of each type; copies would share their boxes
    std::vector<QLineEdit*> text1_;
    std::size_t chosen_ = 0;
    QFrame* sample_;
    QLabel *name_, *caption_, *width_, *height_;
    SaveFoot foot_{};
};
