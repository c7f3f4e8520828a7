#pragma once
// Printing the reading or diary entry in hand: the printer dialogue, page 1
// with the spread as it lies (frmPrintingReading), then the summary and one
// block for each location that has a card, through the engine of
// mdlPrinting. The reading and the diary print alike; what differs between
// them is told by an EntryPrintout.
#include <QList>
#include <QString>
#include <array>

#include "core/records/Records.h"

class EntryScreen;

struct EntryPrintout {
    // The time of day on page 1.
    QString (*FormatTime)(double oleDate) = nullptr;
    // Put straight behind a card's title, by its side.
    QString ReversedWord;
    QString UprightWord;
    // Shown when a page could not be printed properly.
    QString FailureMessage;
    // The locations that have a card, rising.
    QList<int> CardLocations;
    // The card number and side of each location (index 0 is location 1).
    std::array<Integer, 32> DealtCard{};
    std::array<Integer, 32> DealtUpright{};
    QString Notes;
};

// The reading in CurrentReading, whose cards lie in locations 1 to
// thisLocationNumber - 1.
EntryPrintout ReadingPrintout(int thisLocationNumber);
// The diary entry in CurrentDiary, whose cards lie wherever they were chosen.
EntryPrintout DiaryPrintout();

// "h:m:s AMPM" is the reading's; the diary's is "hh:mm:ss AMPM".
QString FormatTimeHhMmSsAmPm(double oleDate);

// What cmdPrint_Click of the reading and the diary screens does. Cancel in
// the printer dialogue prints nothing and says nothing.
void PrintEntry(EntryScreen& screen, const EntryPrintout& entry);

// Fills page 1 from the screen and the entry (also used by PrintEntry).
void MakePrintPage(EntryScreen& screen, const EntryPrintout& entry);
