#include "core/journal/Journal.h"

#include <QColor>
#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QRect>
#include <QSet>
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "core/platform/CodePage.h"
#include "core/platform/OleDate.h"
#include "core/platform/Palette.h"
#include "core/platform/Printer.h"
#include "core/records/RecordFile.h"
#include "core/store/RunState.h"

namespace {

// The text of a field as readers see it. Blanks are cut off before decoding,
// so that a short note in a 2,500-byte field costs what the note costs.
QString FieldText(const char* raw, int width) {
    int first = 0;
    int end = width;
    while (first < end && (raw[first] == ' ' || raw[first] == '\0')) ++first;
    while (end > first && (raw[end - 1] == ' ' || raw[end - 1] == '\0')) --end;
    return FromAnsi(raw + first, end - first);
}

// Each byte of the code page with its case folded, so that text is searched
// in the bytes it is stored in, without decoding.
const std::array<char, 256>& FoldTable() {
    static const std::array<char, 256> table = [] {
        std::array<char, 256> t{};
        for (int b = 0; b < 256; ++b) {
            const char byte = static_cast<char>(b);
            const QByteArray folded = ToAnsi(FromAnsi(&byte, 1).toCaseFolded());
            t[static_cast<std::size_t>(b)] =
                folded.size() == 1 && AnsiRepresentable(FromAnsi(&byte, 1).toCaseFolded()) ? folded[0] : byte;
        }
        return t;
    }();
    return table;
}

// Appends a field's trimmed bytes, folded, and a line break.
void AppendFolded(QByteArray& to, const char* raw, int width) {
    int first = 0;
    int end = width;
    while (first < end && (raw[first] == ' ' || raw[first] == '\0')) ++first;
    while (end > first && (raw[end - 1] == ' ' || raw[end - 1] == '\0')) --end;
    const auto& fold = FoldTable();
    const qsizetype at = to.size();
    to.resize(at + (end - first) + 1);
    char* out = to.data() + at;
    for (int i = first; i < end; ++i) *out++ = fold[static_cast<unsigned char>(raw[i])];
    *out = '\n';
}

double RawDouble(const char* raw) {
    std::uint64_t bits = 0;
    for (int i = 7; i >= 0; --i) bits = (bits << 8) | static_cast<unsigned char>(raw[i]);
    return std::bit_cast<double>(bits);
}

// The days a saved entry can carry: 1 January 1900 to 31 December 9999.
constexpr double FirstDay = 2;
constexpr double LastDay = 2958465;

QDate DateOf(double savedOn) {
    if (!std::isfinite(savedOn) || savedOn < FirstDay || savedOn > LastDay) return {};
    return FromOleDate(savedOn).date();
}

QSet<QString>& Unlocked() { return TheRun.UnlockedEntries; }

QString UnlockKey(EntryKind kind, const QString& name) {
    return (kind == EntryKind::Reading ? QStringLiteral("R") : QStringLiteral("D")) + TrimField(name);
}

// Where the fields of a saved entry stand; readings and diary entries share
// all of them but the notes.
struct EntryLayout {
    int SavedOn, Name, Issue, SpreadId, DeckId, DeckRevision, DealtCard, DealtUpright, EntryLocked, Notes;
};

template <class R, class N, class T>
EntryLayout LayoutOf(N R::*name, T R::*notes) {
    return {OffsetOf(&R::SavedOn),       OffsetOf(name),
            OffsetOf(&R::Issue),         OffsetOf(&R::ReadingSpreadId),
            OffsetOf(&R::ReadingDeckId), OffsetOf(&R::ReadingDeckRevision),
            OffsetOf(&R::DealtCard),     OffsetOf(&R::DealtUpright),
            OffsetOf(&R::EntryLocked),   OffsetOf(notes)};
}

EntryStanding StandingOf(const JournalEntry& entry, std::span<const DealtLocation> cards, const JournalDeck* deck,
                         Integer savedRevision) {
    const std::size_t present = deck ? deck->Cards.size() : 0;
    const bool ownDeck = deck && deck->Revision == savedRevision;
    const std::size_t limit = ownDeck ? present : MaxDeckCards;
    const bool damaged = !entry.Date.isValid() || std::any_of(cards.begin(), cards.end(), [&](auto& c) {
        return c.Card < 1 || static_cast<std::size_t>(c.Card) > limit;
    });
    if (damaged) return EntryStanding::Damaged;
    if (!deck) return EntryStanding::DeckGone;
    return ownDeck ? EntryStanding::Present : EntryStanding::DeckRevised;
}

// A month as one number that counts on across years, so that months compare
// and step as integers.
int MonthIndex(const QDate& d) { return d.year() * 12 + d.month() - 1; }

// Where an entry's parts lie in the journal's arrays while they still grow;
// the entries' views are set once reading is done.
struct EntryExtent {
    std::size_t DealtAt = 0, DealtCount = 0;
    qsizetype TextAt = 0, TextLength = 0;
};

void ReadEntries(const QString& path, int length, EntryKind kind, const EntryLayout& at,
                 const JournalCatalogue& catalogue, Journal& journal, std::vector<EntryExtent>& extents) {
    RecordFileReader reader(path, length);
    journal.Entries.reserve(journal.Entries.size() + static_cast<std::size_t>(reader.RecordCount()));
    while (const char* raw = reader.Next()) {
        JournalEntry entry;
        EntryExtent extent{journal.Dealt.size(), 0, journal.Text.size(), 0};
        entry.Kind = kind;
        entry.Date = DateOf(RawDouble(raw + at.SavedOn));
        if (entry.Date.isValid()) entry.Month = MonthIndex(entry.Date);
        entry.Name = FieldText(raw + at.Name, 50);
        entry.Locked = RawInteger(raw, at.EntryLocked) != 0 && !IsEntryUnlocked(kind, entry.Name);
        AppendFolded(journal.Text, raw + at.Name, 50);
        if (!entry.Locked) {
            entry.SpreadId = RawInteger(raw, at.SpreadId);
            entry.DeckId = RawInteger(raw, at.DeckId);
            for (int l = 0; l < MaxSpreadLocations; ++l) {
                const Integer card = RawInteger(raw, at.DealtCard + 2 * l);
                if (card != 0) journal.Dealt.push_back({l + 1, card, RawInteger(raw, at.DealtUpright + 2 * l) != 0});
            }
            extent.DealtCount = journal.Dealt.size() - extent.DealtAt;
            entry.Standing = StandingOf(entry, std::span(journal.Dealt).subspan(extent.DealtAt),
                                        catalogue.Deck(entry.DeckId), RawInteger(raw, at.DeckRevision));
            AppendFolded(journal.Text, raw + at.Issue, 125);
            AppendFolded(journal.Text, raw + at.Notes, 2500);
        }
        extent.TextLength = journal.Text.size() - extent.TextAt;
        journal.Entries.push_back(std::move(entry));
        extents.push_back(extent);
    }
}

bool Matches(const JournalEntry& entry, const JournalQuery& query, const std::vector<std::string>& words) {
    if (!(entry.Kind == EntryKind::Reading ? query.Readings : query.Diary)) return false;
    if (!query.From.isNull() && (!entry.Date.isValid() || entry.Date < query.From)) return false;
    if (!query.To.isNull() && (!entry.Date.isValid() || entry.Date > query.To)) return false;
    // A plain find: texts are short, so a search that prepares tables for
    // each of them costs more than it saves.
    for (const std::string& word : words)
        if (entry.SearchText.find(word) == std::string_view::npos) return false;
    const bool needsCards =
        query.SpreadId != -1 || query.DeckId != -1 || query.CardNumber != 0 || query.Orientation != Facing::Any;
    if (!needsCards) return true;
    // What a locked entry hides cannot select it.
    if (entry.Locked) return false;
    if (query.SpreadId != -1 && entry.SpreadId != query.SpreadId) return false;
    if (query.DeckId != -1 && entry.DeckId != query.DeckId) return false;
    if (query.CardNumber != 0 && entry.DeckId != query.CardDeckId) return false;
    return std::any_of(entry.Cards.begin(), entry.Cards.end(), [&](const DealtLocation& c) {
        if (query.CardNumber != 0 && c.Card != query.CardNumber) return false;
        if (query.Orientation == Facing::Upright) return c.Upright;
        if (query.Orientation == Facing::Reversed) return !c.Upright;
        return true;
    });
}

// A stored card number counts under its deck and number when the deck can
// have held it: any number of a removed deck, a present card otherwise.
bool Countable(const JournalDeck* deck, Integer card) {
    if (card < 1 || card > MaxDeckCards) return false;
    return !deck || static_cast<std::size_t>(card) <= deck->Cards.size();
}

CardTally NewTally(const JournalCatalogue& catalogue, Integer deckId, Integer number) {
    CardTally tally;
    tally.DeckId = deckId;
    tally.Number = number;
    const JournalDeck* deck = catalogue.Deck(deckId);
    if (!deck) {
        tally.Title = QCoreApplication::translate("Journal", "Card %1").arg(number);
        tally.DeckName = QCoreApplication::translate("Journal", "(no longer installed)");
        tally.DeckInstalled = false;
        return tally;
    }
    const JournalCard& card = deck->Cards[static_cast<std::size_t>(number - 1)];
    tally.Title = card.Title;
    tally.DeckName = deck->Name;
    if (card.Type >= 0 && card.Type < 4) tally.TypeName = deck->TypeNames[static_cast<std::size_t>(card.Type)];
    return tally;
}

// Counts by deck and card number in one flat table: a deck takes its rows
// the first time one of its cards is counted. Every keystroke of a search
// counts every card of every entry it selects, so this is the inner loop.
class CardCounter {
public:
    int SlotOf(Integer deckId) {
        const auto found = std::find(decks_.begin(), decks_.end(), deckId);
        if (found != decks_.end()) return static_cast<int>(found - decks_.begin());
        decks_.push_back(deckId);
        counts_.resize(decks_.size() * Stride * 2);
        return static_cast<int>(decks_.size()) - 1;
    }
    bool Empty() const { return decks_.empty(); }
    void Add(int slot, const DealtLocation& dealt) {
        ++counts_[(static_cast<std::size_t>(slot) * Stride + static_cast<std::size_t>(dealt.Card)) * 2 +
                  (dealt.Upright ? 0 : 1)];
    }
    std::vector<CardTally> MostFrequentFirst(const JournalCatalogue& catalogue) const {
        std::vector<CardTally> cards;
        for (std::size_t slot = 0; slot < decks_.size(); ++slot) {
            for (std::size_t n = 1; n < Stride; ++n) {
                const int* count = &counts_[(slot * Stride + n) * 2];
                if (count[0] + count[1] == 0) continue;
                cards.push_back(NewTally(catalogue, decks_[slot], static_cast<Integer>(n)));
                cards.back().Upright = count[0];
                cards.back().Reversed = count[1];
            }
        }
        std::sort(cards.begin(), cards.end(), [](const CardTally& a, const CardTally& b) {
            if (a.Total() != b.Total()) return a.Total() > b.Total();
            if (a.DeckId != b.DeckId) return a.DeckId < b.DeckId;
            return a.Number < b.Number;
        });
        return cards;
    }

private:
    static constexpr std::size_t Stride = MaxDeckCards + 1;
    std::vector<Integer> decks_;
    std::vector<int> counts_;
};

// The deck of an entry and its rows in the counter. Entries of one deck tend
// to come together, so the last one found is tried first.
class DeckFinder {
public:
    DeckFinder(const JournalCatalogue& catalogue, CardCounter& counter) : catalogue_(catalogue), counter_(counter) {}
    std::pair<const JournalDeck*, int> Find(Integer deckId) {
        if (slot_ < 0 || deckId != id_) {
            id_ = deckId;
            deck_ = catalogue_.Deck(deckId);
            slot_ = counter_.SlotOf(deckId);
        }
        return {deck_, slot_};
    }

private:
    const JournalCatalogue& catalogue_;
    CardCounter& counter_;
    Integer id_ = 0;
    const JournalDeck* deck_ = nullptr;
    int slot_ = -1;
};

// Entries a month, in a table over the journal's months rather than a map:
// every entry a search selects passes through it.
class MonthCounter {
public:
    explicit MonthCounter(const Journal& journal)
        : base_(journal.FirstMonth), counts_(static_cast<std::size_t>(std::max(0, journal.LastMonth - base_ + 1))) {}
    void Add(int month) {
        ++counts_[static_cast<std::size_t>(month - base_)];
        first_ = std::min(first_, month);
        last_ = std::max(last_, month);
    }
    bool Empty() const { return first_ > last_; }
    int First() const { return first_; }
    int Last() const { return last_; }
    int At(int month) const {
        const int at = month - base_;
        return at < 0 || at >= static_cast<int>(counts_.size()) ? 0 : counts_[static_cast<std::size_t>(at)];
    }

private:
    int base_;
    std::vector<int> counts_;
    int first_ = std::numeric_limits<int>::max();
    int last_ = std::numeric_limits<int>::min();
};

// Months from the query's range where it is set, else from the entries'
// first and last; a range too wide to show falls back to the entries'.
std::vector<MonthCount> MonthsOf(const MonthCounter& perMonth, const JournalQuery& query) {
    constexpr int WidestRange = 1200;
    if (perMonth.Empty() && (query.From.isNull() || query.To.isNull())) return {};
    int first = query.From.isNull() ? perMonth.First() : MonthIndex(query.From);
    int last = query.To.isNull() ? perMonth.Last() : MonthIndex(query.To);
    if (last - first >= WidestRange && !perMonth.Empty()) {
        first = perMonth.First();
        last = perMonth.Last();
    }
    std::vector<MonthCount> months;
    for (int m = first; m <= last && last - first < WidestRange; ++m) months.push_back({m, perMonth.At(m)});
    return months;
}

QString CardTitleOf(const JournalCatalogue& catalogue, Integer deckId, Integer card) {
    const JournalDeck* deck = catalogue.Deck(deckId);
    if (deck && card >= 1 && static_cast<std::size_t>(card) <= deck->Cards.size())
        return deck->Cards[static_cast<std::size_t>(card - 1)].Title;
    return QCoreApplication::translate("Journal", "Card %1").arg(card);
}

QString LocationTitleOf(const JournalCatalogue& catalogue, Integer spreadId, int location) {
    const JournalSpread* spread = catalogue.Spread(spreadId);
    if (!spread || location > static_cast<int>(spread->LocationTitles.size())) return {};
    return spread->LocationTitles[static_cast<std::size_t>(location - 1)];
}

// The CSV's date and kind of an entry: the program's own date format and
// words, so that a spreadsheet reads the file alike in every language (the
// orientation too); only the header row is in the user's language.
QString EntryDateText(const JournalEntry& entry) {
    return entry.Date.isValid() ? entry.Date.toString(QStringLiteral("yyyy/MM/dd")) : QString();
}

QString EntryKindText(EntryKind kind) {
    return kind == EntryKind::Reading ? QStringLiteral("Reading") : QStringLiteral("Diary");
}

QByteArray CsvField(const QString& text) {
    QByteArray bytes = text.toUtf8();
    static constexpr std::string_view FormulaStarts = "=+-@\t\r";
    if (!bytes.isEmpty() && FormulaStarts.find(bytes.front()) != std::string_view::npos) bytes.prepend('\'');
    if (!bytes.contains(',') && !bytes.contains('"') && !bytes.contains('\n') && !bytes.contains('\r')) return bytes;
    bytes.replace('"', "\"\"");
    return '"' + bytes + '"';
}

}  // namespace

