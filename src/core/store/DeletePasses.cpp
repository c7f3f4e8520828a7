#include "core/store/DeletePasses.h"

#include "core/store/RecordPasses.h"

using namespace RecordPasses;

void RemoveUnfinishedRewrites() {
    for (const QString* name : {&SpreadsTmpName, &LocationTmpName, &ReadingsTmpName, &DiariesTmpName, &CardsTmpName})
        KillIgnoringErrors(AppPath + *name);
}

QString DesignFilePath(const QString& name) {
    const QString trimmed = TrimField(name);
    // Names come from records, which a package may have filled: a wildcard
    // in one must never widen a delete to other designs' files.
    if (trimmed.isEmpty() || trimmed.contains(QLatin1Char('*')) || trimmed.contains(QLatin1Char('?'))) return {};
    return NativePath(CardsDir + name);
}

// A design file in Cards/ goes with its design; a failure to delete it is of
// no consequence.
void KillDesignFile(const QString& name) {
    const QString path = DesignFilePath(name);
    if (!path.isEmpty()) KillIgnoringErrors(path);
}

QStringList CardFilesOf(const CardRecord& card) {
    QStringList files;
    for (const auto& picture : card.CardPicture) {
        // The shared default picture is recognised by the exact field value;
        // every other picture belongs to this card alone.
        if (picture.Value() != DefaultPictureName) files << DesignFilePath(picture.Value());
    }
    for (const auto& sound : card.CardSound) files << DesignFilePath(sound.Value());
    files.removeAll(QString());
    return files;
}

// What hangs on a design goes after the design's own record is gone: a
// failure on the way then leaves records or files that nothing names, never
// a design that has lost part of itself.
void DeleteSpread(int recordNumber) {
    std::vector<SpreadRecord> gone;
    RewriteWithout<SpreadRecord>(SpreadsPath, AppPath + SpreadsTmpName, [&](const SpreadRecord& r, int number) {
        if (number != recordNumber) return false;
        gone.push_back(r);
        return true;
    });
    for (const SpreadRecord& r : gone) {
        DeleteSpreadLocations(r.SpreadId);
        KillDesignFile(r.BackgroundFile.Value());
    }
}

void DeleteSpreadLocations(Integer spreadId) {
    const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
    RewriteWithout<LocationRecord>(LocationsPath, AppPath + LocationTmpName, [&](const char* raw) {
        return RawInteger(raw, idAt) == spreadId;
    }, [](const LocationRecord&) {});
}

void ReplaceSpreadLocations(Integer spreadId, int count) {
    RecordRewriter<LocationRecord> writer(AppPath + LocationTmpName, LocationsPath);
    {
        const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
        RecordReader<LocationRecord> reader(LocationsPath);
        while (const char* raw = reader.NextRaw())
            if (RawInteger(raw, idAt) != spreadId) writer.AddRaw(raw);
    }
    for (int i = 1; i <= count; ++i) {
        LocationRecord& location = SpreadLocations(i);
        location.LocationSpreadId = spreadId;
        location.LocationNumber = static_cast<Integer>(i);
        writer.Add(location);
    }
    writer.Commit();
}

void DeleteReading(const QString& name) {
    RewriteWithout<ReadingRecord>(ReadingsPath, AppPath + ReadingsTmpName,
                                  NameField(&ReadingRecord::ReadingName, name), [](const ReadingRecord&) {});
}

void DeleteDiary(const QString& name) {
    RewriteWithout<DiaryRecord>(DiaryPath, AppPath + DiariesTmpName, NameField(&DiaryRecord::DiaryName, name),
                                [](const DiaryRecord&) {});
}

void DeleteDeck(int recordNumber) {
    std::vector<Integer> gone;
    RewriteWithout<DeckRecord>(DecksPath, TempDir + DecksTmpName, [&](const DeckRecord& r, int number) {
        if (number != recordNumber) return false;
        gone.push_back(r.DeckId);
        return true;
    });
    for (Integer deckId : gone) DeleteDeckCards(deckId);
}

void DeleteDeckCards(Integer deckId) {
    const int idAt = OffsetOf(&CardRecord::CardDeckId);
    // The files go once the records that name them are gone.
    QStringList files;
    RewriteWithout<CardRecord>(CardsPath, AppPath + CardsTmpName, [&](const char* raw) {
        return RawInteger(raw, idAt) == deckId;
    }, [&](const CardRecord& r) { files << CardFilesOf(r); });
    for (const QString& file : files) KillIgnoringErrors(file);
}
