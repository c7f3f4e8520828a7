#pragma once
// A spread's background picture is a file the designer names. It must be
// there, be a BMP, JPG or GIF by its name, and open as a picture; the checks
// come in that order, so the first that fails is the one the designer hears.
#include <QImage>
#include <QString>

// Why the file cannot be the background: the message to show, or an empty
// text when it can. The type is judged by the last four characters of the
// name, blanks trimmed and case ignored. When the file opens, `picture` (if
// given) receives it, so the caller need not read it a second time.
QString SpreadBackgroundProblem(const QString& fileName, QImage* picture = nullptr);
