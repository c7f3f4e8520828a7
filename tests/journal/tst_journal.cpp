// The journal's rules on a sample of entries: search, tallies, figures, the
// printed statistics and the CSV, none of which writes a file.
#include <QDirIterator>
#include <QtTest>

#include "JournalFixtures.h"
#include "core/platform/FileSys.h"
#include "support/RecordingPrinter.h"

Q_DECLARE_METATYPE(JournalQuery)

namespace {

// Every file of the program folder and its bytes.
QMap<QString, QByteArray> Snapshot(const QString& dir) {
    QMap<QString, QByteArray> files;
    for (QDirIterator it(dir, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString path = it.next();
        files[path] = ReadWholeFile(path);
    }
    return files;
}

}  // namespace

class TestJournal : public QObject, JournalFixtures::JournalRun {
    Q_OBJECT
    QStringList Names(const JournalQuery& query) {
        QStringList names;
        for (int i : SearchJournal(journal_, query)) names << journal_.Entries[static_cast<std::size_t>(i)].Name;
        return names;
    }

private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        LayAndRead();
    }

    void init() {
        TheRun.UnlockedEntries.clear();
        Read();
    }

    void search_data() {
        QTest::addColumn<JournalQuery>("query");
        QTest::addColumn<bool>("unlocked");
        QTest::addColumn<QString>("names");
        const QString all = QStringLiteral("Move, \"north\"|Work|Secret|Bad date|Garden|Old deck|Gone deck|Damaged");
        JournalQuery q;
        QTest::newRow("everything") << q << false << all;
        q.Words = QStringLiteral("MOVE");
        QTest::newRow("words in issue and notes, case ignored") << q << false << QStringLiteral("Move, \"north\"|Work");
        q.Words = QStringLiteral(" anna   move ");
        QTest::newRow("every word must occur") << q << false << QStringLiteral("Move, \"north\"");
        q.Words = QStringLiteral("hidden");
        QTest::newRow("a locked issue is not searched") << q << false << QString();
        QTest::newRow("until its password was given") << q << true << QStringLiteral("Secret");
        q.Words = QStringLiteral("secret");
        QTest::newRow("a locked name is searched") << q << false << QStringLiteral("Secret");
        q = {};
        q.CardDeckId = s_.Tarot;
        q.CardNumber = 1;
        QTest::newRow("card") << q << false << QStringLiteral("Move, \"north\"|Work|Garden");
        QTest::newRow("card, the locked one known")
            << q << true << QStringLiteral("Move, \"north\"|Work|Secret|Garden");
        q.Orientation = Facing::Reversed;
        QTest::newRow("card reversed") << q << false << QStringLiteral("Work");
        q = {};
        q.Orientation = Facing::Reversed;
        QTest::newRow("any card reversed") << q << false << QStringLiteral("Move, \"north\"|Work|Gone deck|Damaged");
        q = {};
        q.SpreadId = s_.Cross;
        QTest::newRow("spread") << q << false << QStringLiteral("Move, \"north\"|Garden");
        q = {};
        q.DeckId = s_.Other;
        QTest::newRow("deck") << q << false << QStringLiteral("Old deck");
        q = {};
        q.Readings = false;
        QTest::newRow("diary entries only") << q << false << QStringLiteral("Garden|Old deck|Gone deck|Damaged");
        q = {};
        q.From = {2024, 2, 1};
        q.To = {2024, 2, 29};
        QTest::newRow("date range") << q << false << QStringLiteral("Old deck|Gone deck|Damaged");
        q.To = {};
        QTest::newRow("from a day, a date out of range left out")
            << q << false << QStringLiteral("Work|Secret|Old deck|Gone deck|Damaged");
    }

    void search() {
        QFETCH(JournalQuery, query);
        QFETCH(bool, unlocked);
        QFETCH(QString, names);
        if (unlocked) {
            RememberEntryUnlocked(EntryKind::Reading, QStringLiteral("Secret  "));
            Read();
        }
        QCOMPARE(Names(query).join(QLatin1Char('|')), names);
    }

    void cardTallies_data() {
        QTest::addColumn<Integer>("deck");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("upright");
        QTest::addColumn<int>("reversed");
        const auto row = [](const char* name, Integer deck, int number, const char* type, int up, int rev) {
            QTest::newRow(name) << deck << number << QStringLiteral("Card %1").arg(number) << QString(type) << up
                                << rev;
        };
        row("the most frequent", s_.Tarot, 1, "Major Arcana", 2, 1);
        row("a damaged entry's good card", s_.Tarot, 2, "Major Arcana", 1, 1);
        row("upright only", s_.Tarot, 5, "Major Arcana", 2, 0);
        row("a bad date still counts its card", s_.Tarot, 3, "Major Arcana", 1, 0);
        row("revised deck, stored number", s_.Other, 3, "Major Arcana", 1, 0);
        row("removed deck, stored number", s_.Gone, 4, "", 0, 1);
        row("minor", s_.Tarot, 23, "Minor Arcana", 0, 1);
    }

