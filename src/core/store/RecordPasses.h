#pragma once
// What the store's operations share: finding a record by the bytes of a
// field, rewriting a file without the records that go, the smallest free id,
// and the names of the files a rewrite builds beside the real one.
#include <QCoreApplication>
#include <QString>
#include <cstring>
#include <vector>

#include "core/platform/CodePage.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/records/Records.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace RecordPasses {

inline const QString SpreadsTmpName = QStringLiteral("Spreads.tmp");
inline const QString LocationTmpName = QStringLiteral("Location.tmp");
inline const QString ReadingsTmpName = QStringLiteral("Readings.tmp");
inline const QString DiariesTmpName = QStringLiteral("Diaries.tmp");
inline const QString CardsTmpName = QStringLiteral("Cards.tmp");
inline const QString DecksTmpName = QStringLiteral("Decks.tmp");

// A name compared, both sides trimmed, with a name field in a record's
// bytes. The code page gives each byte one character of its own, so the
// bytes match exactly when the decoded texts do; a name the code page cannot
// hold matches no record.
class NameField {
public:
    template <class R, int N>
    NameField(FixedText<N> R::*field, const QString& name)
        : offset_(OffsetOf(field)),
          width_(N),
          possible_(AnsiRepresentable(TrimField(name))),
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
    RaiseError(6, QCoreApplication::translate("Errors", "Overflow"));
}

inline void LoadLocationsFrom(const QString& path, Integer spreadId, int count) {
    TheRun.SpreadLocations.Redim(1, count);
    const LocationRecord empty = ZeroRecord<LocationRecord>();
    for (LocationRecord& location : TheRun.SpreadLocations) location = empty;
    RecordReader<LocationRecord> reader(path);
    LocationRecord r;
    while (reader.Next(r)) {
        if (r.LocationSpreadId != spreadId) continue;
        // A number outside the spread's count has no place in the array.
        if (TheRun.SpreadLocations.InBounds(r.LocationNumber)) TheRun.SpreadLocations(r.LocationNumber) = r;
    }
}

}  // namespace RecordPasses
