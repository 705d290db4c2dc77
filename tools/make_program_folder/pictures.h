#pragma once

#include <QImage>
#include <QList>

// A drawing whose view box is in millimetres, at so many pixels a millimetre, on white. A null image if the file is no
// drawing.
QImage renderStationery(const QString& svgPath, int pixelsPerMm);

// A drawing scaled to a size in pixels, on `background`. A null image if the file is no drawing.
QImage renderDrawing(const QString& svgPath, const QSize& size, Qt::GlobalColor background);

// A JPEG file; empty if it could not be made.
QByteArray jpegFile(const QImage& image);

// A PNG file; empty if it could not be made.
QByteArray pngFile(const QImage& image);

// An icon file of the same drawing in several sizes up to 256 pixels.
QByteArray iconFile(const QList<QImage>& images);

// A cursor file of one picture: 32 bits a pixel as a bitmap, since not every system reads compressed ones.
QByteArray cursorFile(const QImage& image, const QPoint& hotspot);
