#pragma once
// The engine of the printed text pages: a header on every page ("Page 2"
// onward, for page 1 is the page with the spread), at most one summary, then
// one block per location with the card's picture on the left and the wrapped
// texts on the right, four slots to a letter page. It knows nothing of
// readings or diaries: callers pass texts and a picture. One PrintLayout is
// one job on one printer, and holds the job's state from StartPrint to
// EndPrint. Lengths are twips.
#include <QImage>
#include <QString>

#include "core/records/Records.h"

class Printer;

// What stopped a print short, for the screen to tell the user.
enum class PrintFault {
    None,
    PrinterNotReady,  // the printer could not be opened for output
    PictureUnfit,     // a picture's size matched no case of the fit: a state held impossible
};

struct PrintJob {
    bool PrintActive = false;  // a job is under way
    Integer PageNumber = 0;    // the page being printed
    Integer TotalPages = 0;    // the job's pages, as far as they can be foreseen
    Integer BlockCount = 0;    // blocks announced to StartPrint
    Integer BlocksPerPage = 0;
    Integer BlockSlot = 0;  // blocks already placed on the present page
    QString PageTitle;      // left part of every header
    QString HeaderSpread;
    QString HeaderDeck;
    Integer PictureBoxHeight = 3000;  // the box a card picture is fitted into
    Integer PictureBoxWidth = 3000;
    PrintFault Fault = PrintFault::None;  // the first fault met
};

class PrintLayout {
public:
    explicit PrintLayout(Printer& printer) : printer_(printer) {}

    // The job as it stands; the header's tests set the page number through it.
    PrintJob& Job() { return job_; }

    // Begins a job of blockCount blocks; false (and nothing printed) when there
    // are no blocks or a job is already under way.
    bool StartPrint(int blockCount, const QString& pageTitle, const QString& spreadText, const QString& deckText);
    // The heading "Summary" and the text; the blocks then begin on a new page.
    bool PrintSummary(const QString& text);
    // One block: the picture, "Location: " and the location's title and text,
    // "Card: " and the card's title and text.
    bool PrintBlock(const QImage& picture, const QString& locationTitle, const QString& locationText,
                    const QString& cardTitle, const QString& cardText);
    bool EndPrint();
    bool NewPrintPage();
    bool PrintHeader();
    QString PageText() const;
    // The top of block slot n (from 1) on the present page.
    int SlotY(int n) const;
    // Prints a text wrapped to the paper's width right of x, from y down,
    // going on to new pages when the bottom is reached.
    bool PrintWrapped(const QString& text, int x, int y);
    // The text with a carriage return after each line that fits the width.
    QString WrapText(QString text, int width) const;
    // The next line of the text from position (1-based) that fits the width.
    QString NextLine(const QString& text, int position, int width) const;
    // Draws a picture fitted into the picture box at the print position and
    // returns its right edge, or -1 (and nothing drawn) when it cannot be fitted.
    int PrintFittedPicture(const QImage& picture);

private:
    void Fail(PrintFault fault);

    Printer& printer_;
    PrintJob job_;
};
