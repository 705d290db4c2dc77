#pragma once

#include "printing/form_tabs.h"
#include "settings/other_settings.h"

// The picture of the envelope tab. Its box is kept in twips of the screen, as the settings store it; the labels and the
// printed size follow from the box.

// Puts the stored box back and loads its picture. Without one (no path, a file that is gone or isn't a picture) the box
// comes back alone.
void restorePicture(EnvelopeTab& tab, const Kepment& stored);
// The box or the type of the envelope has changed: works the position labels out again.
void showPicturePosition(EnvelopeTab& tab);
// Where the picture lies on the envelope, mm: as it prints or, while none is loaded, as its empty box is shown.
QRectF pictureOnEnvelope(const EnvelopeTab& tab);
