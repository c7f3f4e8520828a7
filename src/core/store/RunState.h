#pragma once
// The run-wide state: one value, RunState, owned by this file and put back
// whole between runs. The names the program uses for its parts (CardsDir,
// CurrentDeck, DesignMode, ...) are references into it. Who may change what:
// - the paths are one ProgramPaths value, formed by FormPaths at start-up and
//   read-only to everyone else;
// - the records in hand are handed from screen to screen: the screen that
//   opens a design or an entry fills them, the screens it opens read and
//   change them, and its save writes them; the deal of a reading and the
//   diary's lists of cards change only through their rules in
//   core/readings;
// - the options of the run are set by the screen that asks for them and read
//   by the ones that follow;
// - the card editor's working files and its choosers' folders change through
//   core/decks/CardEditing, the entries unlocked in the journal through
//   core/journal/Journal.
// ResetRun puts all of it back, with the toolkit's random generator.
#include <QSet>
#include <QString>
#include <array>
#include <vector>

#include "core/decks/CardEditing.h"
#include "core/platform/Arrays.h"
#include "core/readings/Deal.h"
#include "core/readings/DiaryCards.h"
#include "core/records/Records.h"

// Where everything lives. Directories end in '/'.
struct ProgramPaths {
    QString AppPath;
    QString SettingsPath;
    QString SpreadsPath;
    QString LocationsPath;
    QString DecksPath;
    QString CardsDir;
    QString PackagesDir;
    QString AttachmentsDir;
    QString CardsPath;
    QString ReadingsPath;
    QString DiaryPath;
    QString DefaultPicturePath;
    QString TempFilePath;
    QString TempDir;
    QString TempCardsPath;
};

// The name under which records know the shared default picture: 12
// characters, the last a space, exactly filling a picture field.
inline const QString DefaultPictureName = QStringLiteral("C000000.bmp ");

// The deck in memory: the deck's fields and its cards, numbered from 1.
struct DeckInMemory : DeckRecord {
    BoundedArray<CardRecord> DeckCards;
};

struct RunState {
    ProgramPaths Paths;

    // The records in hand.
    DeckInMemory CurrentDeck;
    DeckRecord ListDeck;  // the deck chosen on a list, before it is loaded
    CardRecord CurrentCard;
    SpreadRecord CurrentSpread;
    BoundedArray<LocationRecord> SpreadLocations;  // indexed by LocationNumber
    ReadingRecord CurrentReading;
    DiaryRecord CurrentDiary;
    // The deal of the reading in hand, and the cards the locations of the
    // diary entry in hand may still take.
    Deal ReadingDeal;
    DiaryCardLists DiaryLists;
    // The card editor's files in Temp/, and where its choosers were left.
    CardWorkingFiles CardFiles;
    ChooserMemory PictureChooser;
    ChooserMemory SoundChooser;
    // The saved entries whose password the journal was given in this run.
    QSet<QString> UnlockedEntries;
    // Records read only to be looked at and dropped.
    CardRecord ScratchCard;
    DeckRecord ScratchDeck;
    SpreadRecord ScratchSpread;

    // The options of the run.
    int DesignMode = 0;  // 1: designer opened for a new design, 0: existing
    bool UseReversed = false;
    bool AllowDuplicateCards = false;
    // The duplicates box of the spread chooser from one selection to the
    // next, for readings and diary entries alike.
    bool LastAllowDuplicateCards = false;
    std::array<bool, 4> CardTypeSelected{};
    int SelectedLocation = 0;
    bool ChooserManageMode = false;
    bool InstallAllSpreads = false;
    int DesignExistsChoice = 0;  // a DesignExistsAnswer
    // After a rename: the new name, at most 30 characters. The question's
    // screen unloads as it answers, so the installer reads it here.
    QString DesignExistsNewName;
    // During an installation: the decks the deck chooser offers, those the
    // installation adds included, since they are not in Decks.dck yet.
    const std::vector<DeckRecord>* DecksOnOffer = nullptr;
    // Palette entries that mark locations on the reading and diary screens.
    int CurrentLocationColour = 4;
    int OtherLocationColour = 14;
};

// The one run-wide state. Change it through the names below; only FormPaths
// writes TheRun.Paths.
extern RunState TheRun;

// Puts every run-wide value back to its state before start-up, the random
// generator's included (tests start several runs in one process). The clock
// and the seed a test fixes are the test's and stay.
void ResetRun();

// The kinds of design the design-exists question names.
enum DesignKind : int { DesignCard = 0, DesignDeck = 1, DesignSpread = 2 };

// The answers of the design-exists question.
enum DesignExistsAnswer : int {
    DesignExistsNone = 0,
    DesignExistsRename = 1,
    DesignExistsOverwrite = 2,
    DesignExistsSkip = 3,
    DesignExistsOverwriteAll = 4,
    DesignExistsSkipAll = 5,
};
