#pragma once

#include "settings/setup/setting_boxes.h"

#include <QGroupBox>

#include <vector>

class QGridLayout;

// A frame of boxes, which run down the first of its columns, then down the next. `name` is null if it has none.
struct FrameLook {
    const char* name;
    const char16_t* title;
    int columns = 1;
};

// The frame on the screen. Whatever is added stands below what is there.
class BoxFrame : public QGroupBox {
    Q_OBJECT
public:
    explicit BoxFrame(const FrameLook& look);

    // The boxes with their labels; answers them in the order of the rows.
    std::vector<QWidget*> addBoxes(const std::vector<BoxLook>& looks, const DeviceFonts& fonts);
    void addNote(const char16_t* text);
    // Over the whole width.
    void addRow(QLayout* row);

private:
    void addBox(const BoxLook& look, QWidget* box, int row, int column);
    int freshRows(int rows);

    QGridLayout* grid_;
    int columns_;
};