const JournalDeck* JournalCatalogue::Deck(Integer id) const {
    const auto found = std::find_if(Decks.begin(), Decks.end(), [id](const JournalDeck& d) { return d.Id == id; });
    return found == Decks.end() ? nullptr : &*found;
}

const JournalSpread* JournalCatalogue::Spread(Integer id) const {
    const auto found =
        std::find_if(Spreads.begin(), Spreads.end(), [id](const JournalSpread& s) { return s.Id == id; });
    return found == Spreads.end() ? nullptr : &*found;
}

JournalCatalogue LoadJournalCatalogue() {
    JournalCatalogue catalogue;
    QHash<Integer, std::size_t> deckAt;
    std::vector<int> cardCount;
    for (const DeckRecord& d : ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath)) {
        if (deckAt.contains(d.DeckId)) continue;  // the first of an id is the deck, as lookups find it
        deckAt.insert(d.DeckId, catalogue.Decks.size());
        JournalDeck deck{d.DeckId, d.DeckRevision, d.DeckName.Trimmed(), {}, {}};
        for (std::size_t t = 0; t < 4; ++t) deck.TypeNames[t] = d.CardTypeName[t].Trimmed();
        catalogue.Decks.push_back(std::move(deck));
        cardCount.push_back(std::clamp<int>(d.CardCount, 0, MaxDeckCards));
    }
    {
        // A deck's cards are its records in file order, wherever they stand.
        RecordFileReader cards(TheRun.Paths.CardsPath, CardRecord::Length);
        const int deckIdAt = OffsetOf(&CardRecord::CardDeckId);
        const int titleAt = OffsetOf(&CardRecord::CardTitle);
        while (const char* raw = cards.Next()) {
            const auto found = deckAt.constFind(RawInteger(raw, deckIdAt));
            if (found == deckAt.constEnd()) continue;
            JournalDeck& deck = catalogue.Decks[*found];
            if (static_cast<int>(deck.Cards.size()) < cardCount[*found])
                deck.Cards.push_back({FieldText(raw + titleAt, 50), RawInteger(raw, 0)});
        }
    }
    QHash<Integer, std::size_t> spreadAt;
    for (const SpreadRecord& s : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath)) {
        if (spreadAt.contains(s.SpreadId)) continue;
        spreadAt.insert(s.SpreadId, catalogue.Spreads.size());
        JournalSpread spread{s.SpreadId, s.SpreadRevision, s.SpreadName.Trimmed(), {}};
        spread.LocationTitles.resize(static_cast<std::size_t>(std::clamp<int>(s.LocationCount, 0, MaxSpreadLocations)));
        catalogue.Spreads.push_back(std::move(spread));
    }
    RecordFileReader locations(TheRun.Paths.LocationsPath, LocationRecord::Length);
    const int spreadIdAt = OffsetOf(&LocationRecord::LocationSpreadId);
    const int numberAt = OffsetOf(&LocationRecord::LocationNumber);
    while (const char* raw = locations.Next()) {
        const auto found = spreadAt.constFind(RawInteger(raw, spreadIdAt));
        if (found == spreadAt.constEnd()) continue;
        auto& titles = catalogue.Spreads[*found].LocationTitles;
        const int number = RawInteger(raw, numberAt);
        if (number >= 1 && number <= static_cast<int>(titles.size()))
            titles[static_cast<std::size_t>(number - 1)] = FieldText(raw, 50);
    }
    return catalogue;
}

