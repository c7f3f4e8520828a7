#include "core/store/NewDesigns.h"

#include "core/platform/OleDate.h"
#include "core/store/Lookups.h"

void ResetDesigner(Designer& designer) { designer = Designer{}; }

void ResetSpread(SpreadRecord& spread) {
    spread = SpreadRecord{};
    spread.SpreadId = -1;
    spread.AllowedDeckId.fill(-1);
    spread.AllowedDeckCount = 0;
    ResetDesigner(spread.SpreadDesigner);
    spread.ModifiedOn = OleToday();
    spread.StretchBackground = True16;
}

void ResetLocation(LocationRecord& location) {
    location = LocationRecord{};
    location.LocationLeft = 6480;
    location.LocationTop = 240;
}

void ResetCard(CardRecord& card) {
    card = CardRecord{};
    card.CardPicture[0] = DefaultPictureName;
    card.CardPicture[1] = DefaultPictureName;
    card.CardType = 0;
    card.CardDeckId = -1;
}

void ResetReading(ReadingRecord& reading) {
    reading = ReadingRecord{};
    reading.SavedOn = 0;
    reading.ReadingSpreadId = -1;
    reading.ReadingDeckId = -1;
    reading.DealtCard.fill(0);
    reading.DealtUpright.fill(True16);
    reading.TableCardVisible.fill(True16);
    reading.LocationCard.fill(0);
    reading.LocationIsUpright.fill(True16);
    reading.CardTypeSelected.fill(False16);
}

void ResetDiary(DiaryRecord& diary) {
    diary = DiaryRecord{};
    diary.SavedOn = 0;
    diary.ReadingSpreadId = -1;
    diary.ReadingDeckId = -1;
    diary.DiaryChoice = 1;
    diary.DealtCard.fill(0);
    diary.DealtUpright.fill(True16);
    diary.CardTypeSelected.fill(False16);
}

void ResetDeck() {
    for (CardRecord& card : TheRun.CurrentDeck.DeckCards) ResetCard(card);
    TheRun.CurrentDeck.DeckCards.Clear();
    DeckRecord& deck = TheRun.CurrentDeck;
    deck = DeckRecord{};
    deck.IncludesReversed = False16;
    deck.DisplayCardTitles = True16;
    ResetDesigner(deck.DeckDesigner);
    deck.ModifiedOn = OleToday();
    deck.CardCount = 0;
    deck.DeckRevision = 0;
    deck.DeckId = -1;
    deck.CardTypeName[0] = QStringLiteral("Major Arcana");
    deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
    deck.CardTypeUsed = {True16, True16, False16, False16};
    deck.DeckReserved = 0;
}
