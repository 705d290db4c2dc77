#pragma once

#include <QScrollArea>

// The room of a tab's form. It wants the form's natural size and takes any smaller one; a form that can't follow any
// farther scrolls in it, so that list and print panel stay in view.
class TabScroll : public QScrollArea {
public:
    explicit TabScroll(QWidget* form) {
        setFrameShape(NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(form);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return {200, 120}; }
};
