#include "core/decks/CardStore.h"

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"

void RenameWorkingFile(const QString& workingName, const QString& finalName, bool keepWorkingFile) {
    try {
        if (keepWorkingFile) FileCopyUnsynced(TempDir + workingName, TempDir + finalName);
        else FileMoveUnsynced(TempDir + workingName, TempDir + finalName);
    } catch (const RuntimeError&) {
    }
}

QString PlaceWorkingPicture(int side, const QString& workingName, bool keepWorkingFile) {
    const QString finalName = CardPictureStem(side, FreeCardNumber(side, {TempDir})) + workingName.right(4);
    RenameWorkingFile(workingName, finalName, keepWorkingFile);
    return finalName;
}

int AppendDeckCard(const CardRecord& card) {
    CurrentDeck.CardCount = static_cast<Integer>(CurrentDeck.CardCount + 1);
    CurrentDeck.DeckCards.RedimPreserve(CurrentDeck.CardCount);
    CurrentDeck.DeckCards(CurrentDeck.CardCount) = card;
    return CurrentDeck.CardCount;
}

QString CardLimitMessage() {
    return QStringLiteral("The number of cards in a deck cannot exceed ") + QString::number(MaxDeckCards) +
           QStringLiteral(".");
}

QString NewCardTitleProblem(const QString& title, const QStringList& otherTitles) {
    const QString wanted = TrimField(title);
    if (wanted.isEmpty()) return QStringLiteral("Please enter a title for this card.");
    bool taken = false;
    for (const CardRecord& card : CurrentDeck.DeckCards) taken = taken || card.CardTitle.Trimmed() == wanted;
    for (const QString& other : otherTitles) taken = taken || TrimField(other) == wanted;
    return taken ? QStringLiteral("You already have a card with the same title. Please change the title.") : QString();
}
