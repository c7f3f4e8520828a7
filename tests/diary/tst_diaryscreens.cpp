// A diary entry driven through its screens, and the card choice itself.
#include "DiaryFixtures.h"
#include "core/store/Lookups.h"

using namespace DiaryFixtures;

namespace {

constexpr int Locations = 4;
constexpr int DeckSize = 30;
const QString SelectRow = QStringLiteral(" [Select]");

}  // namespace

class TestDiaryScreens : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshDiaryRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), DeckSize, true);
        Fixtures::MakeSpread(QStringLiteral("Four"), Locations, {deckId_});
    }

    void cleanup() { CloseDiaryScreens(); }

    // Cards chosen in any order, reversed, replaced and set back; the focused
    // location interpreted; notes and the closing question; the entry saved
    // and reopened as it was, then closed unsaved after a cancelled save.
    void anEntryChosenInAnyOrderSavesAndReopensAsItWas() {
        const QString longTitle = QStringLiteral("Queen of the Pentacles of Old");
        ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 5, [&](CardRecord& c) { c.CardTitle = longTitle; });
        frmNewDiary& diary = NewDiary();
        diary.cmdContinue->click();
        diary.cmdNotes->click();
        Get<frmDiaryNotes>().txtComments->setPlainText(QStringLiteral("Rain came."));
        Get<frmDiaryNotes>().cmdClose->click();
        QVERIFY(diary.DiaryChanged);  // notes alone mark the entry changed
        diary.cmdInterpret->click();  // an empty location: the compact page
        QVERIFY(Get<frmDiaryInterpretLocation>().lblCardTitle->isHidden());
        UnloadScreen<frmDiaryInterpretLocation>();
        Choose(diary, 3, longTitle, true);
        QVERIFY(!Offered(1).contains(longTitle));  // the screen keeps the core's lists

        // A click on the focused location interprets it: a long title whole
        // over two lines, and unlike a reading's, the player stays as it is
        // while the picture is enlarged.
        diary.picLocation_Click(3);
        frmDiaryInterpretLocation& page = Get<frmDiaryInterpretLocation>();
        QCOMPARE(page.lblCardTitle->text(), longTitle + QStringLiteral(" (Reversed)"));
        QVERIFY(page.lblCardTitle->heightForWidth(page.lblCardTitle->width()) <= page.lblCardTitle->height());
        const bool playerShown = !page.MediaPlayer1->isHidden();
        page.cmdEnlargePic->click();
        QVERIFY(page.Enlarged() && page.MediaPlayer1->isHidden() != playerShown);
        page.cmdClose->click();
        Settle();
        Choose(diary, 1, CardText(2));
        Choose(diary, 4, CardText(7));
        Choose(diary, 4, CardText(9));
        Choose(diary, 1, SelectRow);
        // A click on another location only moves the focus there.
        diary.picLocation_Click(4);
        QVERIFY(diary.FocusLocation == 4 && !IsLoaded<frmDiaryInterpretLocation>());

        MsgBoxScript::Answer(vbCancel);
        diary.cmdClose->click();
        QVERIFY(IsLoaded<frmNewDiary>());
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Save changes to diary before exit?"));
        QList<QStringList> offered;
        for (int i = 1; i <= Locations; ++i) offered << Offered(i);
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveDiary>(diary.cmdClose, QStringLiteral("Tuesday"));
        Settle();
        QVERIFY(!IsLoaded<frmNewDiary>());
        DiaryRecord saved;
        QVERIFY(GetRecord(TheRun.Paths.DiaryPath, 1, saved));
        QCOMPARE(saved.DiaryName.Trimmed() + saved.DiaryNotes.Trimmed(), QStringLiteral("TuesdayRain came."));
        QCOMPARE(saved.DealtCard, (std::array<Integer, 32>{0, 0, 5, 9}));
        // The focused location, duplicates, deck.
        QCOMPARE(QList<Integer>({saved.DiaryChoice, saved.AllowDuplicateCards, saved.ReadingDeckId}),
                 QList<Integer>({4, False16, deckId_}));

        OpenPastDiary(0);
        frmNewDiary& reopened = Get<frmNewDiary>();
        QVERIFY(!reopened.IntroductionShown() && !reopened.DiaryChanged && reopened.FocusLocation == 4);
        QCOMPARE(EncodeRecord(TheRun.CurrentDiary), EncodeRecord(saved));
        for (int i = 1; i <= Locations; ++i) {
            // Cards that came back stand in deck order again: what each list
            // offers is the same.
            QCOMPARE(Offered(i), offered[i - 1]);
            QCOMPARE(reopened.cmdCardTitle(i)->text(), i == 3 ? longTitle : i == 4 ? CardText(9) : SelectRow);
        }
        QVERIFY(reopened.chkReversed(3)->isChecked() && !reopened.chkReversed(4)->isChecked());
        // Yes, then a cancelled save: the entry closes unsaved.
        reopened.DiaryChanged = true;
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveDiary>(reopened.cmdClose, QString());
        Settle();
        QVERIFY(!IsLoaded<frmNewDiary>() && Get<frmMainScreen>().Visible());
        QCOMPARE(CountDiaries(), 1);
    }

    // Cancel after turning the box leaves the location as it was; Select
    // without a row asks; Enter in the list selects; Delete on a location's
    // button empties it.
    void theCardChoiceOffersWhatTheLocationMayTake() {
        frmNewDiary& diary = NewDiary();
        diary.cmdContinue->click();
        Choose(diary, 2, CardText(24));
        Choose(diary, 2, QString(), false, [](frmDiaryCards& cards) {
            QCOMPARE(cards.lstCards->currentItem()->text(), CardText(24));
            cards.chkReserved->click();
            cards.cmdCancel->click();
        });
        QCOMPARE(TheRun.CurrentDiary.DealtUpright[1], True16);
        Choose(diary, 1, QString(), false, [](frmDiaryCards& cards) {
            cards.lstCardTypes->clearSelection();
            QCOMPARE(cards.lstCards->count(), 1);  // the row of no card alone
            MsgBoxScript::Answer(vbOK);
            cards.cmdSelect->click();
            QVERIFY(IsLoaded<frmDiaryCards>());
            cards.lstCardTypes->selectAll();
            cards.lstCards->setCurrentRow(RowOf(cards.lstCards, CardText(3)));
            cards.lstCards->setFocus();
            QTest::keyClick(cards.lstCards, Qt::Key_Return);
        });
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Please select a card from the list."));
        QCOMPARE(TheRun.CurrentDiary.DealtCard[0], Integer(3));
        diary.cmdCardTitle(2)->setFocus();
        QTest::keyClick(diary.cmdCardTitle(2), Qt::Key_Delete);
        QCOMPARE(TheRun.CurrentDiary.DealtCard[1], Integer(0));
    }
};

QTEST_MAIN(TestDiaryScreens)
#include "tst_diaryscreens.moc"
