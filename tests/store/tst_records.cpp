// The record layouts are the contract between every file the program writes
// and every copy of the program that reads it: each field must stand at its
// offset, and a record read and written back must come out identical.
#include <QTemporaryDir>
#include <QtTest>
#include <cstring>

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"

namespace {

// Gives every field a distinct value and remembers the bytes expected at the
// field's offset, taken from the published layout tables (not from the codec).
class Filler {
public:
    template <int N>
    void Text(int offset, FixedText<N>& t) {
        ++k_;
        QByteArray b(N, char('A' + k_ % 26));
        b[0] = char(0x80 + k_ % 100);  // a byte above 127
        if (N > 2) b[N / 2] = '\0';    // a zero byte inside the text
        std::memcpy(t.Bytes.data(), b.constData(), N);
        expect(offset, b);
    }
    template <int N, std::size_t K>
    void Texts(int offset, std::array<FixedText<N>, K>& a) {
        for (std::size_t i = 0; i < K; ++i) Text(offset + int(i) * N, a[i]);
    }
    void Int(int offset, Integer& v) {
        ++k_;
        v = Integer(-(k_ * 257) - 3);
        const auto u = static_cast<quint16>(v);
        const char b[2] = {char(u & 0xFF), char(u >> 8)};
        expect(offset, QByteArray(b, 2));
    }
    template <std::size_t K>
    void Ints(int offset, std::array<Integer, K>& a) {
        for (std::size_t i = 0; i < K; ++i) Int(offset + int(i) * 2, a[i]);
    }
    void Date(int offset, double& d) {
        ++k_;
        d = 45000.0 + k_ + 0.25;
        QByteArray b(8, '\0');
        std::memcpy(b.data(), &d, 8);  // the machine is little-endian, as the files are
        expect(offset, b);
    }
    void Designer_(int offset, Designer& d) {
        Text(offset, d.DesignerName);
        Text(offset + 40, d.DesignerEmail);
        Text(offset + 80, d.DesignerWebPage);
    }
    void Verify(const QByteArray& bytes, int length) const {
        QCOMPARE(bytes.size(), length);
        QByteArray covered(length, '\0');
        for (const auto& [offset, expected] : checks_) {
            QVERIFY2(bytes.mid(offset, expected.size()) == expected,
                     qPrintable(QStringLiteral("field at offset %1").arg(offset)));
            for (int i = 0; i < expected.size(); ++i) covered[offset + i] = 1;
        }
        // Every byte of the record belongs to exactly one field.
        QVERIFY(!covered.contains('\0'));
    }

private:
    void expect(int offset, const QByteArray& b) { checks_.append({offset, b}); }
    int k_ = 0;
    QList<std::pair<int, QByteArray>> checks_;
};

// Readings and diary entries share the fields up to offset 350.
template <class R>
void EntryHead(Filler& f, R& r, FixedText<50>& name) {
    f.Int(0, r.IssueAsked);
    f.Date(2, r.SavedOn);
    f.Text(10, name);
    f.Text(60, r.Issue);
    f.Int(185, r.ReadingSpreadId);
    f.Int(187, r.ReadingSpreadRevision);
    f.Int(189, r.ReadingDeckId);
    f.Int(191, r.ReadingDeckRevision);
    f.Ints(193, r.DealtCard);
    f.Ints(257, r.DealtUpright);
    f.Int(321, r.EntryLocked);
    f.Text(323, r.EntryPassword);
    f.Int(348, r.SaveCount);
}

template <class R>
void RoundTrip(const R& original, const Filler& f, const QString& path) {
    const QByteArray bytes = EncodeRecord(original);
    f.Verify(bytes, R::Length);
    R back;
    DecodeRecord(bytes.constData(), back);
    QCOMPARE(EncodeRecord(back), bytes);

    // Through a file: written, read, written again, the files are identical.
    QFile::remove(path);
    AppendRecord(path, original);
    AppendRecord(path, original);
    QCOMPARE(CountRecords<R>(path), 2);
    R fromFile;
    QVERIFY(GetRecord(path, 2, fromFile));
    const QString again = path + ".again";
    QFile::remove(again);
    AppendRecord(again, fromFile);
    PutRecord(again, 2, fromFile);
    QCOMPARE(ReadWholeFile(again), ReadWholeFile(path));
}

}  // namespace

class TestRecords : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    QString file(const char* name) { return dir_.filePath(QLatin1String(name)); }

