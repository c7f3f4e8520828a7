#pragma once
// What a printed reading or diary entry holds, built from the records: page 1
// with the spread as it lies (the maker's address, "Page 1", the program's
// name, the spread with its cards, the spread, deck, date and time, the
// issue, the designers' lines), then through the layout engine the summary
// and one block for each location that has a card. The reading and the diary
// print alike; an EntryPrintout says what differs between them.
#include <QList>
#include <QString>
#include <array>

#include "core/printing/PrintLayout.h"
#include "core/records/Records.h"

struct Deal;
class Printer;

struct EntryPrintout {
    EntryKind Kind = EntryKind::Reading;
    // The time of day on page 1.
    QString (*FormatTime)(double oleDate) = nullptr;
    // A card's title with its side behind it (%1 the title).
    QString ReversedTitle;
    QString UprightTitle;
    // The locations that have a card, rising.
    QList<int> CardLocations;
    // The card number and side of each location (index 0 is location 1).
    std::array<Integer, 32> DealtCard{};
    std::array<Integer, 32> DealtUpright{};
    QString Notes;
    // The canvas of the entry's screen, twips, from which page 1 scales the
    // locations' places: the reading's is 9615 by 5895, the diary's 9615 by
    // 6495.
    int CanvasWidth = 0;
    int CanvasHeight = 0;

    // The issue in hand, from the screen the entry is on: after a new deal
    // the screen keeps it until the next save returns it to the record.
    QString Issue;
};

// The reading in hand, whose cards lie where its deal put them.
EntryPrintout ReadingPrintout(const Deal& deal, const ReadingRecord& reading);
// The diary entry in hand, whose cards lie wherever they were chosen.
EntryPrintout DiaryPrintout(const DiaryRecord& diary);

// "h:m:s AMPM" is the reading's; the diary's is "hh:mm:ss AMPM".
QString FormatTimeHhMmSsAmPm(double oleDate);

// What came of a print: Ok is false when a page could not be printed
// properly; Fault says what the engine met first.
struct PrintOutcome {
    bool Ok = true;
    PrintFault Fault = PrintFault::None;
};

// Prints the entry on the printer chosen: page 1 as a job of its own, then
// the text pages. Before the first card there is nothing to print beyond
// page 1, and that is no failure.
PrintOutcome PrintEntryPages(Printer& printer, const EntryPrintout& entry);
