// The record store: counts, lookups by name and id, free ids, the delete
// passes with the files they take along, locations, every write of a spread,
// the tests of whether a spread or deck can be dealt, and what a typed
// password opens.
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <cstring>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/Passwords.h"
#include "core/store/RunState.h"
#include "core/store/Usability.h"
#include "support/Fixtures.h"

Q_DECLARE_METATYPE(PasswordJudgement)

namespace {

DeckRecord Deck(const QString& name, Integer id) {
    DeckRecord d;
    d.DeckName = name;
    d.DeckId = id;
    return d;
}

SpreadRecord Spread(const QString& name, Integer id) {
    SpreadRecord s;
    ResetSpread(s);
    s.SpreadName = name;
    s.SpreadId = id;
    return s;
}

LocationRecord Location(Integer spreadId, Integer number, const QString& title) {
    LocationRecord l;
    ResetLocation(l);
    l.LocationSpreadId = spreadId;
    l.LocationNumber = number;
    l.LocationTitle = title;
    return l;
}

using Fixtures::NamedDiary;
using Fixtures::NamedReading;

QStringList SpreadNames() {
    QStringList names;
    for (const SpreadRecord& s : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath))
        names << s.SpreadName.Trimmed();
    return names;
}

QStringList LocationKeys() {
    QStringList keys;
    for (const LocationRecord& l : ReadAllRecords<LocationRecord>(TheRun.Paths.LocationsPath))
        keys << QStringLiteral("%1:%2:%3").arg(l.LocationSpreadId).arg(l.LocationNumber).arg(l.LocationTitle.Trimmed());
    return keys;
}

bool InCards(const QString& name) { return FileExists(TheRun.Paths.CardsDir + name); }

QByteArray SpreadsAt(const QByteArray& file, int n) {
    return file.mid((n - 1) * SpreadRecord::Length, SpreadRecord::Length);
}

}  // namespace

