#pragma once

#include <QLineEdit>

// A box for one number. It takes any text, since the leading number counts, but turns a comma into the point that
// numbers are read by. A text without a number is stored as 0: while it stands in the box, colour and tooltip say so.
class NumberBox : public QLineEdit {
    Q_OBJECT
public:
    explicit NumberBox(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void mark();
    void colour();

    bool marked_ = false;
    QString ownTip_; // what the tooltip says of a number
};
