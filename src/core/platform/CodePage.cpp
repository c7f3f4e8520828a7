#include "core/platform/CodePage.h"

#include <QHash>

namespace {

// Bytes 0x80 to 0x9F of Windows-1252. The five bytes the code page leaves
// undefined map to the control characters of the same number, so that every
// byte survives a decode and encode.
constexpr char16_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t Decode(unsigned char b) {
    if (b >= 0x80 && b <= 0x9F) return kHigh[b - 0x80];
    return b;
}

int Encode(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return c;
    static const QHash<char16_t, int> reverse = [] {
        QHash<char16_t, int> h;
        for (int i = 0; i < 32; ++i) h.insert(kHigh[i], 0x80 + i);
        return h;
    }();
    return reverse.value(c, -1);
}

}  // namespace

QString FromAnsi(const char* bytes, int length) {
    QString text(length, Qt::Uninitialized);
    QChar* out = text.data();
    for (int i = 0; i < length; ++i) out[i] = QChar(Decode(static_cast<unsigned char>(bytes[i])));
    return text;
}

QString FromAnsi(const QByteArray& bytes) { return FromAnsi(bytes.constData(), static_cast<int>(bytes.size())); }

QByteArray ToAnsi(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        // A character outside the basic plane is one character to the user:
        // it becomes a single '?'.
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) ++i;
        const int b = Encode(c.unicode());
        out.append(b < 0 ? '?' : static_cast<char>(b));
    }
    return out;
}

bool AnsiRepresentable(const QString& text) {
    for (QChar c : text)
        if (Encode(c.unicode()) < 0) return false;
    return true;
}
