#include "screens/widgets/FitPicture.h"

#include <QCoreApplication>
#include <QtMath>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/widgets/ImageBox.h"

namespace {

// A broken picture file never stops a screen: the default card picture
// stands in for it.
Picture LoadPictureOrDefault(const QString& path) {
    const QString source = FileExists(path) ? path : TheRun.Paths.DefaultPicturePath;
    try {
        return LoadPicture(source);
    } catch (const RuntimeError&) {
        MsgBox(QCoreApplication::translate("FitPicture",
                                           "Error while loading the picture. A default picture is selected instead.\n"
                                           "Please save all your work, exit Cartomar, and then run it again"),
               vbCritical);
    }
    return LoadPicture(TheRun.Paths.DefaultPicturePath);
}

}  // namespace

void FitPicture(ImageBox& box, const QString& path, bool CentrePicture, bool KeepTop) {
    const Picture picture = LoadPictureOrDefault(path);
    box.ClearPicture();
    BoxGeometry geometry{box.Top(), box.Left(), box.Width(), box.Height()};
    box.setStretch(true);
    if (FitBoxToPicture(picture.Height, picture.Width, geometry, CentrePicture, KeepTop) == 0) {
        MsgBox(QCoreApplication::translate("FitPicture", "Error. Please contact Ondine Software Inc."));
        EndProcess(1);
        return;
    }
    box.Move(geometry.Left, geometry.Top, geometry.Width, geometry.Height);
    box.setPicture(picture.Image);
}
