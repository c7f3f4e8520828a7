#include "core/store/Conversion.h"

#include <algorithm>

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/RunState.h"

namespace {

// The old layouts had room for this many locations in a spread record.
constexpr int OldLocationPlaces = 15;

// The raw bytes of an old text field in a field at least as wide, padded with
// spaces: a name typed in the earlier version reads back exactly as it was.
template <int To, int From>
FixedText<To> Widened(const FixedText<From>& from) {
    static_assert(To >= From, "a converted field is never narrower than the old one");
    FixedText<To> to;
    std::copy(from.Bytes.begin(), from.Bytes.end(), to.Bytes.begin());
    return to;
}

// The new file is built under a name beside it and renamed into place once
// whole, so that a failure never leaves a half-written file under the name.
QString BuildingName(const QString& path) { return path + QStringLiteral(".part"); }

template <class Old, class New, class Convert>
void RewriteFile(const QString& oldPath, const QString& newPath, Convert convert) {
    RecordReader<Old> reader(oldPath);
    RecordRewriter<New> writer(BuildingName(newPath), newPath);
    Old old;
    while (reader.Next(old)) writer.Add(convert(old));
    writer.Commit();
}

// Puts a finished file from Temp/ over a real record file: the copy is made
// beside the real file and renamed over it, so the real file is at every
// moment either the old one or the new one, whole. The Temp/ file goes right
// after.
void PutInPlace(const QString& tempPath, const QString& realPath) {
    const QString beside = NewFileBeside(realPath);
    try {
        FileCopy(tempPath, beside);
        ReplaceFile(beside, realPath);
    } catch (...) {
        KillIgnoringErrors(beside);
        throw;
    }
    Kill(tempPath);
}

}  // namespace

DeckRecord ConvertDeck(const OldDeckRecord& old) {
    DeckRecord deck;  // the attachment stays blank
    deck.IncludesReversed = old.OldIncludesReversed;
    deck.DeckName = Widened<50>(old.OldDeckName);
    deck.DisplayCardTitles = True16;  // the old decks always showed their titles
    deck.DeckTitle = Widened<50>(old.OldDeckTitle);
    deck.DeckDesigner = old.OldDesigner;
    deck.ModifiedOn = old.OldModifiedOn;
    deck.DeckDescription = old.OldDescription;
    deck.DeckComments = old.OldComments;
    deck.DeckLocked = old.OldLocked;
    deck.DeckPassword = old.OldPassword;
    deck.CardCount = old.OldCardCount;
    deck.DeckRevision = old.OldRevision;
    deck.DeckId = old.OldDeckId;
    deck.CardTypeName = old.OldTypeName;
    deck.CardTypeUsed = old.OldTypeUsed;
    deck.DeckReserved = 0;
    return deck;
}

CardRecord ConvertCard(const OldCardRecord& old) {
    CardRecord card;  // no sounds in the old cards: both stay blank
    card.CardType = old.OldCardType;
    card.CardTitle = Widened<50>(old.OldCardTitle);
    for (int side = 0; side < 2; ++side) {
        card.CardDescription[side] = Widened<1500>(old.OldCardDescription[side]);
        card.CardKeywords[side] = Widened<1000>(old.OldCardKeywords[side]);
    }
    card.CardPicture = old.OldCardPicture;
    card.CardDeckId = old.OldCardDeckId;
    card.CardReserved = 0;
    return card;
}

int OldLocationsHeld(const OldSpreadRecord& old) { return std::clamp<int>(old.OldLocationCount, 0, OldLocationPlaces); }

