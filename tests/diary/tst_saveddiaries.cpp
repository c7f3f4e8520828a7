// A saved diary entry whose cards point past a smaller deck beyond the
// checked locations opens with those locations empty (the refusals are the
// open screen's, checked for both kinds with the saved readings); saving
// under another entry's name overwrites it in place.

#include "DiaryFixtures.h"
#include "core/store/Lookups.h"
#include "screens/shell/ClickLabel.h"

using namespace DiaryFixtures;

namespace {

constexpr int Locations = 20;

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

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshDiaryRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), 22, false);
        spreadId_ = Fixtures::MakeSpread(QStringLiteral("Big"), Locations, {deckId_});
    }

    void cleanup() { CloseDiaryScreens(); }

    // A changed deck is checked on the first fifteen locations only: a card
    // past it at location 16 passes, and after the question the entry opens
    // with location 16 empty, showing its number.
    void aCardPastASmallerDeckBeyondLocationFifteenIsLeftOut() {
        SavedDiary(QStringLiteral("Saved"), 46000, 16, 22);
        ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) {
            d.DeckRevision = 2;
            d.CardCount = 21;
        });
        MsgBoxScript::Answer(vbYes);
        ReadingFixtures::TryOpen<frmNewDiary, frmOpenDiary>();
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
