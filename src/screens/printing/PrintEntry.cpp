#include "screens/printing/PrintEntry.h"

#include <QLabel>

#include "screens/platform/CommonDialog.h"
#include "core/platform/Errors.h"
#include "screens/platform/MsgBox.h"
#include "core/platform/OleDate.h"
#include "core/platform/Palette.h"
#include "screens/platform/Printer.h"
#include "screens/printing/frmPrintingReading.h"
#include "screens/printing/PrintLayout.h"
#include "screens/readings/EntryScreen.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"
#include "screens/store/Startup.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {

template <std::size_t N>
Integer At(const std::array<Integer, N>& values, int location) {
    return values[static_cast<std::size_t>(location - 1)];
}

bool HasCard(const EntryPrintout& entry, int location) { return entry.CardLocations.contains(location); }

// The description of a location with its questions run on behind it.
QString LocationText(const LocationRecord& location) {
    QString text = location.LocationDescription.Trimmed();
    for (const FixedText<125>& question : location.LocationQuestion)
        if (!question.IsBlank()) text += QStringLiteral("  ") + question.Trimmed();
    return text;
}

QString CardTitleWithSide(const EntryPrintout& entry, int location) {
    const CardRecord& card = DeckCard(At(entry.DealtCard, location));
    const bool upright = At(entry.DealtUpright, location) != 0;
    return card.CardTitle.Trimmed() + (upright ? entry.UprightWord : entry.ReversedWord);
}

// The text pages: the summary, then a block for each location with a card.
// False when the engine could not print them properly.
bool PrintTextPages(EntryScreen& screen, const EntryPrintout& entry) {
    const int n = static_cast<int>(entry.CardLocations.size());
    const QString spreadTitle = CurrentSpread.SpreadTitle.Value();
    const bool started = StartPrint(n, MakerWebAddress, spreadTitle, spreadTitle);
    // Before the first card there is nothing to print beyond page 1, and
    // that is no failure.
    if (n < 1) return true;
    if (!started) return false;
    bool ok = true;
    const QString notes = entry.Notes.trimmed();
    if (!notes.isEmpty()) ok = PrintSummary(notes) && ok;
    for (int i : entry.CardLocations) {
        const LocationRecord& location = SpreadLocations(i);
        const CardRecord& card = DeckCard(At(entry.DealtCard, i));
        const int side = At(entry.DealtUpright, i) != 0 ? 0 : 1;
        ok = PrintBlock(screen.imgCard(i)->Image(), location.LocationTitle.Value(), LocationText(location),
                        CardTitleWithSide(entry, i), card.CardDescription[static_cast<std::size_t>(side)].Value()) &&
             ok;
    }
    return EndPrint() && ok;
}