class TestRecordOps : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> dir_;

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        Fixtures::UseProgramDir(dir_->path());
    }

    void nextIdsFillTheSmallestGap() {
        QCOMPARE(NextDeckId(), Integer(1));
        QCOMPARE(NextSpreadId(), Integer(1));
        for (Integer id : {Integer(4), Integer(1), Integer(-1), Integer(2)}) {
            AppendRecord(TheRun.Paths.DecksPath, Deck(QStringLiteral("Deck %1").arg(id), id));
            AppendRecord(TheRun.Paths.SpreadsPath, Spread(QStringLiteral("Spread %1").arg(id), id));
        }
        QCOMPARE(NextDeckId(), Integer(3));
        QCOMPARE(NextSpreadId(), Integer(3));
    }

    void lookupsCompareTrimmedNamesAndTakeTheFirst() {
        QCOMPARE(CountDecks(), 0);
        QCOMPARE(FindDeckByName(QStringLiteral("Any")), -1);
        QCOMPARE(FindDeckIdByName(QStringLiteral("Any")), Integer(-1));
        QCOMPARE(DeckNameById(1), QString());

        AppendRecord(TheRun.Paths.DecksPath, Deck(QStringLiteral("Rider"), 7));
        AppendRecord(TheRun.Paths.DecksPath, Deck(QStringLiteral("  Moon Deck  "), 3));
        AppendRecord(TheRun.Paths.DecksPath, Deck(QStringLiteral("Moon Deck"), 9));
        QCOMPARE(CountDecks(), 3);
        QCOMPARE(FindDeckByName(QStringLiteral(" Moon Deck ")), 2);
        QCOMPARE(FindDeckIdByName(QStringLiteral("Moon Deck")), Integer(3));
        QCOMPARE(FindDeckByName(QStringLiteral("moon deck")), -1);
        QCOMPARE(FindDeckRecordById(9), 3);
        QCOMPARE(FindDeckRecordById(5), -1);
        QCOMPARE(DeckNameById(3), QStringLiteral("  Moon Deck") + QString(50 - 11, QLatin1Char(' ')));

        AppendRecord(TheRun.Paths.SpreadsPath, Spread(QStringLiteral("Cross"), 2));
        QCOMPARE(FindSpreadByName(QStringLiteral("Cross  ")), 1);
        QCOMPARE(FindSpreadRecordById(2), 1);
        QCOMPARE(SpreadNameById(2).trimmed(), QStringLiteral("Cross"));
        QCOMPARE(SpreadNameById(4), QString());

        AppendRecord(TheRun.Paths.ReadingsPath, NamedReading(QStringLiteral("Monday")));
        AppendRecord(TheRun.Paths.DiaryPath, NamedDiary(QStringLiteral("Tuesday")));
        QCOMPARE(FindReadingByName(QStringLiteral(" Monday")), 1);
        QCOMPARE(FindDiaryByName(QStringLiteral("Tuesday ")), 1);
        QCOMPARE(FindDiaryByName(QStringLiteral("Monday")), -1);

        // Names padded with zero bytes, with letters beyond ASCII, and a name
        // the code page cannot hold (stored as '?'): the lookups read the
        // bytes as the decoded text compares.
        DeckRecord zeros = Deck(QString(), 20);
        zeros.DeckName.Bytes.fill('\0');
        const QByteArray euro = QByteArrayLiteral("\0 Caf\xe9 \x80 ");
        std::memcpy(zeros.DeckName.Bytes.data(), euro.constData(), euro.size());
        AppendRecord(TheRun.Paths.DecksPath, zeros);
        AppendRecord(TheRun.Paths.DecksPath, Deck(QStringLiteral("\u03A9mega"), 21));
        QCOMPARE(FindDeckByName(QStringLiteral("Caf\u00e9 \u20AC")), 4);
        QCOMPARE(FindDeckIdByName(QStringLiteral(" Caf\u00e9 \u20AC ")), Integer(20));
        QCOMPARE(FindDeckByName(QStringLiteral("Caf\u00e9")), -1);
        QCOMPARE(FindDeckByName(QStringLiteral("\u03A9mega")), -1);
        QCOMPARE(FindDeckByName(QStringLiteral("?mega")), 5);
        QCOMPARE(TrimField(DeckNameById(20)), QStringLiteral("Caf\u00e9 \u20AC"));
    }

    // A spread saved from the designer: Alpha, with one location retitled
    // and a new picture in Temp/, under the name typed, beside Beta. Each
    // has a background of its own in Cards/.
    void aSpreadIsSavedInOneStep_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("withPicture");
        QTest::addColumn<int>("record");  // where it lands, and the record it replaces; 0: refused
        QTest::addColumn<Integer>("id");
        QTest::addColumn<QString>("background");
        QTest::newRow("a new name") << "Gamma" << true << 3 << Integer(3) << "S000003.bmp";
        QTest::newRow("its own name, its old picture's name retaken")
            << "  Alpha " << true << 1 << Integer(1) << "S000001.bmp";
        QTest::newRow("another spread's name, whose locations stay")
            << "Beta" << true << 2 << Integer(1) << "S000002.bmp";
        QTest::newRow("a picture gone from Temp/") << "Gamma" << false << 3 << Integer(3) << "";
        QTest::newRow("a name of blanks") << "   " << true << 0 << Integer(0) << "";
    }
    void aSpreadIsSavedInOneStep() {
        QFETCH(QString, typed);
        QFETCH(bool, withPicture);
        QFETCH(int, record);
        QFETCH(Integer, id);
        QFETCH(QString, background);
        for (int n = 1; n <= 2; ++n) {
            Fixtures::MakeSpread(n == 1 ? QStringLiteral("Alpha") : QStringLiteral("Beta"), 2);
            const QString picture = QStringLiteral("S00000%1.bmp").arg(n);
            ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, n,
                                       [&](SpreadRecord& s) { s.BackgroundFile = picture; });
            Fixtures::WritePicture(TheRun.Paths.CardsDir + picture);
        }
        SpreadDesign design;
        GetRecord(TheRun.Paths.SpreadsPath, 1, design.Spread);
        LoadSpreadLocations(design.Spread.SpreadId, 2);
        design.Locations = TheRun.SpreadLocations;
        design.Locations(2).LocationTitle = QStringLiteral("Retitled");
        design.Spread.BackgroundFile = QStringLiteral("sprpic.bmp");
        if (withPicture) Fixtures::WritePicture(TheRun.Paths.TempDir + QStringLiteral("sprpic.bmp"), Qt::green);
        const QByteArray picture =
            withPicture ? ReadWholeFile(TheRun.Paths.TempDir + QStringLiteral("sprpic.bmp")) : QByteArray();
        const QByteArray spreadsBefore = ReadWholeFile(TheRun.Paths.SpreadsPath);

        const SpreadNameCheck check = CheckSpreadName(typed);
        const bool replacing = record > 0 && record < 3;
        QCOMPARE(check.Replacing, replacing ? record : 0);
        QCOMPARE(check.Question, replacing ? QStringLiteral("Spread already exists. Overwrite?") : QString());
        QCOMPARE(check.Problem, record ? QString() : QStringLiteral("Please select a name to save the spread as."));
        if (!record) return;
        const QByteArray inHand = EncodeRecord(design.Spread);
        const SpreadDesign saved = SaveSpread(design, check.Name, check.Replacing);
        QCOMPARE(EncodeRecord(design.Spread), inHand);  // the design passed in stays as it was

        // Reopened as saved: the record where it belongs, its locations by
        // its id, its picture under its S name; the other spread as it was.
        QCOMPARE(CountSpreads(), std::max(record, 2));
        SpreadRecord onDisk;
        QVERIFY(GetRecord(TheRun.Paths.SpreadsPath, record, onDisk));
        QCOMPARE(EncodeRecord(onDisk), EncodeRecord(saved.Spread));
        QCOMPARE(onDisk.SpreadName.Trimmed(), TrimField(typed));
        QCOMPARE(QList<Integer>({onDisk.SpreadId, onDisk.SpreadRevision}), QList<Integer>({id, 2}));
        QCOMPARE(onDisk.ModifiedOn, OleToday());
        QCOMPARE(onDisk.BackgroundFile.Trimmed(), background);
        if (withPicture) QCOMPARE(ReadWholeFile(TheRun.Paths.CardsDir + background), picture);
        LoadSpreadLocations(id, 2);
        for (int i = 1; i <= 2; ++i)
            QCOMPARE(EncodeRecord(TheRun.SpreadLocations(i)), EncodeRecord(saved.Locations(i)));
        QCOMPARE(TheRun.SpreadLocations(2).LocationTitle.Trimmed(), QStringLiteral("Retitled"));
        const int other = record == 1 ? 2 : 1;
        QCOMPARE(SpreadsAt(ReadWholeFile(TheRun.Paths.SpreadsPath), other), SpreadsAt(spreadsBefore, other));
        QVERIFY(InCards(QStringLiteral("S00000%1.bmp").arg(other)));
        // Its locations replace those of its own id alone: saved over Beta,
        // Beta's stay, though no spread names them now.
        QCOMPARE(LocationKeys().size(), record == 3 ? 6 : 4);
    }

    // Tying a spread to decks and deleting it find the spread by its name;
    // a name no spread has changes nothing.
    void aSpreadIsTiedOrDeletedByName_data() {
        QTest::addColumn<bool>("deleting");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("found");
        QTest::newRow("decks tied to a listed spread") << false << " Beta" << true;
        QTest::newRow("decks tied to a spread gone") << false << "Gone" << false;
        QTest::newRow("a listed spread deleted") << true << "Beta " << true;
        QTest::newRow("a spread gone deleted") << true << "Gone" << false;
    }
    void aSpreadIsTiedOrDeletedByName() {
        QFETCH(bool, deleting);
        QFETCH(QString, name);
        QFETCH(bool, found);
        const Integer a = Fixtures::MakeSpread(QStringLiteral("Alpha"), 2);
        const Integer b = Fixtures::MakeSpread(QStringLiteral("Beta"), 3, {a});
        Fixtures::MakeSpread(QStringLiteral("Gamma"), 1);
        ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 2,
                                   [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
        Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000001.bmp"));
        const QByteArray spreads = ReadWholeFile(TheRun.Paths.SpreadsPath);
        const QStringList locations = LocationKeys();

        if (deleting) {
            QCOMPARE(DeleteSpreadNamed(name), found);
            QCOMPARE(SpreadNames(), (found ? QStringList{"Alpha", "Gamma"} : QStringList{"Alpha", "Beta", "Gamma"}));
            QCOMPARE(LocationKeys().size(), found ? 3 : 6);
            QCOMPARE(FindSpreadRecordById(b), found ? -1 : 2);
            QCOMPARE(InCards(QStringLiteral("S000001.bmp")), !found);
            return;
        }
        // Any deck now; the date and revision as they were given.
        SpreadRecord spread = Spread(name, b);
        spread.AllowedDeckCount = -1;
        spread.SpreadRevision = 7;
        const QString problem = SaveSpreadDecks(spread);
        const QString gone = QStringLiteral("Unable to find this spread. Please 'close' and select another spread.");
        QCOMPARE(problem, found ? QString() : gone);
        QCOMPARE(SpreadsAt(ReadWholeFile(TheRun.Paths.SpreadsPath), 2),
                 found ? EncodeRecord(spread) : SpreadsAt(spreads, 2));
        QCOMPARE(ReadWholeFile(TheRun.Paths.SpreadsPath).size(), spreads.size());
        QCOMPARE(LocationKeys(), locations);
    }

    void deleteDeckTakesItsCardsAndTheirFiles() {
        const Integer first = Fixtures::MakeDeck(QStringLiteral("First"), 3, true);
        const Integer second = Fixtures::MakeDeck(QStringLiteral("Second"), 2, false);
        // A sound on one card of the first deck, and the default picture on
        // the reversed side of another: the sound goes, the default stays. A
        // card of the second deck names the first deck's third picture: that
        // stays too.
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 1,
                                 [](CardRecord& c) { c.CardSound[0] = QStringLiteral("MCU00001.wav"); });
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("MCU00001.wav"), QByteArray("RIFF"));
        QString ownReversed;
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 2, [&ownReversed](CardRecord& c) {
            ownReversed = c.CardPicture[1].Trimmed();
            c.CardPicture[1] = DefaultPictureName;
        });
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 4,
                                 [](CardRecord& c) { c.CardPicture[1] = QStringLiteral("CU00003.bmp"); });

        DeleteDeck(FindDeckByName(QStringLiteral("First")));

        QCOMPARE(CountDecks(), 1);
        QCOMPARE(DeckNameById(second).trimmed(), QStringLiteral("Second"));
        QCOMPARE(FindDeckRecordById(first), -1);
        const std::vector<CardRecord> after = ReadAllRecords<CardRecord>(TheRun.Paths.CardsPath);
        QCOMPARE(int(after.size()), 2);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(after[i].CardDeckId, second);
            QCOMPARE(after[i].CardTitle.Trimmed(), QStringLiteral("Card %1").arg(i + 1));
            QVERIFY(InCards(after[i].CardPicture[0].Trimmed()) && InCards(after[i].CardPicture[1].Trimmed()));
        }
        for (const QString& gone :
             {QStringLiteral("CU00001.bmp"), QStringLiteral("CU00002.bmp"), QStringLiteral("CR00001.bmp"),
              QStringLiteral("CR00003.bmp"), QStringLiteral("MCU00001.wav")})
            QVERIFY2(!InCards(gone), qPrintable(gone));
        QVERIFY(InCards(ownReversed));  // no longer named by any card, so nothing removes it
        QVERIFY(!AnyFileMatches(TheRun.Paths.AppPath + QStringLiteral("*.tmp")));

        // Two deck records with one id (a damaged file): deleting one leaves
        // the cards that the other loads.
        Fixtures::MakeDeck(QStringLiteral("Twin"), 0, false);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [&](DeckRecord& d) { d.DeckId = second; });
        DeleteDeck(2);
        QCOMPARE(CountCards(), 2);
        DeleteDeck(1);
        QCOMPARE(FileLen(TheRun.Paths.DecksPath), qint64(0));
        QCOMPARE(FileLen(TheRun.Paths.CardsPath), qint64(0));
        QVERIFY(InCards(DefaultPictureName));
    }

    void deleteReadingAndDiaryDropEveryRecordOfTheName() {
        for (const char* name : {"Alpha", "Beta", " Alpha ", "Gamma"}) {
            AppendRecord(TheRun.Paths.ReadingsPath, NamedReading(QString::fromLatin1(name)));
            AppendRecord(TheRun.Paths.DiaryPath, NamedDiary(QString::fromLatin1(name)));
        }
        DeleteReading(QStringLiteral("Alpha"));
        DeleteDiary(QStringLiteral("Beta"));
        QStringList readings, diaries;
        for (const auto& r : ReadAllRecords<ReadingRecord>(TheRun.Paths.ReadingsPath))
            readings << r.ReadingName.Trimmed();
        for (const auto& d : ReadAllRecords<DiaryRecord>(TheRun.Paths.DiaryPath)) diaries << d.DiaryName.Trimmed();
        QCOMPARE(readings, (QStringList{QStringLiteral("Beta"), QStringLiteral("Gamma")}));
        QCOMPARE(diaries, (QStringList{QStringLiteral("Alpha"), QStringLiteral("Alpha"), QStringLiteral("Gamma")}));
        QVERIFY(!AnyFileMatches(TheRun.Paths.AppPath + QStringLiteral("*.tmp")));
    }

    void spreadLocationsLoadByNumberAndSaveAtTheEnd() {
        for (const auto& [spread, number, title] :
             {std::tuple{5, 2, "five-two"}, {8, 1, "eight-one"}, {5, 4, "five-four"}, {5, 1, "five-one"}})
            AppendRecord(TheRun.Paths.LocationsPath, Location(spread, number, QLatin1String(title)));

        LoadSpreadLocations(5, 3);
        QCOMPARE(TheRun.SpreadLocations.LBound(), 1);
        QCOMPARE(TheRun.SpreadLocations.UBound(), 3);
        QCOMPARE(TheRun.SpreadLocations(1).LocationTitle.Trimmed(), QStringLiteral("five-one"));
        QCOMPARE(TheRun.SpreadLocations(2).LocationTitle.Trimmed(), QStringLiteral("five-two"));
        // Number 3 was not found: the element is all zero bytes, read as empty.
        QCOMPARE(EncodeRecord(TheRun.SpreadLocations(3)), QByteArray(LocationRecord::Length, '\0'));

        TheRun.SpreadLocations(3).LocationTitle = QStringLiteral("five-three");
        ReplaceSpreadLocations(5, 3);
        QCOMPARE(LocationKeys(), (QStringList{QStringLiteral("8:1:eight-one"), QStringLiteral("5:1:five-one"),
                                              QStringLiteral("5:2:five-two"), QStringLiteral("5:3:five-three")}));
        QVERIFY(!AnyFileMatches(TheRun.Paths.AppPath + QStringLiteral("*.tmp")));

        // The same from another file, as a package's locations are read.
        const QString other = dir_->filePath(QStringLiteral("other.loc"));
        AppendRecord(other, Location(1, 1, QStringLiteral("elsewhere")));
        LoadSpreadLocationsFrom(other, 1, 1);
        QCOMPARE(TheRun.SpreadLocations(1).LocationTitle.Trimmed(), QStringLiteral("elsewhere"));

        DeleteSpreadLocations(5);
        QCOMPARE(LocationKeys(), QStringList{QStringLiteral("8:1:eight-one")});
    }

    void judgePassword_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<PasswordJudgement>("judgement");
        const auto row = [](const char* name, const char* stored, const char* typed, PasswordJudgement judgement) {
            QTest::newRow(name) << QString::fromLatin1(stored) << QString::fromLatin1(typed) << judgement;
        };
        row("trailing spaces don't count", "Secret  ", "Secret ", PasswordJudgement::Right);
        row("case counts", "Secret", "secret", PasswordJudgement::Wrong);
        row("nothing typed", "Secret", "", PasswordJudgement::NothingTyped);
        row("only spaces typed", "Secret", "   ", PasswordJudgement::NothingTyped);
        row("nothing typed, even for a blank password", "", "", PasswordJudgement::NothingTyped);
    }

    void judgePassword() {
        QFETCH(QString, stored);
        QFETCH(QString, typed);
        QTEST(JudgePassword(stored, typed), "judgement");
    }

    void usabilityOfDecksAndSpreads() {
        const Integer small = Fixtures::MakeDeck(QStringLiteral("Small"), 2, false);
        const Integer reversed = Fixtures::MakeDeck(QStringLiteral("Reversed"), 4, true);
        QVERIFY(IsDeckUsable(small, 2));
        QVERIFY(!IsDeckUsable(small, 3));
        QVERIFY(!IsDeckUsable(42, 0));
        QVERIFY(IsReversedComplete(reversed, 4) && IsDeckUsable(reversed, 4));
        QVERIFY(!IsReversedComplete(reversed, 5));  // the file ends before a fifth card

        // A reversed side on the default picture still counts: only a
        // missing file makes the deck incomplete.
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 3,
                                 [](CardRecord& c) { c.CardPicture[1] = DefaultPictureName; });
        QVERIFY(IsReversedComplete(reversed, 4));
        CardRecord card;
        QVERIFY(GetRecord(TheRun.Paths.CardsPath, 4, card));
        QVERIFY(QFile::remove(TheRun.Paths.CardsDir + card.CardPicture[1].Trimmed()));
        QVERIFY(!IsReversedComplete(reversed, 4));
        QVERIFY(IsReversedComplete(reversed, 1));  // only the first card is checked
        QVERIFY(!IsDeckUsable(reversed, 1));

        Fixtures::MakeSpread(QStringLiteral("Empty"), 0, {small});
        Fixtures::MakeSpread(QStringLiteral("  Pair "), 2, {reversed, small});
        Fixtures::MakeSpread(QStringLiteral("Three"), 3, {small, reversed});
        Fixtures::MakeSpread(QStringLiteral("Any Three"), 3, {}, true);
        Fixtures::MakeSpread(QStringLiteral("Any Two"), 2, {}, true);
        Fixtures::MakeSpread(QStringLiteral("Untied"), 1);
        for (const auto& [name, usable] : {std::pair{"Missing", false},
                                           {"Empty", false},
                                           {"Untied", false},
                                           {"Pair", true},
                                           {"Three", false},
                                           {"Any Three", false},
                                           {"Any Two", true}})
            QVERIFY2(IsSpreadUsable(QLatin1String(name)) == usable, name);
    }
};

QTEST_MAIN(TestRecordOps)
#include "tst_recordops.moc"
