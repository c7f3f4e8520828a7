#pragma once
// The journal: every saved reading and diary entry searched and counted as
// one body of records. The journal only reads: it never writes a record file.
//
// A card is its deck id and its number in the deck; its title is the one the
// deck gives it now. An entry whose deck was revised or removed since it was
// saved still counts under its stored numbers but is not attributable to a
// present card, nor is an entry that holds what no saved entry can (a card
// number beyond its deck, a date out of range). A locked entry shows only its
// date and name until its password has been given in this run.
#include <QByteArray>
#include <QDate>
#include <QString>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/journal/ChartLayout.h"
#include "core/records/Records.h"

class Printer;

enum class Facing { Any, Upright, Reversed };

// How far an entry's cards can be trusted to name the deck's present cards.
enum class EntryStanding {
    Present,      // the deck as it was saved with
    DeckRevised,  // the deck was saved again since
    DeckGone,     // the deck is no longer installed
    Damaged,      // a card number beyond its deck, or a date out of range
};

// The designs that entries point at, as they stand now.
struct JournalCard {
    QString Title;
    Integer Type = 0;  // 0 to 3, into the deck's TypeNames
};

struct JournalDeck {
    Integer Id = 0;
    Integer Revision = 0;
    QString Name;
    std::array<QString, 4> TypeNames;
    std::vector<JournalCard> Cards;  // card n is Cards[n - 1]
};

struct JournalSpread {
    Integer Id = 0;
    Integer Revision = 0;
    QString Name;
    std::vector<QString> LocationTitles;  // location n is [n - 1]
};

struct JournalCatalogue {
    std::vector<JournalDeck> Decks;
    std::vector<JournalSpread> Spreads;
    const JournalDeck* Deck(Integer id) const;
    const JournalSpread* Spread(Integer id) const;
};

// Reads the decks, their cards' titles and types, the spreads and their
// locations' titles.
JournalCatalogue LoadJournalCatalogue();

struct DealtLocation {
    int Location = 0;  // 1 to 32
    Integer Card = 0;  // the stored card number
    bool Upright = true;
};

struct JournalEntry {
    EntryKind Kind = EntryKind::Reading;
    QDate Date;      // invalid when the stored date is out of range
    int Month = -1;  // year * 12 + month - 1 of Date, worked out once; -1 when Date is invalid
    QString Name;
    bool Locked = false;  // locked, and its password not given in this run
    Integer SpreadId = 0;
    Integer DeckId = 0;
    EntryStanding Standing = EntryStanding::Present;
    std::span<const DealtLocation> Cards;  // in the journal's Dealt; empty while locked
    std::string_view SearchText;           // in the journal's Text: name, issue and notes in the record's code page,
                                           // case-folded; the name alone while locked
};

// Every saved entry, read once. A search runs on every keystroke over every
// entry, so what it looks at lies end to end: the dealt locations of all the
// entries in one array and their texts in one buffer, which the entries view.
// A journal moves but is never copied, so that those views stay true.
struct Journal {
    std::vector<JournalEntry> Entries;
    std::vector<DealtLocation> Dealt;
    QByteArray Text;
    int FirstMonth = 0;  // the months of the dated entries, as JournalEntry::Month
    int LastMonth = -1;

    Journal() = default;
    Journal(Journal&&) = default;
    Journal& operator=(Journal&&) = default;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
};

// Reads Readings.red and Diary.dry once each, front to back.
Journal ReadJournal(const JournalCatalogue& catalogue);

// Remembers, for the rest of the run, that the user gave the password of the
// saved entry of that name; the journal then shows and counts it.
void RememberEntryUnlocked(EntryKind kind, const QString& name);
bool IsEntryUnlocked(EntryKind kind, const QString& name);

struct JournalQuery {
    QString Words;  // each must occur in the name, issue or notes, case ignored
    bool Readings = true;
    bool Diary = true;
    Integer SpreadId = -1;    // -1: any spread
    Integer DeckId = -1;      // -1: any deck
    Integer CardDeckId = -1;  // a card: its deck and number; -1 and 0 for any card
    Integer CardNumber = 0;
    Facing Orientation = Facing::Any;  // of the chosen card, or of any card
    QDate From;                        // null: open
    QDate To;
};

// The positions in entries of those the query selects, in file order.
std::vector<int> SearchJournal(const Journal& journal, const JournalQuery& query);

struct CardTally {
    Integer DeckId = 0;
    Integer Number = 0;
    QString Title;
    QString DeckName;
    QString TypeName;  // empty when the card is not in the deck now
    bool DeckInstalled = true;
    int Upright = 0;
    int Reversed = 0;
    int Total() const { return Upright + Reversed; }
};

struct NamedCount {
    QString Name;
    int Count = 0;
};

struct MonthCount {
    int Month = 0;  // as JournalEntry::Month
    int Count = 0;
};

struct JournalStatistics {
    int Entries = 0;         // selected
    int Locked = 0;          // selected, but locked: not counted
    int Unattributable = 0;  // counted, but not attributable to present cards
    int Upright = 0;
    int Reversed = 0;
    std::vector<CardTally> Cards;    // most frequent first, then by deck and number
    std::vector<NamedCount> Types;   // by the type names of the decks, most frequent first
    std::vector<MonthCount> Months;  // every month from the first to the last
};

JournalStatistics TallyJournal(const Journal& journal, const std::vector<int>& selected,
                               const JournalCatalogue& catalogue, const JournalQuery& query);

struct LocationTally {
    int Location = 0;
    QString Title;
    std::vector<CardTally> Cards;  // the most frequent, at most `top`
};

// For one spread: the cards that came up most in each of its locations.
std::vector<LocationTally> TallyLocations(const Journal& journal, const std::vector<int>& selected,
                                          const JournalCatalogue& catalogue, Integer spreadId, int top);

// A card as the charts, the locations and the print name it: its title and
// its deck.
QString CardLabel(const CardTally& card);
// A month as the user's language writes it, short.
QString MonthText(int month);

// The charts of the statistics: the cards that came up most (upright and
// reversed), the card types, upright against reversed, entries a month.
ChartData CardsChart(const JournalStatistics& statistics, std::size_t top);
ChartData TypesChart(const JournalStatistics& statistics);
ChartData FacingChart(const JournalStatistics& statistics);
ChartData MonthsChart(const JournalStatistics& statistics);

// An entry's spread and deck as the results list and the CSV show them.
QString EntrySpreadText(const JournalEntry& entry, const JournalCatalogue& catalogue);
QString EntryDeckText(const JournalEntry& entry, const JournalCatalogue& catalogue);

// The selected entries for a spreadsheet: UTF-8, a header row, one row per
// dealt location; locked entries give none. A text that a spreadsheet would
// take for a formula (one starting with =, +, -, @, a tab or a carriage
// return) is given a leading apostrophe, so opening the file runs nothing.
QByteArray JournalCsv(const Journal& journal, const std::vector<int>& selected, const JournalCatalogue& catalogue);

// The statistics on the printer: the figures, the cards chart (the `top`
// cards) and the months chart drawn at the page's width, and the table of
// every card. Ends the job.
void PrintJournalStatistics(Printer& printer, const JournalStatistics& statistics, std::size_t top);
