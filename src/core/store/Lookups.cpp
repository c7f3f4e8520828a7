#include "core/store/Lookups.h"

#include "core/store/RecordPasses.h"

using namespace RecordPasses;

int CountCards(const QString& path) { return CountRecords<CardRecord>(path); }
int CountDecks(const QString& path) { return CountRecords<DeckRecord>(path); }
int CountSpreads(const QString& path) { return CountRecords<SpreadRecord>(path); }
int CountReadings(const QString& path) { return CountRecords<ReadingRecord>(path); }
int CountDiaries(const QString& path) { return CountRecords<DiaryRecord>(path); }

int FindSpreadByName(const QString& name) {
    return FindRaw<SpreadRecord>(TheRun.Paths.SpreadsPath, NameField(&SpreadRecord::SpreadName, name));
}

int FindDeckByName(const QString& name) {
    return FindRaw<DeckRecord>(TheRun.Paths.DecksPath, NameField(&DeckRecord::DeckName, name));
}

int FindReadingByName(const QString& name) {
    return FindRaw<ReadingRecord>(TheRun.Paths.ReadingsPath, NameField(&ReadingRecord::ReadingName, name));
}

int FindDiaryByName(const QString& name) {
    return FindRaw<DiaryRecord>(TheRun.Paths.DiaryPath, NameField(&DiaryRecord::DiaryName, name));
}

Integer FindDeckIdByName(const QString& name) {
    const NameField matches(&DeckRecord::DeckName, name);
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    Integer id = -1;
    FindRaw<DeckRecord>(TheRun.Paths.DecksPath, [&](const char* raw) {
        if (!matches(raw)) return false;
        id = RawInteger(raw, idAt);
        return true;
    });
    return id;
}

int FindDeckRecordById(Integer deckId, int leavingOut) {
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    int number = 0;
    return FindRaw<DeckRecord>(TheRun.Paths.DecksPath, [&](const char* raw) {
        return ++number != leavingOut && RawInteger(raw, idAt) == deckId;
    });
}

int FindSpreadRecordById(Integer spreadId) {
    const int idAt = OffsetOf(&SpreadRecord::SpreadId);
    return FindRaw<SpreadRecord>(TheRun.Paths.SpreadsPath,
                                 [&](const char* raw) { return RawInteger(raw, idAt) == spreadId; });
}

QString DeckNameById(Integer deckId) {
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    QString name;
    FindRaw<DeckRecord>(TheRun.Paths.DecksPath, [&](const char* raw) {
        if (RawInteger(raw, idAt) != deckId) return false;
        DeckRecord deck;
        DecodeRecord(raw, deck);
        name = deck.DeckName.Value();
        return true;
    });
    return name;
}

QString SpreadNameById(Integer spreadId) {
    const int idAt = OffsetOf(&SpreadRecord::SpreadId);
    QString name;
    FindRaw<SpreadRecord>(TheRun.Paths.SpreadsPath, [&](const char* raw) {
        if (RawInteger(raw, idAt) != spreadId) return false;
        SpreadRecord spread;
        DecodeRecord(raw, spread);
        name = spread.SpreadName.Value();
        return true;
    });
    return name;
}

Integer NextDeckId(int leavingOut) { return SmallestFreeId(TheRun.Paths.DecksPath, &DeckRecord::DeckId, leavingOut); }

Integer NextSpreadId() { return SmallestFreeId(TheRun.Paths.SpreadsPath, &SpreadRecord::SpreadId); }

void LoadSpreadLocations(Integer spreadId, int count) {
    LoadLocationsFrom(TheRun.Paths.LocationsPath, spreadId, count);
}

void LoadSpreadLocationsFrom(const QString& path, Integer spreadId, int count) {
    LoadLocationsFrom(path, spreadId, count);
}
