#pragma once
// The starter designs as their source files in tools/starter/ tell them: the
// deck with its cards and the spreads with their locations, read into plain
// records and checked against the widths of the record fields before anything
// is written.
#include <QString>
#include <QStringList>
#include <vector>

struct StarterCard {
    QString Title;
    QString Type;    // one of the deck's card type names
    QString Suit;    // Major, Wands, Cups, Swords or Pentacles
    QString Number;  // what the picture shows: 0, XIV, Ace, 7, Queen...
    QString Upright, Reversed;
    QString UprightKeywords, ReversedKeywords;
};

struct StarterDeck {
    QString Name, Title, Description, Notes;
    QString Designer, Email, WebPage;
    QStringList CardTypes;  // up to four, in the order of the deck's types
    bool IncludesReversed = true;
    bool DisplayCardTitles = true;
    std::vector<StarterCard> Cards;
};

struct StarterLocation {
    QString Title, Description;
    QStringList Questions;    // up to three
    int Left = -1, Top = -1;  // twips on the spread canvas
};

struct StarterSpread {
    QString Name, Title, Description, Notes;
    bool AskQuestion = false;
    std::vector<StarterLocation> Locations;
};

struct StarterDesigns {
    StarterDeck Deck;
    std::vector<StarterSpread> Spreads;
};

// The suits in the order their files stand in the deck after the Major
// Arcana, and the file of each part of the deck.
const QStringList& StarterSuits();
QStringList StarterCardFiles();

// Reads deck.txt, the card files and spreads.txt of a source folder. Every
// fault (a missing file, an unknown key, a line outside a block) is added to
// `problems` with its file and line; the designs read so far are returned.
StarterDesigns ReadStarterDesigns(const QString& sourceFolder, QStringList& problems);

// Everything that would not survive the records whole or not show whole:
// texts longer than their fields or outside the single-byte code page, empty
// texts, unknown card types and suits, location titles that do not fit their
// label on the reading screen, locations off the canvas or on top of one
// another, more locations or questions than a spread holds.
QStringList CheckStarterDesigns(const StarterDesigns& designs);

// The size of a location's card rectangle on the spread canvas and the
// largest position that keeps it whole on the canvas, in twips.
constexpr int LocationWidth = 1695;
constexpr int LocationHeight = 975;
constexpr int LocationMaxLeft = 7800;
constexpr int LocationMaxTop = 4920;
