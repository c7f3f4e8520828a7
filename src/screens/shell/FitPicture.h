#pragma once
// Fitting a card picture into an image box without distorting it. The box
// keeps its proportions to the picture: it shrinks in height or width (or
// takes the picture's own size when the picture is the smaller), optionally
// centred in the room it had. Callers restore the box to its design size
// before each fit.
#include <QString>

class ImageBox;

// The box's place and size, twips.
struct BoxGeometry {
    int Top = 0;
    int Left = 0;
    int Width = 0;
    int Height = 0;
};

// The shape the box takes for a picture of pictureHeight x pictureWidth.
// Picture and box sizes are compared as they stand, number against number.
// Returns which of the four cases held (1 to 4), or 0 if none did, which
// cannot arise with whole numbers.
int FitBoxToPicture(int pictureHeight, int pictureWidth, BoxGeometry& box, bool CentrePicture, bool KeepTop);

// Loads the picture at path into the box and fits the box to it. A missing
// file shows the default card picture; a file that is not a picture shows a
// message and then the default picture.
void FitPicture(ImageBox& box, const QString& path, bool CentrePicture, bool KeepTop);
