#include "core/decks/CardStore.h"

#include <QCoreApplication>

#include "core/decks/CardEditing.h"

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"

void RenameWorkingFile(const QString& workingName, const QString& finalName, bool keepWorkingFile) {
    try {
        if (keepWorkingFile) FileCopyUnsynced(TheRun.Paths.TempDir + workingName, TheRun.Paths.TempDir + finalName);
        else FileMoveUnsynced(TheRun.Paths.TempDir + workingName, TheRun.Paths.TempDir + finalName);
    } catch (const RuntimeError&) {
    }
}

QString PlaceWorkingPicture(int side, const QString& workingName, bool keepWorkingFile) {
    const QString finalName =
        CardPictureStem(side, FreeCardNumber(side, {TheRun.Paths.TempDir})) + workingName.right(4);
    RenameWorkingFile(workingName, finalName, keepWorkingFile);
    return finalName;
}

void StoreWorkingFiles(CardRecord& card) {
    CardWorkingFiles& files = WorkingFiles();
    if (files.Picture[0].startsWith(UprightPictureStem)) card.CardPicture[0] = PlaceWorkingPicture(0, files.Picture[0]);
    if (files.Picture[1].startsWith(ReversedPictureStem))
        card.CardPicture[1] =
            PlaceWorkingPicture(1, files.Picture[1], files.Picture[1] == TheRun.Paths.DefaultPicturePath);
    const QString soundStems[2] = {UprightSoundStem, ReversedSoundStem};
    for (std::size_t side = 0; side < 2; ++side) {
        const QString& working = files.Sound[side];
        if (!working.startsWith(soundStems[side])) continue;
        card.CardSound[side] = QStringLiteral("M") + card.CardPicture[side].Value().left(7) + working.right(4);
        RenameWorkingFile(working, card.CardSound[side].Value());
    }
    files.Picture = {};
    files.Sound = {};
}

void RemoveDeckCard(DeckInMemory& deck, int position) {
    for (const auto& picture : deck.DeckCards(position).CardPicture)
        if (picture.Value() != DefaultPictureName) KillIgnoringErrors(TheRun.Paths.TempDir + picture.Value());
    const int count = deck.CardCount;
    for (int i = position; i < count; ++i) deck.DeckCards(i) = deck.DeckCards(i + 1);
    deck.CardCount = static_cast<Integer>(count - 1);
    deck.DeckCards.RedimPreserve(count - 1);
}

int AppendDeckCard(const CardRecord& card) {
    TheRun.CurrentDeck.CardCount = static_cast<Integer>(TheRun.CurrentDeck.CardCount + 1);
    TheRun.CurrentDeck.DeckCards.RedimPreserve(TheRun.CurrentDeck.CardCount);
    TheRun.CurrentDeck.DeckCards(TheRun.CurrentDeck.CardCount) = card;
    return TheRun.CurrentDeck.CardCount;
}

QString CardLimitMessage() {
    return QCoreApplication::translate("CardStore", "The number of cards in a deck cannot exceed %1.")
        .arg(MaxDeckCards);
}

QString NewCardTitleProblem(const QString& title, const QStringList& otherTitles) {
    const QString wanted = TrimField(title);
    if (wanted.isEmpty()) return QCoreApplication::translate("CardStore", "Please enter a title for this card.");
    bool taken = false;
    for (const CardRecord& card : TheRun.CurrentDeck.DeckCards) taken = taken || card.CardTitle.Trimmed() == wanted;
    for (const QString& other : otherTitles) taken = taken || TrimField(other) == wanted;
    return taken ? QCoreApplication::translate("CardStore",
                                               "You already have a card with the same title. Please change the title.")
                 : QString();
}