Journal ReadJournal(const JournalCatalogue& catalogue) {
    Journal journal;
    std::vector<EntryExtent> extents;
    ReadEntries(TheRun.Paths.ReadingsPath, ReadingRecord::Length, EntryKind::Reading,
                LayoutOf(&ReadingRecord::ReadingName, &ReadingRecord::ReadingNotes), catalogue, journal, extents);
    ReadEntries(TheRun.Paths.DiaryPath, DiaryRecord::Length, EntryKind::Diary,
                LayoutOf(&DiaryRecord::DiaryName, &DiaryRecord::DiaryNotes), catalogue, journal, extents);
    const std::span<const DealtLocation> dealt(journal.Dealt);
    const std::string_view text(journal.Text.constData(), static_cast<std::size_t>(journal.Text.size()));
    bool dated = false;
    for (std::size_t i = 0; i < journal.Entries.size(); ++i) {
        JournalEntry& entry = journal.Entries[i];
        const EntryExtent& extent = extents[i];
        entry.Cards = dealt.subspan(extent.DealtAt, extent.DealtCount);
        entry.SearchText =
            text.substr(static_cast<std::size_t>(extent.TextAt), static_cast<std::size_t>(extent.TextLength));
        if (entry.Month < 0) continue;
        journal.FirstMonth = dated ? std::min(journal.FirstMonth, entry.Month) : entry.Month;
        journal.LastMonth = dated ? std::max(journal.LastMonth, entry.Month) : entry.Month;
        dated = true;
    }
    return journal;
}

