// The record store: counts, lookups, free ids, delete passes, locations,
// new-design values and the tests whether a spread or deck can be dealt.
#include "core/store/StoreOperations.h"

#include <cstring>
#include <vector>

#include "core/platform/CodePage.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"

namespace {

const QString SpreadsTmpName = QStringLiteral("Spreads.tmp");
const QString LocationTmpName = QStringLiteral("Location.tmp");
const QString ReadingsTmpName = QStringLiteral("Readings.tmp");
const QString DiariesTmpName = QStringLiteral("Diaries.tmp");
const QString CardsTmpName = QStringLiteral("Cards.tmp");
const QString DecksTmpName = QStringLiteral("Decks.tmp");

}  // namespace

void RemoveUnfinishedRewrites() {
    for (const QString* name : {&SpreadsTmpName, &LocationTmpName, &ReadingsTmpName, &DiariesTmpName, &CardsTmpName})
        KillIgnoringErrors(AppPath + *name);
}

namespace {

// A name compared, both sides trimmed, with a name field in a record's
// bytes. The code page gives each byte one character of its own, so the
// bytes match exactly when the decoded texts do; a name the code page cannot
// hold matches no record.
class NameField {
public:
    template <class R, int N>
    NameField(FixedText<N> R::*field, const QString& name)
        : offset_(OffsetOf(field)), width_(N), possible_(AnsiRepresentable(TrimField(name))),
          bytes_(ToAnsi(TrimField(name))) {}

    bool operator()(const char* raw) const {
        if (!possible_) return false;
        const char* text = raw + offset_;
        int first = 0;
        while (first < width_ && IsBlankByte(text[first])) ++first;
        const int wanted = static_cast<int>(bytes_.size());
        if (wanted == 0) return first == width_;
        // Most records fail at their first bytes; only a match looks at the
        // rest of the field, which must be blank.
        if (first + wanted > width_ || std::memcmp(text + first, bytes_.constData(), wanted) != 0) return false;
        for (int i = first + wanted; i < width_; ++i)
            if (!IsBlankByte(text[i])) return false;
        return true;
    }

private:
    static bool IsBlankByte(char c) { return c == ' ' || c == '\0'; }
    int offset_;
    int width_;
    bool possible_;
    QByteArray bytes_;
};

// The number of the first record whose bytes pass the test, or -1.
template <class R, class Test>
int FindRaw(const QString& path, Test matches) {
    RecordReader<R> reader(path);
    while (const char* raw = reader.NextRaw())
        if (matches(raw)) return reader.Current();
    return -1;
}

// The number of the first record that satisfies the test, or -1.
template <class R, class Test>
int FindRecord(const QString& path, Test matches) {
    RecordReader<R> reader(path);
    R r;
    while (reader.Next(r)) {
        if (matches(r)) return reader.Current();
    }
    return -1;
}

// Copies every record that the test does not drop to a new file, then puts
// the new file in place of the real one. The test sees each record with its
// number, and may act on what goes before it is dropped.
template <class R, class Drop>
void RewriteWithout(const QString& realPath, const QString& newPath, Drop drop) {
    RecordRewriter<R> writer(newPath, realPath);
    {
        RecordReader<R> reader(realPath);
        R r;
        while (const char* raw = reader.NextRaw()) {
            DecodeRecord(raw, r);
            if (!drop(r, reader.Current())) writer.AddRaw(raw);
        }
    }
    writer.Commit();
}

// The same, with the test made on the record's bytes; only a record that goes
// is decoded, for what has to go with it.
template <class R, class DropRaw, class OnDrop>
void RewriteWithout(const QString& realPath, const QString& newPath, DropRaw drop, OnDrop onDrop) {
    RecordRewriter<R> writer(newPath, realPath);
    {
        RecordReader<R> reader(realPath);
        R r;
        while (const char* raw = reader.NextRaw()) {
            if (!drop(raw)) {
                writer.AddRaw(raw);
                continue;
            }
            DecodeRecord(raw, r);
            onDrop(r);
        }
    }
    writer.Commit();
}

// The smallest positive id that no record of the file carries, record
// number leavingOut not counted.
template <class R>
Integer SmallestFreeId(const QString& path, Integer R::*idField, int leavingOut = 0) {
    std::vector<bool> used(32768, false);
    const int offset = OffsetOf(idField);
    RecordReader<R> reader(path);
    while (const char* raw = reader.NextRaw()) {
        if (reader.Current() == leavingOut) continue;
        const Integer id = RawInteger(raw, offset);
        if (id > 0) used[static_cast<std::size_t>(id)] = true;
    }
    for (int candidate = 1; candidate < 32768; ++candidate) {
        if (!used[static_cast<std::size_t>(candidate)]) return static_cast<Integer>(candidate);
    }
    // Every 16-bit id is taken: the id would not fit its field.
    RaiseError(6, QStringLiteral("Overflow"));
}

void LoadLocationsFrom(const QString& path, Integer spreadId, int count) {
    SpreadLocations.Redim(1, count);
    const LocationRecord empty = ZeroRecord<LocationRecord>();
    for (LocationRecord& location : SpreadLocations) location = empty;
    RecordReader<LocationRecord> reader(path);
    LocationRecord r;
    while (reader.Next(r)) {
        if (r.LocationSpreadId != spreadId) continue;
        // A number outside the spread's count has no place in the array.
        if (SpreadLocations.InBounds(r.LocationNumber)) SpreadLocations(r.LocationNumber) = r;
    }
}

}  // namespace

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

