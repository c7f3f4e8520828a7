#include "core/platform/Printer.h"

void Printer::Print(const QString& text) {
    DrawText(text);
    CurrentY += TextHeight();
    CurrentX = 0;
}
