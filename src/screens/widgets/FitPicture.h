#pragma once
// Fitting a card picture into an image box without distorting it. The box
// keeps its proportions to the picture: it shrinks in height or width (or
// takes the picture's own size when the picture is the smaller), optionally
// centred in the room it had. Callers restore the box to its design size
// before each fit.
#include <QString>

#include "core/platform/PictureFit.h"

class ImageBox;

// Loads the picture at path into the box and fits the box to it. A missing
// file shows the default card picture; a file that is not a picture shows a
// message and then the default picture.
void FitPicture(ImageBox& box, const QString& path, bool CentrePicture, bool KeepTop);