private slots:
    void deckRecordLayout() {
        DeckRecord r;
        Filler f;
        f.Int(0, r.IncludesReversed);
        f.Text(2, r.DeckName);
        f.Int(52, r.DisplayCardTitles);
        f.Text(54, r.DeckAttachment);
        f.Text(66, r.DeckTitle);
        f.Designer_(116, r.DeckDesigner);
        f.Date(246, r.ModifiedOn);
        f.Text(254, r.DeckDescription);
        f.Text(754, r.DeckComments);
        f.Int(954, r.DeckLocked);
        f.Text(956, r.DeckPassword);
        f.Int(981, r.CardCount);
        f.Int(983, r.DeckRevision);
        f.Int(985, r.DeckId);
        f.Texts(987, r.CardTypeName);
        f.Ints(1067, r.CardTypeUsed);
        f.Int(1075, r.DeckReserved);
        RoundTrip(r, f, file("Decks.dck"));
    }

    void cardRecordLayout() {
        CardRecord r;
        Filler f;
        f.Int(0, r.CardType);
        f.Text(2, r.CardTitle);
        f.Texts(52, r.CardDescription);
        f.Texts(3052, r.CardKeywords);
        f.Texts(5052, r.CardPicture);
        f.Texts(5076, r.CardSound);
        f.Int(5100, r.CardDeckId);
        f.Int(5102, r.CardReserved);
        RoundTrip(r, f, file("Cards.crd"));
    }

    void spreadRecordLayout() {
        SpreadRecord r;
        Filler f;
        f.Text(0, r.SpreadName);
        f.Text(50, r.SpreadTitle);
        f.Int(100, r.SpreadId);
        f.Ints(102, r.AllowedDeckId);
        f.Int(122, r.AllowedDeckCount);
        f.Designer_(124, r.SpreadDesigner);
        f.Date(254, r.ModifiedOn);
        f.Text(262, r.SpreadDescription);
        f.Int(1762, r.SpreadLocked);
        f.Text(1764, r.SpreadPassword);
        f.Text(1789, r.SpreadComments);
        f.Int(2439, r.AskQuestion);
        f.Text(2441, r.SpreadReservedText);
        f.Int(2501, r.LocationCount);
        f.Int(2503, r.SpreadRevision);
        f.Int(2505, r.StretchBackground);
        f.Text(2507, r.BackgroundFile);
        f.Text(2518, r.SpreadAttachment);
        RoundTrip(r, f, file("Spreads.spr"));
    }

    void locationRecordLayout() {
        LocationRecord r;
        Filler f;
        f.Text(0, r.LocationTitle);
        f.Int(50, r.LocationSpreadId);
        f.Int(52, r.LocationNumber);
        f.Text(54, r.LocationDescription);
        f.Texts(704, r.LocationQuestion);
        f.Int(1079, r.LocationLeft);
        f.Int(1081, r.LocationTop);
        f.Text(1083, r.LocationAttachment);
        RoundTrip(r, f, file("Location.loc"));
    }

    void readingRecordLayout() {
        ReadingRecord r;
        Filler f;
        EntryHead(f, r, r.ReadingName);
        f.Text(350, r.ReadingNotes);
        f.Int(2850, r.DealtCount);
        f.Ints(2852, r.TableCardVisible);
        f.Ints(3052, r.CardTypeSelected);
        f.Int(3060, r.UseReversed);
        f.Int(3062, r.AllowDuplicateCards);
        f.Ints(3064, r.LocationCard);
        f.Ints(3264, r.LocationIsUpright);
        f.Int(3464, r.ReadingTail);
        RoundTrip(r, f, file("Readings.red"));
    }

    void diaryRecordLayout() {
        DiaryRecord r;
        Filler f;
        EntryHead(f, r, r.DiaryName);
        f.Int(350, r.DiaryChoice);
        f.Text(352, r.DiaryNotes);
        f.Ints(2852, r.CardTypeSelected);
        f.Int(2860, r.UseReversed);
        f.Int(2862, r.AllowDuplicateCards);
        f.Int(2864, r.DiaryTail);
        RoundTrip(r, f, file("Diary.dry"));
    }

    void textFieldsCutPadAndTrim() {
        FixedText<10> t;
        t = QStringLiteral("  Tower  ");
        QCOMPARE(t.Raw(), QByteArray("  Tower   "));
        QCOMPARE(t.Trimmed(), QStringLiteral("Tower"));  // outer spaces never survive a reader
        t = QStringLiteral("The Wheel of Fortune");
        QCOMPARE(t.Raw(), QByteArray("The Wheel "));  // cut to the width
        t = QString();
        QCOMPARE(t.Raw(), QByteArray(10, ' '));

        // Zero bytes count as blank for readers, but stay in the field.
        std::memcpy(t.Bytes.data(), "\0Moon\0\0 \0 ", 10);
        QCOMPARE(t.Trimmed(), QStringLiteral("Moon"));
        QCOMPARE(t.Raw(), QByteArray("\0Moon\0\0 \0 ", 10));
        FixedText<4> zeros;
        zeros.Bytes.fill('\0');
        QVERIFY(zeros.IsBlank());

        // Single-byte text: accents and the euro sign take one byte each and
        // come back; what the code page cannot hold becomes '?'.
        t = QStringLiteral("Été €5");
        QCOMPARE(t.Raw(), QByteArray("\xC9t\xE9 \x80"
                                     "5    "));
        QCOMPARE(t.Trimmed(), QStringLiteral("Été €5"));
        t = QStringLiteral("Star \u2605 \U0001F319");
        QCOMPARE(t.Trimmed(), QStringLiteral("Star ? ?"));
    }

    void partialAndMissingFiles() {
        const QString path = file("partial.crd");
        QFile::remove(path);
        QCOMPARE(CountRecords<CardRecord>(path), 0);  // a missing file holds no records
        CardRecord card;
        QVERIFY(!GetRecord(path, 1, card));
        WriteWholeFile(path, QByteArray());
        QCOMPARE(CountRecords<CardRecord>(path), 0);  // a 0-byte file is a valid empty file

        // A truncated second record: counts and reads ignore it.
        card.CardTitle = QStringLiteral("The Fool");
        WriteWholeFile(path, EncodeRecord(card) + QByteArray(100, 'x'));
        QCOMPARE(CountRecords<CardRecord>(path), 1);
        QVERIFY(!GetRecord(path, 2, card));
        QCOMPARE(ReadAllRecords<CardRecord>(path).size(), size_t(1));

        // An append writes over the partial tail, so records stay aligned.
        card.CardTitle = QStringLiteral("The Magician");
        AppendRecord(path, card);
        card = CardRecord();
        QCOMPARE(FileLen(path), qint64(2 * CardRecord::Length));
        QVERIFY(GetRecord(path, 2, card));
        QCOMPARE(card.CardTitle.Trimmed(), QStringLiteral("The Magician"));
    }

    void sequentialReaderAcrossBlocks() {
        // More records than one read block holds, with a partial tail.
        const QString path = file("many.loc");
        QFile::remove(path);
        QByteArray all;
        for (int i = 1; i <= 2000; ++i) {
            LocationRecord l;
            l.LocationNumber = Integer(i);
            all += EncodeRecord(l);
        }
        all += QByteArray(7, '\1');
        WriteWholeFile(path, all);
        RecordReader<LocationRecord> reader(path);
        QCOMPARE(reader.Count(), 2000);
        LocationRecord l;
        int n = 0;
        while (reader.Next(l)) {
            ++n;
            QCOMPARE(int(l.LocationNumber), n);
            QCOMPARE(reader.Current(), n);
        }
        QCOMPARE(n, 2000);
        reader.Seek(1500);
        QVERIFY(reader.Next(l));
        QCOMPARE(int(l.LocationNumber), 1500);
    }

    void rewriterReplacesOnlyOnCommit() {
        const QString real = file("Spreads.spr"), temp = file("Spreads.tmp");
        SpreadRecord s;
        s.SpreadName = QStringLiteral("Old");
        QFile::remove(real);
        AppendRecord(real, s);
        const QByteArray before = ReadWholeFile(real);
        {
            RecordRewriter<SpreadRecord> w(temp, real);
            s.SpreadName = QStringLiteral("New");
            w.Add(s);
            // Abandoned without Commit: the real file is untouched and the
            // new one is gone.
        }
        QCOMPARE(ReadWholeFile(real), before);
        QVERIFY(!QFile::exists(temp));
        {
            RecordRewriter<SpreadRecord> w(temp, real);
            w.Add(s);
            w.Add(s);
            w.Commit();
        }
        QCOMPARE(CountRecords<SpreadRecord>(real), 2);
        QVERIFY(!QFile::exists(temp));
        SpreadRecord back;
        QVERIFY(GetRecord(real, 2, back));
        QCOMPARE(back.SpreadName.Trimmed(), QStringLiteral("New"));
    }

    // Record files held in memory change as the same file on the disk does,
    // and nothing of them reaches the disk.
    void heldFilesChangeAsFilesOnTheDisk() {
        const QString disk = file("disk.crd"), held = file("held.crd");
        WriteWholeFile(disk, QByteArray(CardRecord::Length + 9, '\1'));  // a record and a partial one
        RecordFilesInMemory::Hold(held, ReadWholeFile(disk));
        CardRecord card;
        card.CardTitle = QStringLiteral("The Star");
        for (const QString& path : {disk, held}) {
            PutRecord(path, 3, card);  // past the end: record 2 all zero
            AppendRecord(path, card);
            RecordEdit<CardRecord> edit(path);
            edit.Put(1, card);
            edit.Append(card);
            edit.Commit();
            RecordRewriter<CardRecord> rewriter(path + QStringLiteral(".tmp"), path);
            for (RecordReader<CardRecord> reader(path); const char* raw = reader.NextRaw();)
                if (reader.Current() != 4) rewriter.AddRaw(raw);
            rewriter.Commit();
        }
        QCOMPARE(*RecordFilesInMemory::Find(held), ReadWholeFile(disk));
        QVERIFY(GetRecord(held, 4, card) && !QFile::exists(held));
        RecordFilesInMemory::ReleaseAll();
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
