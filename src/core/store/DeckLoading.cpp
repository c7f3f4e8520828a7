// The deck in memory, its card types, and the names of the picture files in
// Cards/.
#include "core/store/DeckLoading.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

bool LoadDeckCards() {
    static_cast<DeckRecord&>(TheRun.CurrentDeck) = TheRun.ListDeck;
    const int cardCount = TheRun.CurrentDeck.CardCount;
    // Never more places than Cards.crd has records: a deck claiming more
    // cards than that fails below all the same, and a claim of 32,767 must
    // not cost 160 MB on the way.
    TheRun.CurrentDeck.DeckCards.Redim(1, std::min(cardCount, CountCards()));
    const CardRecord empty = ZeroRecord<CardRecord>();
    for (CardRecord& card : TheRun.CurrentDeck.DeckCards) card = empty;

    // Records whose pictures have gone are written back blank: the element
    // of DeckCards stands all zero at that moment, so the card is lost to
    // later loads, and the load after next reports the deck as incomplete.
    RecordEdit<CardRecord> blanked(TheRun.Paths.CardsPath);
    int cardNumber = 1;
    {
        // Only the deck's own cards are decoded; the others are passed over
        // by the id in their bytes.
        const int idAt = OffsetOf(&CardRecord::CardDeckId);
        RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
        while (cardNumber <= cardCount) {
            const char* raw = reader.NextRaw();
            if (!raw) break;
            if (RawInteger(raw, idAt) != TheRun.CurrentDeck.DeckId) continue;
            DecodeRecord(raw, TheRun.ScratchCard);
            if (ValidateCardPictures(TheRun.ScratchCard))
                blanked.Put(reader.Current(), TheRun.CurrentDeck.DeckCards(cardNumber));
            TheRun.CurrentDeck.DeckCards(cardNumber) = TheRun.ScratchCard;
            ++cardNumber;
        }
    }
    blanked.Commit();

    if (cardNumber <= cardCount) return false;
    TheRun.CurrentDeck.CardTypeName = TheRun.ListDeck.CardTypeName;
    TheRun.CurrentDeck.CardTypeUsed = TheRun.ListDeck.CardTypeUsed;
    return true;
}

void StoreListDeck() { TheRun.ListDeck = static_cast<const DeckRecord&>(TheRun.CurrentDeck); }

bool ValidateCardPictures(CardRecord& card) {
    bool replaced = false;
    for (auto& picture : card.CardPicture) {
        if (!FileExists(TheRun.Paths.CardsDir + picture.Value())) {
            picture = DefaultPictureName;
            replaced = true;
        }
    }
    return replaced;
}

int CardTypeIndex(const QString& typeName) {
    const QString wanted = TrimField(typeName);
    for (int i = 0; i < static_cast<int>(TheRun.CurrentDeck.CardTypeName.size()); ++i) {
        if (TheRun.CurrentDeck.CardTypeName[static_cast<std::size_t>(i)].Trimmed() == wanted) return i;
    }
    return -1;
}

int CountCardsOfTypeName(const QString& typeName) {
    const int type = CardTypeIndex(typeName);
    int count = 0;
    for (const CardRecord& card : TheRun.CurrentDeck.DeckCards) {
        if (card.CardType == type) ++count;
    }
    return count;
}

int CountSelectedCardsOfType(const BoundedArray<CardRecord>& cards, int cardCount, int typeIndex) {
    if (typeIndex < 0 || typeIndex >= static_cast<int>(TheRun.CardTypeSelected.size()))
        RaiseError(errSubscriptOutOfRange);
    if (!TheRun.CardTypeSelected[static_cast<std::size_t>(typeIndex)]) return 0;
    int count = 0;
    for (int i = 1; i <= cardCount; ++i) {
        if (cards(i).CardType == typeIndex) ++count;
    }
    return count;
}

// ---- Names of picture files -----------------------------------------------------

QString CardUprightName(int number) {
    return QStringLiteral("CU") + QStringLiteral("%1").arg(number, 5, 10, QLatin1Char('0'));
}

QString CardReversedName(int number) {
    return QStringLiteral("CR") + QStringLiteral("%1").arg(number, 5, 10, QLatin1Char('0'));
}

QString SpreadPictureName(int number) {
    const QString digits = QString::number(number);
    if (number < 10) return QStringLiteral("S00000") + digits;
    if (number < 100) return QStringLiteral("S0000") + digits;
    if (number < 1000) return QStringLiteral("S000") + digits;
    if (number < 10000) return QStringLiteral("S00") + digits;
    return QStringLiteral("S0") + digits;
}

QString CardPictureStem(int side, int number) { return side == 0 ? CardUprightName(number) : CardReversedName(number); }

TakenStems::TakenStems(const QStringList& folders, const QStringList& going) {
    // One listing per folder; each name enters every stem it takes, so that
    // a search through a full Cards/ asks a set, not the folder.
    QSet<QString> leaving;
    for (const QString& path : going) leaving.insert(NativePath(path));
    for (const QString& folder : folders) {
        const QString dir = AddTrailingBackslash(folder);
        for (const QString& name : Dir(dir + QStringLiteral("*.*")))
            if (!leaving.contains(NativePath(dir + name))) Take(name);
    }
}

bool TakenStems::Contains(const QString& stem) const { return stems_.contains(stem.toCaseFolded()); }

void TakenStems::Take(const QString& fileName) {
    const QString folded = fileName.toCaseFolded();
    for (qsizetype rest = 0; rest <= 4 && rest < folded.size(); ++rest)
        stems_.insert(folded.left(folded.size() - rest));
    for (qsizetype dot = folded.indexOf(QLatin1Char('.')); dot > 0; dot = folded.indexOf(QLatin1Char('.'), dot + 1))
        stems_.insert(folded.left(dot));
}

QString NewBackgroundName(const QString& sourcePath) {
    return NewBackgroundName(sourcePath, TakenStems({TheRun.Paths.CardsDir}));
}

QString NewBackgroundName(const QString& sourcePath, const TakenStems& taken) {
    int n = 1;
    while (taken.Contains(SpreadPictureName(n))) ++n;
    return SpreadPictureName(n) + TrimField(sourcePath).right(4);
}

int FreeCardNumber(int side, const QStringList& folders, int from) {
    const TakenStems taken(folders);
    int n = from;
    while (taken.Contains(CardPictureStem(side, n))) ++n;
    return n;
}
