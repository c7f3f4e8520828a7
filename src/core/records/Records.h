#pragma once
// The records of the program's files. Every file is a run of fixed-length
// records, little-endian, packed, 16-bit signed integers, flags -1 and 0,
// space-padded single-byte text and 8-byte OLE dates. Text fields keep their
// raw bytes, so a record read and written back is identical, zero bytes and
// all.
#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>

using Integer = std::int16_t;
constexpr Integer True16 = -1;
constexpr Integer False16 = 0;
inline Integer Flag(bool value) { return value ? True16 : False16; }

// Trims spaces and zero bytes at both ends: the way every reader sees text.
QString TrimField(const QString& text);
QString RTrimField(const QString& text);

template <int N>
struct FixedText {
    std::array<char, N> Bytes;

    FixedText() { Bytes.fill(' '); }
    FixedText(const QString& value) { Set(value); }  // NOLINT: a field takes a string as an assignment does

    static constexpr int Width = N;
    // The text as it stands, padding included.
    QString Value() const;
    // The text as readers see it: spaces and zero bytes gone at both ends.
    QString Trimmed() const { return TrimField(Value()); }
    // Cut to the width and padded with spaces; characters the code page
    // cannot hold become '?'.
    void Set(const QString& value);
    FixedText& operator=(const QString& value) {
        Set(value);
        return *this;
    }
    bool IsBlank() const { return Trimmed().isEmpty(); }
    QByteArray Raw() const { return QByteArray(Bytes.data(), N); }
    bool operator==(const FixedText& other) const { return Bytes == other.Bytes; }
};

// Decoding and encoding shared by every width.
QString DecodeText(const char* bytes, int width);
void EncodeText(const QString& value, char* bytes, int width);

template <int N>
QString FixedText<N>::Value() const {
    return DecodeText(Bytes.data(), N);
}
template <int N>
void FixedText<N>::Set(const QString& value) {
    EncodeText(value, Bytes.data(), N);
}

struct Designer {
    FixedText<40> DesignerName;
    FixedText<40> DesignerEmail;
    FixedText<50> DesignerWebPage;
    static constexpr int Length = 130;
};

// What the records can hold: a deck has at most 100 cards, a spread at most
// 32 locations.
constexpr int MaxDeckCards = 100;
constexpr int MaxSpreadLocations = 32;

struct DeckRecord {
    Integer IncludesReversed = 0;
    FixedText<50> DeckName;
    Integer DisplayCardTitles = 0;
    FixedText<12> DeckAttachment;
    FixedText<50> DeckTitle;
    Designer DeckDesigner;
    double ModifiedOn = 0;
    FixedText<500> DeckDescription;
    FixedText<200> DeckComments;
    Integer DeckLocked = 0;
    FixedText<25> DeckPassword;
    Integer CardCount = 0;
    Integer DeckRevision = 0;
    Integer DeckId = 0;
    std::array<FixedText<20>, 4> CardTypeName;
    std::array<Integer, 4> CardTypeUsed{};
    Integer DeckReserved = 0;
    static constexpr int Length = 1077;
};

struct CardRecord {
    Integer CardType = 0;
    FixedText<50> CardTitle;
    std::array<FixedText<1500>, 2> CardDescription;
    std::array<FixedText<1000>, 2> CardKeywords;
    std::array<FixedText<12>, 2> CardPicture;
    std::array<FixedText<12>, 2> CardSound;
    Integer CardDeckId = 0;
    Integer CardReserved = 0;
    static constexpr int Length = 5104;
};

struct SpreadRecord {
    FixedText<50> SpreadName;
    FixedText<50> SpreadTitle;
    Integer SpreadId = 0;
    std::array<Integer, 10> AllowedDeckId{};
    Integer AllowedDeckCount = 0;
    Designer SpreadDesigner;
    double ModifiedOn = 0;
    FixedText<1500> SpreadDescription;
    Integer SpreadLocked = 0;
    FixedText<25> SpreadPassword;
    FixedText<650> SpreadComments;
    Integer AskQuestion = 0;
    FixedText<60> SpreadReservedText;
    Integer LocationCount = 0;
    Integer SpreadRevision = 0;
    Integer StretchBackground = 0;
    FixedText<11> BackgroundFile;
    FixedText<12> SpreadAttachment;
    static constexpr int Length = 2530;
};

