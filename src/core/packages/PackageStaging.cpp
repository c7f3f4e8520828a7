#include "core/packages/PackageStaging.h"

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {

// Copies a file a record names from Cards/ into Temp/ under the same name.
// Temp/ holds working copies only, emptied after packing and at every
// start, so the copies are not waited for on the disk.
void StageFile(const QString& name) { FileCopyUnsynced(CardsDir + name, TempDir + name); }

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
        if (!GetRecord(DecksPath, FindDeckByName(name), deck)) continue;
        ApplyPassword(deck.DeckLocked, deck.DeckPassword);
        PackedDeckIds.push_back(deck.DeckId);
        if (!deck.DeckAttachment.IsBlank()) StageFile(deck.DeckAttachment.Trimmed());
        staged += EncodeRecord(deck);
        ++DecksPacked;
    }
    WriteWholeFile(TempDir + QStringLiteral("Temp.dck"), staged);
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
    RecordReader<CardRecord> reader(CardsPath);
    CardRecord card;
    while (reader.Next(card)) {
        if (!IsCardOfPackedDeck(card.CardDeckId)) continue;
        staged += EncodeRecord(card);
        // The upright picture goes always, the default picture included; the
        // reversed one unless it is the shared default.
        StageFile(card.CardPicture[0].Trimmed());
        if (card.CardPicture[1].Value() != DefaultPictureName) StageFile(card.CardPicture[1].Trimmed());
        for (const FixedText<12>& sound : card.CardSound)
            if (!sound.IsBlank()) StageFile(sound.Trimmed());
    }
    WriteWholeFile(TempDir + QStringLiteral("Temp.crd"), staged);
}

void PackageStaging::StageSpreads() {
    SpreadsPacked = 0;
    QByteArray spreads;
    QByteArray locations;
    // A spread's files that cannot be copied are left out with their fields
    // blanked; without its background or attachment it also goes without
    // its locations.
    auto stageOrBlank = [](auto& field) {
        if (field.IsBlank()) return true;
        try {
            StageFile(field.Trimmed());
            return true;
        } catch (const RuntimeError&) {
            field = QString();
            return false;
        }
    };
    for (const QString& name : SpreadNames) {
        SpreadRecord spread;
        if (!GetRecord(SpreadsPath, FindSpreadByName(name), spread)) continue;
        ApplyPassword(spread.SpreadLocked, spread.SpreadPassword);
        if (stageOrBlank(spread.BackgroundFile) && stageOrBlank(spread.SpreadAttachment)) {
            LoadSpreadLocations(spread.SpreadId, spread.LocationCount);
            for (int n = 1; n <= spread.LocationCount; ++n) {
                LocationRecord& location = SpreadLocations(n);
                location.LocationSpreadId = spread.SpreadId;
                locations += EncodeRecord(location);
                stageOrBlank(location.LocationAttachment);
            }
        }
        spreads += EncodeRecord(spread);
        ++SpreadsPacked;
    }
    WriteWholeFile(TempDir + QStringLiteral("Temp.spr"), spreads);
    WriteWholeFile(TempDir + QStringLiteral("Temp.loc"), locations);
}
