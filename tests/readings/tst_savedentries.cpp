// Saved readings and diary entries alike: the core's judgement of opening
// one and its saves, read back; the open, save and selection screens' wiring;
// and bad input.
#include "core/platform/Errors.h"
#include "core/platform/OleDate.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "diary/DiaryFixtures.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/store/frmGetPassword.h"
#include "screens/widgets/ClickLabel.h"
#include "support/BadInput.h"

using namespace DiaryFixtures;

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

class TestSavedEntries : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;
    Integer spreadId_ = 0;

    // A complete reading or diary entry of the 20-location spread, saved as "Saved".
    ReadingRecord SavedReading(int highCardAt = 0, Integer highCard = 0) {
        return StoredEntry<ReadingRecord>(TheRun.Paths.ReadingsPath, deckId_, spreadId_, highCardAt, highCard);
    }
    void SavedDiary(int highCardAt = 0, Integer highCard = 0) {
        StoredEntry<DiaryRecord>(TheRun.Paths.DiaryPath, deckId_, spreadId_, highCardAt, highCard);
    }
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
    static frmOpenReading& TryOpen() { return ReadingFixtures::TryOpen<frmNewReading, frmOpenReading>(); }

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        UnloadScreen<frmOpenReading>();
        FreshDiaryRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), 22, false);
        spreadId_ = Fixtures::MakeSpread(QStringLiteral("Big"), 20, {deckId_});
    }

    void cleanup() {
        CloseReadingScreens();
        CloseDiaryScreens();
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

    // Through the screen: a refusal is told and the opening stops; so does a
    // question answered No, with the file untouched.
    void theOpenScreenStopsWhereTheCoreSays() {
        SavedReading();
        SavedDiary();
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1, [](DeckRecord& d) { d.DeckRevision = 2; });
        const QByteArray file = ReadWholeFile(TheRun.Paths.ReadingsPath);
        MsgBoxScript::Answer(vbNo);
        TryOpen();
        QVERIFY(IsLoaded<frmOpenReading>() && !IsLoaded<frmReadingCards>());
        QCOMPARE(ReadWholeFile(TheRun.Paths.ReadingsPath), file);
        UnloadScreen<frmOpenReading>();
        DeleteSpread(1);
        MsgBoxScript::Answer(vbYes);  // the changed deck, asked before the refusal
        ReadingFixtures::TryOpen<frmNewDiary, frmOpenDiary>();
        QVERIFY(IsLoaded<frmOpenDiary>() && !Get<frmNewDiary>().OpeningDiary);
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

    // After the question, a card past a changed deck at location 16 leaves it empty.
    void aCardPastASmallerDeckBeyondLocationFifteenIsLeftOut() {
        SavedDiary(16, 22);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1, [](DeckRecord& d) {
            d.DeckRevision = 2;
            d.CardCount = 21;
        });
        MsgBoxScript::Answer(vbYes);
        ReadingFixtures::TryOpen<frmNewDiary, frmOpenDiary>();
        QVERIFY(!IsLoaded<frmOpenDiary>());
        QCOMPARE(Get<frmNewDiary>().cmdCardTitle(16)->text(), QStringLiteral(" [Select]"));
        QCOMPARE(TheRun.CurrentDiary.DealtCard[15], Integer(0));
    }

    void aCardPastTheDeckBeyondLocationFifteenClosesTheReadingCleanly() {
        SavedReading(18, 40);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1, [](DeckRecord& d) { d.DeckRevision = 2; });
        const QByteArray file = ReadWholeFile(TheRun.Paths.ReadingsPath);
        MsgBoxScript::Answer(vbYes);  // open with the changed deck
        TryOpen();
        QCOMPARE(MsgBoxScript::History().size(), 2);
        QVERIFY(MsgBoxScript::History().at(1).prompt.contains(ErrorDescription(errSubscriptOutOfRange)));
        QVERIFY(!IsLoaded<frmNewReading>() && !IsLoaded<frmReadingCards>() && !TheRun.ReadingDeal.LoadingReading);
        QCOMPARE(ReadWholeFile(TheRun.Paths.ReadingsPath), file);
    }

    void aLockedReadingAsksItsPassword() {
        SavedReading();
        ChangeRecord<ReadingRecord>(TheRun.Paths.ReadingsPath, 1, [](ReadingRecord& r) {
            r.EntryLocked = True16;
            r.EntryPassword = QStringLiteral("moon");
        });
        ModalScript script;
        script.On<frmGetPassword>([](frmGetPassword& ask) {
            ask.txtPassword->setText(QStringLiteral("moon"));
            ask.cmdOK_Click();
        });
        TryOpen();
        QVERIFY(script.Done() && !IsLoaded<frmOpenReading>());
        QCOMPARE(TheRun.ReadingDeal.ThisLocationNumber, Integer(21));
    }

    void theListIsByDateAndDeletesAfterTheQuestion() {
        ReadingRecord later = SavedReading();
        ChangeRecord<ReadingRecord>(TheRun.Paths.ReadingsPath, 1, [](ReadingRecord& r) { r.SavedOn = 46100; });
        later.ReadingName = QStringLiteral("Earlier");
        AppendRecord(TheRun.Paths.ReadingsPath, later);
        frmOpenReading& open = Get<frmOpenReading>();
        QVERIFY(open.lstEntries->item(0)->text().startsWith(FormatSortDate(46000) + QStringLiteral(" - Earlier")));
        for (const int answer : {vbNo, vbYes}) {
            MsgBoxScript::Answer(answer);
            open.cmdDelete_Click();
        }
        QCOMPARE(QList<int>({CountReadings(), open.lstEntries->count()}), QList<int>({1, 1}));
    }

    // The save screen asks the core's question, No by default; the arrow key
    // onto a saved name and Enter overwrite it.
    void theSaveScreenTellsAndAsksWhatTheCoreFound() {
        SavedReading();
        frmSaveReading& save = Get<frmSaveReading>();
        save.txtSaveAs->setText(QStringLiteral(" Saved "));
        MsgBoxScript::Answer(vbNo);
        save.cmdSave_Click();
        QCOMPARE(MsgBoxScript::History().at(0).style, int(vbYesNo | vbDefaultButton2 | vbQuestion));
        save.txtSaveAs->setText(QStringLiteral("Other"));
        save.lstNames->setFocus();
        QTest::keyClick(save.lstNames, Qt::Key_Down);
        MsgBoxScript::Answer(vbYes);
        QTest::keyClick(save.lstNames, Qt::Key_Return);
        QVERIFY(!IsLoaded<frmSaveReading>());
        QCOMPARE(CountReadings(), 1);
        QCOMPARE(TheRun.CurrentReading.SaveCount, Integer(1));  // the screen keeps the entry as saved
    }

    void theSelectionListsWhatCanRunAndDefendsItsBoxes() {
        Fixtures::MakeDeck(QStringLiteral("Reversed"), 30, true);
        Fixtures::MakeSpread(QStringLiteral("Any"), 10, {}, true);  // listed first, on both decks
        Get<frmNewReading>();
        frmSelectSpread& select = Get<frmSelectSpread>();
        select.lstDecks->setCurrentRow(1);  // Tarot: no reversed sides
        select.chkUseReversed->setChecked(true);
        select.chkIssue->setChecked(true);
        QVERIFY(!select.chkUseReversed->isChecked() && !select.chkIssue->isChecked());

        // Ten locations from 22 cards of one type: enough; Reversed's Minor
        // Arcana alone (8 cards) is not.
        select.lstDecks->setCurrentRow(0);
        QVERIFY(select.chkUseReversed->isChecked());
        select.lstCardTypes->item(0)->setSelected(false);
        select.cmdSelect_Click();
        QCOMPARE(MsgBoxScript::History().at(0).prompt,
                 QStringLiteral("The card types you have selected are not enough to run this spread.\n"
                                "Please check more type(s) or change the deck."));
        QVERIFY(IsLoaded<frmSelectSpread>());

        // The duplicates box is remembered for the next selection.
        select.lstCardTypes->item(0)->setSelected(true);
        select.chkAllowDuplicateCards->setChecked(true);
        select.cmdSelect_Click();
        QVERIFY(TheRun.AllowDuplicateCards && TheRun.UseReversed &&
                TheRun.CurrentReading.AllowDuplicateCards == True16);
        QVERIFY(Get<frmSelectSpread>().chkAllowDuplicateCards->isChecked());
        UnloadScreen<frmSelectSpread>();
    }

    // Every box of the reading, its notes and both save screens; a name beyond
    // the code page is saved, found again and listed as the record holds it.
    void foreignTextIsHeldAsTheRecordHoldsIt() {
        frmNewReading& reading = NewReading();
        BadInput::TourTextBoxes(reading);
        BadInput::TourTextBoxes(Get<frmReadingNotes>());
        BadInput::TourTextBoxes(Get<frmSaveDiary>());
        UnloadScreen<frmSaveDiary>();
        for (int pass = 0; pass < 2; ++pass) {
            frmSaveReading& save = Get<frmSaveReading>();
            if (pass == 0) BadInput::TourTextBoxes(save);
            BadInput::PasteForeign(save.txtSaveAs);
            QCOMPARE(save.txtSaveAs->text(), BadInput::ForeignAsStored);
            if (pass == 1) MsgBoxScript::Answer(vbYes);  // the same name: the overwrite question
            save.cmdSave_Click();
            QCOMPARE(CountReadings(), 1);
        }
        QCOMPARE(MsgBoxScript::History().size(), 1);
        ReadingRecord saved;
        GetRecord(TheRun.Paths.ReadingsPath, 1, saved);
        QCOMPARE(saved.ReadingName.Trimmed(), BadInput::ForeignAsStored);
        reading.CloseReading();
        QVERIFY(Get<frmOpenReading>().lstEntries->item(0)->text().trimmed().endsWith(QStringLiteral(" - ") +
                                                                                     BadInput::ForeignAsStored));
    }

    // A reading deleted elsewhere after the list was made: opening it does
    // nothing, the screen stays and the file is untouched.
    void aReadingThatVanishedAfterListingIsNotOpened() {
        for (const char* name : {"Gone", "Kept"})
            AppendRecord(TheRun.Paths.ReadingsPath, Fixtures::NamedReading(QLatin1String(name)));
        frmOpenReading& open = Get<frmOpenReading>();
        DeleteReading(QStringLiteral("Gone"));
        const QByteArray file = ReadWholeFile(TheRun.Paths.ReadingsPath);
        for (int row = 0; row < 2; ++row) {
            if (!open.lstEntries->item(row)->text().trimmed().endsWith(QStringLiteral("Gone"))) continue;
            open.lstEntries->setCurrentRow(row);
            open.cmdOpen_Click();
        }
        QVERIFY(IsLoaded<frmOpenReading>() && !IsLoaded<frmReadingCards>());
        QCOMPARE(ReadWholeFile(TheRun.Paths.ReadingsPath), file);
    }
};

QTEST_MAIN(TestSavedEntries)
#include "tst_savedentries.moc"
