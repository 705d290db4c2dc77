#pragma once

#include <QProxyStyle>

class QLineEdit;

// How controls look on the picture of a form. Paper is light whatever the desktop's colours, and its rows leave no room
// for a style's frames; a text box is a light ground on the drawn line, with a rule below while it has the focus, and a
// combo is such a box with an arrow. Ticks are no higher than the row that they stand in.
class PaperStyle : public QProxyStyle {
    Q_OBJECT
public:
    PaperStyle();

    // Gives a control, and what it is made of, this look and the colours of paper. The style must outlive the control
    // or die with its page.
    void dress(QWidget* control);
    // Colours a text box whose content needs a second look, or takes the colour away.
    static void setDoubtful(QLineEdit* box, bool doubtful);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};
