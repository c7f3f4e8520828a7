// One record file of a small real database replaced by arbitrary bytes, then
// everything that reads record files run over the database, held in memory
// so that no record file is written for an input: counts, whole
// and sequential reads, reads by number, the lookups by name and id, the free
// ids, loading each deck and each spread's locations, the tests whether a
// spread or deck can be dealt, and the delete passes. Built once per record
// file (FuzzedRecordFile names it).
//
// Beyond not crashing, every answer must agree with the file: each record
// read encodes back to its own bytes, a lookup's record carries what was
// looked up, a free id is carried by no record, a loaded deck holds only its
// own cards.
#include <algorithm>
#include <vector>

#include "FuzzSupport.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "core/store/Usability.h"

// The record file the input stands for, given by each target.
extern const FuzzedFile FuzzedRecordFile;

using Fuzz::Expect;
using Fuzz::Handled;

namespace {

// A few records of each file are enough: the rest only repeat the work.
constexpr std::size_t RecordsLookedAt = 4;

// A spread that claims far more locations than the files hold is loaded into
// an array of the claimed size (up to 32767 records of 1 KB); that is slow,
// not wrong, and would starve the fuzzer. Claims a little past what is there
// still run. A deck's load never sizes itself past the cards on file, so
// every deck is loaded.
constexpr int ClaimBeyondFile = 8;
bool Plausible(int claimed, int held) { return claimed <= held + ClaimBeyondFile; }

// Every way of reading the file, checked against its bytes.
template <class R>
std::vector<R> ReadAndCheck(const QString& path) {
    const QByteArray* held = RecordFilesInMemory::Find(path);
    Expect(held, "record file missing");
    const QByteArray bytes = *held;
    const int count = CountRecords<R>(path);
    Expect(count == bytes.size() / R::Length, "count is not the whole records");

    std::vector<R> all = ReadAllRecords<R>(path);
    Expect(static_cast<int>(all.size()) == count, "ReadAllRecords missed records");
    RecordReader<R> reader(path);
    R r;
    int n = 0;
    while (reader.Next(r)) {
        ++n;
        Expect(reader.Current() == n, "reader numbers records wrongly");
        Expect(EncodeRecord(r) == bytes.mid(static_cast<qsizetype>(n - 1) * R::Length, R::Length),
               "a record read does not write back to its own bytes");
    }
    Expect(n == count, "RecordReader missed records");
    if (count > 0) {
        Expect(GetRecord(path, count, r), "last record unreadable");
        Expect(EncodeRecord(r) == EncodeRecord(all.back()), "GetRecord disagrees with ReadAllRecords");
    }
    Expect(!GetRecord(path, count + 1, r), "a record past the end");
    return all;
}

// The fuzzed file is read every way and checked; the others hold the same
// baseline for every input, whose checks would only repeat, so they are only
// read.
template <class R>
std::vector<R> Read(const QString& path) {
    return path == Fuzz::PathOf(FuzzedRecordFile) ? ReadAndCheck<R>(path) : ReadAllRecords<R>(path);
}

template <class R, class Id>
bool AnyCarries(const std::vector<R>& records, Id R::*field, Integer id) {
    return std::any_of(records.begin(), records.end(), [&](const R& r) { return r.*field == id; });
}

void LookUpDecks(const std::vector<DeckRecord>& decks) {
    Handled([&] {
        const Integer free = NextDeckId();
        Expect(free > 0 && !AnyCarries(decks, &DeckRecord::DeckId, free), "NextDeckId gave an id in use");
    });
    for (std::size_t i = 0; i < std::min(decks.size(), RecordsLookedAt); ++i) {
        const DeckRecord& deck = decks[i];
        Handled([&] {
            const int number = FindDeckByName(deck.DeckName.Value());
            Expect(number >= 1 && static_cast<std::size_t>(number) <= i + 1, "FindDeckByName missed a deck");
            Expect(decks[static_cast<std::size_t>(number - 1)].DeckName.Trimmed() == deck.DeckName.Trimmed(),
                   "FindDeckByName found another name");
            const Integer id = FindDeckIdByName(deck.DeckName.Value());
            Expect(id == decks[static_cast<std::size_t>(number - 1)].DeckId, "FindDeckIdByName disagrees");
            const int byId = FindDeckRecordById(deck.DeckId);
            Expect(byId >= 1 && decks[static_cast<std::size_t>(byId - 1)].DeckId == deck.DeckId,
                   "FindDeckRecordById missed the id");
            (void)DeckNameById(deck.DeckId);
            (void)FormatLongDate(deck.ModifiedOn);
            (void)FormatSortDate(deck.ModifiedOn);
            (void)IsDeckUsable(deck.DeckId, deck.CardCount);
        });
        Handled([&] {
            // As the deck list does: the chosen record in ListDeck, then the
            // load; a deck with missing cards is kept.
            TheRun.ListDeck = deck;
            if (LoadDeckCards()) {
                Expect(TheRun.CurrentDeck.DeckCards.Count() == std::max<int>(0, deck.CardCount), "deck loaded short");
                for (const CardRecord& card : TheRun.CurrentDeck.DeckCards)
                    Expect(card.CardDeckId == deck.DeckId, "a card of another deck was loaded");
                (void)CountCardsOfTypeName(deck.CardTypeName[0].Value());
            }
        });
    }
}

void LookUpSpreads(const std::vector<SpreadRecord>& spreads) {
    Handled([&] {
        const Integer free = NextSpreadId();
        Expect(free > 0 && !AnyCarries(spreads, &SpreadRecord::SpreadId, free), "NextSpreadId gave an id in use");
    });
    for (std::size_t i = 0; i < std::min(spreads.size(), RecordsLookedAt); ++i) {
        const SpreadRecord& spread = spreads[i];
        Handled([&] {
            const int number = FindSpreadByName(spread.SpreadName.Value());
            Expect(number >= 1 && static_cast<std::size_t>(number) <= i + 1, "FindSpreadByName missed a spread");
            const int byId = FindSpreadRecordById(spread.SpreadId);
            Expect(byId >= 1 && spreads[static_cast<std::size_t>(byId - 1)].SpreadId == spread.SpreadId,
                   "FindSpreadRecordById missed the id");
            (void)SpreadNameById(spread.SpreadId);
            (void)FormatLongDate(spread.ModifiedOn);
            (void)IsSpreadUsable(spread.SpreadName.Value());
        });
        if (!Plausible(spread.LocationCount, CountRecords<LocationRecord>(TheRun.Paths.LocationsPath))) continue;
        Handled([&] {
            LoadSpreadLocations(spread.SpreadId, spread.LocationCount);
            Expect(TheRun.SpreadLocations.Count() == std::max<int>(0, spread.LocationCount), "locations sized wrongly");
            int n = 0;
            for (const LocationRecord& location : TheRun.SpreadLocations) {
                ++n;
                Expect(location.LocationNumber == 0 ||
                           (location.LocationNumber == n && location.LocationSpreadId == spread.SpreadId),
                       "a location landed in the wrong place");
            }
        });
    }
}

template <class Entry>
void LookUpEntries(const std::vector<Entry>& entries, FixedText<50> Entry::*name, int (*find)(const QString&),
                   void (*remove)(const QString&)) {
    for (std::size_t i = 0; i < std::min(entries.size(), RecordsLookedAt); ++i) {
        Handled([&] {
            const int number = find((entries[i].*name).Value());
            Expect(number >= 1 && static_cast<std::size_t>(number) <= i + 1, "an entry was not found by its name");
            (void)FormatLongDate(entries[i].SavedOn);
            (void)FormatSortDate(entries[i].SavedOn);
        });
    }
    if (entries.empty()) return;
    Handled([&] {
        const QString first = (entries.front().*name).Value();
        remove(first);
        Expect(find(first) == -1, "an entry survived its delete");
    });
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    Fuzz::Initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::LayDatabase(FuzzedRecordFile, Fuzz::Bytes(data, size));

    std::vector<DeckRecord> decks;
    std::vector<SpreadRecord> spreads;
    std::vector<ReadingRecord> readings;
    std::vector<DiaryRecord> diaries;
    Handled([&] {
        decks = Read<DeckRecord>(TheRun.Paths.DecksPath);
        (void)Read<CardRecord>(TheRun.Paths.CardsPath);
        spreads = Read<SpreadRecord>(TheRun.Paths.SpreadsPath);
        (void)Read<LocationRecord>(TheRun.Paths.LocationsPath);
        readings = Read<ReadingRecord>(TheRun.Paths.ReadingsPath);
        diaries = Read<DiaryRecord>(TheRun.Paths.DiaryPath);
    });
    LookUpDecks(decks);
    LookUpSpreads(spreads);
    LookUpEntries(readings, &ReadingRecord::ReadingName, FindReadingByName, DeleteReading);
    LookUpEntries(diaries, &DiaryRecord::DiaryName, FindDiaryByName, DeleteDiary);
    // The delete passes of designs, with what goes with them.
    if (!spreads.empty()) Handled([] { DeleteSpread(1); });
    if (!decks.empty())
        Handled([&] {
            const int number = FindDeckByName(decks.front().DeckName.Value());
            DeleteDeck(number);
            Expect(CountDecks() == static_cast<int>(decks.size()) - 1, "DeleteDeck took other decks");
        });
    Fuzz::CheckNothingOutsideTouched();
    return 0;
}
