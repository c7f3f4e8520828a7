// The rules of saved readings and diary entries on the core: what opening one
// meets when its designs changed since, and how a save writes it.
#include <QtTest>
#include <memory>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/readings/EntryStore.h"
#include "core/store/DeletePasses.h"
#include "readings/EntryFixtures.h"

namespace {

// What has happened to the designs since an entry was saved.
enum Change { Unchanged, DeckGone, SpreadGone, CardsRemoved, DeckRevised, SpreadRevised, DeckRevisedSpreadGone };

// The steps of an opening, a refusal as "!" and a question as "?" before its text.
QStringList Steps(const QList<OpeningStep>& steps) {
    QStringList out;
    for (const OpeningStep& step : steps) out << (step.Refusal ? QStringLiteral("!") : QStringLiteral("?")) + step.Text;
    return out;
}

}  // namespace

class TestEntryRules : public QObject, ReadingFixtures::EntryDesigns {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> dir_;

    // The entry in hand saved under the typed name of the test's row, in a
    // file of "First" and "Second", and read back from the disk.
    template <class R>
    void SaveAndReadBack(EntryKind kind, const QString& path) {
        QFETCH(QString, typed);
        QFETCH(int, record);
        R entry;
        for (const char* name : {"First", "Second"}) {
            if constexpr (std::is_same_v<R, ReadingRecord>) entry = Fixtures::NamedReading(QLatin1String(name));
            else entry = Fixtures::NamedDiary(QLatin1String(name));
            AppendRecord(path, entry);
        }
        const QByteArray before = ReadWholeFile(path);
        const EntryNameCheck check = CheckEntryName(kind, typed);
        QTEST(check.Problem, "problem");
        QTEST(check.Question, "question");
        QCOMPARE(check.Replacing, record == 3 ? 0 : record);
        entry.SaveCount = 4;
        entry.DealtCard[1] = 9;
        const EntrySave<R> save = SaveEntry(entry, typed, check.Replacing, {false, true, true, false});
        QCOMPARE(save.RecordNumber, record);
        if (record == 0) {
            QCOMPARE(ReadWholeFile(path), before);
            return;
        }
        R saved;
        QVERIFY(GetRecord(path, record, saved));
        QCOMPARE(EncodeRecord(saved), EncodeRecord(save.Saved));
        QCOMPARE(QList<double>({double(saved.SaveCount), saved.SavedOn, double(saved.DealtCard[1])}),
                 QList<double>({5, OleToday(), 9}));
        QCOMPARE(saved.CardTypeSelected, (std::array<Integer, 4>{False16, True16, True16, False16}));
        QStringList names{QStringLiteral("First"), QStringLiteral("Second")};
        if (record == 3) names << typed.trimmed();
        else names[0] = typed.trimmed();
        QCOMPARE(SavedEntryNames(kind), names);
    }

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        Fixtures::UseProgramDir(dir_->path());
        MakeDesigns();
    }

    // Each kind of entry in its own words; a card at location 16 of a
    // smaller deck passes, as only the first fifteen are checked.
    void openingASavedEntryMeetsItsChecksInOrder_data() {
        QTest::addColumn<bool>("diary");
        QTest::addColumn<int>("change");
        QTest::addColumn<int>("highCardAt");
        QTest::addColumn<QStringList>("steps");
        const auto row = [](const char* name, bool diary, Change change, const QStringList& steps, int at = 15) {
            QTest::newRow(name) << diary << int(change) << at << steps;
        };
        const QString deckGoneR = QStringLiteral(
            "!This Reading cannot be opened because the deck that was used to create it is no longer installed.");
        const QString deckGoneD = QStringLiteral(
            "!This diary cannot be opened because the deck that was used to create it is no longer installed.");
        const QString spreadGoneR = QStringLiteral(
            "!This reading cannot be opened because the spread that was used to create it is no longer installed.");
        const QString spreadGoneD = QStringLiteral(
            "!This diary cannot be opened because the spread that was used to create it is no longer installed.");
        const QString cardsGoneR = QStringLiteral(
            "!The reading cannot be opened because the too many cards were removed from the deck that was used to "
            "create this reading.");
        const QString cardsGoneD = QStringLiteral(
            "!The Diary cannot be opened because the too many cards were removed from the deck that was used to "
            "create this diary.");
        const QString deckChangedR = QStringLiteral(
            "?The deck used with this reading has changed since the reading was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the reading will be opened with the new deck version and the cards "
            "might be corrupted.");
        const QString deckChangedD = QStringLiteral(
            "?The deck used with this diary has changed since the diary was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the diary will be opened with the new deck version and the cards might "
            "be corrupted.");
        const QString spreadChangedR = QStringLiteral(
            "?The spread used with this reading has changed since the reading was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the reading will be opened with the new spread and the card locations "
            "might very well be corrupted.");
        const QString spreadChangedD = QStringLiteral(
            "?The spread used with this diary has changed since the diary was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the diary will be opened with the new spread and the card locations "
            "might very well be corrupted.");
        row("reading, unchanged", false, Unchanged, {});
        row("reading, deck deleted", false, DeckGone, {deckGoneR});
        row("diary, deck deleted", true, DeckGone, {deckGoneD});
        row("reading, spread deleted", false, SpreadGone, {spreadGoneR});
        row("diary, spread deleted", true, SpreadGone, {spreadGoneD});
        row("reading, card 22 at location 15 of 21", false, CardsRemoved, {cardsGoneR});
        row("diary, card 22 at location 15 of 21", true, CardsRemoved, {cardsGoneD});
        row("diary, card 22 at location 16 of 21", true, CardsRemoved, {deckChangedD}, 16);
        row("reading, deck revised", false, DeckRevised, {deckChangedR});
        row("reading, spread revised", false, SpreadRevised, {spreadChangedR});
        row("diary, spread revised", true, SpreadRevised, {spreadChangedD});
        row("reading, deck revised and spread deleted", false, DeckRevisedSpreadGone, {deckChangedR, spreadGoneR});
    }

    void openingASavedEntryMeetsItsChecksInOrder() {
        QFETCH(bool, diary);
        QFETCH(int, change);
        QFETCH(int, highCardAt);
        if (diary) SavedDiary(highCardAt, 22);
        else SavedReading(highCardAt, 22);
        if (change == DeckGone) DeleteDeck(1);
        if (change == SpreadGone || change == DeckRevisedSpreadGone) DeleteSpread(1);
        if (change == SpreadRevised)
            ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [](SpreadRecord& s) { s.SpreadRevision = 2; });
        if (change == CardsRemoved || change == DeckRevised || change == DeckRevisedSpreadGone)
            ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1, [change](DeckRecord& d) {
                d.DeckRevision = 2;
                if (change == CardsRemoved) d.CardCount = 21;
            });
        const QStringList steps = diary ? Steps(JudgeDiaryOpening(QStringLiteral(" Saved")).Steps)
                                        : Steps(JudgeReadingOpening(QStringLiteral("Saved ")).Steps);
        QTEST(steps, "steps");
    }

    // No name is refused, a name in use asks and goes in place of its entry,
    // a new one after the last; written named, dated, counted, with the card types.
    void savingAnEntryWritesItWhole_data() {
        QTest::addColumn<bool>("diary");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("problem");
        QTest::addColumn<QString>("question");
        QTest::addColumn<int>("record");
        const auto row = [](const char* name, bool diary, const char* typed, const char* problem, const char* question,
                            int record) {
            QTest::newRow(name) << diary << QString(typed) << QString(problem) << QString(question) << record;
        };
        row("reading, no name", false, "  ", "Please select a name to save the reading as.", "", 0);
        row("diary, no name", true, "", "Please select a name to save the diary as.", "", 0);
        row("reading, name in use", false, " First ", "", "Reading already exists. Overwrite?", 1);
        row("diary, name in use", true, "First", "", "Diary already exists. Overwrite?", 1);
        row("reading, new name", false, "Evening ", "", "", 3);
        row("diary, new name", true, "Evening", "", "", 3);
    }

    void savingAnEntryWritesItWhole() {
        QFETCH(bool, diary);
        if (diary) SaveAndReadBack<DiaryRecord>(EntryKind::Diary, TheRun.Paths.DiaryPath);
        else SaveAndReadBack<ReadingRecord>(EntryKind::Reading, TheRun.Paths.ReadingsPath);
    }
};

QTEST_MAIN(TestEntryRules)
#include "tst_entryrules.moc"
