#include "core/printing/PrintLayout.h"

#include <QCoreApplication>
#include <cmath>

#include "core/platform/OleDate.h"
#include "core/platform/PictureFit.h"
#include "core/platform/Printer.h"
#include "core/platform/Twips.h"

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
constexpr int BottomRoom = 800;  // below the last line of a text
constexpr int SummaryY = 1600;
constexpr int SummaryColour = 128;  // a dark red

const QChar CR = QLatin1Char('\r');
const QChar LF = QLatin1Char('\n');
const QChar Blank = QLatin1Char(' ');

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
int Find(const QString& text, QChar ch, int position) { return static_cast<int>(text.indexOf(ch, position - 1)) + 1; }

QString Mid(const QString& text, int position, int length) { return text.mid(position - 1, length); }
}  // namespace

void PrintLayout::Fail(PrintFault fault) {
    if (job_.Fault == PrintFault::None) job_.Fault = fault;
}

bool PrintLayout::StartPrint(int blockCount, const QString& pageTitle, const QString& spreadText,
                             const QString& deckText) {
    if (blockCount < 1) {
        printer_.KillDoc();
        job_.PrintActive = false;
        return false;
    }
    // A job is never restarted while it runs.
    if (job_.PrintActive) return false;
    printer_.KillDoc();
    job_.BlockCount = static_cast<Integer>(blockCount);
    job_.PageTitle = pageTitle.trimmed();
    job_.HeaderSpread = spreadText;
    job_.HeaderDeck = deckText;
    job_.PictureBoxHeight = 3000;
    job_.PictureBoxWidth = 3000;
    job_.BlocksPerPage =
        static_cast<Integer>(ToNearest((printer_.Height() - BottomRoom) / static_cast<double>(BlockPitch)));
    job_.PageNumber = 2;
    if (job_.BlocksPerPage > 0) {
        const int blocks = job_.BlockCount + 1;
        job_.TotalPages =
            static_cast<Integer>(blocks / job_.BlocksPerPage + (blocks % job_.BlocksPerPage != 0 ? 1 : 0) + 1);
    }
    job_.PrintActive = PrintHeader();
    return job_.PrintActive;
}

QString PrintLayout::PageText() const {
    return QCoreApplication::translate("PrintLayout", "Page %1").arg(job_.PageNumber);
}

int PrintLayout::SlotY(int n) const {
    int y = (n - 1) * BlockPitch + FirstBlockY;
    if (n >= 2 && job_.PageNumber == 1) y -= FirstPageSaving;
    return y;
}

bool PrintLayout::PrintHeader() {
    Printer& printer = printer_;
    if (printer.LastError == 1) {
        Fail(PrintFault::PrinterNotReady);
        return false;
    }
    job_.BlockSlot = 0;
    const bool bold = printer.FontBold;
    printer.FontBold = true;
    printer.CurrentX = LeftMargin;
    printer.CurrentY = HeaderY;
    printer.Print(job_.PageTitle);
    const QString page = PageText();
    printer.CurrentX = printer.Width() - RightMargin - printer.TextWidth(page);
    printer.CurrentY = HeaderY;
    printer.Print(page);
    printer.FontBold = bold;
    printer.CurrentX = LeftMargin;
    printer.CurrentY = SlotY(1);
    if (job_.PageNumber == 1) {
        printer.Print(QCoreApplication::translate("PrintLayout", "Spread: %1").arg(job_.HeaderSpread));
        printer.CurrentX = LeftMargin;
        printer.Print(QCoreApplication::translate("PrintLayout", "Deck: %1").arg(job_.HeaderDeck));
        printer.Print();
        printer.CurrentX = LeftMargin;
        const double now = OleNow();
        printer.Print(QCoreApplication::translate("PrintLayout", "Date & Time: %1")
                          .arg(FormatLongDayDate(now) + QStringLiteral(" - ") + FormatTimeHmsAmPm(now)));
        ++job_.BlockSlot;
        printer.CurrentX = LeftMargin;
        printer.CurrentY = SlotY(2);
    }
    return true;
}

bool PrintLayout::NewPrintPage() {
    if (!job_.PrintActive) return false;
    printer_.NewPage();
    ++job_.PageNumber;
    return PrintHeader();
}

