#pragma once
// The printer as the program's pages see it: a sheet measured in twips with a
// print position, a font that can be made bold, larger or coloured, text that
// is printed line by line or set into a box, rectangles filled, pictures drawn
// scaled, pages and whole jobs. QtPrinter stands for real printers and PDF
// files; RecordingPrinter keeps every call for tests.
#include <QString>

class QImage;

class Printer {
public:
    virtual ~Printer() = default;

    // The sheet, twips.
    virtual int Width() const = 0;
    virtual int Height() const = 0;

    // The print position, twips from the sheet's top left corner.
    int CurrentX = 0;
    int CurrentY = 0;
    bool FontBold = false;
    int FontSize = 10;  // points
    int ForeColor = 0;  // &HBBGGRR, as the palette's long colours: 128 is a dark red

    // Prints the text at the print position, then moves one line down with
    // CurrentX back to 0.
    void Print(const QString& text = QString());
    // Width and height of a text in the present font, twips.
    virtual int TextWidth(const QString& text) const = 0;
    virtual int TextHeight() const = 0;
    // Draws a picture scaled into the rectangle, twips.
    virtual void PaintPicture(const QImage& picture, int x, int y, int width, int height) = 0;
    // Fills the rectangle with a long colour (&HBBGGRR), twips.
    virtual void FillRect(int x, int y, int width, int height, int colour) = 0;
    // Sets a text into the rectangle in the present font and colour, placed by
    // Qt's alignment flags and, with Qt::TextWordWrap, wrapped at blanks; what
    // does not fit is cut off at the rectangle's edge. The print position
    // does not move.
    virtual void PrintInBox(const QString& text, int x, int y, int width, int height, int flags) = 0;
    // Ends the present page; the next output goes on a new one.
    virtual void NewPage() = 0;
    // Ends the job: its pages go out.
    virtual void EndDoc() = 0;
    // Abandons the job in hand: pages not yet ended with EndDoc are dropped.
    virtual void KillDoc() = 0;
    // Ends the use of the printer by one print: what was sent goes out, a
    // PDF file is complete. Nothing happens without output.
    virtual void Close() {}

    // 1 when the printer could not be opened for output, as the toolkit
    // reports an uninitialised printer; 0 otherwise.
    int LastError = 0;

protected:
    virtual void DrawText(const QString& text) = 0;
};
