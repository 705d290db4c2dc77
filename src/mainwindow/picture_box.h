#pragma once

#include "records/program_folder.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

// The picture lying on the drawn envelope: it shows itself stretched over its box, and tells what mouse and arrow keys
// do to it. It moves nothing by itself.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    // The pointer over it is read from the folder.
    explicit PictureBox(const ProgramFolder& folder);

    // Null for the empty box.
    void setPicture(const QImage& picture);

Q_SIGNALS:
    // Positions are on this widget, in device-independent pixels.
    void pressed(QPointF at);
    void moved(QPointF at);
    void released();
    // An arrow key: one step to the side and one down, of -1, 0 or 1.
    void nudged(QPoint steps);

protected:
    void enterEvent(QEnterEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const QPixmap& scaledPicture();

    const ProgramFolder& folder_;
    qint64 shown_ = 0; // key of the picture
    QImage picture_;   // null for the empty box; no larger than a screen needs
    QPixmap scaled_;   // as it is on view
};
