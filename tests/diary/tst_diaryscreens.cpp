// The cards a diary entry's locations may take, on the core's lists; then a
// diary entry driven through its screens, and the card choice itself.

#include "DiaryFixtures.h"
#include "core/readings/DiaryCards.h"
#include "core/store/Lookups.h"

using namespace DiaryFixtures;

namespace {

constexpr int Locations = 4;
constexpr int DeckSize = 30;
const QString SelectRow = QStringLiteral(" [Select]");

// A location's list in short: "-" the row of no card, "n" card n, "n'" card
// n come back without its number.
QString Described(int location) {
    QStringList rows;
    for (const CardRow& row : TheRun.DiaryLists.Rows(location)) {
        if (row.Text == SelectRow) rows << QStringLiteral("-");
        else rows << row.Text.section(QLatin1Char(' '), 1) + (row.Card == 0 ? QStringLiteral("'") : QString());
    }
    return rows.join(QLatin1Char(' '));
}

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

    // Choices "location:card" (0 for no card) made in turn on four locations
    // and a deck of six cards: the cards the entry holds, and the list of one
    // location afterwards.
    void theListsFollowTheCardsChosen_data() {
        QTest::addColumn<bool>("duplicates");
        QTest::addColumn<QString>("choices");
        QTest::addColumn<QString>("dealt");
        QTest::addColumn<int>("location");
        QTest::addColumn<QString>("list");
        QTest::newRow("chosen cards leave the other lists") << false << "3:5 1:2"
                                                            << "2 0 5 0" << 4 << "- 1 3 4 6";
        QTest::newRow("a replaced card comes back by its title") << false << "4:6 4:1"
                                                                 << "0 0 0 1" << 2 << "- 2 3 4 5 6'";
        QTest::newRow("a location set back gives its card back") << false << "1:2 1:0"
                                                                 << "0 0 0 0" << 3 << "- 1 3 4 5 6 2'";
        QTest::newRow("a card come back is found by its title") << false << "1:2 1:0 3:2"
                                                                << "0 0 2 0" << 4 << "- 1 3 4 5 6";
        QTest::newRow("duplicates leave the lists whole") << true << "1:2 2:2"
                                                          << "2 2 0 0" << 3 << "- 1 2 3 4 5 6";
    }

    void theListsFollowTheCardsChosen() {
        QFETCH(bool, duplicates);
        QFETCH(QString, choices);
        QFETCH(int, location);
        DeckInMemory deck;
        deck.CardCount = 6;
        deck.DeckCards.Redim(1, 6);
        for (int n = 1; n <= 6; ++n) deck.DeckCards(n).CardTitle = CardText(n);
        DiaryRecord diary;
        ResetDiary(diary);
        FillCardLists(TheRun.DiaryLists, deck, 4, {true, false, false, false});
        for (const QString& choice : choices.split(QLatin1Char(' '))) {
            const int at = choice.section(QLatin1Char(':'), 0, 0).toInt();
            const int card = choice.section(QLatin1Char(':'), 1).toInt();
            int row = IndexOfNone(TheRun.DiaryLists, at);
            for (int r = 0; card > 0 && r < TheRun.DiaryLists.Rows(at).size(); ++r)
                if (TheRun.DiaryLists.Rows(at)[r].Text == CardText(card)) row = r;
            QCOMPARE(ChooseRow(TheRun.DiaryLists, diary, at, row, SelectedText(TheRun.DiaryLists, at), duplicates,
                               false, deck, 4),
                     card);
        }
        QStringList dealt;
        for (int i = 0; i < 4; ++i) dealt << QString::number(diary.DealtCard[std::size_t(i)]);
        QTEST(dealt.join(QLatin1Char(' ')), "dealt");
        QTEST(Described(location), "list");
    }

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
        std::array<Integer, 32> upright;
        upright.fill(True16);
        upright[2] = False16;
        QCOMPARE(saved.DealtUpright, upright);
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
        QVERIFY(reopened.chkReversed(3)->isChecked());
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
