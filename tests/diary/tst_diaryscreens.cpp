// A diary entry driven through its screens: cards chosen in any order,
// reversed, replaced and set back, the lists of the other locations following
// with duplicates off, saved and reopened as it was; the card choice itself;
// the interpretation of the focused location; the question at closing.

#include "DiaryFixtures.h"
#include "core/store/Lookups.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"

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

    void anEntryChosenInAnyOrderSavesAndReopensAsItWas() {
        frmNewDiary& diary = NewDiary();
        QCOMPARE(diary.Caption(), QStringLiteral("Diary - Four"));
        QVERIFY(!AllowDuplicateCards);
        diary.cmdContinue->click();
        QVERIFY(!diary.IntroductionShown());
        QCOMPARE(diary.cmdContinue->text(), QStringLiteral("&Back"));
        QVERIFY(diary.cmdSave->isEnabled() && diary.cmdInterpret->isEnabled());
        QCOMPARE(Rows(diary, 2).size(), DeckSize + 1);
        QCOMPARE(Rows(diary, 2).first(), SelectRow + QStringLiteral("=0"));

        // Location 3 first, reversed; then 1; then 4.
        Choose(diary, 3, CardText(5), true);
        QCOMPARE(diary.FocusLocation, Integer(3));
        QCOMPARE(diary.cmdCardTitle(3)->text(), CardText(5));
        QVERIFY(diary.lblCardNumber(3)->isHidden());
        QVERIFY(diary.imgCard(3)->HasPicture());
        QVERIFY(diary.chkReversed(3)->isChecked());
        for (int other : {1, 2, 4}) QVERIFY(!Offered(diary, other).contains(CardText(5)));
        Choose(diary, 1, CardText(2));
        Choose(diary, 4, CardText(7));
        QVERIFY(!Offered(diary, 1).contains(CardText(7)));
        QVERIFY(diary.DiaryChanged);

        // Replaced: card 7 comes back at the end of the other lists, by its
        // title only.
        Choose(diary, 4, CardText(9));
        for (int other : {1, 2, 3}) {
            QCOMPARE(Rows(diary, other).last(), CardText(7) + QStringLiteral("=0"));
            QVERIFY(!Offered(diary, other).contains(CardText(9)));
        }
        // Set back: location 1 shows its number again, card 2 returns.
        Choose(diary, 1, SelectRow);
        QCOMPARE(diary.cmdCardTitle(1)->text(), SelectRow);
        QVERIFY(!diary.lblCardNumber(1)->isHidden());
        QVERIFY(!diary.imgCard(1)->HasPicture());
        for (int other : {2, 3, 4}) QCOMPARE(Rows(diary, other).last(), CardText(2) + QStringLiteral("=0"));

        // A click on another location only moves the focus there; a click on
        // the focused one interprets it.
        diary.picLocation_Click(4);
        QCOMPARE(diary.FocusLocation, Integer(4));
        QVERIFY(!IsLoaded<frmDiaryInterpretLocation>());

        QList<QStringList> offered;
        for (int i = 1; i <= Locations; ++i) offered << Offered(diary, i);
        SaveThrough<frmSaveDiary>(diary.cmdSave, QStringLiteral("Tuesday"));
        QVERIFY(!diary.DiaryChanged);
        QCOMPARE(CountDiaries(), 1);
        DiaryRecord saved;
        QVERIFY(GetRecord(DiaryPath, 1, saved));
        QCOMPARE(saved.DiaryName.Trimmed(), QStringLiteral("Tuesday"));
        QCOMPARE(saved.DealtCard, (std::array<Integer, 32>{0, 0, 5, 9}));
        std::array<Integer, 32> upright;
        upright.fill(True16);
        upright[2] = False16;
        QCOMPARE(saved.DealtUpright, upright);
        QCOMPARE(saved.CardTypeSelected, (std::array<Integer, 4>{True16, True16, False16, False16}));
        // The focused location, save count, duplicates, deck.
        QCOMPARE(QList<Integer>({saved.DiaryChoice, saved.SaveCount, saved.AllowDuplicateCards, saved.ReadingDeckId}),
                 QList<Integer>({4, 1, False16, deckId_}));

        diary.cmdClose->click();
        QVERIFY(!IsLoaded<frmNewDiary>());
        OpenPastDiary(0);
        QVERIFY(!IsLoaded<frmOpenDiary>());
        frmNewDiary& reopened = Get<frmNewDiary>();
        QVERIFY(!reopened.IntroductionShown());
        QVERIFY(!reopened.DiaryChanged);
        QVERIFY(!reopened.OpeningDiary);
        QCOMPARE(reopened.FocusLocation, Integer(4));
        QCOMPARE(EncodeRecord(CurrentDiary), EncodeRecord(saved));
        for (int i = 1; i <= Locations; ++i) {
            // Cards that came back stand in deck order again: what each list
            // offers is the same.
            QCOMPARE(Offered(reopened, i), offered[i - 1]);
            QCOMPARE(reopened.cmdCardTitle(i)->text(),
                     i == 3 ? CardText(5) : i == 4 ? CardText(9) : SelectRow);
            QCOMPARE(reopened.lblCardNumber(i)->isHidden(), i >= 3);
        }
        QVERIFY(reopened.chkReversed(3)->isChecked());

    }

    void theCardChoiceOffersWhatTheLocationMayTake() {
        frmNewDiary& diary = NewDiary();
        diary.cmdContinue->click();
        Choose(diary, 2, CardText(24));
        // Cancel after turning the box leaves the location as it was.
        Choose(diary, 2, QString(), false, [](frmDiaryCards& cards) {
            QCOMPARE(cards.Caption(), QStringLiteral("Select card for location: 2. Position 2"));
            QVERIFY(cards.Left() < 100 && cards.Top() < 100);   // at the frame's top left
            QVERIFY(!cards.chkReserved->isHidden());
            QCOMPARE(cards.lstCards->currentItem()->text(), CardText(24));
            QCOMPARE(Get<frmNewDiary>().picLocation(2)->BackColor(), QColor(192, 0, 0));
            cards.chkReserved->click();
            cards.cmdCancel->click();
        });
        QCOMPARE(CurrentDiary.DealtUpright[1], True16);
        QVERIFY(!diary.chkReversed(2)->isChecked());
        QCOMPARE(diary.picLocation(2)->BackColor(), QBColor(CurrentLocationColour));

        // Types unticked leave only the row of no card; Select without a row asks.
        Choose(diary, 1, QString(), false, [](frmDiaryCards& cards) {
            QCOMPARE(cards.lstCardTypes->count(), 2);
            QCOMPARE(cards.lstCards->count(), DeckSize);   // card 24 is taken
            cards.lstCardTypes->item(1)->setSelected(false);
            QCOMPARE(cards.lstCards->count(), 22 + 1);
            cards.lstCardTypes->clearSelection();
            QCOMPARE(cards.lstCards->count(), 1);
            QCOMPARE(cards.lstCards->item(0)->text(), SelectRow);
            MsgBoxScript::Answer(vbOK);
            cards.cmdSelect->click();
            QVERIFY(IsLoaded<frmDiaryCards>());
            cards.cmdCancel->click();
        });
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Please select a card from the list."));

        // A card that came back carries no number: choosing it empties the
        // location. Delete on a location's button empties it too.
        Choose(diary, 2, CardText(25));
        QCOMPARE(Rows(diary, 1).last(), CardText(24) + QStringLiteral("=0"));
        Choose(diary, 1, CardText(24));
        QCOMPARE(CurrentDiary.DealtCard[0], Integer(0));
        QCOMPARE(diary.cmdCardTitle(1)->text(), SelectRow);
        diary.cmdCardTitle(2)->setFocus();
        QTest::keyClick(diary.cmdCardTitle(2), Qt::Key_Delete);
        QCOMPARE(CurrentDiary.DealtCard[1], Integer(0));
        QVERIFY(!diary.lblCardNumber(2)->isHidden());
        QVERIFY(Offered(diary, 3).contains(CardText(25)));
    }

    void aDeckWithoutReversedSidesHidesTheBox() {
        ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) { d.IncludesReversed = False16; });
        frmNewDiary& diary = NewDiary([](frmSelectSpreadforDiary& select) {
            select.chkAllowDuplicateCards->click();
        });
        QVERIFY(AllowDuplicateCards);
        QCOMPARE(CurrentDiary.AllowDuplicateCards, True16);
        diary.cmdContinue->click();
        Choose(diary, 1, CardText(3), false, [](frmDiaryCards& cards) {
            QVERIFY(cards.chkReserved->isHidden());
            cards.lstCards->setCurrentRow(RowOf(cards.lstCards, CardText(3)));
            cards.lstCards->setFocus();
            QTest::keyClick(cards.lstCards, Qt::Key_Return);   // Enter in the list selects
            if (IsLoaded<frmDiaryCards>()) cards.cmdCancel->click();
        });
        QCOMPARE(CurrentDiary.DealtCard[0], Integer(3));
        // Duplicates on: the card stays in the other lists.
        QVERIFY(Offered(diary, 2).contains(CardText(3)));
        Choose(diary, 2, CardText(3));
        QCOMPARE(CurrentDiary.DealtCard[1], Integer(3));
        QCOMPARE(CurrentDiary.DealtUpright[0], True16);
    }

    void theFocusedLocationIsInterpreted() {
        frmNewDiary& diary = NewDiary();
        diary.cmdContinue->click();
        // An empty location: the compact page.
        diary.cmdInterpret->click();
        frmDiaryInterpretLocation& empty = Get<frmDiaryInterpretLocation>();
        QVERIFY(empty.lblCardTitle->isHidden());
        QCOMPARE(diary.chkReversed(1)->palette().color(QPalette::Window), QColor(192, 0, 0));
        empty.cmdClose->click();
        Settle();
        QCOMPARE(diary.chkReversed(1)->palette().color(QPalette::Window), QBColor(CurrentLocationColour));

        Choose(diary, 2, CardText(4), true);
        diary.picLocation_Click(2);
        frmDiaryInterpretLocation& page = Get<frmDiaryInterpretLocation>();
        QCOMPARE(page.lblCardTitle->text(), QStringLiteral("Card 4 (Reversed)"));
        QVERIFY(!page.lblCardTitle->isHidden());
        // The player stays up while the picture is enlarged.
        const bool playerShown = !page.MediaPlayer1->isHidden();
        page.cmdEnlargePic->click();
        QVERIFY(page.Enlarged());
        QCOMPARE(!page.MediaPlayer1->isHidden(), playerShown);
        page.cmdClose->click();
        Settle();
        // A double click on a location's picture interprets the focused one.
        diary.imgCard_DblClick(2);
        QVERIFY(IsLoaded<frmDiaryInterpretLocation>());
        UnloadScreen<frmDiaryInterpretLocation>();
    }

    void notesMarkTheEntryChangedAndClosingAsks() {
        frmNewDiary& diary = NewDiary();
        diary.cmdContinue->click();
        QVERIFY(!diary.DiaryChanged);
        diary.cmdNotes->click();
        Get<frmDiaryNotes>().txtComments->setPlainText(QStringLiteral("Rain came."));
        Get<frmDiaryNotes>().cmdClose->click();
        QVERIFY(diary.DiaryChanged);
        QCOMPARE(CurrentDiary.DiaryNotes.Trimmed(), QStringLiteral("Rain came."));
        MsgBoxScript::Answer(vbCancel);
        diary.cmdClose->click();
        QVERIFY(IsLoaded<frmNewDiary>());
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Save changes to diary before exit?"));
        // Yes, then a cancelled save: the entry closes unsaved.
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveDiary>(diary.cmdClose, QString());
        Settle();
        QVERIFY(!IsLoaded<frmNewDiary>());
        QCOMPARE(CountDiaries(), 0);
        QVERIFY(Get<frmMainScreen>().Visible());
    }
};

QTEST_MAIN(TestDiaryScreens)
#include "tst_diaryscreens.moc"