void RememberEntryUnlocked(EntryKind kind, const QString& name) { Unlocked().insert(UnlockKey(kind, name)); }
bool IsEntryUnlocked(EntryKind kind, const QString& name) { return Unlocked().contains(UnlockKey(kind, name)); }

std::vector<int> SearchJournal(const Journal& journal, const JournalQuery& query) {
    std::vector<std::string> words;
    for (const QString& word : query.Words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        // A word the code page cannot hold is in no record.
        if (!AnsiRepresentable(word)) return {};
        QByteArray bytes = ToAnsi(word);
        for (char& b : bytes) b = FoldTable()[static_cast<unsigned char>(b)];
        words.push_back(bytes.toStdString());
    }
    std::vector<int> selected;
    for (std::size_t i = 0; i < journal.Entries.size(); ++i)
        if (Matches(journal.Entries[i], query, words)) selected.push_back(static_cast<int>(i));
    return selected;
}

JournalStatistics TallyJournal(const Journal& journal, const std::vector<int>& selected,
                               const JournalCatalogue& catalogue, const JournalQuery& query) {
    JournalStatistics statistics;
    CardCounter counter;
    QHash<QString, int> types;
    MonthCounter perMonth(journal);
    DeckFinder decks(catalogue, counter);
    for (const int i : selected) {
        const JournalEntry& entry = journal.Entries[static_cast<std::size_t>(i)];
        ++statistics.Entries;
        if (entry.Month >= 0) perMonth.Add(entry.Month);
        if (entry.Locked) {
            ++statistics.Locked;
            continue;
        }
        if (entry.Standing != EntryStanding::Present) ++statistics.Unattributable;
        const auto [deck, slot] = decks.Find(entry.DeckId);
        for (const DealtLocation& dealt : entry.Cards) {
            if (!Countable(deck, dealt.Card)) continue;
            counter.Add(slot, dealt);
            ++(dealt.Upright ? statistics.Upright : statistics.Reversed);
        }
    }
    statistics.Cards = counter.MostFrequentFirst(catalogue);
    for (const CardTally& card : statistics.Cards)
        if (!card.TypeName.isEmpty()) types[card.TypeName] += card.Total();
    for (auto t = types.cbegin(); t != types.cend(); ++t) statistics.Types.push_back({t.key(), t.value()});
    std::sort(statistics.Types.begin(), statistics.Types.end(), [](const NamedCount& a, const NamedCount& b) {
        return a.Count != b.Count ? a.Count > b.Count : a.Name < b.Name;
    });
    statistics.Months = MonthsOf(perMonth, query);
    return statistics;
}