struct LocationRecord {
    FixedText<50> LocationTitle;
    Integer LocationSpreadId = 0;
    Integer LocationNumber = 0;
    FixedText<650> LocationDescription;
    std::array<FixedText<125>, 3> LocationQuestion;
    Integer LocationLeft = 0;
    Integer LocationTop = 0;
    FixedText<12> LocationAttachment;
    static constexpr int Length = 1095;
};

// A saved reading. Offsets 0 to 349 are shared with DiaryRecord.
// The two kinds of saved entry: a reading drawn by the program, a diary entry
// of a reading done with real cards.
enum class EntryKind { Reading, Diary };

struct ReadingRecord {
    Integer IssueAsked = 0;
    double SavedOn = 0;
    FixedText<50> ReadingName;
    FixedText<125> Issue;
    Integer ReadingSpreadId = 0;
    Integer ReadingSpreadRevision = 0;
    Integer ReadingDeckId = 0;
    Integer ReadingDeckRevision = 0;
    std::array<Integer, 32> DealtCard{};  // index 0 is location 1
    std::array<Integer, 32> DealtUpright{};
    Integer EntryLocked = 0;
    FixedText<25> EntryPassword;
    Integer SaveCount = 0;
    FixedText<2500> ReadingNotes;
    Integer DealtCount = 0;
    std::array<Integer, 100> TableCardVisible{};  // index 0 is table position 1
    std::array<Integer, 4> CardTypeSelected{};
    Integer UseReversed = 0;
    Integer AllowDuplicateCards = 0;
    std::array<Integer, 100> LocationCard{};
    std::array<Integer, 100> LocationIsUpright{};
    Integer ReadingTail = 0;
    static constexpr int Length = 3466;
};

// A saved diary entry: the reading's first 350 bytes, then its own fields.
struct DiaryRecord {
    Integer IssueAsked = 0;
    double SavedOn = 0;
    FixedText<50> DiaryName;
    FixedText<125> Issue;
    Integer ReadingSpreadId = 0;
    Integer ReadingSpreadRevision = 0;
    Integer ReadingDeckId = 0;
    Integer ReadingDeckRevision = 0;
    std::array<Integer, 32> DealtCard{};
    std::array<Integer, 32> DealtUpright{};
    Integer EntryLocked = 0;
    FixedText<25> EntryPassword;
    Integer SaveCount = 0;
    Integer DiaryChoice = 0;
    FixedText<2500> DiaryNotes;
    std::array<Integer, 4> CardTypeSelected{};
    Integer UseReversed = 0;
    Integer AllowDuplicateCards = 0;
    Integer DiaryTail = 0;
    static constexpr int Length = 2866;
};

// The layouts of the earlier database, read only by the conversion.
struct OldDeckRecord {
    Integer OldIncludesReversed = 0;
    FixedText<30> OldDeckName;
    FixedText<30> OldDeckTitle;
    Designer OldDesigner;
    double OldModifiedOn = 0;
    FixedText<500> OldDescription;
    FixedText<200> OldComments;
    Integer OldLocked = 0;
    FixedText<25> OldPassword;
    Integer OldCardCount = 0;
    Integer OldRevision = 0;
    Integer OldDeckId = 0;
    std::array<FixedText<20>, 4> OldTypeName;
    std::array<Integer, 4> OldTypeUsed{};
    static constexpr int Length = 1021;
};

