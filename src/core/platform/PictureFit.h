#pragma once
// Fitting a picture into a box without distorting it: the box shrinks in
// height or width (or takes the picture's own size when the picture is the
// smaller), optionally centred in the room it had. The screens' image boxes
// and the printed pages fit their pictures alike.

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
