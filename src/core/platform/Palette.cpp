#include "core/platform/Palette.h"

QColor QBColor(int index) {
    static const QRgb kColours[16] = {
        qRgb(0, 0, 0),       qRgb(0, 0, 128),   qRgb(0, 128, 0),   qRgb(0, 128, 128),
        qRgb(128, 0, 0),     qRgb(128, 0, 128), qRgb(128, 128, 0), qRgb(192, 192, 192),
        qRgb(128, 128, 128), qRgb(0, 0, 255),   qRgb(0, 255, 0),   qRgb(0, 255, 255),
        qRgb(255, 0, 0),     qRgb(255, 0, 255), qRgb(255, 255, 0), qRgb(255, 255, 255),
    };
    return QColor(kColours[index & 15]);
}