    void cardTallies() {
        QFETCH(Integer, deck);
        QFETCH(int, number);
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        const auto found = std::find_if(s.Cards.begin(), s.Cards.end(),
                                        [&](const CardTally& c) { return c.DeckId == deck && c.Number == number; });
        QVERIFY(found != s.Cards.end());
        QTEST(found->Title, "title");
        QTEST(found->TypeName, "type");
        QTEST(found->Upright, "upright");
        QTEST(found->Reversed, "reversed");
    }

    void figures() {
        const JournalStatistics s = TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {});
        // Unattributable: revised, removed, card beyond the deck, bad date; a
        // card beyond its deck counts nowhere; the most frequent card first.
        QCOMPARE(QList<int>({s.Entries, s.Locked, s.Unattributable, int(s.Cards.size()), s.Cards.front().Number,
                             s.Upright, s.Reversed, int(s.Types.size()), s.Types[1].Count}),
                 QList<int>({8, 1, 4, 7, 1, 7, 4, 2, 1}));
        QCOMPARE(s.Types[0].Name + QString::number(s.Types[0].Count), QStringLiteral("Major Arcana9"));
        QStringList months;
        for (const MonthCount& m : s.Months) months << MonthText(m.Month) + QLatin1Char('=') + QString::number(m.Count);
        QCOMPARE(months.join(QLatin1Char(' ')), QStringLiteral("Jan 2024=2 Feb 2024=3 Mar 2024=2"));
        JournalQuery range;
        range.From = {2023, 12, 1};
        range.To = {2024, 1, 31};
        QCOMPARE(TallyJournal(journal_, SearchJournal(journal_, range), catalogue_, range).Months.size(),
                 std::size_t(2));

        // Location 2 of Cross: card 23 once, card 5 once; the lower number first.
        const auto locations = TallyLocations(journal_, SearchJournal(journal_, {}), catalogue_, s_.Cross, 1);
        QCOMPARE(locations.size(), std::size_t(3));
        QCOMPARE(locations[1].Title, QStringLiteral("Position 2"));
        QCOMPARE(
            QList<int>({int(locations[1].Cards.size()), locations[1].Cards[0].Number, locations[2].Cards[0].Number}),
            QList<int>({1, 5, 1}));
    }

    // The print: chart texts of 8 points or more, each in a box it fits, the
    // table's headings apart, a removed deck's card named once in brackets.
    void printedStatistics() {
        RecordingPrinter printer;
        PrintJournalStatistics(printer, TallyJournal(journal_, SearchJournal(journal_, {}), catalogue_, {}), 20);
        QStringList boxed;
        QList<PrinterCall> headings;
        for (const PrinterCall& call : printer.CallsOf(QStringLiteral("PrintInBox"))) {
            boxed << call.Text;
            if (call.Bold) headings << call;
            QVERIFY2(call.Size >= 8, qPrintable(call.Text));
            QVERIFY2(printer.TextWidth(call.Text) <= call.W, qPrintable(call.Text));
        }
        for (const char* legend : {"Upright", "Reversed", "Card 4 (no longer installed)", "Jan 2024"})
            QVERIFY2(boxed.contains(QLatin1String(legend)), legend);
        QVERIFY(!boxed.join(QLatin1Char('|')).contains(QLatin1String("((")));
        QCOMPARE(headings.size(), 4);
        for (int i = 1; i < headings.size(); ++i) QVERIFY(headings[i - 1].X + headings[i - 1].W < headings[i].X);
    }

    void csvAndNothingWritten() {
        const auto before = Snapshot(dir_.path());
        Read();
        JournalQuery q;
        q.Words = QStringLiteral("anna");
        QCOMPARE(JournalCsv(journal_, SearchJournal(journal_, q), catalogue_),
                 QByteArray("\xEF\xBB\xBF"
                            "Date,Kind,Entry,Spread,Location,Location Title,Deck,Card,Orientation\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,1,Position 1,Tarot,Card 1,Upright\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,2,Position 2,Tarot,Card 23,Reversed\r\n"
                            "2024/01/15,Reading,\"Move, \"\"north\"\"\",Cross,3,Position 3,Tarot,Card 5,Upright\r\n"));
        q.Words = QStringLiteral("secret");
        QCOMPARE(JournalCsv(journal_, SearchJournal(journal_, q), catalogue_).count('\n'), 1);
        // Names a spreadsheet would run as a formula stay text.
        journal_.Entries[0].Name = QStringLiteral("=1+2");
        QVERIFY(JournalCsv(journal_, {0}, catalogue_).contains("2024/01/15,Reading,'=1+2,Cross,1,"));
        journal_.Entries[0].Name = QStringLiteral("-1, or @me");
        QVERIFY(JournalCsv(journal_, {0}, catalogue_).contains(",Reading,\"'-1, or @me\",Cross,"));
        QCOMPARE(Snapshot(dir_.path()), before);
    }
};

QTEST_MAIN(TestJournal)
#include "tst_journal.moc"
