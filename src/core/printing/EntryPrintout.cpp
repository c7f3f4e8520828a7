#include "core/printing/EntryPrintout.h"

#include <QColor>
#include <QCoreApplication>
#include <QMap>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Palette.h"
#include "core/platform/Picture.h"
#include "core/platform/PictureFit.h"
#include "core/platform/Printer.h"
#include "core/readings/Deal.h"
#include "core/store/Lookups.h"
#include "core/store/MakerAddresses.h"
#include "core/store/RunState.h"

namespace {

// Page 1 is a letter-size sheet laid out in twips; the spread's canvas sits
// in it, and each location is the canvas's rectangle of a location with its
// picture and labels inside.
constexpr int PageWidth = 11970, PageHeight = 15855;
constexpr int CanvasLeft = 840, CanvasTop = 2880, CanvasWidth = 10095, CanvasHeight = 5895;
constexpr int LocationWidth = 1695, LocationHeight = 975;
// The image box of a card inside its location; the picture is fitted into it
// as into the screen's.
constexpr int CardBoxWidth = 735, CardBoxHeight = 975;
// The canvases of the entry screens the locations were placed on.
constexpr int ScreenCanvasWidth = 9615, ReadingCanvasHeight = 5895, DiaryCanvasHeight = 6495;
constexpr int CaptionLeft = 1680, ValueLeft = 3000, CaptionWidth = 1320, ValueWidth = 7000, LineHeight = 375;
constexpr int LabelPoints = 9, LocationPoints = 7, CopyrightPoints = 8, NamePoints = 20;
constexpr int Black = 0x000000, White = 0xFFFFFF;
constexpr int TopLeft = Qt::AlignLeft | Qt::AlignTop;
constexpr int Wrapped = TopLeft | Qt::TextWordWrap;

using Pictures = QMap<int, Picture>;

template <std::size_t N>
Integer At(const std::array<Integer, N>& values, int location) {
    return values[static_cast<std::size_t>(location - 1)];
}

const CardRecord& CardAt(const EntryPrintout& entry, int location) {
    return TheRun.CurrentDeck.DeckCards(At(entry.DealtCard, location));
}

bool Upright(const EntryPrintout& entry, int location) { return At(entry.DealtUpright, location) != 0; }

// The palette's colour as the printer's long colour, &HBBGGRR.
int LongColour(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

// The picture of the card's side that lies, as the screen shows it: a file
// that has gone or cannot be read gives the default card picture.
Picture CardPicture(const CardRecord& card, bool upright) {
    const QString path = TheRun.Paths.CardsDir + card.CardPicture[upright ? 0 : 1].Trimmed();
    if (FileExists(path)) {
        try {
            return LoadPicture(path);
        } catch (const RuntimeError&) {
        }
    }
    return LoadPicture(TheRun.Paths.DefaultPicturePath);
}

// A text in a box of its own font; an empty text draws nothing, as an empty
// label shows nothing.
void PrintLabel(Printer& printer, const QString& text, int x, int y, int width, int height, int points,
                int colour = Black, int flags = Wrapped, bool bold = false) {
    if (text.isEmpty()) return;
    const int size = printer.FontSize, foreColour = printer.ForeColor;
    const bool wasBold = printer.FontBold;
    printer.FontSize = points;
    printer.ForeColor = colour;
    printer.FontBold = bold;
    printer.PrintInBox(text, x, y, width, height, flags);
    printer.FontSize = size;
    printer.ForeColor = foreColour;
    printer.FontBold = wasBold;
}

// One sentence per kind of design (%1 its designer), so that a language can
// agree its words with the kind.
QString CopyrightLine(const QString& sentence, const Designer& designer) {
    const QString name = designer.DesignerName.Trimmed();
    if (name.isEmpty()) return QString();
    return sentence.arg(name);
}

// The spread's background over the white canvas: stretched to the canvas, or
// at its own size and cut off at the canvas's edges.
void PrintBackground(Printer& printer) {
    if (!TheRun.CurrentSpread.BackgroundFile.Value().contains(QLatin1Char('.'))) return;
    Picture background;
    try {
        background = LoadPicture(TheRun.Paths.CardsDir + TheRun.CurrentSpread.BackgroundFile.Trimmed());
    } catch (const RuntimeError&) {
        return;  // a background that has gone leaves the canvas plain, as on the screen
    }
    if (TheRun.CurrentSpread.StretchBackground != 0) {
        printer.PaintPicture(background.Image, CanvasLeft, CanvasTop, CanvasWidth, CanvasHeight);
        return;
    }
    const int width = std::min(background.Width, CanvasWidth), height = std::min(background.Height, CanvasHeight);
    const QImage shown = background.Image.copy(0, 0, background.Image.width() * width / background.Width,
                                               background.Image.height() * height / background.Height);
    printer.PaintPicture(shown, CanvasLeft, CanvasTop, width, height);
}

// One location at its place on the canvas, scaled from the screen's: the
// rectangle, the card's picture fitted into the card frame, the location's
// title, and the card's name or the location's number.
bool PrintLocation(Printer& printer, const EntryPrintout& entry, const Pictures& pictures, int i) {
    const LocationRecord& location = TheRun.SpreadLocations(i);
    const int x = CanvasLeft + qRound(location.LocationLeft * static_cast<double>(CanvasWidth) / entry.CanvasWidth);
    const int y = CanvasTop + qRound(location.LocationTop * static_cast<double>(CanvasHeight) / entry.CanvasHeight);
    const int text = LongColour(QBColor(TheRun.OtherLocationColour));
    printer.FillRect(x, y, LocationWidth, LocationHeight, LongColour(QBColor(TheRun.CurrentLocationColour)));
    const bool hasCard = pictures.contains(i);
    if (hasCard) {
        const Picture& picture = pictures[i];
        BoxGeometry frame{0, 0, CardBoxWidth, CardBoxHeight};
        if (FitBoxToPicture(picture.Height, picture.Width, frame, true, false) == 0) return false;
        printer.PaintPicture(picture.Image, x + frame.Left, y + frame.Top, frame.Width, frame.Height);
    }
    PrintLabel(printer, location.LocationTitle.Trimmed(), x + 720, y, 975, 435, LocationPoints, text);
    if (hasCard)
        PrintLabel(printer, CardAt(entry, i).CardTitle.Trimmed(), x + 720, y + 525, 975, 435, LocationPoints, White);
    else
        PrintLabel(printer, QString::number(i), x + 240, y + 360, 255, 255, LocationPoints, text,
                   Qt::AlignCenter | Qt::TextWordWrap);
    return true;
}

// Page 1, drawn as the page form it stands for lays it out. False when a
// card picture could not be fitted.
bool PrintSpreadPage(Printer& printer, const EntryPrintout& entry, const Pictures& pictures) {
    printer.FillRect(0, 0, PageWidth, PageHeight, White);
    PrintLabel(printer, MakerWebAddress, 480, 240, 7215, 375, LabelPoints);
    PrintLabel(printer, QCoreApplication::translate("EntryPrintout", "Page 1"), 9000, 240, 2055, 375, LabelPoints,
               Black, Qt::AlignRight | Qt::AlignTop | Qt::TextWordWrap);
    PrintLabel(printer, QCoreApplication::translate("EntryPrintout", "Cartomar"), 1680, 1560, 8175, 495, NamePoints,
               Black, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, true);

    printer.FillRect(CanvasLeft, CanvasTop, CanvasWidth, CanvasHeight, White);
    PrintBackground(printer);
    // Cards lie above empty places, and of two cards the higher number on top.
    bool fitted = true;
    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i)
        if (!entry.CardLocations.contains(i)) fitted = PrintLocation(printer, entry, pictures, i) && fitted;
    for (int i : entry.CardLocations) fitted = PrintLocation(printer, entry, pictures, i) && fitted;

    const double now = OleNow();
    const struct {
        QString caption, value;
        int top, height;
    } lines[] = {
        {QCoreApplication::translate("EntryPrintout", "Spread:"),
         SpreadNameById(TheRun.CurrentSpread.SpreadId).trimmed(), 10560, LineHeight},
        {QCoreApplication::translate("EntryPrintout", "Deck:"), DeckNameById(TheRun.CurrentDeck.DeckId).trimmed(),
         11040, LineHeight},
        {QCoreApplication::translate("EntryPrintout", "Date & Time:"),
         FormatLongDayDate(now) + QStringLiteral(" - ") + entry.FormatTime(now), 11520, LineHeight},
        {QCoreApplication::translate("EntryPrintout", "Title:"), entry.Issue.trimmed(), 12000, 975},
    };
    for (const auto& line : lines) {
        // A caption stays on its line.
        PrintLabel(printer, line.caption, CaptionLeft, line.top, CaptionWidth, LineHeight, LabelPoints, Black, TopLeft);
        PrintLabel(printer, line.value, ValueLeft, line.top, ValueWidth, line.height, LabelPoints);
    }
    const QString spreadLine = QCoreApplication::translate("EntryPrintout", "Spread © Copyright 2001 By %1.");
    const QString deckLine = QCoreApplication::translate("EntryPrintout", "Deck © Copyright 2001 By %1.");
    PrintLabel(printer, CopyrightLine(spreadLine, TheRun.CurrentSpread.SpreadDesigner), 1680, 13080, 8415, 255,
               CopyrightPoints);
    PrintLabel(printer, CopyrightLine(deckLine, TheRun.CurrentDeck.DeckDesigner), 1680, 13560, 8415, 255,
               CopyrightPoints);
    return fitted;
}

// The description of a location with its questions run on behind it.
QString LocationText(const LocationRecord& location) {
    QString text = location.LocationDescription.Trimmed();
    for (const FixedText<125>& question : location.LocationQuestion)
        if (!question.IsBlank()) text += QStringLiteral("  ") + question.Trimmed();
    return text;
}

// The text pages: the summary, then a block for each location with a card.
// False when the engine could not print them properly.
bool PrintTextPages(PrintLayout& layout, const EntryPrintout& entry, const Pictures& pictures) {
    const int n = static_cast<int>(entry.CardLocations.size());
    const QString spreadTitle = TheRun.CurrentSpread.SpreadTitle.Value();
    const bool started = layout.StartPrint(n, MakerWebAddress, spreadTitle, spreadTitle);
    if (n < 1) return true;
    if (!started) return false;
    bool ok = true;
    const QString notes = entry.Notes.trimmed();
    if (!notes.isEmpty()) ok = layout.PrintSummary(notes) && ok;
    for (int i : entry.CardLocations) {
        const LocationRecord& location = TheRun.SpreadLocations(i);
        const CardRecord& card = CardAt(entry, i);
        const bool upright = Upright(entry, i);
        const QString cardTitle = (upright ? entry.UprightTitle : entry.ReversedTitle).arg(card.CardTitle.Trimmed());
        ok = layout.PrintBlock(pictures[i].Image, location.LocationTitle.Value(), LocationText(location), cardTitle,
                               card.CardDescription[upright ? 0 : 1].Value()) &&
             ok;
    }
    return layout.EndPrint() && ok;
}

}  // namespace

