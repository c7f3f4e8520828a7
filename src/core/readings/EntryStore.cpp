#include "core/readings/EntryStore.h"

#include <QCoreApplication>
#include <algorithm>

#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {

// What differs between the two kinds of entry: the file, the name field and
// the words.
template <class R>
struct Kind;

template <>
struct Kind<ReadingRecord> {
    static const QString& Path() { return TheRun.Paths.ReadingsPath; }
    static FixedText<50>& Name(ReadingRecord& r) { return r.ReadingName; }
    static const FixedText<50>& Name(const ReadingRecord& r) { return r.ReadingName; }
    static int Find(const QString& name) { return FindReadingByName(name); }
    static QString NoName() {
        return QCoreApplication::translate("EntryStore", "Please select a name to save the reading as.");
    }
    static QString Exists() { return QCoreApplication::translate("EntryStore", "Reading already exists. Overwrite?"); }
    static QString DeckGone() {
        return QCoreApplication::translate(
            "EntryStore",
            "This Reading cannot be opened because the deck that was used to create it is no longer installed.");
    }
    static QString TooManyCardsRemoved() {
        return QCoreApplication::translate(
            "EntryStore",
            "The reading cannot be opened because the too many cards were removed from the deck that was used to "
            "create this reading.");
    }
    static QString DeckChanged() {
        return QCoreApplication::translate(
            "EntryStore",
            "The deck used with this reading has changed since the reading was created. Do you still want to "
            "open it?\nNOTE: If you choose 'Yes', the reading will be opened with the new deck version and the "
            "cards might be corrupted.");
    }
    static QString SpreadGone() {
        return QCoreApplication::translate(
            "EntryStore",
            "This reading cannot be opened because the spread that was used to create it is no longer installed.");
    }
    static QString SpreadChanged() {
        return QCoreApplication::translate(
            "EntryStore",
            "The spread used with this reading has changed since the reading was created. Do you still want to "
            "open it?\nNOTE: If you choose 'Yes', the reading will be opened with the new spread and the card "
            "locations might very well be corrupted.");
    }
};

template <>
struct Kind<DiaryRecord> {
    static const QString& Path() { return TheRun.Paths.DiaryPath; }
    static FixedText<50>& Name(DiaryRecord& r) { return r.DiaryName; }
    static const FixedText<50>& Name(const DiaryRecord& r) { return r.DiaryName; }
    static int Find(const QString& name) { return FindDiaryByName(name); }
    static QString NoName() {
        return QCoreApplication::translate("EntryStore", "Please select a name to save the diary as.");
    }
    static QString Exists() { return QCoreApplication::translate("EntryStore", "Diary already exists. Overwrite?"); }
    static QString DeckGone() {
        return QCoreApplication::translate(
            "EntryStore",
            "This diary cannot be opened because the deck that was used to create it is no longer installed.");
    }
    static QString TooManyCardsRemoved() {
        return QCoreApplication::translate(
            "EntryStore",
            "The Diary cannot be opened because the too many cards were removed from the deck that was used to "
            "create this diary.");
    }
    static QString DeckChanged() {
        return QCoreApplication::translate(
            "EntryStore",
            "The deck used with this diary has changed since the diary was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the diary will be opened with the new deck version and the cards "
            "might be corrupted.");
    }
    static QString SpreadGone() {
        return QCoreApplication::translate(
            "EntryStore",
            "This diary cannot be opened because the spread that was used to create it is no longer installed.");
    }
    static QString SpreadChanged() {
        return QCoreApplication::translate(
            "EntryStore",
            "The spread used with this diary has changed since the diary was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the diary will be opened with the new spread and the card locations "
            "might very well be corrupted.");
    }
};

// Empty, or nothing but blanks, is no name: 31 blanks compare greater than
// any such text, and than no other.
bool IsNoName(const QString& typed) {
    return QString::compare(QString(31, QLatin1Char(' ')), typed, Qt::CaseInsensitive) > 0;
}

template <class R>
QStringList NamesOf() {
    QStringList names;
    RecordReader<R> reader(Kind<R>::Path());
    R entry;
    while (reader.Next(entry)) names << Kind<R>::Name(entry).Trimmed();
    return names;
}

template <class R>
std::vector<std::pair<double, QString>> DatesOf() {
    std::vector<std::pair<double, QString>> entries;
    RecordReader<R> reader(Kind<R>::Path());
    R entry;
    while (reader.Next(entry)) entries.emplace_back(entry.SavedOn, Kind<R>::Name(entry).Value());
    return entries;
}

