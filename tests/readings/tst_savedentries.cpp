// Saved entries, readings and diary entries alike, that can no longer be
// shown as they were, and the selection screen's lists and boxes: every
// refusal is one message, the screen stays, nothing is written. A diary entry
// whose cards point past a smaller deck beyond the checked locations opens
// with those locations empty; saving under another entry's name overwrites it
// in place. And bad input: text past every limit, text the record code page
// cannot hold, a saved reading that goes between the listing and the opening.
#include <QApplication>
#include <QClipboard>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "diary/DiaryFixtures.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/shell/ClickLabel.h"
#include "screens/store/frmGetPassword.h"
#include "support/BadInput.h"

using namespace DiaryFixtures;

namespace {

// What has happened to the designs since an entry was saved.
enum Change { DeckDeleted, SpreadDeleted, CardsRemoved, DeckRevised };

// Pastes text over a line box's text as a user does.
void PasteInto(QLineEdit* box, const QString& text) {
    QApplication::clipboard()->setText(text);
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

}  // namespace

class TestSavedEntries : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;
    Integer spreadId_ = 0;

    // A complete reading of the 20-location spread, saved as "Saved".
    ReadingRecord SavedReading(int highCardAt = 0, Integer highCard = 0) {
        const auto own = [](ReadingRecord& r) {
            r.ReadingName = QStringLiteral("Saved");
            r.DealtCount = 20;
            r.SavedOn = 46000;
        };
        return SaveEntry<ReadingRecord>(ReadingsPath, deckId_, spreadId_, 20, own, highCardAt, highCard);
    }
    // A diary entry of the same.
    DiaryRecord SavedDiary(const QString& name, int highCardAt = 0, Integer highCard = 0) {
        const auto own = [&name](DiaryRecord& d) {
            d.DiaryName = name;
            d.SavedOn = 46000;
        };
        return SaveEntry<DiaryRecord>(DiaryPath, deckId_, spreadId_, 20, own, highCardAt, highCard);
    }
    static frmOpenReading& TryOpen() { return ReadingFixtures::TryOpen<frmNewReading, frmOpenReading>(); }
    static void ExpectRefusal(const QString& message) {
        ExpectRefusalOf<frmNewReading, frmOpenReading>(ReadingsPath, CurrentReading, message);
        QVERIFY(!IsLoaded<frmReadingCards>());
    }

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

    // Opening is refused alike for both kinds of entry, each in its own words:
    // a design gone, a card past a changed deck in the first fifteen
    // locations, the question about a changed deck declined.
    void anEntryThatCannotBeShownAsItWasIsRefused_data() {
        QTest::addColumn<bool>("diary");
        QTest::addColumn<int>("change");
        QTest::addColumn<QString>("message");
        QTest::newRow("reading, deck deleted") << false << int(DeckDeleted) << QStringLiteral(
            "This Reading cannot be opened because the deck that was used to create it is no longer installed.");
        QTest::newRow("diary, deck deleted") << true << int(DeckDeleted) << QStringLiteral(
            "This diary cannot be opened because the deck that was used to create it is no longer installed.");
        QTest::newRow("reading, spread deleted") << false << int(SpreadDeleted) << QStringLiteral(
            "This reading cannot be opened because the spread that was used to create it is no longer installed.");
        QTest::newRow("diary, spread deleted") << true << int(SpreadDeleted) << QStringLiteral(
            "This diary cannot be opened because the spread that was used to create it is no longer installed.");
        QTest::newRow("reading, card 22 at location 15 of 21") << false << int(CardsRemoved) << QStringLiteral(
            "The reading cannot be opened because the too many cards were removed from the deck that was used to "
            "create this reading.");
        QTest::newRow("diary, card 22 at location 15 of 21") << true << int(CardsRemoved) << QStringLiteral(
            "The Diary cannot be opened because the too many cards were removed from the deck that was used to "
            "create this diary.");
        QTest::newRow("reading, changed deck declined") << false << int(DeckRevised) << QStringLiteral(
            "The deck used with this reading has changed since the reading was created. Do you still want to open "
            "it?\nNOTE: If you choose 'Yes', the reading will be opened with the new deck version and the cards "
            "might be corrupted.");
    }

