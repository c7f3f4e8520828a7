#include "core/platform/PictureFit.h"

#include <QtMath>

int FitBoxToPicture(int pictureHeight, int pictureWidth, BoxGeometry& box, bool CentrePicture, bool KeepTop) {
    const int PH = pictureHeight;
    const int PW = pictureWidth;
    const double aspect = static_cast<double>(PH) / PW;
    const int BH = box.Height;
    const int BW = box.Width;

    int fitCase;
    if (PH > BH && PW > BW) {
        fitCase = 1;
        if (static_cast<double>(BH) / BW >= aspect) box.Height = qRound(BW * aspect);
        else box.Width = qRound(BH / aspect);
    } else if (PH <= BH && PW >= BW) {
        fitCase = 2;
        box.Height = qRound(BW * aspect);
    } else if (PH >= BH && PW <= BW) {
        fitCase = 3;
        box.Width = qRound(BH / aspect);
    } else if (PH <= BH && PW <= BW) {
        fitCase = 4;
        box.Height = PH;
        box.Width = PW;
    } else {
        return 0;
    }

    if (CentrePicture) {
        if (!KeepTop) box.Top += qRound((BH - box.Height) / 2.0);
        box.Left += qRound((BW - box.Width) / 2.0);
    }
    return fitCase;
}
