#include "core/records/Records.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/platform/CodePage.h"

namespace {

bool IsBlankChar(QChar c) { return c == QLatin1Char(' ') || c == QChar(0); }

// Walks the fields of a record in file order; the same walk encodes and
// decodes, so the two can never disagree about an offset.
class Encoder {
public:
    explicit Encoder(char* out) : out_(out) {}
    void operator()(const Integer& v) {
        const auto u = static_cast<std::uint16_t>(v);
        out_[pos_] = static_cast<char>(u & 0xFF);
        out_[pos_ + 1] = static_cast<char>(u >> 8);
        pos_ += 2;
    }
    void operator()(const double& v) {
        std::uint64_t bits;
        std::memcpy(&bits, &v, 8);
        for (int i = 0; i < 8; ++i) out_[pos_ + i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
        pos_ += 8;
    }
    template <int N>
    void operator()(const FixedText<N>& t) {
        std::memcpy(out_ + pos_, t.Bytes.data(), N);
        pos_ += N;
    }
    template <class T, std::size_t K>
    void operator()(const std::array<T, K>& a) {
        for (const T& item : a) (*this)(item);
    }
    void operator()(const Designer& d);
    void operator()(const OldLocation& l);
    int Position() const { return pos_; }

private:
    char* out_;
    int pos_ = 0;
};

class Decoder {
public:
    explicit Decoder(const char* in) : in_(in) {}
    void operator()(Integer& v) {
        const auto lo = static_cast<unsigned char>(in_[pos_]);
        const auto hi = static_cast<unsigned char>(in_[pos_ + 1]);
        v = static_cast<Integer>(static_cast<std::uint16_t>(lo | (hi << 8)));
        pos_ += 2;
    }
    void operator()(double& v) {
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i)
            bits |= static_cast<std::uint64_t>(static_cast<unsigned char>(in_[pos_ + i])) << (8 * i);
        std::memcpy(&v, &bits, 8);
        pos_ += 8;
    }
    template <int N>
    void operator()(FixedText<N>& t) {
        std::memcpy(t.Bytes.data(), in_ + pos_, N);
        pos_ += N;
    }
    template <class T, std::size_t K>
    void operator()(std::array<T, K>& a) {
        for (T& item : a) (*this)(item);
    }
    void operator()(Designer& d);
    void operator()(OldLocation& l);
    int Position() const { return pos_; }

private:
    const char* in_;
    int pos_ = 0;
};

template <class V, class D>
void VisitDesigner(V& v, D& d) {
    v(d.DesignerName);
    v(d.DesignerEmail);
    v(d.DesignerWebPage);
}

template <class V, class L>
void VisitOldLocation(V& v, L& l) {
    v(l.OldLocationTitle);
    v(l.OldLocationDescription);
    v(l.OldLocationQuestion);
    v(l.OldLocationLeft);
    v(l.OldLocationTop);
}

// Walks the fields as the encoder does, counting bytes, and notes where the
// field at a given address starts.
class Locator {
public:
    explicit Locator(const void* target) : target_(target) {}
    void operator()(const Integer& v) { Mark(&v, 2); }
    void operator()(const double& v) { Mark(&v, 8); }
    template <int N>
    void operator()(const FixedText<N>& t) {
        Mark(&t, N);
    }
    template <class T, std::size_t K>
    void operator()(const std::array<T, K>& a) {
        Mark(&a, 0);
        for (const T& item : a) (*this)(item);
    }
    void operator()(const Designer& d) {
        Mark(&d, 0);
        VisitDesigner(*this, d);
    }
    void operator()(const OldLocation& l) {
        Mark(&l, 0);
        VisitOldLocation(*this, l);
    }
    int Found() const { return found_; }

private:
    void Mark(const void* field, int width) {
        if (found_ < 0 && field == target_) found_ = pos_;
        pos_ += width;
    }
    const void* target_;
    int pos_ = 0;
    int found_ = -1;
};

void Encoder::operator()(const Designer& d) { VisitDesigner(*this, d); }
void Decoder::operator()(Designer& d) { VisitDesigner(*this, d); }
void Encoder::operator()(const OldLocation& l) { VisitOldLocation(*this, l); }
void Decoder::operator()(OldLocation& l) { VisitOldLocation(*this, l); }

template <class V, class R>
void Visit(V& v, R& r) {
    using T = std::remove_const_t<R>;
    if constexpr (std::is_same_v<T, DeckRecord>) {
        v(r.IncludesReversed);
        v(r.DeckName);
        v(r.DisplayCardTitles);
        v(r.DeckAttachment);
        v(r.DeckTitle);
        v(r.DeckDesigner);
        v(r.ModifiedOn);
        v(r.DeckDescription);
        v(r.DeckComments);
        v(r.DeckLocked);
        v(r.DeckPassword);
        v(r.CardCount);
        v(r.DeckRevision);
        v(r.DeckId);
        v(r.CardTypeName);
        v(r.CardTypeUsed);
        v(r.DeckReserved);
    } else if constexpr (std::is_same_v<T, CardRecord>) {
        v(r.CardType);
        v(r.CardTitle);
        v(r.CardDescription);
        v(r.CardKeywords);
        v(r.CardPicture);
        v(r.CardSound);
        v(r.CardDeckId);
        v(r.CardReserved);
    } else if constexpr (std::is_same_v<T, SpreadRecord>) {
        v(r.SpreadName);
        v(r.SpreadTitle);
        v(r.SpreadId);
        v(r.AllowedDeckId);
        v(r.AllowedDeckCount);
        v(r.SpreadDesigner);
        v(r.ModifiedOn);
        v(r.SpreadDescription);
        v(r.SpreadLocked);
        v(r.SpreadPassword);
        v(r.SpreadComments);
        v(r.AskQuestion);
        v(r.SpreadReservedText);
        v(r.LocationCount);
        v(r.SpreadRevision);
        v(r.StretchBackground);
        v(r.BackgroundFile);
        v(r.SpreadAttachment);
    } else if constexpr (std::is_same_v<T, LocationRecord>) {
        v(r.LocationTitle);
        v(r.LocationSpreadId);
        v(r.LocationNumber);
        v(r.LocationDescription);
        v(r.LocationQuestion);
        v(r.LocationLeft);
        v(r.LocationTop);
        v(r.LocationAttachment);
    } else if constexpr (std::is_same_v<T, ReadingRecord>) {
        v(r.IssueAsked);
        v(r.SavedOn);
        v(r.ReadingName);
        v(r.Issue);
        v(r.ReadingSpreadId);
        v(r.ReadingSpreadRevision);
        v(r.ReadingDeckId);
        v(r.ReadingDeckRevision);
        v(r.DealtCard);
        v(r.DealtUpright);
        v(r.EntryLocked);
        v(r.EntryPassword);
        v(r.SaveCount);
        v(r.ReadingNotes);
        v(r.DealtCount);
        v(r.TableCardVisible);
        v(r.CardTypeSelected);
        v(r.UseReversed);
        v(r.AllowDuplicateCards);
        v(r.LocationCard);
        v(r.LocationIsUpright);
        v(r.ReadingTail);
    } else if constexpr (std::is_same_v<T, DiaryRecord>) {
        v(r.IssueAsked);
        v(r.SavedOn);
        v(r.DiaryName);
        v(r.Issue);
        v(r.ReadingSpreadId);
        v(r.ReadingSpreadRevision);
        v(r.ReadingDeckId);
        v(r.ReadingDeckRevision);
        v(r.DealtCard);
        v(r.DealtUpright);
        v(r.EntryLocked);
        v(r.EntryPassword);
        v(r.SaveCount);
        v(r.DiaryChoice);
        v(r.DiaryNotes);
        v(r.CardTypeSelected);
        v(r.UseReversed);
        v(r.AllowDuplicateCards);
        v(r.DiaryTail);
    } else if constexpr (std::is_same_v<T, OldDeckRecord>) {
        v(r.OldIncludesReversed);
        v(r.OldDeckName);
        v(r.OldDeckTitle);
        v(r.OldDesigner);
        v(r.OldModifiedOn);
        v(r.OldDescription);
        v(r.OldComments);
        v(r.OldLocked);
        v(r.OldPassword);
        v(r.OldCardCount);
        v(r.OldRevision);
        v(r.OldDeckId);
        v(r.OldTypeName);
        v(r.OldTypeUsed);
    } else if constexpr (std::is_same_v<T, OldCardRecord>) {
        v(r.OldCardType);
        v(r.OldCardTitle);
        v(r.OldCardDescription);
        v(r.OldCardKeywords);
        v(r.OldCardPicture);
        v(r.OldCardDeckId);
    } else if constexpr (std::is_same_v<T, OldSpreadRecord>) {
        v(r.OldSpreadName);
        v(r.OldSpreadTitle);
        v(r.OldSpreadId);
        v(r.OldAllowedDeckId);
        v(r.OldAllowedDeckCount);
        v(r.OldDesigner);
        v(r.OldModifiedOn);
        v(r.OldDescription);
        v(r.OldLocked);
        v(r.OldPassword);
        v(r.OldComments);
        v(r.OldAskQuestion);
        v(r.OldReservedText);
        v(r.OldLocationCount);
        v(r.OldLocations);
        v(r.OldRevision);
        v(r.OldStretch);
        v(r.OldBackgroundFile);
    }
}

template <class R>
void Encode(const R& r, char* out) {
    Encoder e(out);
    Visit(e, r);
    Q_ASSERT(e.Position() == R::Length);
}

template <class R>
void Decode(const char* in, R& r) {
    Decoder d(in);
    Visit(d, r);
    Q_ASSERT(d.Position() == R::Length);
}

}  // namespace

