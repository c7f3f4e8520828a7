// Builds the pseudo-translation from a translation file of the program: every
// text accented and made longer, inside brackets, so that a screen shown in it
// gives away at a glance a text that never went through the translation system
// (it stays plain) and one that is cut (its closing bracket is missing). What
// the program fills in or acts on stays as it is: the arguments (%1, %n, %L1),
// the accelerator's letter after '&' and a literal "&&", markup and entities,
// file patterns ("*.bmp"), breaks and the spaces between words.
//
//   make_pseudo_translation <in.ts> <out.ts>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <cstdio>

namespace {

// Each ASCII letter and its accented twin; DejaVu Sans draws all of them.
const QHash<QChar, QChar>& Accents() {
    static const QHash<QChar, QChar> map = [] {
        const QString plain = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
        const QString accented = QStringLiteral("áƀçđéƒĝĥíĵķĺɱñóƥʠŕšţúṽŵẋýžÁƁÇĐÉƑĜĤÍĴĶĹṀÑÓƤɊŔŠŢÚṼŴẊÝŽ");
        QHash<QChar, QChar> m;
        for (qsizetype i = 0; i < plain.size(); ++i) m.insert(plain[i], accented[i]);
        return m;
    }();
    return map;
}

// The length of what is kept verbatim at position i, 0 when the character
// there is plain text.
qsizetype KeptAt(const QString& s, qsizetype i) {
    const QChar c = s[i];
    const auto rest = [&](qsizetype from, auto isPart) {
        qsizetype j = from;
        while (j < s.size() && isPart(s[j])) ++j;
        return j - i;
    };
    if (c == QLatin1Char('%') && i + 1 < s.size()) {
        qsizetype j = i + 1;
        if (s[j] == QLatin1Char('L')) ++j;
        if (j < s.size() && (s[j].isDigit() || s[j] == QLatin1Char('n')))
            return rest(j + 1, [](QChar x) { return x.isDigit(); });
    }
    if (c == QLatin1Char('&') && i + 1 < s.size()) {
        // An entity (&amp;) whole; otherwise the accelerator and its letter,
        // which keeps the keyboard working as in English.
        const qsizetype semi = s.indexOf(QLatin1Char(';'), i);
        if (semi > i + 1 && semi - i <= 8) {
            bool word = true;
            for (qsizetype k = i + 1; k < semi; ++k)
                word = word && (s[k].isLetterOrNumber() || s[k] == QLatin1Char('#'));
            if (word) return semi - i + 1;
        }
        return 2;
    }
    if (c == QLatin1Char('<')) {
        const qsizetype close = s.indexOf(QLatin1Char('>'), i);
        if (close > i + 1 && (s[i + 1].isLetter() || s[i + 1] == QLatin1Char('/'))) return close - i + 1;
    }
    if (c == QLatin1Char('*'))
        return rest(i + 1,
                    [](QChar x) { return x.isLetterOrNumber() || x == QLatin1Char('.') || x == QLatin1Char('*'); });
    return 0;
}

QString Pseudo(const QString& source) {
    if (source.trimmed().isEmpty()) return source;
    QString out;
    int letters = 0;
    for (qsizetype i = 0; i < source.size();) {
        if (const qsizetype kept = KeptAt(source, i); kept > 0) {
            out += source.mid(i, kept);
            i += kept;
            continue;
        }
        const QChar c = source[i++];
        if (c.isLetter()) ++letters;
        out += Accents().value(c, c);
    }
    // About two fifths longer, more than German asks of a screen; the
    // padding goes before the trailing spaces and breaks so that they stay
    // where the layout expects them.
    const qsizetype body = [&] {
        qsizetype end = out.size();
        while (end > 0 && out[end - 1].isSpace()) --end;
        return end;
    }();
    const QString padding = QString(qMax(1, (letters * 2 + 4) / 5), QChar(0x00B7));
    return QLatin1Char('[') + out.left(body) + padding + QLatin1Char(']') + out.mid(body);
}

void CopyAttributes(QXmlStreamWriter& w, const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& a : attributes)
        w.writeAttribute(a.qualifiedName().toString(), a.value().toString());
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_pseudo_translation <in.ts> <out.ts>\n");
        return 2;
    }
    QFile in(QString::fromLocal8Bit(argv[1]));
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "make_pseudo_translation: cannot read %s\n", argv[1]);
        return 1;
    }
    QSaveFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "make_pseudo_translation: cannot write %s\n", argv[2]);
        return 1;
    }
    QXmlStreamReader r(&in);
    QXmlStreamWriter w(&out);
    w.setAutoFormatting(true);
    w.writeStartDocument();
    w.writeDTD(QStringLiteral("<!DOCTYPE TS>"));

    // Copies the file but for the translations, which are made from the
    // sources: a message's translation follows its source and, for a
    // counted text, has the two forms of the English plural.
    QString source;
    bool numerus = false;
    int skipping = 0;
    while (!r.atEnd()) {
        r.readNext();
        if (skipping > 0) {
            if (r.isStartElement()) ++skipping;
            if (r.isEndElement()) --skipping;
            continue;
        }
        if (r.isStartElement()) {
            const QString name = r.name().toString();
            if (name == QLatin1String("translation") || name == QLatin1String("location") ||
                name == QLatin1String("translatorcomment")) {
                skipping = 1;
                continue;
            }
            if (name == QLatin1String("source")) {
                source = r.readElementText();
                w.writeTextElement(name, source);
                continue;
            }
            w.writeStartElement(name);
            QXmlStreamAttributes attributes = r.attributes();
            if (name == QLatin1String("TS")) {
                w.writeAttribute(QStringLiteral("version"), attributes.value(QLatin1String("version")).toString());
                w.writeAttribute(QStringLiteral("language"), QStringLiteral("en"));
                w.writeAttribute(QStringLiteral("sourcelanguage"), QStringLiteral("en"));
                continue;
            }
            if (name == QLatin1String("message")) {
                numerus = attributes.value(QLatin1String("numerus")) == QLatin1String("yes");
                source.clear();
            }
            CopyAttributes(w, attributes);
        } else if (r.isEndElement()) {
            if (r.name() == QLatin1String("message")) {
                w.writeStartElement(QStringLiteral("translation"));
                if (numerus) {
                    w.writeTextElement(QStringLiteral("numerusform"), Pseudo(source));
                    w.writeTextElement(QStringLiteral("numerusform"), Pseudo(source));
                } else {
                    w.writeCharacters(Pseudo(source));
                }
                w.writeEndElement();
            }
            w.writeEndElement();
        } else if (r.isCharacters() && !r.isWhitespace()) {
            w.writeCharacters(r.text().toString());
        }
    }
    if (r.hasError()) {
        std::fprintf(stderr, "make_pseudo_translation: %s: %s\n", argv[1], qPrintable(r.errorString()));
        return 1;
    }
    w.writeEndDocument();
    return out.commit() ? 0 : 1;
}
