#pragma once

#include "controls/warning_mark.h"

// What a box for one number makes of a text that is no number.
enum class NumberRule {
    leading, // the leading number counts, and where there is none, 0 is stored
    whole,   // it must be a whole number of 16 bits, or it is refused
};

// A box for one number, which takes any text. While it holds one that is no number, a mark says what becomes of it.
// Where the leading number counts, a comma turns into the point that numbers are read by.
class NumberBox : public QLineEdit {
    Q_OBJECT
public:
    NumberBox(NumberRule rule, QWidget* parent);

private:
    void mark();

    NumberRule rule_;
    WarningMark* mark_;
};