bool PrintLayout::EndPrint() {
    if (!job_.PrintActive) return false;
    printer_.EndDoc();
    job_.PrintActive = false;
    return true;
}

bool PrintLayout::PrintSummary(const QString& text) {
    if (!job_.PrintActive) return false;
    Printer& printer = printer_;
    printer.CurrentX = LeftMargin;
    printer.CurrentY = SummaryY;
    const int size = printer.FontSize;
    const int colour = printer.ForeColor;
    printer.FontSize = size + 6;
    printer.ForeColor = SummaryColour;
    printer.Print(QCoreApplication::translate("PrintLayout", "Summary"));
    printer.Print();
    printer.Print();
    printer.FontSize = size;
    printer.ForeColor = colour;
    printer.CurrentX = LeftMargin;
    PrintWrapped(text, printer.CurrentX, printer.CurrentY);
    NewPrintPage();
    return true;
}

bool PrintLayout::PrintBlock(const QImage& picture, const QString& locationTitle, const QString& locationText,
                             const QString& cardTitle, const QString& cardText) {
    if (!job_.PrintActive) return false;
    Printer& printer = printer_;
    printer.CurrentX = LeftMargin;
    // A block starts at its slot, or a gap below the end of the block
    // before it when that one ran past the slot.
    const int y = SlotY(job_.BlockSlot + 1);
    if (printer.CurrentY + BlockGap < y) printer.CurrentY = y;
    else printer.CurrentY += BlockGap;
    if (printer.CurrentY + job_.PictureBoxHeight + BlockGap + HeaderRoom > printer.Height()) NewPrintPage();

    const int top = printer.CurrentY;
    const int right = PrintFittedPicture(picture);
    if (right < 0) return false;
    const int x = right + PictureGap;
    printer.CurrentX = x;
    printer.CurrentY = top;
    printer.Print(QCoreApplication::translate("PrintLayout", "Location: %1").arg(locationTitle.trimmed()));
    printer.CurrentX = x;
    PrintWrapped(locationText.trimmed(), printer.CurrentX, printer.CurrentY);
    printer.Print();
    printer.Print();
    printer.CurrentX = x;
    printer.Print(QCoreApplication::translate("PrintLayout", "Card: %1").arg(cardTitle.trimmed()));
    printer.CurrentX = x;
    PrintWrapped(cardText.trimmed(), printer.CurrentX, printer.CurrentY);
    ++job_.BlockSlot;
    return true;
}

int PrintLayout::PrintFittedPicture(const QImage& picture) {
    Printer& printer = printer_;
    // The picture's own size (twips at its natural size) is set against the
    // box as it stands, number against number.
    BoxGeometry box;
    box.Width = job_.PictureBoxWidth;
    box.Height = job_.PictureBoxHeight;
    const int pictureHeight = PixelsToTwips(picture.height());
    const int pictureWidth = PixelsToTwips(picture.width());
    if (FitBoxToPicture(pictureHeight, pictureWidth, box, false, false) == 0) {
        Fail(PrintFault::PictureUnfit);
        return -1;
    }
    printer.PaintPicture(picture, printer.CurrentX, printer.CurrentY, box.Width, box.Height);
    return printer.CurrentX + box.Width;
}

bool PrintLayout::PrintWrapped(const QString& text, int x, int y) {
    if (!job_.PrintActive) return false;
    Printer& printer = printer_;
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

QString PrintLayout::WrapText(QString text, int width) const {
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

QString PrintLayout::NextLine(const QString& text, int position, int width) const {
    if (position > text.size()) return QString();
    // A paragraph that fits stays whole.
    const int c = Find(text, CR, position);
    const int end = c != 0 ? c : static_cast<int>(text.size()) + 1;
    const QString paragraph = Mid(text, position, end - position);
    if (printer_.TextWidth(paragraph) <= width) return paragraph;

    int s = Find(text, Blank, position + 1);
    int last = 0;
    while (s != 0 && printer_.TextWidth(Mid(text, position, s - position)) < width) {
        last = s;
        s = Find(text, Blank, s + 1);
    }
    if (last != 0) return Mid(text, position, last - position);

    // A single word wider than the line: it is broken at the width, with at
    // least one character on each line so the text always moves on.
    int length = 1;
    while (length < paragraph.size() && printer_.TextWidth(paragraph.left(length + 1)) <= width) ++length;
    return paragraph.left(length);
}
