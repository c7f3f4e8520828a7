#pragma once
// The printer as the program's pages see it: a sheet measured in twips with a
// print position, a font that can be made bold, larger or coloured, text that
// is printed line by line, pictures drawn scaled, pages and whole jobs.
// QtPrinter stands for real printers and PDF files; RecordingPrinter keeps
// every call for tests. The print routines reach the printer in use through
// CurrentPrinter(); the printer dialogue chooses it.
#include <QString>
#include <memory>

class CommonDialog;
class QImage;
class QWidget;

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
    int FontSize = 10;      // points
    int ForeColor = 0;      // &HBBGGRR, as the palette's long colours: 128 is a dark red

    // Prints the text at the print position, then moves one line down with
    // CurrentX back to 0.
    void Print(const QString& text = QString());
    // Width and height of a text in the present font, twips.
    virtual int TextWidth(const QString& text) const = 0;
    virtual int TextHeight() const = 0;
    // Draws a picture scaled into the rectangle, twips.
    virtual void PaintPicture(const QImage& picture, int x, int y, int width, int height) = 0;
    // Ends the present page; the next output goes on a new one.
    virtual void NewPage() = 0;
    // Ends the job: its pages go out.
    virtual void EndDoc() = 0;
    // Abandons the job in hand: pages not yet ended with EndDoc are dropped.
    virtual void KillDoc() = 0;
    // Sends a screen, drawn whole as it stands, as a one-page job of its own.
    virtual void PrintForm(QWidget& form) = 0;
    // Ends the use of the printer by one print: what was sent goes out, a
    // PDF file is complete. Nothing happens without output.
    virtual void Close() {}

    // 1 when the printer could not be opened for output, as the toolkit
    // reports an uninitialised printer; 0 otherwise.
    int LastError = 0;

protected:
    virtual void DrawText(const QString& text) = 0;
};

// The printer that print routines use. Until one is chosen, it is the
// system's default printer.
Printer& CurrentPrinter();
void SetCurrentPrinter(std::shared_ptr<Printer> printer);

// The printer dialogue. CancelError, Flags, FromPage, ToPage and Copies of
// the dialogue control are honoured as the toolkit's dialogue does: a
// cancelled dialogue raises error 32755 when CancelError is set, else it
// returns false. On acceptance the chosen printer becomes CurrentPrinter().
bool ShowPrinter(CommonDialog& dialog);

// The printer dialogue's flags used here.
constexpr int cdlPDNoPageNums = 8;
constexpr int cdlPDNoSelection = 4;
constexpr int cdlPDCollate = 16;

// Scripted answers to the printer dialogue for tests: once enabled the
// dialogue never opens; each showing takes the next answer, and an empty
// queue cancels.
namespace PrinterDialogScript {
void Enable();
void Disable();
bool Enabled();
void Cancel();
// The user picks "Print to File (PDF)" on letter paper and names the file.
void PrintToPdf(const QString& path);
// The user picks the given printer (a RecordingPrinter in most tests).
void PrintTo(std::shared_ptr<Printer> printer);
void Clear();
int Pending();
// The Flags of each dialogue shown since Clear.
const QList<int>& Shown();
}  // namespace PrinterDialogScript
