#include "core/packages/PackageStaging.h"

#include "core/packages/PackageFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {

// Copies a file a record names from Cards/ into Temp/ under the same name.
// Temp/ holds working copies only, emptied after packing and at every
// start, so the copies are not waited for on the disk.
void StageFile(const QString& name) { FileCopyUnsynced(TheRun.Paths.CardsDir + name, TheRun.Paths.TempDir + name); }

// Whether a record's field names a file of Cards/ that is there. A name that
// is no plain file name names none: a package carries plain names only.
template <int N>
bool NamesAFile(const FixedText<N>& field) {
    const QString name = field.Trimmed();
    return !name.isEmpty() && MemberFileName(name) == name && FileExists(TheRun.Paths.CardsDir + name);
}

// A field naming a file that is not there is packed as the design shows it,
// naming none. A file that is there and cannot be copied still ends the
// packing.
template <int N>
void StageOrBlank(FixedText<N>& field) {
    if (field.IsBlank()) return;
    if (NamesAFile(field)) StageFile(field.Trimmed());
    else field = QString();
}

// A spread is forgiving: its file that cannot be copied, for whatever
// reason, is left out in the same way.
template <int N>
void StageOrBlankForgiving(FixedText<N>& field) {
    try {
        StageOrBlank(field);
    } catch (const RuntimeError&) {
        field = QString();
    }
}

// A record file without records is not staged: a package member cannot be
// empty, and a missing record file holds no records.
void StageRecordFile(const char* name, const QByteArray& records) {
    if (!records.isEmpty()) WriteWholeFile(TheRun.Paths.TempDir + QLatin1String(name), records);
}

}  // namespace

void PackageStaging::ApplyPassword(Integer& locked, FixedText<25>& password) {
    if (!UsePassword) return;
    if (locked != 0) {
        if (ProtectedDesignMet) ProtectedDesignMet();
        return;
    }
    locked = True16;
    password = Password;
}

void PackageStaging::StageDecks() {
    DecksPacked = 0;
    PackedDeckIds.clear();
    LastPackedDeckId = 0;
    QByteArray staged;
    for (const QString& name : DeckNames) {
        DeckRecord deck;
        if (!GetRecord(TheRun.Paths.DecksPath, FindDeckByName(name), deck)) continue;
        ApplyPassword(deck.DeckLocked, deck.DeckPassword);
        PackedDeckIds.push_back(deck.DeckId);
        StageOrBlank(deck.DeckAttachment);
        staged += EncodeRecord(deck);
        ++DecksPacked;
    }
    StageRecordFile("Temp.dck", staged);
}

bool PackageStaging::IsCardOfPackedDeck(Integer id) {
    if (id == 0) return false;
    if (id == LastPackedDeckId) return true;
    for (std::size_t k = 0; k < PackedDeckIds.size(); ++k) {
        if (PackedDeckIds[k] == id) {
            LastPackedDeckId = id;
            return true;
        }
        if (k + 1 >= PackedDeckIds.size() || PackedDeckIds[k + 1] == 0) return false;
    }
    return false;
}

void PackageStaging::StageCards() {
    QByteArray staged;
    RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
    CardRecord card;
    while (reader.Next(card)) {
        if (!IsCardOfPackedDeck(card.CardDeckId)) continue;
        for (std::size_t side = 0; side < 2; ++side) {
            FixedText<12>& picture = card.CardPicture[side];
            // A picture that has gone is packed as the default picture, which
            // the deck shows in its place.
            if (!NamesAFile(picture)) picture = DefaultPictureName;
            // The upright picture travels always, the default one included;
            // the reversed one unless it is the shared default.
            if (side == 0 || picture.Value() != DefaultPictureName) StageFile(picture.Trimmed());
        }
        for (FixedText<12>& sound : card.CardSound) StageOrBlank(sound);
        staged += EncodeRecord(card);
    }
    StageRecordFile("Temp.crd", staged);
}

void PackageStaging::StageAll() {
    if (!DeckNames.isEmpty()) {
        StageDecks();
        StageCards();
    }
    if (!SpreadNames.isEmpty()) StageSpreads();
}

void PackageStaging::StageSpreads() {
    SpreadsPacked = 0;
    QByteArray spreads;
    QByteArray locations;
    for (const QString& name : SpreadNames) {
        SpreadRecord spread;
        if (!GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), spread)) continue;
        ApplyPassword(spread.SpreadLocked, spread.SpreadPassword);
        // A spread's file that has gone is left out with its field blanked,
        // before the record is packed; the spread keeps everything else, its
        // locations too.
        StageOrBlankForgiving(spread.BackgroundFile);
        StageOrBlankForgiving(spread.SpreadAttachment);
        LoadSpreadLocations(spread.SpreadId, spread.LocationCount);
        for (int n = 1; n <= spread.LocationCount; ++n) {
            LocationRecord& location = TheRun.SpreadLocations(n);
            location.LocationSpreadId = spread.SpreadId;
            // A location the store lacks goes as a blank one in its place.
            location.LocationNumber = static_cast<Integer>(n);
            StageOrBlankForgiving(location.LocationAttachment);
            locations += EncodeRecord(location);
        }
        spreads += EncodeRecord(spread);
        ++SpreadsPacked;
    }
    StageRecordFile("Temp.spr", spreads);
    StageRecordFile("Temp.loc", locations);
}
