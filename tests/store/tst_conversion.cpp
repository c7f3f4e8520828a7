// Converting a database of the earlier format: every field of every old
// record must land at its new offset byte for byte, locations must come out of
// the spreads in order, the old files must survive as backups, and the screen's
// Cancel must leave everything as it was. The old files are built here byte by
// byte from the layout tables, not through the record codec, so the offsets
// are checked independently.
#include <QRandomGenerator>
#include <cstring>
#include <functional>

#include "core/store/Conversion.h"
#include "screens/store/frmConvert.h"
#include "support/ScreenTest.h"

namespace {

// An old field (offset, width) and where it goes in the new record.
struct Carried {
    int from, width, to, newWidth;
};
// A field of the new record that has no old counterpart.
struct Fresh {
    int at;
    QByteArray bytes;
};

const QList<Carried> DeckFields = {{0, 2, 0, 2},       {2, 30, 2, 50},       {32, 30, 66, 50},     {62, 130, 116, 130},
                                   {192, 8, 246, 8},   {200, 500, 254, 500}, {700, 200, 754, 200}, {900, 2, 954, 2},
                                   {902, 25, 956, 25}, {927, 2, 981, 2},     {929, 2, 983, 2},     {931, 2, 985, 2},
                                   {933, 80, 987, 80}, {1013, 8, 1067, 8}};
const QList<Carried> CardFields = {{0, 2, 0, 2},           {2, 30, 2, 50},          {32, 500, 52, 1500},
                                   {532, 500, 1552, 1500}, {1032, 500, 3052, 1000}, {1532, 500, 4052, 1000},
                                   {2032, 24, 5052, 24},   {2056, 2, 5100, 2}};
const QList<Carried> SpreadFields = {
    {0, 30, 0, 50},     {30, 30, 50, 50},     {60, 2, 100, 2},        {62, 20, 102, 20},
    {82, 2, 122, 2},    {84, 130, 124, 130},  {214, 8, 254, 8},       {222, 1500, 262, 1500},
    {1722, 2, 1762, 2}, {1724, 25, 1764, 25}, {1749, 500, 1789, 650}, {2249, 2, 2439, 2},
    {2311, 2, 2501, 2}, {15948, 2, 2503, 2},  {15950, 2, 2505, 2},    {15952, 11, 2507, 11}};
// Offsets within one 909-byte old location.
const QList<Carried> LocationFields = {
    {0, 30, 0, 50}, {30, 500, 54, 650}, {530, 375, 704, 375}, {905, 2, 1079, 2}, {907, 2, 1081, 2}};

QByteArray Int16(int v) {
    const auto u = static_cast<quint16>(v);
    const char bytes[2] = {char(u & 0xFF), char(u >> 8)};
    return QByteArray(bytes, 2);
}

void Put(QByteArray& record, int at, const QByteArray& bytes) { record.replace(at, bytes.size(), bytes); }

// Random bytes everywhere (zero bytes and bytes above 127 included), with
// real dates where the old records hold them.
QByteArray OldRecord(int length, const QList<int>& dateOffsets) {
    QByteArray bytes(length, '\0');
    for (char& c : bytes) c = char(QRandomGenerator::global()->bounded(256));
    for (int at : dateOffsets) {
        const double date = 36526.0 + at;
        QByteArray raw(8, '\0');
        std::memcpy(raw.data(), &date, 8);
        Put(bytes, at, raw);
    }
    return bytes;
}

// Every carried field holds the old bytes padded with spaces, every fresh
// field its stated bytes, and together they cover the whole new record.
void CheckRecord(const QByteArray& old, const QByteArray& now, const QList<Carried>& carried,
                 const QList<Fresh>& fresh) {
    QVector<bool> covered(now.size(), false);
    for (const Carried& f : carried) {
        const QByteArray expected = old.mid(f.from, f.width) + QByteArray(f.newWidth - f.width, ' ');
        QCOMPARE(now.mid(f.to, f.newWidth).toHex(), expected.toHex());
        std::fill_n(covered.begin() + f.to, f.newWidth, true);
    }
    for (const Fresh& f : fresh) {
        QCOMPARE(now.mid(f.at, f.bytes.size()).toHex(), f.bytes.toHex());
        std::fill_n(covered.begin() + f.at, f.bytes.size(), true);
    }
    QVERIFY(!covered.contains(false));
}

QByteArray Spaces(int n) { return QByteArray(n, ' '); }

struct OldDatabase {
    QByteArray decks, cards, spreads, readings, diary;
    QList<QByteArray> InFileOrder() const { return {decks, spreads, cards, readings, diary}; }  // as RecordFiles()
};

// Two decks, three cards (and a partial fourth), two spreads of 3 and 15
// locations, a reading and a diary entry with stray bytes after them.
OldDatabase WriteOldDatabase() {
    OldDatabase db;
    QByteArray deck1 = OldRecord(1021, {192});
    Put(deck1, 2, "Tarot de l'\xC9toile \xA7" + Spaces(11));
    db.decks = deck1 + OldRecord(1021, {192});
    db.cards = OldRecord(3 * 2058 + 100, {});
    QByteArray spread1 = OldRecord(15963, {214});
    Put(spread1, 60, Int16(7));
    Put(spread1, 2311, Int16(3));
    QByteArray spread2 = OldRecord(15963, {214});
    Put(spread2, 60, Int16(300));
    Put(spread2, 2311, Int16(15));
    db.spreads = spread1 + spread2;
    db.readings = OldRecord(3466 + 5, {});
    db.diary = OldRecord(2866, {});
    WriteWholeFile(TheRun.Paths.DecksPath, db.decks);
    WriteWholeFile(TheRun.Paths.CardsPath, db.cards);
    WriteWholeFile(TheRun.Paths.SpreadsPath, db.spreads);
    WriteWholeFile(TheRun.Paths.ReadingsPath, db.readings);
    WriteWholeFile(TheRun.Paths.DiaryPath, db.diary);
    return db;
}

QStringList RecordFiles() {
    return {TheRun.Paths.DecksPath, TheRun.Paths.SpreadsPath, TheRun.Paths.CardsPath, TheRun.Paths.ReadingsPath,
            TheRun.Paths.DiaryPath};
}

}  // namespace

