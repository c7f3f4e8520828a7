#pragma once
// A printer that prints nothing and keeps every call, with the print
// position and font at the moment of the call. Text is measured at a fixed
// width a character (line ends count nothing) and every line is equally
// high, so that a layout can be checked to the twip.
#include <QImage>
#include <QList>
#include <QString>
#include <functional>

#include "screens/platform/Printer.h"

struct PrinterCall {
    QString Op;            // "Print", "PaintPicture", "NewPage", "EndDoc", "KillDoc", "PrintForm", "Close"
    QString Text;          // the text printed, or the form's object name
    int X = 0, Y = 0;      // the print position (Print) or the picture's corner
    int W = 0, H = 0;      // the picture's size
    bool Bold = false;
    int Size = 0;
    int Colour = 0;
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
    void PrintForm(QWidget& form) override;
    void Close() override;

    QList<PrinterCall> Calls;
    // Runs while a form is printed, so that a test can look at it whole.
    std::function<void(QWidget&)> OnPrintForm;

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
