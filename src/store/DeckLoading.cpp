// The deck in memory, its card types, and the names of the picture files in
// Cards/.
#include <QSet>
#include <utility>
#include <vector>

#include "platform/FileSys.h"
#include "platform/MsgBox.h"
#include "store/RecordFile.h"
#include "store/mdlSubRoutines.h"

bool LoadDeck(bool& DeckRemoved) {
    DeckRemoved = false;
    static_cast<DeckRecord&>(CurrentDeck) = ListDeck;
    const int cardCount = CurrentDeck.CardCount;
    CurrentDeck.DeckCards.Redim(1, cardCount);
    const CardRecord empty = ZeroRecord<CardRecord>();
    for (CardRecord& card : CurrentDeck.DeckCards) card = empty;

    // Records whose pictures have gone are written back blank: the element
    // of DeckCards stands all zero at that moment, so the card is lost to
    // later loads, and the load after next reports the deck as incomplete.
    RecordEdit<CardRecord> blanked(CardsPath);
    int cardNumber = 1;
    {
        // Only the deck's own cards are decoded; the others are passed over
        // by the id in their bytes.
        const int idAt = OffsetOf(&CardRecord::CardDeckId);
        RecordReader<CardRecord> reader(CardsPath);
        while (cardNumber <= cardCount) {
            const char* raw = reader.NextRaw();
            if (!raw) break;
            if (RawInteger(raw, idAt) != CurrentDeck.DeckId) continue;
            DecodeRecord(raw, ScratchCard);
            if (ValidateCardPictures(ScratchCard))
                blanked.Put(reader.Current(), CurrentDeck.DeckCards(cardNumber));
            CurrentDeck.DeckCards(cardNumber) = ScratchCard;
            ++cardNumber;
        }
    }
    blanked.Commit();

    if (cardNumber <= cardCount) {
        const int answer = MsgBox(QStringLiteral("This deck is missing some pictures. Cannot continue loading.\n"
                                                 "Do you want to remove it?"),
                                  vbYesNo | vbCritical);
        if (answer == vbYes) {
            DeleteDeck(FindDeckByName(ListDeck.DeckName.Value()));
            DeckRemoved = true;
        }
        return false;
    }
    CurrentDeck.CardTypeName = ListDeck.CardTypeName;
    CurrentDeck.CardTypeUsed = ListDeck.CardTypeUsed;
    return true;
}

void StoreListDeck() { ListDeck = static_cast<const DeckRecord&>(CurrentDeck); }

bool ValidateCardPictures(CardRecord& card) {
    bool replaced = false;
    for (auto& picture : card.CardPicture) {
        if (!FileExists(CardsDir + picture.Value())) {
            picture = DefaultPictureName;
            replaced = true;
        }
    }
    return replaced;
}

int CardTypeIndex(const QString& typeName) {
    const QString wanted = TrimField(typeName);
    for (int i = 0; i < static_cast<int>(CurrentDeck.CardTypeName.size()); ++i) {
        if (CurrentDeck.CardTypeName[static_cast<std::size_t>(i)].Trimmed() == wanted) return i;
    }
    return -1;
}

int CountCardsOfTypeName(const QString& typeName) {
    const int type = CardTypeIndex(typeName);
    int count = 0;
    for (const CardRecord& card : CurrentDeck.DeckCards) {
        if (card.CardType == type) ++count;
    }
    return count;
}

int CountSelectedCardsOfType(const BoundedArray<CardRecord>& cards, int cardCount, int typeIndex) {
    if (typeIndex < 0 || typeIndex >= static_cast<int>(CardTypeSelected.size())) RaiseError(errSubscriptOutOfRange);
    if (!CardTypeSelected[static_cast<std::size_t>(typeIndex)]) return 0;
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

namespace {

// The stems taken in a folder: a file blocks the stem before its first dot,
// letters without case, just as the pattern "stem.*" would find it. One
// listing answers every candidate, so a search through a full Cards/ stays
// quick. A file about to go (its full path in `going`) blocks nothing.
void CollectStems(const QString& folder, QSet<QString>& stems, const QString& going = QString()) {
    for (const QString& name : Dir(AddTrailingBackslash(folder) + QStringLiteral("*.*"))) {
        if (!going.isEmpty() && NativePath(AddTrailingBackslash(folder) + name) == NativePath(going)) continue;
        const qsizetype dot = name.indexOf(QLatin1Char('.'));
        if (dot >= 0) stems.insert(name.left(dot).toCaseFolded());
    }
}

template <class NameOf>
int FirstFreeNumber(const QStringList& folders, int from, NameOf nameOf, const QString& going = QString()) {
    QSet<QString> stems;
    for (const QString& folder : folders) CollectStems(folder, stems, going);
    int n = from;
    while (stems.contains(nameOf(n).toCaseFolded())) ++n;
    return n;
}

QString CardPictureName(int side, int number) {
    return side == 0 ? CardUprightName(number) : CardReversedName(number);
}

}  // namespace

QString NewBackgroundName(const QString& sourcePath, const QString& going) {
    const int n = FirstFreeNumber({CardsDir}, 1, SpreadPictureName, going);
    return SpreadPictureName(n) + TrimField(sourcePath).right(4);
}

int FreeCardPictureNumber(int side, const QStringList& folders, int from) {
    return FirstFreeNumber(folders, from, [side](int n) { return CardPictureName(side, n); });
}

QString FreeCardPictureName(int side, const QString& folder) {
    return CardPictureName(side, FreeCardPictureNumber(side, {folder}));
}