struct OldCardRecord {
    Integer OldCardType = 0;
    FixedText<30> OldCardTitle;
    std::array<FixedText<500>, 2> OldCardDescription;
    std::array<FixedText<500>, 2> OldCardKeywords;
    std::array<FixedText<12>, 2> OldCardPicture;
    Integer OldCardDeckId = 0;
    static constexpr int Length = 2058;
};

struct OldLocation {
    FixedText<30> OldLocationTitle;
    FixedText<500> OldLocationDescription;
    std::array<FixedText<125>, 3> OldLocationQuestion;
    Integer OldLocationLeft = 0;
    Integer OldLocationTop = 0;
    static constexpr int Length = 909;
};

struct OldSpreadRecord {
    FixedText<30> OldSpreadName;
    FixedText<30> OldSpreadTitle;
    Integer OldSpreadId = 0;
    std::array<Integer, 10> OldAllowedDeckId{};
    Integer OldAllowedDeckCount = 0;
    Designer OldDesigner;
    double OldModifiedOn = 0;
    FixedText<1500> OldDescription;
    Integer OldLocked = 0;
    FixedText<25> OldPassword;
    FixedText<500> OldComments;
    Integer OldAskQuestion = 0;
    FixedText<60> OldReservedText;
    Integer OldLocationCount = 0;
    std::array<OldLocation, 15> OldLocations;
    Integer OldRevision = 0;
    Integer OldStretch = 0;
    FixedText<11> OldBackgroundFile;
    static constexpr int Length = 15963;
};

// Field-by-field encoding at the stated offsets. Encode writes exactly
// R::Length bytes; Decode reads exactly that many.
void EncodeRecord(const DeckRecord& r, char* out);
void EncodeRecord(const CardRecord& r, char* out);
void EncodeRecord(const SpreadRecord& r, char* out);
void EncodeRecord(const LocationRecord& r, char* out);
void EncodeRecord(const ReadingRecord& r, char* out);
void EncodeRecord(const DiaryRecord& r, char* out);
void EncodeRecord(const OldDeckRecord& r, char* out);
void EncodeRecord(const OldCardRecord& r, char* out);
void EncodeRecord(const OldSpreadRecord& r, char* out);
void DecodeRecord(const char* in, DeckRecord& r);
void DecodeRecord(const char* in, CardRecord& r);
void DecodeRecord(const char* in, SpreadRecord& r);
void DecodeRecord(const char* in, LocationRecord& r);
void DecodeRecord(const char* in, ReadingRecord& r);
void DecodeRecord(const char* in, DiaryRecord& r);
void DecodeRecord(const char* in, OldDeckRecord& r);
void DecodeRecord(const char* in, OldCardRecord& r);
void DecodeRecord(const char* in, OldSpreadRecord& r);

// Where a field starts in a record's bytes (-1 for an address that is no
// field of r). Readers that look at one field of many records use it to skip
// decoding the rest: OffsetOf(&DeckRecord::DeckId).
int FieldOffset(const DeckRecord& r, const void* field);
int FieldOffset(const CardRecord& r, const void* field);
int FieldOffset(const SpreadRecord& r, const void* field);
int FieldOffset(const LocationRecord& r, const void* field);
int FieldOffset(const ReadingRecord& r, const void* field);
int FieldOffset(const DiaryRecord& r, const void* field);

template <class R, class F>
int OffsetOf(F R::*member) {
    static const R probe;
    return FieldOffset(probe, &(probe.*member));
}

// Lookups over whole files look at one field of each record straight in its
// bytes instead of decoding every record: the answers are the same, the time
// is that of reading the file. The Integer at offset in a record's bytes:
inline Integer RawInteger(const char* raw, int offset) {
    const auto lo = static_cast<unsigned char>(raw[offset]);
    const auto hi = static_cast<unsigned char>(raw[offset + 1]);
    return static_cast<Integer>(static_cast<std::uint16_t>(lo | (hi << 8)));
}

template <class R>
QByteArray EncodeRecord(const R& r) {
    QByteArray bytes(R::Length, '\0');
    EncodeRecord(r, bytes.data());
    return bytes;
}