// ---- Counting ----------------------------------------------------------------

int CountCards(const QString& path) { return CountRecords<CardRecord>(path); }
int CountDecks(const QString& path) { return CountRecords<DeckRecord>(path); }
int CountSpreads(const QString& path) { return CountRecords<SpreadRecord>(path); }
int CountReadings(const QString& path) { return CountRecords<ReadingRecord>(path); }
int CountDiaries(const QString& path) { return CountRecords<DiaryRecord>(path); }

// ---- Lookups -----------------------------------------------------------------

int FindSpreadByName(const QString& name) {
    return FindRaw<SpreadRecord>(SpreadsPath, NameField(&SpreadRecord::SpreadName, name));
}

int FindDeckByName(const QString& name) {
    return FindRaw<DeckRecord>(DecksPath, NameField(&DeckRecord::DeckName, name));
}

int FindReadingByName(const QString& name) {
    return FindRaw<ReadingRecord>(ReadingsPath, NameField(&ReadingRecord::ReadingName, name));
}

int FindDiaryByName(const QString& name) {
    return FindRaw<DiaryRecord>(DiaryPath, NameField(&DiaryRecord::DiaryName, name));
}

Integer FindDeckIdByName(const QString& name) {
    const NameField matches(&DeckRecord::DeckName, name);
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    Integer id = -1;
    FindRaw<DeckRecord>(DecksPath, [&](const char* raw) {
        if (!matches(raw)) return false;
        id = RawInteger(raw, idAt);
        return true;
    });
    return id;
}

int FindDeckRecordById(Integer deckId) {
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    return FindRaw<DeckRecord>(DecksPath, [&](const char* raw) { return RawInteger(raw, idAt) == deckId; });
}

int FindSpreadRecordById(Integer spreadId) {
    const int idAt = OffsetOf(&SpreadRecord::SpreadId);
    return FindRaw<SpreadRecord>(SpreadsPath, [&](const char* raw) { return RawInteger(raw, idAt) == spreadId; });
}

