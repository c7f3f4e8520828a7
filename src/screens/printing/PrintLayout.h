#pragma once
// The engine of the printed text pages: a header on every page ("Page 2"
// onward, for page 1 is the page with the spread), at most one summary, then
// one block per location with the card's picture on the left and the wrapped
// texts on the right, four slots to a letter page. It prints on
// CurrentPrinter() and knows nothing of readings or diaries: callers pass
// texts and a picture. A job spans several calls, so its state is run-wide.
// Lengths are twips.
#include <QImage>
#include <QString>

#include "core/records/Records.h"

extern bool PrintActive;          // a job is under way
extern Integer PageNumber;        // the page being printed
extern Integer TotalPages;        // the job's pages, as far as they can be foreseen
extern Integer BlockCount;        // blocks announced to StartPrint
extern Integer BlocksPerPage;
extern Integer BlockSlot;         // blocks already placed on the present page
extern QString PageTitle;         // left part of every header
extern QString HeaderSpread;
extern QString HeaderDeck;
extern Integer PictureBoxHeight;  // the box a card picture is fitted into
extern Integer PictureBoxWidth;

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
QString PageText();
// The top of block slot n (from 1) on the present page.
int SlotY(int n);
// Prints a text wrapped to the paper's width right of x, from y down,
// going on to new pages when the bottom is reached.
bool PrintWrapped(const QString& text, int x, int y);
// The text with a carriage return after each line that fits the width.
QString WrapText(QString text, int width);
// The next line of the text from position (1-based) that fits the width.
QString NextLine(const QString& text, int position, int width);
// Draws a picture fitted into the picture box at the print position and
// returns its right edge.
int PrintFittedPicture(const QImage& picture);
