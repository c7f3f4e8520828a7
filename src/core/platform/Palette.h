#pragma once
// The 16-colour palette numbered as the classic console palette:
// 0 black, 4 dark red, 7 light grey, 14 yellow, 15 white, ...
#include <QColor>
QColor QBColor(int index);