QString DeckNameById(Integer deckId) {
    const int idAt = OffsetOf(&DeckRecord::DeckId);
    QString name;
    FindRaw<DeckRecord>(DecksPath, [&](const char* raw) {
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
    FindRaw<SpreadRecord>(SpreadsPath, [&](const char* raw) {
        if (RawInteger(raw, idAt) != spreadId) return false;
        SpreadRecord spread;
        DecodeRecord(raw, spread);
        name = spread.SpreadName.Value();
        return true;
    });
    return name;
}

Integer NextDeckId(int leavingOut) { return SmallestFreeId(DecksPath, &DeckRecord::DeckId, leavingOut); }

Integer NextSpreadId() { return SmallestFreeId(SpreadsPath, &SpreadRecord::SpreadId); }

// ---- Delete passes -------------------------------------------------------------

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

void LoadSpreadLocations(Integer spreadId, int count) { LoadLocationsFrom(LocationsPath, spreadId, count); }

void LoadSpreadLocationsFrom(const QString& path, Integer spreadId, int count) {
    LoadLocationsFrom(path, spreadId, count);
}

// ---- New-design values -----------------------------------------------------------

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
    for (CardRecord& card : CurrentDeck.DeckCards) ResetCard(card);
    CurrentDeck.DeckCards.Clear();
    DeckRecord& deck = CurrentDeck;
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

// ---- Can it be dealt? ----------------------------------------------------------------

bool IsReversedComplete(Integer deckId, int cardCount) {
    RecordReader<CardRecord> reader(CardsPath);
    CardRecord card;
    int checked = 0;
    while (checked < cardCount && reader.Next(card)) {
        if (card.CardDeckId != deckId) continue;
        ++checked;
        // The trimmed name never equals the default constant, which ends in a
        // space, so only a missing file fails here: a deck whose reversed
        // sides still show the default picture counts as complete.
        if (!FileExists(CardsDir + card.CardPicture[1].Value()) || card.CardPicture[1].Trimmed() == DefaultPictureName)
            return false;
    }
    return checked >= cardCount;
}

namespace {

// The test of IsDeckUsable on a deck record already in hand.
bool DeckQualifies(const DeckRecord& deck, int neededCardCount) {
    if (deck.CardCount < neededCardCount) return false;
    if (deck.IncludesReversed) return IsReversedComplete(deck.DeckId, deck.CardCount);
    return true;
}

}  // namespace

bool IsDeckUsable(Integer deckId, int neededCardCount) {
    DeckRecord deck;
    const int number = FindRecord<DeckRecord>(DecksPath, [&](const DeckRecord& r) {
        if (r.DeckId != deckId) return false;
        deck = r;
        return true;
    });
    return number >= 0 && DeckQualifies(deck, neededCardCount);
}

bool IsSpreadUsable(const QString& spreadName) {
    const int number = FindSpreadByName(spreadName);
    if (number < 0) return false;
    SpreadRecord spread;
    if (!GetRecord(SpreadsPath, number, spread)) return false;
    if (spread.LocationCount < 1) return false;
    if (spread.AllowedDeckCount < 0) {
        // Each deck is judged by the first record that carries its id, as a
        // lookup by id would find it; a later record of the same id adds
        // nothing.
        std::vector<bool> seen(65536, false);
        RecordReader<DeckRecord> reader(DecksPath);
        DeckRecord deck;
        while (reader.Next(deck)) {
            const auto slot = static_cast<std::size_t>(static_cast<std::uint16_t>(deck.DeckId));
            if (seen[slot]) continue;
            seen[slot] = true;
            if (DeckQualifies(deck, spread.LocationCount)) return true;
        }
    }
    const int allowed = qMin<int>(spread.AllowedDeckCount, static_cast<int>(spread.AllowedDeckId.size()));
    for (int i = 0; i < allowed; ++i) {
        if (IsDeckUsable(spread.AllowedDeckId[static_cast<std::size_t>(i)], spread.LocationCount)) return true;
    }
    return false;
}

// ---- Small helpers ------------------------------------------------------------------

QString AddTrailingBackslash(const QString& path) {
    if (path.endsWith(QLatin1Char('/')) || path.endsWith(QLatin1Char('\\'))) return path;
    return path + QLatin1Char('/');
}

QString FormatLongDate(double oleDate) { return FormatDdMmmYyyy(oleDate); }

QString FormatSortDate(double oleDate) { return FormatYyyyMmDd(oleDate); }
