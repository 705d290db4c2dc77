#pragma once

#include "picture/picture_file.h"
#include "settings/other_settings.h"

#include <QRectF>

enum class EnvelopeType { C6 = 1, C5 = 2, C56 = 3 };

// The picture of the envelope tab, under the names of its controls. The box on the screen, in twips, is the truth of
// its placement, as the settings store it; the rules below work out from it what is shown and printed.
struct EnvelopePicture {
    EnvelopeType type = EnvelopeType::C6;    // OpB1, OpB2, OpB3
    QString kepFajl;                         // path of the file; empty for none
    PictureStamp readFrom;                   // what `picture` was read from
    QImage picture;                          // nothing prints while it is null
    QSize pixels;                            // of the file
    QRectF Image3;                           // twips
    int HScroll1 = 1900, HScroll1Max = 8000; // side of the square that the picture is fitted into, twips
    bool kepMozog = false;                   // the mouse holds it
    QPointF kepFogas;                        // where, twips inside it
    QString lbXpoz, lbYpoz;                  // its position on the envelope, whole mm
    QString lbSzeles, lbMagas;               // its printed size, cm
    QString lbFigyelem;                      // empty while there is nothing to warn of
    Cur kepSzeles{0}, kepMagas{0};           // its printed size, cm
};
constexpr int leastScroll = 1900; // HScroll1

// Puts the stored box back, without its picture.
void restorePicture(EnvelopePicture& picture, const Kepment& stored);
// What is stored of it. False if its path would not come back: then the record stays as it is.
bool storePicture(const EnvelopePicture& picture, Kepment& stored);

// HScroll1 or the file has changed, or may have: reads the file, if it isn't the one read last, and fits it into the
// square. One that is smaller keeps its own size. A file that can't be read leaves the labels and takes the picture
// away.
void fitPicture(EnvelopePicture& picture);
// The box or the type of the envelope has changed: works the position labels out again.
void showPicturePosition(EnvelopePicture& picture);
// The same after the browser, which divides by the vertical measure in both directions.
void showFoundPosition(EnvelopePicture& picture);

// The mouse over the picture; `at` is where, in twips inside it. Each move tests the lower edge by the labels as they
// stand, so the warning trails by one move, until the release.
void pressPicture(EnvelopePicture& picture, QPointF at);
void movePicture(EnvelopePicture& picture, QPointF at);
void releasePicture(EnvelopePicture& picture);

// From mm of the envelope to twips of the screen.
QPointF twipsOf(const EnvelopePicture& picture, QPointF mm);
// Where the picture lies on the envelope, mm: as it prints or, while there is none, as its empty box is shown.
QRectF pictureOnEnvelope(const EnvelopePicture& picture);