void ShowLocationOnPage(frmPrintingReading& page, int i, double scaleX, double scaleY) {
    const LocationRecord& location = SpreadLocations(i);
    ClickLabel* box = page.picLocation(i);
    PlaceControl(box, qRound(location.LocationLeft * scaleX), qRound(location.LocationTop * scaleY), 1695, 975);
    box->show();
    box->setBackColor(QBColor(CurrentLocationColour));
    const QColor text = QBColor(OtherLocationColour);
    for (QLabel* label : {page.lblCardNumber(i), page.lblCardTitle(i)}) {
        QPalette p = label->palette();
        p.setColor(QPalette::WindowText, text);
        label->setPalette(p);
    }
    QPalette white = page.lblCardName(i)->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    page.lblCardName(i)->setPalette(white);
    page.lblCardTitle(i)->setText(location.LocationTitle.Trimmed());
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

EntryPrintout ReadingPrintout(int thisLocationNumber) {
    EntryPrintout entry;
    entry.FormatTime = FormatTimeHmsAmPm;
    entry.ReversedWord = QStringLiteral("(Reversed)");
    entry.UprightWord = QStringLiteral("(Upright)");
    entry.FailureMessage = QStringLiteral(
        "Could not print the reading properly. Please make sure that the selected printer is ready.");
    for (int i = 1; i < thisLocationNumber; ++i) entry.CardLocations.append(i);
    entry.DealtCard = CurrentReading.DealtCard;
    entry.DealtUpright = CurrentReading.DealtUpright;
    entry.Notes = CurrentReading.ReadingNotes.Value();
    return entry;
}

EntryPrintout DiaryPrintout() {
    EntryPrintout entry;
    entry.FormatTime = FormatTimeHhMmSsAmPm;
    entry.ReversedWord = QStringLiteral(" (Reversed)");
    entry.UprightWord = QStringLiteral("(Upright)");
    entry.FailureMessage = QStringLiteral(
        "Could not print the diary properly. Please make sure that the selected printer is ready.");
    for (int i = 1; i <= static_cast<int>(CurrentDiary.DealtCard.size()); ++i)
        if (At(CurrentDiary.DealtCard, i) > 0) entry.CardLocations.append(i);
    entry.DealtCard = CurrentDiary.DealtCard;
    entry.DealtUpright = CurrentDiary.DealtUpright;
    entry.Notes = CurrentDiary.DiaryNotes.Value();
    return entry;
}

void MakePrintPage(EntryScreen& screen, const EntryPrintout& entry) {
    frmPrintingReading& page = Get<frmPrintingReading>();
    const double scaleX = static_cast<double>(ControlWidth(page.picSpread)) / ControlWidth(screen.picSpread);
    const double scaleY = static_cast<double>(ControlHeight(page.picSpread)) / ControlHeight(screen.picSpread);
    const int locationCount = CurrentSpread.LocationCount;

    for (int i : entry.CardLocations) {
        ShowLocationOnPage(page, i, scaleX, scaleY);
        page.lblCardNumber(i)->hide();
        // The picture as the screen shows it for the card's side.
        const ImageBox* shown = screen.imgCard(i);
        page.imgCard(i)->Move(shown->Left(), shown->Top(), shown->Width(), shown->Height());
        page.imgCard(i)->setPicture(shown->Image());
        page.lblCardName(i)->setText(DeckCard(At(entry.DealtCard, i)).CardTitle.Trimmed());
    }
    for (int i = 1; i <= locationCount; ++i) {
        if (HasCard(entry, i)) continue;
        ShowLocationOnPage(page, i, scaleX, scaleY);
        page.lblCardNumber(i)->show();
        page.lblCardNumber(i)->setText(QString::number(i));
        page.imgCard(i)->ClearPicture();
        page.lblCardName(i)->clear();
    }
    // Cards lie above empty places, and of two cards the higher number on top.
    for (int i = 1; i <= locationCount; ++i)
        if (!HasCard(entry, i)) page.picLocation(i)->raise();
    for (int i : entry.CardLocations) page.picLocation(i)->raise();
    for (int i = locationCount + 1; i <= frmPrintingReading::MaxLocations; ++i)
        if (!HasCard(entry, i)) page.picLocation(i)->hide();

    page.lblTheIssue->setText(MakerWebAddress);
    page.lblTitle->setText(screen.lblTheIssue->text().trimmed());
    page.Label2->setText(SpreadNameById(CurrentSpread.SpreadId).trimmed());
    page.Label3->setText(DeckNameById(CurrentDeck.DeckId).trimmed());
    const double now = OleNow();
    page.lblNow->setText(FormatLongDayDate(now) + QStringLiteral(" - ") + entry.FormatTime(now));
    page.lblPageNumber->setText(QStringLiteral("Page 1"));

    page.imgBackground->ClearPicture();
    if (CurrentSpread.BackgroundFile.Value().contains(QLatin1Char('.'))) {
        page.imgBackground->setStretch(CurrentSpread.StretchBackground != 0);
        page.imgBackground->setPicture(screen.imgBackground->Image());
    }
}

void PrintEntry(EntryScreen& screen, const EntryPrintout& entry) {
    bool chosen = false;
    try {
        MakePrintPage(screen, entry);

        CommonDialog CommonDialog1;
        CommonDialog1.CancelError = true;
        CommonDialog1.Flags = cdlPDNoPageNums | cdlPDNoSelection | cdlPDCollate;
        ShowPrinter(CommonDialog1);
        chosen = true;

        Printer& printer = CurrentPrinter();
        printer.EndDoc();
        printer.PrintForm(Get<frmPrintingReading>());
        UnloadScreen<frmPrintingReading>();

        const bool ok = PrintTextPages(screen, entry);
        printer.Close();
        if (!ok) MsgBox(entry.FailureMessage, vbCritical);
    } catch (const RuntimeError& error) {
        UnloadScreen<frmPrintingReading>();
        PrintActive = false;
        if (chosen) CurrentPrinter().Close();
        // Cancel in the printer dialogue: nothing was printed, nothing to say.
        if (error.Number() == errCancel) return;
        MsgBox(QStringLiteral("Unable to print! ") + QString::number(error.Number()) + QStringLiteral(" ") +
                   error.Description(),
               vbCritical);
    }
}
