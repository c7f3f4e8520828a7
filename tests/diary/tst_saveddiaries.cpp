// Saved diary entries that can no longer be shown as they were refuse with
// one message and write nothing; one whose cards point past a smaller deck
// beyond the checked locations opens with those locations empty; saving under
// another entry's name overwrites it in place.

#include "DiaryFixtures.h"
#include "core/platform/FileSys.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "screens/shell/ClickLabel.h"

using namespace DiaryFixtures;

namespace {

constexpr int Locations = 20;

const QString DeckGone = QStringLiteral(
    "This diary cannot be opened because the deck that was used to create it is no longer installed.");
const QString SpreadGone = QStringLiteral(
    "This diary cannot be opened because the spread that was used to create it is no longer installed.");
const QString TooManyRemoved = QStringLiteral(
    "The Diary cannot be opened because the too many cards were removed from the deck that was used to create "
    "this diary.");

}  // namespace

class TestSavedDiaries : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;
    Integer spreadId_ = 0;

    // An entry of the 20-location spread with card i in location i.
    DiaryRecord SavedDiary(const QString& name, double savedOn, int highCardAt = 0, Integer highCard = 0) {
        const auto own = [&](DiaryRecord& d) {
            d.DiaryName = name;
            d.DiaryChoice = 7;
            d.SavedOn = savedOn;
        };
        return SaveEntry<DiaryRecord>(DiaryPath, deckId_, spreadId_, Locations, own, highCardAt, highCard);
    }
    static frmOpenDiary& TryOpen() { return ReadingFixtures::TryOpen<frmNewDiary, frmOpenDiary>(); }
    static void ExpectRefusal(const QString& message) {
        ExpectRefusalOf<frmNewDiary, frmOpenDiary>(DiaryPath, CurrentDiary, message);
        QVERIFY(Get<frmNewDiary>().OpeningDiary == false);
    }

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshDiaryRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), 22, false);
        spreadId_ = Fixtures::MakeSpread(QStringLiteral("Big"), Locations, {deckId_});
    }

    void cleanup() { CloseDiaryScreens(); }

    void aDeletedDeckOrSpreadRefuses() {
        SavedDiary(QStringLiteral("Saved"), 46000);
        DeleteDeck(1);
        ExpectRefusal(DeckGone);
        MsgBoxScript::Clear();
        UnloadScreen<frmOpenDiary>();
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Again"), 22, false);
        ChangeRecord<DiaryRecord>(DiaryPath, 1, [this](DiaryRecord& d) { d.ReadingDeckId = deckId_; });
        DeleteSpread(1);
        ExpectRefusal(SpreadGone);
    }

    void aSmallerDeckIsCheckedOnTheFirstFifteenLocationsOnly() {
        SavedDiary(QStringLiteral("Saved"), 46000, 15, 22);
        ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) {
            d.DeckRevision = 2;
            d.CardCount = 21;
        });
        ExpectRefusal(TooManyRemoved);
        MsgBoxScript::Clear();
        UnloadScreen<frmOpenDiary>();

        // The same card at location 16 passes the check; after the question
        // the entry opens, location 16 empty with its number.
        ChangeRecord<DiaryRecord>(DiaryPath, 1, [](DiaryRecord& d) {
            d.DealtCard[14] = 15;
            d.DealtCard[15] = 22;
        });
        MsgBoxScript::Answer(vbYes);
        TryOpen();
        QVERIFY(!IsLoaded<frmOpenDiary>());
        frmNewDiary& diary = Get<frmNewDiary>();
        QVERIFY(diary.Visible());
        QVERIFY(!diary.IntroductionShown());
        QCOMPARE(diary.FocusLocation, Integer(7));
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
        SavedDiary(QStringLiteral("First"), 46000);
        SavedDiary(QStringLiteral("Second"), 46000);
        OpenPastDiary(0);
        frmNewDiary& diary = Get<frmNewDiary>();
        QVERIFY(!diary.DiaryChanged);
        // An empty entry saves too: no card is required.
        for (int i = 1; i <= Locations; ++i) diary.cboCardName_KeyUp(i, 46);
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
};

QTEST_MAIN(TestSavedDiaries)
#include "tst_saveddiaries.moc"