SpreadRecord ConvertSpread(const OldSpreadRecord& old) {
    SpreadRecord spread;  // the reserved text and the attachment stay blank
    spread.SpreadName = Widened<50>(old.OldSpreadName);
    spread.SpreadTitle = Widened<50>(old.OldSpreadTitle);
    spread.SpreadId = old.OldSpreadId;
    spread.AllowedDeckId = old.OldAllowedDeckId;
    spread.AllowedDeckCount = old.OldAllowedDeckCount;
    spread.SpreadDesigner = old.OldDesigner;
    spread.ModifiedOn = old.OldModifiedOn;
    spread.SpreadDescription = old.OldDescription;
    spread.SpreadLocked = old.OldLocked;
    spread.SpreadPassword = old.OldPassword;
    spread.SpreadComments = Widened<650>(old.OldComments);
    spread.AskQuestion = old.OldAskQuestion;
    // The count must match the locations written for the spread.
    spread.LocationCount = static_cast<Integer>(OldLocationsHeld(old));
    spread.SpreadRevision = old.OldRevision;
    spread.StretchBackground = old.OldStretch;
    spread.BackgroundFile = old.OldBackgroundFile;
    return spread;
}

LocationRecord ConvertLocation(const OldLocation& old, Integer spreadId, Integer number) {
    LocationRecord location;  // the attachment stays blank
    location.LocationTitle = Widened<50>(old.OldLocationTitle);
    location.LocationSpreadId = spreadId;
    location.LocationNumber = number;
    location.LocationDescription = Widened<650>(old.OldLocationDescription);
    location.LocationQuestion = old.OldLocationQuestion;
    location.LocationLeft = old.OldLocationLeft;
    location.LocationTop = old.OldLocationTop;
    return location;
}

void ConvertDeckFile(const QString& oldPath, const QString& newPath) {
    RewriteFile<OldDeckRecord, DeckRecord>(oldPath, newPath, ConvertDeck);
}

void ConvertCardFile(const QString& oldPath, const QString& newPath) {
    RewriteFile<OldCardRecord, CardRecord>(oldPath, newPath, ConvertCard);
}

void ConvertSpreadFile(const QString& oldPath, const QString& newSpreadsPath, const QString& newLocationsPath) {
    RecordReader<OldSpreadRecord> reader(oldPath);
    RecordRewriter<SpreadRecord> spreads(BuildingName(newSpreadsPath), newSpreadsPath);
    RecordRewriter<LocationRecord> locations(BuildingName(newLocationsPath), newLocationsPath);
    OldSpreadRecord old;
    while (reader.Next(old)) {
        const int held = OldLocationsHeld(old);
        for (int i = 1; i <= held; ++i)
            locations.Add(ConvertLocation(old.OldLocations[i - 1], old.OldSpreadId, static_cast<Integer>(i)));
        spreads.Add(ConvertSpread(old));
    }
    spreads.Commit();
    locations.Commit();
}

void ConvertDatabase() {
    // The copies come first, so that the old data survive whatever follows;
    // their presence also keeps a later start from converting again.
    for (const QString& path : {TheRun.Paths.DecksPath, TheRun.Paths.SpreadsPath, TheRun.Paths.CardsPath,
                                TheRun.Paths.ReadingsPath, TheRun.Paths.DiaryPath})
        FileCopy(path, path + QStringLiteral(".bkp"));

    const QString tempDecks = TheRun.Paths.TempDir + QStringLiteral("Temp.dck");
    const QString tempSpreads = TheRun.Paths.TempDir + QStringLiteral("Temp.spr");
    const QString tempLocations = TheRun.Paths.TempDir + QStringLiteral("Temp.loc");
    const QString tempCards = TheRun.Paths.TempDir + QStringLiteral("Temp.crd");

    ConvertDeckFile(TheRun.Paths.DecksPath, tempDecks);
    // Whatever locations file stands there belongs to no converted spread.
    if (FileExists(TheRun.Paths.LocationsPath)) Kill(TheRun.Paths.LocationsPath);
    ConvertSpreadFile(TheRun.Paths.SpreadsPath, tempSpreads, tempLocations);
    ConvertCardFile(TheRun.Paths.CardsPath, tempCards);

    PutInPlace(tempDecks, TheRun.Paths.DecksPath);
    PutInPlace(tempSpreads, TheRun.Paths.SpreadsPath);
    PutInPlace(tempLocations, TheRun.Paths.LocationsPath);
    PutInPlace(tempCards, TheRun.Paths.CardsPath);
}
