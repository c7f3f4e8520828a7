#pragma once
// The run-wide values: paths formed at start-up, the records that screens hand
// to each other, and the options of the entry in hand.
#include <QString>
#include <array>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

// Paths. Directories end in '/'. Formed once by FormPaths at start-up.
extern QString AppPath;
extern QString SettingsPath;
extern QString SpreadsPath;
extern QString LocationsPath;
extern QString DecksPath;
extern QString CardsDir;
extern QString PackagesDir;
extern QString AttachmentsDir;
extern QString CardsPath;
extern QString ReadingsPath;
extern QString DiaryPath;
extern QString DefaultPicturePath;
extern QString TempFilePath;
extern QString TempDir;
extern QString TempCardsPath;

// The name under which records know the shared default picture: 12
// characters, the last a space, exactly filling a picture field.
inline const QString DefaultPictureName = QStringLiteral("C000000.bmp ");

// The deck in memory: the deck's fields and its cards, numbered from 1.
struct DeckInMemory : DeckRecord {
    BoundedArray<CardRecord> DeckCards;
};

extern DeckInMemory CurrentDeck;
extern DeckRecord ListDeck;
extern CardRecord CurrentCard;
extern SpreadRecord CurrentSpread;
extern BoundedArray<LocationRecord> SpreadLocations;  // indexed by LocationNumber
extern ReadingRecord CurrentReading;
extern DiaryRecord CurrentDiary;
extern CardRecord ScratchCard;
extern DeckRecord ScratchDeck;
extern SpreadRecord ScratchSpread;

// State of the run.
extern int DesignMode;                 // 1: designer opened for a new design, 0: existing
extern bool UseReversed;
extern bool AllowDuplicateCards;
extern std::array<bool, 4> CardTypeSelected;
extern int SelectedLocation;
extern bool ChooserManageMode;
extern bool InstallAllSpreads;
extern int DesignExistsChoice;         // a DesignExistsAnswer

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

// Palette entries that mark locations on the reading and diary screens.
extern int CurrentLocationColour;
extern int OtherLocationColour;

// Puts every run-wide value back to its state before start-up (tests start
// several runs in one process).
void ResetRunState();
