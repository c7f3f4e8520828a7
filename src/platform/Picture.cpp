#include "platform/Picture.h"

#include <QImageReader>
#include <QImageWriter>

#include "platform/Errors.h"
#include "platform/FileSys.h"
#include "platform/Twips.h"

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
    QImageWriter writer(NativePath(path), "bmp");
    if (!writer.write(image)) RaiseError(errPathFileAccess);
}
