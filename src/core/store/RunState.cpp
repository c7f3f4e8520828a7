#include "core/store/RunState.h"

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

DeckInMemory CurrentDeck;
DeckRecord ListDeck;
CardRecord CurrentCard;
SpreadRecord CurrentSpread;
BoundedArray<LocationRecord> SpreadLocations;
ReadingRecord CurrentReading;
DiaryRecord CurrentDiary;
CardRecord ScratchCard;
DeckRecord ScratchDeck;
SpreadRecord ScratchSpread;

int DesignMode = 0;
bool UseReversed = false;
bool AllowDuplicateCards = false;
std::array<bool, 4> CardTypeSelected{};
int SelectedLocation = 0;
bool ChooserManageMode = false;
bool InstallAllSpreads = false;
int DesignExistsChoice = 0;

int CurrentLocationColour = 4;
int OtherLocationColour = 14;

void ResetRunState() {
    for (QString* path : {&AppPath, &SettingsPath, &SpreadsPath, &LocationsPath, &DecksPath, &CardsDir,
                          &PackagesDir, &AttachmentsDir, &CardsPath, &ReadingsPath, &DiaryPath,
                          &DefaultPicturePath, &TempFilePath, &TempDir, &TempCardsPath})
        path->clear();
    CurrentDeck = DeckInMemory{};
    ListDeck = DeckRecord{};
    CurrentCard = CardRecord{};
    CurrentSpread = SpreadRecord{};
    SpreadLocations = BoundedArray<LocationRecord>{};
    CurrentReading = ReadingRecord{};
    CurrentDiary = DiaryRecord{};
    ScratchCard = CardRecord{};
    ScratchDeck = DeckRecord{};
    ScratchSpread = SpreadRecord{};
    DesignMode = 0;
    UseReversed = false;
    AllowDuplicateCards = false;
    CardTypeSelected = {};
    SelectedLocation = 0;
    ChooserManageMode = false;
    InstallAllSpreads = false;
    DesignExistsChoice = 0;
    CurrentLocationColour = 4;
    OtherLocationColour = 14;
}
