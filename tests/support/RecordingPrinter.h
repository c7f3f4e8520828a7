#pragma once
// A printer that prints nothing and keeps every call, with the print
// position and font at the moment of the call. Text is measured at a fixed
// width a character (line ends count nothing) and every line is equally
// high, so that a layout can be checked to the twip.
#include <QImage>
#include <QList>
#include <QString>

#include "core/platform/Printer.h"

struct PrinterCall {
    QString Op;        // "Print", "PrintInBox", "FillRect", "PaintPicture", "NewPage", "EndDoc", "KillDoc", "Close"
    QString Text;      // the text printed
    int X = 0, Y = 0;  // the print position (Print) or the box's corner
    int W = 0, H = 0;  // the box's size
    bool Bold = false;
    int Size = 0;
    int Colour = 0;  // the font's colour, or the fill's
};

class RecordingPrinter : public Printer {
public:
    // Letter paper by default.
    explicit RecordingPrinter(int width = 12240, int height = 15840, int charWidth = 100, int lineHeight = 240);

    int Width() const override { return width_; }
    int Height() const override { return height_; }
    int TextWidth(const QString& text) const override;
    int TextHeight() const override { return lineHeight_; }
    void PaintPicture(const QImage& picture, int x, int y, int width, int height) override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;
    void FillRect(int x, int y, int width, int height, int colour) override;
    void PrintInBox(const QString& text, int x, int y, int width, int height, int flags) override;
    void Close() override;

    QList<PrinterCall> Calls;

    // The texts printed, in order.
    QStringList Texts() const;
    // The calls of one operation.
    QList<PrinterCall> CallsOf(const QString& op) const;

protected:
    void DrawText(const QString& text) override;

private:
    void Record(const QString& op, const QString& text = QString(), int x = 0, int y = 0, int w = 0, int h = 0);

    int width_, height_, charWidth_, lineHeight_;
};