QString FormatTimeHhMmSsAmPm(double oleDate) {
    const QTime t = FromOleDate(oleDate).time();
    int hour = t.hour() % 12;
    if (hour == 0) hour = 12;
    return QStringLiteral("%1:%2:%3 %4")
        .arg(hour, 2, 10, QLatin1Char('0'))
        .arg(t.minute(), 2, 10, QLatin1Char('0'))
        .arg(t.second(), 2, 10, QLatin1Char('0'))
        .arg(t.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

EntryPrintout ReadingPrintout(const Deal& deal, const ReadingRecord& reading) {
    EntryPrintout entry;
    entry.Kind = EntryKind::Reading;
    entry.FormatTime = FormatTimeHmsAmPm;
    // The reading's side stands straight behind the title, as it always did.
    entry.ReversedTitle = QCoreApplication::translate("EntryPrintout", "%1(Reversed)");
    entry.UprightTitle = QCoreApplication::translate("EntryPrintout", "%1(Upright)");
    for (int i = 1; i <= Deal::MaxLocations; ++i) {
        if (CardLiesAt(deal, i)) entry.CardLocations.append(i);
        entry.DealtCard[static_cast<std::size_t>(i - 1)] = deal.DealtCard(i);
        entry.DealtUpright[static_cast<std::size_t>(i - 1)] = deal.DealtUpright(i);
    }
    entry.Notes = reading.ReadingNotes.Value();
    entry.Issue = reading.Issue.Value();
    entry.CanvasWidth = ScreenCanvasWidth;
    entry.CanvasHeight = ReadingCanvasHeight;
    return entry;
}

EntryPrintout DiaryPrintout(const DiaryRecord& diary) {
    EntryPrintout entry;
    entry.Kind = EntryKind::Diary;
    entry.FormatTime = FormatTimeHhMmSsAmPm;
    // The diary's reversed side stands a space behind the title, its upright
    // side straight behind it.
    entry.ReversedTitle = QCoreApplication::translate("EntryPrintout", "%1 (Reversed)");
    entry.UprightTitle = QCoreApplication::translate("EntryPrintout", "%1(Upright)");
    for (int i = 1; i <= static_cast<int>(diary.DealtCard.size()); ++i)
        if (At(diary.DealtCard, i) > 0) entry.CardLocations.append(i);
    entry.DealtCard = diary.DealtCard;
    entry.DealtUpright = diary.DealtUpright;
    entry.Notes = diary.DiaryNotes.Value();
    entry.Issue = diary.Issue.Value();
    entry.CanvasWidth = ScreenCanvasWidth;
    entry.CanvasHeight = DiaryCanvasHeight;
    return entry;
}

PrintOutcome PrintEntryPages(Printer& printer, const EntryPrintout& entry) {
    // Each card's picture is loaded once: page 1 and its block show the same.
    Pictures pictures;
    for (int i : entry.CardLocations) pictures.insert(i, CardPicture(CardAt(entry, i), Upright(entry, i)));

    PrintOutcome outcome;
    // Page 1 is a job of its own: it goes out at once, and the KillDoc with
    // which the text pages begin cannot take it back.
    printer.EndDoc();
    if (!PrintSpreadPage(printer, entry, pictures)) outcome.Fault = PrintFault::PictureUnfit;
    printer.EndDoc();

    PrintLayout layout(printer);
    outcome.Ok = PrintTextPages(layout, entry, pictures);
    if (outcome.Fault == PrintFault::None) outcome.Fault = layout.Job().Fault;
    return outcome;
}