std::vector<LocationTally> TallyLocations(const Journal& journal, const std::vector<int>& selected,
                                          const JournalCatalogue& catalogue, Integer spreadId, int top) {
    std::vector<CardCounter> perLocation(MaxSpreadLocations + 1);  // by location number
    for (const int i : selected) {
        const JournalEntry& entry = journal.Entries[static_cast<std::size_t>(i)];
        if (entry.Locked || entry.SpreadId != spreadId) continue;
        const JournalDeck* deck = catalogue.Deck(entry.DeckId);
        for (const DealtLocation& dealt : entry.Cards) {
            if (!Countable(deck, dealt.Card)) continue;
            CardCounter& counter = perLocation[static_cast<std::size_t>(dealt.Location)];
            counter.Add(counter.SlotOf(entry.DeckId), dealt);
        }
    }
    const JournalSpread* spread = catalogue.Spread(spreadId);
    int last = spread ? static_cast<int>(spread->LocationTitles.size()) : 0;
    for (int l = MaxSpreadLocations; l > last; --l)
        if (!perLocation[static_cast<std::size_t>(l)].Empty()) {
            last = l;
            break;
        }
    std::vector<LocationTally> locations;
    for (int l = 1; l <= last; ++l) {
        LocationTally location{l, LocationTitleOf(catalogue, spreadId, l), {}};
        location.Cards = perLocation[static_cast<std::size_t>(l)].MostFrequentFirst(catalogue);
        if (static_cast<int>(location.Cards.size()) > top) location.Cards.resize(static_cast<std::size_t>(top));
        locations.push_back(std::move(location));
    }
    return locations;
}