    void anEntryThatCannotBeShownAsItWasIsRefused() {
        QFETCH(bool, diary);
        QFETCH(int, change);
        QFETCH(QString, message);
        if (diary) SavedDiary(QStringLiteral("Saved"), 15, 22);
        else SavedReading(15, 22);
        if (change == DeckDeleted) DeleteDeck(1);
        if (change == SpreadDeleted) DeleteSpread(1);
        if (change == CardsRemoved || change == DeckRevised)
            ChangeRecord<DeckRecord>(DecksPath, 1, [change](DeckRecord& d) {
                d.DeckRevision = 2;
                if (change == CardsRemoved) d.CardCount = 21;
            });
        if (change == DeckRevised) MsgBoxScript::Answer(vbNo);
        if (diary) {
            ExpectRefusalOf<frmNewDiary, frmOpenDiary>(DiaryPath, CurrentDiary, message);
            QVERIFY(!Get<frmNewDiary>().OpeningDiary);
        } else {
            ExpectRefusal(message);
        }
    }

    // A changed deck is checked on the first fifteen locations only: a card
    // past it at location 16 passes, and after the question the entry opens
    // with location 16 empty, showing its number.
    void aCardPastASmallerDeckBeyondLocationFifteenIsLeftOut() {
        SavedDiary(QStringLiteral("Saved"), 16, 22);
        ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) {
            d.DeckRevision = 2;
            d.CardCount = 21;
        });
        MsgBoxScript::Answer(vbYes);
        ReadingFixtures::TryOpen<frmNewDiary, frmOpenDiary>();
        QVERIFY(!IsLoaded<frmOpenDiary>());
        frmNewDiary& diary = Get<frmNewDiary>();
        QVERIFY(diary.Visible());
        QCOMPARE(diary.cmdCardTitle(16)->text(), QStringLiteral(" [Select]"));
        QVERIFY(!diary.lblCardNumber(16)->isHidden());
        QCOMPARE(diary.lblCardNumber(16)->text(), QStringLiteral("16"));
        QCOMPARE(diary.cmdCardTitle(15)->text(), CardText(15));
        QCOMPARE(CurrentDiary.DealtCard[15], Integer(0));
        // With duplicates off the cards of the entry have left the other lists.
        QVERIFY(!Offered(diary, 16).contains(CardText(15)));
        QCOMPARE(diary.cboCardName(16)->count(), 1 + 21 - 19);
    }

    void savingUnderAnotherEntrysNameOverwritesItInPlace() {
        SavedDiary(QStringLiteral("First"));
        SavedDiary(QStringLiteral("Second"));
        OpenPastDiary(0);
        frmNewDiary& diary = Get<frmNewDiary>();
        QVERIFY(!diary.DiaryChanged);
        // An empty entry saves too: no card is required.
        for (int i = 1; i <= 20; ++i) diary.cboCardName_KeyUp(i, 46);
        ModalScript script;
        script.On<frmSaveDiary>([](frmSaveDiary& save) {
            QCOMPARE(save.txtSaveAs->text(), QStringLiteral("First"));
            QVERIFY(!save.cmdSave->isEnabled());
            save.txtSaveAs->setText(QStringLiteral("Second"));
            MsgBoxScript::Answer(vbYes);
            save.cmdSave_Click();
        });
        diary.cmdSave->click();
        QVERIFY(script.Done());
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Diary already exists. Overwrite?"));
        QCOMPARE(CountDiaries(), 2);
        DiaryRecord second;
        QVERIFY(GetRecord(DiaryPath, 2, second));
        QCOMPARE(second.DiaryName.Trimmed(), QStringLiteral("Second"));
        QCOMPARE(second.DealtCard, (std::array<Integer, 32>{}));
        QCOMPARE(second.SaveCount, Integer(1));
        DiaryRecord first;
        QVERIFY(GetRecord(DiaryPath, 1, first));
        QCOMPARE(first.DealtCard[0], Integer(1));
    }

    void aCardPastTheDeckBeyondLocationFifteenClosesTheReadingCleanly() {
        SavedReading(18, 40);
        ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) { d.DeckRevision = 2; });
        const QByteArray file = ReadWholeFile(ReadingsPath);
        MsgBoxScript::Answer(vbYes);   // open with the changed deck
        TryOpen();
        QCOMPARE(MsgBoxScript::History().size(), 2);
        QVERIFY(MsgBoxScript::History().at(1).prompt.contains(ErrorDescription(errSubscriptOutOfRange)));
        QVERIFY(!IsLoaded<frmNewReading>());
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(!frmReadingCards::LoadingReading);
        QVERIFY(Get<frmMainScreen>().Visible());
        QCOMPARE(ReadWholeFile(ReadingsPath), file);
    }

    void aLockedReadingAsksItsPassword() {
        SavedReading();
        ChangeRecord<ReadingRecord>(ReadingsPath, 1, [](ReadingRecord& r) {
            r.EntryLocked = True16;
            r.EntryPassword = QStringLiteral("moon");
        });
        ModalScript script;
        for (const char* typed : {"sun", "moon"})
            script.On<frmGetPassword>([typed](frmGetPassword& ask) {
                ask.txtPassword->setText(QString::fromLatin1(typed));
                ask.cmdOK_Click();
            });
        ExpectRefusal(QString());   // the wrong password's box
        MsgBoxScript::Clear();
        TryOpen();
        QVERIFY(script.Done());
        QVERIFY(!IsLoaded<frmOpenReading>());
        QCOMPARE(Get<frmNewReading>().ThisLocationNumber, Integer(21));
        QCOMPARE(MsgBoxScript::History().size(), 0);
    }

    void theListIsByDateAndDeletesAfterTheQuestion() {
        ReadingRecord later = SavedReading();
        ChangeRecord<ReadingRecord>(ReadingsPath, 1, [](ReadingRecord& r) { r.SavedOn = 46100; });
        later.ReadingName = QStringLiteral("Earlier");
        AppendRecord(ReadingsPath, later);
        frmOpenReading& open = Get<frmOpenReading>();
        QCOMPARE(open.lstEntries->count(), 2);
        QVERIFY(open.lstEntries->item(0)->text().startsWith(FormatSortDate(46000) + QStringLiteral(" - Earlier")));
        QCOMPARE(open.SelectedName().trimmed(), QStringLiteral("Earlier"));
        QCOMPARE(open.SelectedName().size(), 50);
        MsgBoxScript::Answer(vbNo);
        open.cmdDelete_Click();
        QCOMPARE(CountReadings(), 2);
        QCOMPARE(MsgBoxScript::History().at(0).style & vbDefaultButton2, int(vbDefaultButton2));
        MsgBoxScript::Answer(vbYes);
        open.cmdDelete_Click();
        QCOMPARE(CountReadings(), 1);
        QCOMPARE(open.lstEntries->count(), 1);
        MsgBoxScript::Answer(vbYes);
        open.cmdDelete_Click();
        QCOMPARE(open.lstEntries->count(), 0);
        QVERIFY(!open.cmdOpen->isEnabled() && !open.cmdDelete->isEnabled());
    }

    void saveRefusesBlankNamesAndAsksBeforeOverwriting() {
        SavedReading();
        frmSaveReading& save = Get<frmSaveReading>();
        save.txtSaveAs->setText(QStringLiteral("   "));
        save.cmdSave_Click();
        QCOMPARE(MsgBoxScript::History().at(0).prompt, QStringLiteral("Please select a name to save the reading as."));
        QVERIFY(IsLoaded<frmSaveReading>());
        save.txtSaveAs->setText(QStringLiteral(" Saved "));
        MsgBoxScript::Answer(vbNo);
        save.cmdSave_Click();
        QCOMPARE(MsgBoxScript::History().at(1).prompt, QStringLiteral("Reading already exists. Overwrite?"));
        QCOMPARE(CountReadings(), 1);
        QVERIFY(IsLoaded<frmSaveReading>());
        // The arrow key onto the saved entry and Enter overwrite that entry.
        save.txtSaveAs->setText(QStringLiteral("Other"));
        save.lstNames->setFocus();
        QTest::keyClick(save.lstNames, Qt::Key_Down);
        MsgBoxScript::Answer(vbYes);
        QTest::keyClick(save.lstNames, Qt::Key_Return);
        QCOMPARE(MsgBoxScript::History().size(), 3);
        QCOMPARE(CountReadings(), 1);
        QVERIFY(!IsLoaded<frmSaveReading>());
        Get<frmSaveReading>().txtSaveAs->setText(QStringLiteral("Second"));
        Get<frmSaveReading>().cmdSave_Click();
        QCOMPARE(CountReadings(), 2);
        QVERIFY(!IsLoaded<frmSaveReading>());
        ReadingRecord second;
        GetRecord(ReadingsPath, 2, second);
        QCOMPARE(second.ReadingName.Trimmed(), QStringLiteral("Second"));
        QCOMPARE(second.SaveCount, Integer(2));   // the reading in hand, saved twice
    }

    void theSelectionListsWhatCanRunAndDefendsItsBoxes() {
        // A spread tied to a deleted deck and one tied to any deck.
        Fixtures::MakeDeck(QStringLiteral("Reversed"), 30, true);
        const Integer gone = Fixtures::MakeDeck(QStringLiteral("Gone"), 22, false);
        Fixtures::MakeSpread(QStringLiteral("Orphan"), 3, {gone});
        Fixtures::MakeSpread(QStringLiteral("Any"), 10, {}, true);
        DeleteDeck(FindDeckByName(QStringLiteral("Gone")));

        Get<frmNewReading>();
        frmSelectSpread& select = Get<frmSelectSpread>();
        QStringList spreads;
        for (int i = 0; i < select.lstSpreads->count(); ++i) spreads << select.lstSpreads->item(i)->text();
        QCOMPARE(spreads, (QStringList{QStringLiteral("Any"), QStringLiteral("Big")}));
        QCOMPARE(select.lstDecks->count(), 2);   // Any: both usable decks
        select.lstDecks->setCurrentRow(1);       // Tarot: no reversed sides
        QCOMPARE(select.lstDecks->currentItem()->text(), QStringLiteral("Tarot"));
        QVERIFY(!select.chkUseReversed->isEnabled() && !select.chkUseReversed->isChecked());
        select.chkUseReversed->setChecked(true);
        QVERIFY(!select.chkUseReversed->isChecked());
        select.chkIssue->setChecked(true);
        QVERIFY(!select.chkIssue->isChecked());
        QCOMPARE(select.lblIssue->text(), QStringLiteral("Spread Does NOT Includes Question/Issue"));

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
        QVERIFY(!IsLoaded<frmSelectSpread>());
        QVERIFY(AllowDuplicateCards && UseReversed);
        QCOMPARE(CurrentReading.AllowDuplicateCards, True16);
        QCOMPARE(Get<frmNewReading>().Caption(), QStringLiteral("Reading - Any"));
        QCOMPARE(Get<frmSelectSpread>().chkAllowDuplicateCards->isChecked(), true);
        SelectSpreadScreen::LastAllowDuplicateCards = false;
        UnloadScreen<frmSelectSpread>();
    }

    // Every box of the reading, its notes and both save screens; a name that
    // the code page cannot hold is saved, found again and listed as the
    // record holds it.
    void foreignTextIsHeldAsTheRecordHoldsIt() {
        frmNewReading& reading = NewReading();
        BadInput::TourTextBoxes(reading);
        BadInput::TourTextBoxes(Get<frmReadingNotes>());
        BadInput::TourTextBoxes(Get<frmSaveDiary>());
        UnloadScreen<frmSaveDiary>();
        for (int pass = 0; pass < 2; ++pass) {
            frmSaveReading& save = Get<frmSaveReading>();
            if (pass == 0) BadInput::TourTextBoxes(save);
            PasteInto(save.txtSaveAs, BadInput::Foreign());
            QCOMPARE(save.txtSaveAs->text(), BadInput::ForeignAsStored);
            if (pass == 1) MsgBoxScript::Answer(vbYes);   // the same name: the overwrite question
            save.cmdSave_Click();
            QCOMPARE(CountReadings(), 1);
        }
        QCOMPARE(MsgBoxScript::History().size(), 1);
        ReadingRecord saved;
        GetRecord(ReadingsPath, 1, saved);
        QCOMPARE(saved.ReadingName.Trimmed(), BadInput::ForeignAsStored);
        reading.CloseReading();
        frmOpenReading& open = Get<frmOpenReading>();
        QCOMPARE(open.lstEntries->count(), 1);
        QVERIFY(open.lstEntries->item(0)->text().trimmed().endsWith(QStringLiteral(" - ") + BadInput::ForeignAsStored));
    }

    // A reading deleted elsewhere after the list was made: opening it does
    // nothing, the screen stays and the file is untouched.
    void aReadingThatVanishedAfterListingIsNotOpened() {
        for (const char* name : {"Gone", "Kept"}) AppendRecord(ReadingsPath, Fixtures::NamedReading(QLatin1String(name)));
        frmOpenReading& open = Get<frmOpenReading>();
        QCOMPARE(open.lstEntries->count(), 2);
        DeleteReading(QStringLiteral("Gone"));
        const QByteArray file = ReadWholeFile(ReadingsPath);
        for (int row = 0; row < 2; ++row) {
            if (!open.lstEntries->item(row)->text().trimmed().endsWith(QStringLiteral("Gone"))) continue;
            open.lstEntries->setCurrentRow(row);
            open.cmdOpen_Click();
        }
        QVERIFY(IsLoaded<frmOpenReading>() && !IsLoaded<frmReadingCards>());
        QCOMPARE(ReadWholeFile(ReadingsPath), file);
    }
};

QTEST_MAIN(TestSavedEntries)
#include "tst_savedentries.moc"
