#include "screens/printing/PrintLayout.h"

#include <cmath>

#include "screens/platform/MsgBox.h"
#include "core/platform/OleDate.h"
#include "screens/platform/Printer.h"
#include "core/platform/Twips.h"
#include "screens/shell/FitPicture.h"
#include "screens/store/Startup.h"

bool PrintActive = false;
Integer PageNumber = 0;
Integer TotalPages = 0;
Integer BlockCount = 0;
Integer BlocksPerPage = 0;
Integer BlockSlot = 0;
QString PageTitle;
QString HeaderSpread;
QString HeaderDeck;
Integer PictureBoxHeight = 3000;
Integer PictureBoxWidth = 3000;

namespace {

constexpr int LeftMargin = 1000;
constexpr int RightMargin = 1000;
constexpr int HeaderY = 400;
constexpr int FirstBlockY = 1000;
constexpr int BlockPitch = 3500;
constexpr int FirstPageSaving = 1800;
constexpr int PictureGap = 100;
constexpr int BlockGap = 500;
constexpr int HeaderRoom = 400;
constexpr int BottomRoom = 800;    // below the last line of a text
constexpr int SummaryY = 1600;
constexpr int SummaryColour = 128; // a dark red

const QChar CR = QLatin1Char('\r');
const QChar LF = QLatin1Char('\n');
const QChar Blank = QLatin1Char(' ');

Printer& P() { return CurrentPrinter(); }

// Halves go to the even neighbour, as the toolkit's conversion to a whole
// number does.
int ToNearest(double value) { return static_cast<int>(std::nearbyint(value)); }

// The editors keep line ends as a bare line feed; the wrapping knows a
// carriage return as the end of a line, so each bare line feed gets one.
QString WithLineEnds(const QString& text) {
    QString out;
    out.reserve(text.size() + 16);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == LF && (i == 0 || text[i - 1] != CR)) out += CR;
        out += text[i];
    }
    return out;
}

// 1-based position of the next ch at or after position, 0 if none.
int Find(const QString& text, QChar ch, int position) {
    return static_cast<int>(text.indexOf(ch, position - 1)) + 1;
}

QString Mid(const QString& text, int position, int length) { return text.mid(position - 1, length); }

int Width(const QString& text) { return P().TextWidth(text); }

}  // namespace

bool StartPrint(int blockCount, const QString& pageTitle, const QString& spreadText, const QString& deckText) {
    if (blockCount < 1) {
        P().KillDoc();
        PrintActive = false;
        return false;
    }
    // A job is never restarted while it runs.
    if (PrintActive) return false;
    P().KillDoc();
    BlockCount = static_cast<Integer>(blockCount);
    PageTitle = pageTitle.trimmed();
    HeaderSpread = spreadText;
    HeaderDeck = deckText;
    PictureBoxHeight = 3000;
    PictureBoxWidth = 3000;
    BlocksPerPage = static_cast<Integer>(ToNearest((P().Height() - BottomRoom) / static_cast<double>(BlockPitch)));
    PageNumber = 2;
    if (BlocksPerPage > 0) {
        const int blocks = BlockCount + 1;
        TotalPages = static_cast<Integer>(blocks / BlocksPerPage + (blocks % BlocksPerPage != 0 ? 1 : 0) + 1);
    }
    PrintActive = PrintHeader();
    return PrintActive;
}

QString PageText() { return QStringLiteral("Page ") + QString::number(PageNumber); }

int SlotY(int n) {
    int y = (n - 1) * BlockPitch + FirstBlockY;
    if (n >= 2 && PageNumber == 1) y -= FirstPageSaving;
    return y;
}

bool PrintHeader() {
    Printer& printer = P();
    if (printer.LastError == 1) {
        MsgBox(QStringLiteral("Unable to initialize printer."), vbExclamation);
        return false;
    }
    BlockSlot = 0;
    const bool bold = printer.FontBold;
    printer.FontBold = true;
    printer.CurrentX = LeftMargin;
    printer.CurrentY = HeaderY;
    printer.Print(PageTitle);
    const QString page = PageText();
    printer.CurrentX = printer.Width() - RightMargin - printer.TextWidth(page);
    printer.CurrentY = HeaderY;
    printer.Print(page);
    printer.FontBold = bold;
    printer.CurrentX = LeftMargin;
    printer.CurrentY = SlotY(1);
    if (PageNumber == 1) {
        printer.Print(QStringLiteral("Spread: ") + HeaderSpread);
        printer.CurrentX = LeftMargin;
        printer.Print(QStringLiteral("Deck: ") + HeaderDeck);
        printer.Print();
        printer.CurrentX = LeftMargin;
        const double now = OleNow();
        printer.Print(QStringLiteral("Date & Time: ") + FormatLongDayDate(now) + QStringLiteral(" - ") +
                      FormatTimeHmsAmPm(now));
        ++BlockSlot;
        printer.CurrentX = LeftMargin;
        printer.CurrentY = SlotY(2);
    }
    return true;
}

bool NewPrintPage() {
    if (!PrintActive) return false;
    P().NewPage();
    ++PageNumber;
    return PrintHeader();
}