QString EntrySpreadText(const JournalEntry& entry, const JournalCatalogue& catalogue) {
    if (entry.Locked) return {};
    const JournalSpread* spread = catalogue.Spread(entry.SpreadId);
    return spread ? spread->Name : QCoreApplication::translate("Journal", "(no longer installed)");
}

QString EntryDeckText(const JournalEntry& entry, const JournalCatalogue& catalogue) {
    if (entry.Locked) return {};
    const JournalDeck* deck = catalogue.Deck(entry.DeckId);
    const QString name = deck ? deck->Name : QCoreApplication::translate("Journal", "(no longer installed)");
    switch (entry.Standing) {
    case EntryStanding::DeckRevised: return QCoreApplication::translate("Journal", "%1 (changed since)").arg(name);
    case EntryStanding::Damaged: return QCoreApplication::translate("Journal", "%1 (damaged record)").arg(name);
    default: return name;
    }
}

QByteArray JournalCsv(const Journal& journal, const std::vector<int>& selected, const JournalCatalogue& catalogue) {
    // The byte order mark tells spreadsheets that the file is UTF-8.
    QByteArray csv("\xEF\xBB\xBF");
    csv +=
        QCoreApplication::translate("Journal", "Date,Kind,Entry,Spread,Location,Location Title,Deck,Card,Orientation")
            .toUtf8() +
        "\r\n";
    for (const int i : selected) {
        const JournalEntry& entry = journal.Entries[static_cast<std::size_t>(i)];
        if (entry.Locked) continue;
        const QByteArray head = CsvField(EntryDateText(entry)) + ',' + CsvField(EntryKindText(entry.Kind)) + ',' +
                                CsvField(entry.Name) + ',' + CsvField(EntrySpreadText(entry, catalogue)) + ',';
        const QByteArray deck = CsvField(EntryDeckText(entry, catalogue));
        for (const DealtLocation& dealt : entry.Cards) {
            csv += head + QByteArray::number(dealt.Location) + ',' +
                   CsvField(LocationTitleOf(catalogue, entry.SpreadId, dealt.Location)) + ',' + deck + ',' +
                   CsvField(CardTitleOf(catalogue, entry.DeckId, dealt.Card)) + ',' +
                   (dealt.Upright ? "Upright" : "Reversed") + "\r\n";
        }
    }
    return csv;
}

