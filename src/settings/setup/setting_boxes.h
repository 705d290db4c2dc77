#pragma once

#include "settings/setup/box_rows.h"

#include <QValidator>

#include <vector>

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
