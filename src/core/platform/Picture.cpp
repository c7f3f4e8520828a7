#include "core/platform/Picture.h"

#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Twips.h"

Picture LoadPicture(const QString& path) {
    const QString p = NativePath(path);
    if (!FileExists(p)) RaiseError(errFileNotFound);
    QImageReader reader(p);
    reader.setDecideFormatFromContent(true);
    // A picture larger than any screen is refused rather than allowed to take
    // all memory.
    reader.setAllocationLimit(256);
    Picture picture;
    picture.Image = reader.read();
    if (picture.Image.isNull()) RaiseError(errInvalidPicture);
    picture.Height = PixelsToTwips(picture.Image.height());
    picture.Width = PixelsToTwips(picture.Image.width());
    return picture;
}

void SavePictureAsBmp(const QImage& image, const QString& path) {
    // Written beside and renamed over: the shared default picture is never
    // seen half-written.
    QSaveFile file(NativePath(path));
    if (!file.open(QIODevice::WriteOnly)) RaiseError(errPathFileAccess);
    QImageWriter writer(&file, "bmp");
    if (!writer.write(image) || !file.commit()) RaiseError(errPathFileAccess);
}