QString TrimField(const QString& text) {
    int first = 0;
    int last = static_cast<int>(text.size()) - 1;
    while (first <= last && IsBlankChar(text[first])) ++first;
    while (last >= first && IsBlankChar(text[last])) --last;
    return text.mid(first, last - first + 1);
}

QString RTrimField(const QString& text) {
    int last = static_cast<int>(text.size()) - 1;
    while (last >= 0 && IsBlankChar(text[last])) --last;
    return text.left(last + 1);
}

QString DecodeText(const char* bytes, int width) { return FromAnsi(bytes, width); }

void EncodeText(const QString& value, char* bytes, int width) {
    const QByteArray encoded = ToAnsi(value);
    const int n = std::min(width, static_cast<int>(encoded.size()));
    std::memcpy(bytes, encoded.constData(), static_cast<std::size_t>(n));
    std::memset(bytes + n, ' ', static_cast<std::size_t>(width - n));
}

#define CARTOMAR_RECORD_CODEC(R)                                 \
    void EncodeRecord(const R& r, char* out) { Encode(r, out); } \
    void DecodeRecord(const char* in, R& r) { Decode(in, r); }

CARTOMAR_RECORD_CODEC(DeckRecord)
CARTOMAR_RECORD_CODEC(CardRecord)
CARTOMAR_RECORD_CODEC(SpreadRecord)
CARTOMAR_RECORD_CODEC(LocationRecord)
CARTOMAR_RECORD_CODEC(ReadingRecord)
CARTOMAR_RECORD_CODEC(DiaryRecord)
CARTOMAR_RECORD_CODEC(OldDeckRecord)
CARTOMAR_RECORD_CODEC(OldCardRecord)
CARTOMAR_RECORD_CODEC(OldSpreadRecord)

namespace {
template <class R>
int LocateField(const R& r, const void* field) {
    Locator locator(field);
    Visit(locator, r);
    return locator.Found();
}
}  // namespace

int FieldOffset(const DeckRecord& r, const void* field) { return LocateField(r, field); }
int FieldOffset(const CardRecord& r, const void* field) { return LocateField(r, field); }
int FieldOffset(const SpreadRecord& r, const void* field) { return LocateField(r, field); }
int FieldOffset(const LocationRecord& r, const void* field) { return LocateField(r, field); }
int FieldOffset(const ReadingRecord& r, const void* field) { return LocateField(r, field); }
int FieldOffset(const DiaryRecord& r, const void* field) { return LocateField(r, field); }
