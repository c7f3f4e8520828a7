// Saved readings and diary entries alike, through the screens: the open,
// save and selection screens' wiring, and bad input. The rules they use are
// tested on the core in tst_entryrules.
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

class TestSavedEntries : public QObject, ScreenRun, EntryDesigns {
    Q_OBJECT
    static frmOpenReading& TryOpen() { return ReadingFixtures::TryOpen<frmNewReading, frmOpenReading>(); }

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        UnloadScreen<frmOpenReading>();
        FreshDiaryRun(NewDir());
        MakeDesigns();
    }

    void cleanup() {
        CloseReadingScreens();
        CloseDiaryScreens();
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
