#pragma once

#include <QScrollArea>

// The room of a page. It wants the whole of its content, where a scroll area of the toolkit would open at a size of its
// own, and takes any smaller one; content that can't follow any farther scrolls in it. The page looks like the tab that
// it stands in.
class PageScroll : public QScrollArea {
public:
    explicit PageScroll(QWidget* content) {
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(content);
        viewport()->setAutoFillBackground(false);
        content->setAutoFillBackground(false);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return {200, 120}; }
};
