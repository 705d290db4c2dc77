#pragma once

#include "settings/setup/box_rows.h"

#include <QComboBox>
#include <QValidator>

#include <vector>

// A box that takes any text and offers the fonts of the print device. The list never touches the text: no completion,
// nothing added by ENTER, and the wheel scrolls the page unless the box was clicked first.
class FontBox : public QComboBox {
    Q_OBJECT
public:
    explicit FontBox(const QStringList& fonts, QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// Takes any text, since the leading number counts, but turns a comma into the point that numbers are read by.
class PointValidator : public QValidator {
    Q_OBJECT
public:
    using QValidator::QValidator;
    State validate(QString& input, int& cursor) const override;
};

// The widget of a row, with the row's name. A tick carries its label as caption.
QWidget* makeBox(const BoxLook& look, const QStringList& fonts, QWidget* parent);

// What stands in a box made by makeBox.
QString boxText(const QWidget& box);
void setBoxText(QWidget& box, const QString& text);
