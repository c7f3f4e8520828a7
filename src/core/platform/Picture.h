#pragma once
// Picture objects: BMP, JPG and GIF (and PNG) files loaded with their size.
// Height and Width are given in twips at the picture's natural size
// (15 twips to the pixel).
#include <QImage>
#include <QString>

struct Picture {
    QImage Image;
    int Height = 0;  // twips
    int Width = 0;   // twips
    bool IsNull() const { return Image.isNull(); }
};

// Raises RuntimeError errInvalidPicture when the file is not a picture, and
// errFileNotFound when it does not exist.
Picture LoadPicture(const QString& path);
// Writes a picture as a Windows bitmap.
void SavePictureAsBmp(const QImage& image, const QString& path);