bool EndPrint() {
    if (!PrintActive) return false;
    P().EndDoc();
    PrintActive = false;
    return true;
}

bool PrintSummary(const QString& text) {
    if (!PrintActive) return false;
    Printer& printer = P();
    printer.CurrentX = LeftMargin;
    printer.CurrentY = SummaryY;
    const int size = printer.FontSize;
    const int colour = printer.ForeColor;
    printer.FontSize = size + 6;
    printer.ForeColor = SummaryColour;
    printer.Print(QStringLiteral("Summary"));
    printer.Print();
    printer.Print();
    printer.FontSize = size;
    printer.ForeColor = colour;
    printer.CurrentX = LeftMargin;
    PrintWrapped(text, printer.CurrentX, printer.CurrentY);
    NewPrintPage();
    return true;
}

bool PrintBlock(const QImage& picture, const QString& locationTitle, const QString& locationText,
                const QString& cardTitle, const QString& cardText) {
    if (!PrintActive) return false;
    Printer& printer = P();
    printer.CurrentX = LeftMargin;
    // A block starts at its slot, or a gap below the end of the block
    // before it when that one ran past the slot.
    const int y = SlotY(BlockSlot + 1);
    if (printer.CurrentY + BlockGap < y) printer.CurrentY = y;
    else printer.CurrentY += BlockGap;
    if (printer.CurrentY + PictureBoxHeight + BlockGap + HeaderRoom > printer.Height()) NewPrintPage();

    const int top = printer.CurrentY;
    const int x = PrintFittedPicture(picture) + PictureGap;
    printer.CurrentX = x;
    printer.CurrentY = top;
    printer.Print(QStringLiteral("Location: ") + locationTitle.trimmed());
    printer.CurrentX = x;
    PrintWrapped(locationText.trimmed(), printer.CurrentX, printer.CurrentY);
    printer.Print();
    printer.Print();
    printer.CurrentX = x;
    printer.Print(QStringLiteral("Card: ") + cardTitle.trimmed());
    printer.CurrentX = x;
    PrintWrapped(cardText.trimmed(), printer.CurrentX, printer.CurrentY);
    ++BlockSlot;
    return true;
}

int PrintFittedPicture(const QImage& picture) {
    Printer& printer = P();
    // The picture's own size (twips at its natural size) is set against the
    // box as it stands, number against number.
    BoxGeometry box;
    box.Width = PictureBoxWidth;
    box.Height = PictureBoxHeight;
    const int pictureHeight = PixelsToTwips(picture.height());
    const int pictureWidth = PixelsToTwips(picture.width());
    if (FitBoxToPicture(pictureHeight, pictureWidth, box, false, false) == 0) {
        MsgBox(QStringLiteral("Error. Please contact Ondine Software Inc."), vbCritical);
        FatalError();
    }
    printer.PaintPicture(picture, printer.CurrentX, printer.CurrentY, box.Width, box.Height);
    return printer.CurrentX + box.Width;
}

bool PrintWrapped(const QString& text, int x, int y) {
    if (!PrintActive) return false;
    Printer& printer = P();
    const int width = printer.Width() - x - RightMargin;
    const QString wrapped = WrapText(WithLineEnds(text), width);
    printer.CurrentY = y;
    printer.CurrentX = x;
    QString line;
    // The last character is the carriage return that WrapText ends with.
    for (qsizetype i = 0; i + 1 < wrapped.size(); ++i) {
        const QChar c = wrapped[i];
        if (c == CR) {
            if (printer.CurrentY + BlockGap + BottomRoom >= printer.Height()) NewPrintPage();
            printer.CurrentX = x;
            printer.Print(line);
            line.clear();
        } else if (c != LF) {
            line += c;
        }
    }
    printer.CurrentX = x;
    printer.Print(line);
    return true;
}

QString WrapText(QString text, int width) {
    text += CR;
    int position = 1;
    QString result;
    for (;;) {
        const QString piece = NextLine(text, position, width);
        result += piece;
        if (!piece.isEmpty() && !piece.endsWith(CR)) result += CR;
        position += static_cast<int>(piece.size());
        // Step over the blank or line end that closed the piece; a word
        // broken at the width has none.
        if (position <= text.size() && (text[position - 1] == Blank || text[position - 1] == CR)) ++position;
        if (piece.isEmpty()) break;
    }
    return result;
}

QString NextLine(const QString& text, int position, int width) {
    if (position > text.size()) return QString();
    // A paragraph that fits stays whole.
    const int c = Find(text, CR, position);
    const int end = c != 0 ? c : static_cast<int>(text.size()) + 1;
    const QString paragraph = Mid(text, position, end - position);
    if (Width(paragraph) <= width) return paragraph;

    int s = Find(text, Blank, position + 1);
    int last = 0;
    while (s != 0 && Width(Mid(text, position, s - position)) < width) {
        last = s;
        s = Find(text, Blank, s + 1);
    }
    if (last != 0) return Mid(text, position, last - position);

    // A single word wider than the line: it is broken at the width, with at
    // least one character on each line so the text always moves on.
    int length = 1;
    while (length < paragraph.size() && Width(paragraph.left(length + 1)) <= width) ++length;
    return paragraph.left(length);
}
