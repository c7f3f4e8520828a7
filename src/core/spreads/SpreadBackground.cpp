#include "core/spreads/SpreadBackground.h"

#include <QCoreApplication>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/records/Records.h"

namespace {
bool IsSupportedType(const QString& fileName) {
    const QString type = TrimField(fileName.right(4)).toUpper();
    return type == QLatin1String(".JPG") || type == QLatin1String(".BMP") || type == QLatin1String(".GIF");
}
}  // namespace

QString SpreadBackgroundProblem(const QString& fileName, QImage* picture) {
    if (!FileExists(fileName))
        return QCoreApplication::translate("SpreadBackground", "There is no file with the name you provided!");
    if (!IsSupportedType(fileName))
        return QCoreApplication::translate(
            "SpreadBackground", "Unsupported file type. Only files of type BMP, JPG and GIF are currently supported.");
    try {
        const QImage loaded = LoadPicture(fileName).Image;
        if (picture) *picture = loaded;
    } catch (const RuntimeError&) {
        return QCoreApplication::translate(
            "SpreadBackground", "Unable to open the file you selected. Please make sure it is of a valid type.");
    }
    return QString();
}