QString CardLabel(const CardTally& card) {
    return QCoreApplication::translate("Journal", "%1 (%2)")
        .arg(card.Title,
             card.DeckInstalled ? card.DeckName : QCoreApplication::translate("Journal", "no longer installed"));
}

QString MonthText(int month) {
    return QLocale().toString(QDate(month / 12, month % 12 + 1, 1), QStringLiteral("MMM yyyy"));
}

ChartData CardsChart(const JournalStatistics& statistics, std::size_t top) {
    ChartData chart{ChartShape::Bars,
                    {},
                    QCoreApplication::translate("Journal", "Upright"),
                    QCoreApplication::translate("Journal", "Reversed")};
    for (std::size_t i = 0; i < statistics.Cards.size() && i < top; ++i)
        chart.Bars.push_back(
            {CardLabel(statistics.Cards[i]), statistics.Cards[i].Upright, statistics.Cards[i].Reversed});
    return chart;
}

ChartData TypesChart(const JournalStatistics& statistics) {
    ChartData chart;
    for (const NamedCount& type : statistics.Types) chart.Bars.push_back({type.Name, type.Count, 0});
    return chart;
}

ChartData FacingChart(const JournalStatistics& statistics) {
    ChartData chart;
    // Each in its colour of the cards chart.
    chart.Bars = {{QCoreApplication::translate("Journal", "Upright"), statistics.Upright, 0},
                  {QCoreApplication::translate("Journal", "Reversed"), 0, statistics.Reversed}};
    return chart;
}

ChartData MonthsChart(const JournalStatistics& statistics) {
    ChartData chart;
    chart.Shape = ChartShape::Columns;
    if (!statistics.Months.empty()) chart.FirstNumber = statistics.Months.front().Month;
    for (const MonthCount& month : statistics.Months) chart.Bars.push_back({MonthText(month.Month), month.Count, 0});
    return chart;
}