template <class R>
EntryNameCheck CheckName(const QString& typed) {
    EntryNameCheck check;
    if (IsNoName(typed)) {
        check.Problem = Kind<R>::NoName();
        return check;
    }
    const int number = Kind<R>::Find(typed);
    if (number > 0) {
        check.Question = Kind<R>::Exists();
        check.Replacing = number;
    }
    return check;
}

template <class R>
EntrySave<R> Save(const R& entry, const QString& name, int replacing, const std::array<bool, 4>& cardTypes) {
    EntrySave<R> result;
    result.Saved = entry;
    if (IsNoName(name)) {
        result.Problem = Kind<R>::NoName();
        return result;
    }
    R& saved = result.Saved;
    Kind<R>::Name(saved) = name.trimmed();
    for (std::size_t t = 0; t < 4; ++t) saved.CardTypeSelected[t] = Flag(cardTypes[t]);
    saved.SavedOn = OleToday();
    ++saved.SaveCount;
    RecordEdit<R> edit(Kind<R>::Path());
    result.RecordNumber = replacing > 0 ? replacing : edit.Count() + 1;
    edit.Put(result.RecordNumber, saved);
    edit.Commit();
    return result;
}

template <class R>
EntryOpening<R> Judge(const QString& name) {
    EntryOpening<R> opening;
    const int number = Kind<R>::Find(name);
    if (number < 1 || !GetRecord(Kind<R>::Path(), number, opening.Entry)) return opening;
    opening.Found = true;
    const R& entry = opening.Entry;
    opening.Locked = entry.EntryLocked != 0;
    opening.Password = entry.EntryPassword.Value();
    const auto refuse = [&opening](const QString& text) { opening.Steps.append({true, text}); };
    const auto ask = [&opening](const QString& text) { opening.Steps.append({false, text}); };

    const int deckNumber = FindDeckRecordById(entry.ReadingDeckId);
    if (deckNumber == -1) {
        refuse(Kind<R>::DeckGone());
        return opening;
    }
    GetRecord(TheRun.Paths.DecksPath, deckNumber, opening.Deck);
    if (opening.Deck.DeckRevision != entry.ReadingDeckRevision) {
        // A changed deck: the cards of the first locations must still be there.
        const auto first = entry.DealtCard.begin();
        if (*std::max_element(first, first + CheckedLocations) > opening.Deck.CardCount) {
            refuse(Kind<R>::TooManyCardsRemoved());
            return opening;
        }
        ask(Kind<R>::DeckChanged());
    }
    const int spreadNumber = FindSpreadRecordById(entry.ReadingSpreadId);
    if (spreadNumber == -1) {
        refuse(Kind<R>::SpreadGone());
        return opening;
    }
    GetRecord(TheRun.Paths.SpreadsPath, spreadNumber, opening.Spread);
    if (opening.Spread.SpreadRevision != entry.ReadingSpreadRevision) ask(Kind<R>::SpreadChanged());
    return opening;
}

}  // namespace

QStringList SavedEntryNames(EntryKind kind) {
    return kind == EntryKind::Reading ? NamesOf<ReadingRecord>() : NamesOf<DiaryRecord>();
}

std::vector<std::pair<double, QString>> SavedEntryDates(EntryKind kind) {
    return kind == EntryKind::Reading ? DatesOf<ReadingRecord>() : DatesOf<DiaryRecord>();
}

EntryNameCheck CheckEntryName(EntryKind kind, const QString& typed) {
    return kind == EntryKind::Reading ? CheckName<ReadingRecord>(typed) : CheckName<DiaryRecord>(typed);
}

EntrySave<ReadingRecord> SaveEntry(const ReadingRecord& reading, const QString& name, int replacing,
                                   const std::array<bool, 4>& cardTypes) {
    return Save(reading, name, replacing, cardTypes);
}

EntrySave<DiaryRecord> SaveEntry(const DiaryRecord& diary, const QString& name, int replacing,
                                 const std::array<bool, 4>& cardTypes) {
    return Save(diary, name, replacing, cardTypes);
}

void DeleteEntry(EntryKind kind, const QString& name) {
    if (kind == EntryKind::Reading) DeleteReading(name);
    else DeleteDiary(name);
}

EntryOpening<ReadingRecord> JudgeReadingOpening(const QString& name) { return Judge<ReadingRecord>(name); }

EntryOpening<DiaryRecord> JudgeDiaryOpening(const QString& name) { return Judge<DiaryRecord>(name); }