class TestConversion : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void init() {
        for (const QString& name : QDir(dir_.path()).entryList(QDir::Files)) QFile::remove(dir_.filePath(name));
        Fixtures::UseProgramDir(dir_.path());
        Kill(TheRun.Paths.LocationsPath);
        MsgBoxScript::Enable();
        MsgBoxScript::Clear();
    }

    void convertMovesEveryFieldAndKeepsBackups() {
        const OldDatabase db = WriteOldDatabase();
        WriteWholeFile(TheRun.Paths.LocationsPath, QByteArray(1100, 'X'));  // a stray locations file goes first
        ConvertDatabase();

        for (int i = 0; i < 5; ++i) QCOMPARE(ReadWholeFile(RecordFiles()[i] + ".bkp"), db.InFileOrder()[i]);
        QCOMPARE(ReadWholeFile(TheRun.Paths.ReadingsPath), db.readings);
        QCOMPARE(ReadWholeFile(TheRun.Paths.DiaryPath), db.diary);

        const QByteArray decks = ReadWholeFile(TheRun.Paths.DecksPath);
        QCOMPARE(decks.size(), 2 * 1077);
        for (int n = 0; n < 2; ++n)
            CheckRecord(db.decks.mid(n * 1021, 1021), decks.mid(n * 1077, 1077), DeckFields,
                        {{52, Int16(-1)}, {54, Spaces(12)}, {1075, Int16(0)}});
        QCOMPARE(decks.mid(2, 50), "Tarot de l'\xC9toile \xA7" + Spaces(11 + 20));

        const QByteArray cards = ReadWholeFile(TheRun.Paths.CardsPath);
        QCOMPARE(cards.size(), 3 * 5104);  // the partial old record is not a card
        for (int n = 0; n < 3; ++n)
            CheckRecord(db.cards.mid(n * 2058, 2058), cards.mid(n * 5104, 5104), CardFields,
                        {{5076, Spaces(24)}, {5102, Int16(0)}});

        const QByteArray spreads = ReadWholeFile(TheRun.Paths.SpreadsPath);
        const QByteArray locations = ReadWholeFile(TheRun.Paths.LocationsPath);
        QCOMPARE(spreads.size(), 2 * 2530);
        QCOMPARE(locations.size(), (3 + 15) * 1095);
        const int ids[] = {7, 300};
        const int counts[] = {3, 15};
        int next = 0;
        for (int n = 0; n < 2; ++n) {
            const QByteArray old = db.spreads.mid(n * 15963, 15963);
            CheckRecord(old, spreads.mid(n * 2530, 2530), SpreadFields, {{2441, Spaces(60)}, {2518, Spaces(12)}});
            for (int i = 1; i <= counts[n]; ++i, ++next)
                CheckRecord(old.mid(2313 + (i - 1) * 909, 909), locations.mid(next * 1095, 1095), LocationFields,
                            {{50, Int16(ids[n])}, {52, Int16(i)}, {1083, Spaces(12)}});
        }

        QCOMPARE(Dir(TheRun.Paths.TempDir + "*.*"), QStringList());
        QCOMPARE(Dir(TheRun.Paths.AppPath + "*.new"), QStringList());
    }

    // The screen's Convert, on a folder with nothing to convert.
    void freshDirectoryGivesEmptyFiles() {
        ModalScript script;
        script.On<frmConvert>([](frmConvert& screen) { QTest::mouseClick(screen.cmdConvert, Qt::LeftButton); });
        QVERIFY(RunConversionScreen());
        QVERIFY(script.Done());
        QCOMPARE(MsgBoxScript::History().size(), 0);
        for (const QString& path : RecordFiles()) {
            QCOMPARE(FileLen(path + ".bkp"), 0);
            QCOMPARE(FileLen(path), 0);
        }
        QVERIFY(FileExists(TheRun.Paths.LocationsPath) && FileLen(TheRun.Paths.LocationsPath) == 0);
        QCOMPARE(Dir(TheRun.Paths.TempDir + "*.*"), QStringList());
    }

    void cancelChangesNothing() {
        const OldDatabase db = WriteOldDatabase();
        ModalScript script;
        script.On<frmConvert>([](frmConvert& screen) { QTest::mouseClick(screen.cmdClose, Qt::LeftButton); });
        script.On<frmConvert>([](frmConvert& screen) { QTest::keyClick(screen.cmdConvert, Qt::Key_Escape); });
        QVERIFY(!RunConversionScreen());
        QVERIFY(!RunConversionScreen());
        QVERIFY(script.Done());

        for (int i = 0; i < 5; ++i) {
            QCOMPARE(ReadWholeFile(RecordFiles()[i]), db.InFileOrder()[i]);
            QVERIFY(!FileExists(RecordFiles()[i] + ".bkp"));
        }
        QVERIFY(!FileExists(TheRun.Paths.LocationsPath));
    }

    void failureShowsErrorBoxAndStopsRetry() {
        const OldDatabase db = WriteOldDatabase();
        Kill(TheRun.Paths.CardsPath);
        Get<frmConvert>().Show();
        frmConvert* screen = ScreenSlot<frmConvert>();
        QTest::mouseClick(screen->cmdConvert, Qt::LeftButton);
        QCOMPARE(Prompts().size(), 1);
        QVERIFY(Prompts()[0].startsWith("Run-time error '53'"));
        QVERIFY(IsLoaded<frmConvert>());
        QVERIFY(!screen->cmdConvert->isEnabled());
        QCOMPARE(ReadWholeFile(TheRun.Paths.DecksPath), db.decks);
        QVERIFY(!FileExists(TheRun.Paths.LocationsPath));
        QCOMPARE(Dir(TheRun.Paths.TempDir + "*.*"), QStringList());
        QTest::mouseClick(screen->cmdClose, Qt::LeftButton);
        QVERIFY(!IsLoaded<frmConvert>());
    }
};

QTEST_MAIN(TestConversion)
#include "tst_conversion.moc"