namespace {

constexpr int PrintMargin = 1080;  // three quarters of an inch
constexpr int PrintChartFont = 9;  // points: small, but read at arm's length
constexpr int PrintGap = 240;      // twips between the columns of the table

// A long colour (&HBBGGRR) as the printer takes it.
int LongColour(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

// Draws a chart's layout on the printer in the chart's font.
void PrintChart(Printer& printer, const ChartData& chart, const QRect& box) {
    printer.FontSize = PrintChartFont;
    const ChartMetrics metrics{[&](const QString& text) { return double(printer.TextWidth(text)); },
                               double(printer.TextHeight()), 90, 15};
    const ChartDrawing drawing = LayOutChart(chart, box, metrics);
    for (const ChartBlock& block : drawing.Blocks) {
        const QRect r = block.Box.toAlignedRect();
        const int colour = block.Ink == ChartInk::First    ? LongColour(QBColor(TheRun.CurrentLocationColour))
                           : block.Ink == ChartInk::Second ? LongColour(QBColor(TheRun.OtherLocationColour))
                           : block.Ink == ChartInk::Axis   ? 0x808080
                                                           : 0xE0E0E0;
        printer.FillRect(r.x(), r.y(), r.width(), r.height(), colour);
    }
    for (const ChartText& text : drawing.Texts) {
        const QRect r = text.Box.toAlignedRect();
        printer.PrintInBox(text.Text, r.x(), r.y(), r.width(), r.height(), text.Align);
    }
}

}  // namespace

void PrintJournalStatistics(Printer& printer, const JournalStatistics& statistics, std::size_t top) {
    const int width = printer.Width() - 2 * PrintMargin;
    const auto room = [&](int height) {
        if (printer.CurrentY + height > printer.Height() - PrintMargin) {
            printer.NewPage();
            printer.CurrentY = PrintMargin;
        }
    };
    const auto line = [&](const QString& text) {
        room(printer.TextHeight());
        printer.CurrentX = PrintMargin;
        printer.Print(text);
    };
    const auto number = [](int n) { return QLocale().toString(n); };

    printer.CurrentY = PrintMargin;
    printer.FontSize = 14;
    printer.FontBold = true;
    line(QCoreApplication::translate("Journal", "Journal Statistics"));
    printer.FontSize = 10;
    printer.FontBold = false;
    line(QCoreApplication::translate("Journal", "Entries: %1").arg(number(statistics.Entries)));
    line(QCoreApplication::translate("Journal", "Locked, not counted: %1").arg(number(statistics.Locked)));
    line(QCoreApplication::translate("Journal", "Not attributable to a present card: %1")
             .arg(number(statistics.Unattributable)));
    line(QCoreApplication::translate("Journal", "Upright: %1    Reversed: %2")
             .arg(number(statistics.Upright), number(statistics.Reversed)));
    for (const NamedCount& type : statistics.Types)
        line(QCoreApplication::translate("Journal", "%1: %2").arg(type.Name, number(type.Count)));

    // Each chart under a heading, as tall as its bars need at the chart's font.
    const auto chart = [&](const QString& heading, const ChartData& data, int height) {
        printer.FontSize = 10;
        printer.FontBold = true;
        room(printer.TextHeight() * 2 + height);
        line(QString());
        line(heading);
        printer.FontBold = false;
        PrintChart(printer, data, QRect(PrintMargin, printer.CurrentY, width, height));
        printer.FontSize = 10;
        printer.CurrentY += height;
    };
    const ChartData cards = CardsChart(statistics, top);
    printer.FontSize = PrintChartFont;
    const int chartLine = printer.TextHeight();
    chart(QCoreApplication::translate("Journal", "The Cards That Came Up Most"), cards,
          chartLine * (static_cast<int>(cards.Bars.size()) + 2) * 5 / 4 + 4 * 90);
    chart(QCoreApplication::translate("Journal", "Entries per Month"), MonthsChart(statistics), chartLine * 16);

    // The table: three columns of figures, each as wide as its widest text,
    // then the card in the width left; the headings again on each new page.
    const QString headings[] = {
        QCoreApplication::translate("Journal", "Total"), QCoreApplication::translate("Journal", "Upright"),
        QCoreApplication::translate("Journal", "Reversed"), QCoreApplication::translate("Journal", "Card")};
    int columns[3] = {0, 0, 0};
    printer.FontBold = true;
    for (int c = 0; c < 3; ++c) columns[c] = printer.TextWidth(headings[c]);
    printer.FontBold = false;
    for (const CardTally& card : statistics.Cards) {
        const int figures[] = {card.Total(), card.Upright, card.Reversed};
        for (int c = 0; c < 3; ++c) columns[c] = std::max(columns[c], printer.TextWidth(number(figures[c])));
    }
    const auto row = [&](const QString(&cells)[4]) {
        const int height = printer.TextHeight();
        int x = PrintMargin;
        for (int c = 0; c < 3; ++c) {
            printer.PrintInBox(cells[c], x, printer.CurrentY, columns[c], height, Qt::AlignRight | Qt::AlignVCenter);
            x += columns[c] + PrintGap;
        }
        const int rest = PrintMargin + width - x;
        printer.PrintInBox(ElideToWidth(cells[3], rest, [&](const QString& t) { return double(printer.TextWidth(t)); }),
                           x, printer.CurrentY, rest, height, Qt::AlignLeft | Qt::AlignVCenter);
        printer.CurrentY += height;
    };
    const auto headingRow = [&] {
        printer.FontBold = true;
        row(headings);
        printer.FontBold = false;
    };
    printer.FontSize = 10;
    line(QString());
    room(printer.TextHeight() * 2);
    headingRow();
    for (const CardTally& card : statistics.Cards) {
        if (printer.CurrentY + printer.TextHeight() > printer.Height() - PrintMargin) {
            room(printer.Height());
            headingRow();
        }
        row({number(card.Total()), number(card.Upright), number(card.Reversed), CardLabel(card)});
    }
    printer.EndDoc();
}
