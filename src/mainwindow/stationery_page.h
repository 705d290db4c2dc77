#pragma once

#include "mainwindow/paper_style.h"
#include "records/program_folder.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <vector>

// The picture of a form with controls lying on it, all placed in millimetres of the real stationery, so that one table
// of positions serves any window size and screen density. The form keeps its proportions, and shrinks to 60 % of its
// natural size. The picture is read when it is shown, and again for another size once that rests; a missing one leaves
// a white page with a thin frame that names the file.
class StationeryPage : public QWidget {
    Q_OBJECT
public:
    StationeryPage(const ProgramFolder& folder, QSizeF sizeMm, QWidget* parent = nullptr);

    // Name of the picture in the program folder, and the true size of what it shows.
    void setPicture(const QString& fileName, QSizeF sizeMm);
    void setPicture(const QString& fileName) { setPicture(fileName, sizeMm_); }
    const QString& picture() const { return fileName_; }
    QSizeF sizeMm() const { return sizeMm_; }

    // Puts a child at `mm`; its letters are `letterMm` high (a 10 point letter is 3.5 mm).
    void place(QWidget* child, QRectF mm, double letterMm = 2.75);

    // What lies at a point of this widget, mm of the stationery.
    QPointF mmAt(QPointF point) const { return (point - formRect().topLeft()) / pixelsPerMm(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Placed {
        QWidget* child;
        QRectF mm;
        double letterMm;
    };
    double pixelsPerMm() const;
    QRect formRect() const;
    void layOut(const Placed& placed) const;
    // For so many device pixels; while these change at each step of a drag, the last one for another size.
    const QPixmap& pictureOf(QSize size);

    const ProgramFolder& folder_;
    PaperStyle style_;
    QSizeF sizeMm_;
    QString fileName_;
    QPixmap picture_;    // null if the file is missing
    QSize readFor_;      // in device pixels; empty: not read yet
    QTimer sizeChanges_; // runs until the size has rested for a moment
    std::vector<Placed> placed_;
};
