#pragma once

#include <QWidget>

class QBoxLayout;

// The buttons below a page: one group at the left and one at the right, in one line, or in two where the window is too
// narrow for that.
class ButtonBar : public QWidget {
    Q_OBJECT
public:
    explicit ButtonBar(QWidget* parent);

    void addLeft(QWidget* widget);
    void addRight(QWidget* widget);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    QBoxLayout* lines_;
    QBoxLayout* left_;
    QBoxLayout* right_;
};
