// A whole reading driven through its screens, then Back, Continue and Deal,
// and the shuffle of the face-down cards.
#include "ReadingFixtures.h"
#include "core/store/Lookups.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/ImageBox.h"

using namespace ReadingFixtures;

namespace {

constexpr int Locations = 6;
constexpr int DeckSize = 30;

}  // namespace

class TestReadingScreens : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), DeckSize, true);
        Fixtures::MakeSpread(QStringLiteral("Cross"), Locations, {deckId_});
        ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [](SpreadRecord& s) { s.AskQuestion = True16; });
        // Every card sounds on its reversed side.
        for (int n = 1; n <= DeckSize; ++n)
            ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, n, [n](CardRecord& c) {
                c.CardSound[1] = QStringLiteral("MCR%1.wav").arg(n, 5, 10, QLatin1Char('0'));
            });
    }

    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    // Dealt in part, saved on closing, reopened with its table, dealt to the
    // end, interpreted, saved again and reopened complete.
    void aWholeReadingFromSelectionToReopening() {
        frmNewReading& reading = NewReading();
        // Enter in the issue box continues as the button does, the issue
        // padded the same.
        reading.txtIssue->setText(QStringLiteral("  Will it rain?"));
        QTest::keyClick(reading.txtIssue, Qt::Key_Return);
        QCOMPARE(reading.Caption(), QStringLiteral("Reading - Cross:   Will it rain?  "));
        frmReadingCards& table = Get<frmReadingCards>();
        const auto order = TheRun.CurrentReading.LocationCard;

        // A card by a click, one by Next Card; closing asks, Yes saves.
        table.picCard_Click(7);
        QCOMPARE(TheRun.ReadingDeal.DealtCard(1), order[6]);
        reading.cmdNextCard->click();
        const auto onTable = [] {
            QList<int> cards;
            for (int i = 1; i <= DeckSize; ++i) cards << int(Get<frmReadingCards>().picCard(i)->isHidden());
            return cards;
        };
        const QList<int> left = onTable();
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveReading>(reading.cmdClose, QStringLiteral("Morning"));
        QCOMPARE(MsgBoxScript::History().at(0).prompt, QStringLiteral("Save changes to the reading?"));
        ReadingRecord saved;
        QVERIFY(GetRecord(TheRun.Paths.ReadingsPath, 1, saved));
        QVERIFY(saved.Issue.Value().startsWith(QStringLiteral("  Will it rain?  ")));
        QCOMPARE(QList<Integer>({saved.DealtCount, saved.ReadingDeckId}), QList<Integer>({2, deckId_}));

        // Reopened: the table as it was left, the deal going on from there.
        OpenPastReading(0);
        frmNewReading& again = Get<frmNewReading>();
        QCOMPARE(onTable(), left);
        QCOMPARE(again.lblCardName(1)->text(), QStringLiteral("Card %1").arg(order[6]));
        again.cmdAllCards->click();
        QVERIFY(!IsLoaded<frmReadingCards>() && again.ReadingChanged);
        int reversedAt = 1;
        while (TheRun.ReadingDeal.DealtUpright(reversedAt) != False16 && reversedAt < Locations) ++reversedAt;
        const Integer card = TheRun.ReadingDeal.DealtCard(reversedAt);
        QVERIFY2(TheRun.ReadingDeal.DealtUpright(reversedAt) == False16, "the seed deals no reversed card");
        QCOMPARE(again.imgCard(reversedAt)->Image().pixelColor(0, 0).rgb(), Fixtures::CardColour(card, False16).rgb());

        // Interpreting the reversed card: its reversed texts, picture and sound.
        again.picLocation_Click(reversedAt);
        frmReadingInterpretLocation& page = Get<frmReadingInterpretLocation>();
        QCOMPARE(page.lblCardTitle->text(), QStringLiteral("Card %1 (Reversed)").arg(card));
        page.optKeywords->click();
        QCOMPARE(page.lblText->toPlainText(), QStringLiteral("reversed keywords %1").arg(card));
        QCOMPARE(page.MediaPlayer1->FileName(),
                 TheRun.Paths.CardsDir + QStringLiteral("MCR%1.wav").arg(card, 5, 10, QLatin1Char('0')));
        page.cmdEnlargePic->click();  // the picture takes the player's place
        QVERIFY(!page.picEnlargedBackground->isHidden() && page.MediaPlayer1->isHidden());
        page.cmdClose->click();

        // Notes go into the reading as they are typed; the save proposes the
        // reading's name and asks before writing over it.
        again.cmdNotes->click();
        Get<frmReadingNotes>().txtComments->setPlainText(QStringLiteral("Rain later."));
        Get<frmReadingNotes>().cmdClose->click();
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveReading>(again.cmdSave, QStringLiteral("Morning"));
        QVERIFY(!again.ReadingChanged);
        again.cmdClose->click();
        QVERIFY(GetRecord(TheRun.Paths.ReadingsPath, 1, saved));
        QCOMPARE(saved.ReadingNotes.Trimmed(), QStringLiteral("Rain later."));
        QCOMPARE(QList<Integer>({saved.SaveCount, saved.DealtCount, saved.DealtCard[Locations - 1]}),
                 QList<Integer>({2, Locations, TheRun.ReadingDeal.DealtCard(Locations)}));

        // Reopened complete: no table, Deal offered.
        OpenPastReading(0);
        frmNewReading& complete = Get<frmNewReading>();
        QVERIFY(!IsLoaded<frmReadingCards>() && complete.cmdDeal->isEnabled());
        QCOMPARE(complete.txtIssue->text(), QStringLiteral("Will it rain?"));
        complete.cmdClose->click();
    }

    void backAndContinueKeepTheirOddities() {
        frmNewReading& reading = NewReading();
        reading.cmdContinue->click();
        // Back before the first card hides the table and the dealing buttons.
        reading.cmdContinue->click();
        QVERIFY(reading.IntroductionShown() && !Get<frmReadingCards>().Visible());
        reading.cmdContinue->click();
        QVERIFY(Get<frmReadingCards>().Visible());
        reading.cmdAllCards->click();

        // Deal starts over: the locations empty and a table is laid.
        reading.cmdDeal->click();
        QVERIFY(IsLoaded<frmReadingCards>() && !reading.imgCard(1)->HasPicture());

        // Interpret before the first card: location 1 alone, the compact page.
        reading.cmdInterpret->click();
        frmReadingInterpretLocation& page = Get<frmReadingInterpretLocation>();
        QVERIFY(page.imgCard->isHidden() && page.lblText->isHidden());
        QCOMPARE(page.lblTitle->text(), QStringLiteral("Position 1"));
        page.cmdClose->click();

        // Complete again, then Back and Continue: the dealing buttons come on
        // with no table, and a press lays a table again.
        reading.cmdAllCards->click();
        reading.cmdContinue->setEnabled(true);
        reading.cmdContinue->click();
        reading.cmdContinue->click();
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(reading.cmdNextCard->isEnabled() && reading.cmdFakeShuffle->isEnabled());
        MsgBoxScript::Answer(vbNo);
        reading.cmdClose->click();
    }

    // The shuffle yields while the cards move, puts every card back and stops
    // when told; with duplicates a card drawn stays and the table shuffles
    // anew; closing the reading ends a run in progress, and its table with it.
    void theShuffleYieldsRestoresAndStops() {
        frmNewReading& reading = NewReading([](frmSelectSpread& s) { s.chkAllowDuplicateCards->setChecked(true); });
        reading.cmdContinue->click();
        frmReadingCards& table = Get<frmReadingCards>();
        int movedAway = 0, timerTurns = 0;
        // This timer runs while the cards move; it starts a second run on
        // top, which returns when the stop comes.
        QTimer watcher;
        watcher.setInterval(0);
        connect(&watcher, &QTimer::timeout, [&] {
            ++timerTurns;
            for (int i = 1; i <= DeckSize; ++i)
                if (table.CardLeft(i) != frmReadingCards::HomeLeft(i)) ++movedAway;
            if (timerTurns == 20) QTimer::singleShot(0, [&] { table.FakeShuffle(); });
            if (timerTurns == 40) table.StopShuffle();
        });
        watcher.start();
        table.FakeShuffle();
        watcher.stop();
        QVERIFY(timerTurns >= 40 && movedAway > 0);
        for (int i = 1; i <= DeckSize; ++i)
            QVERIFY(table.CardLeft(i) == frmReadingCards::HomeLeft(i) &&
                    table.CardTop(i) == frmReadingCards::HomeTop(i));
        // The order of the cards is not the animation's business.
        QCOMPARE(TheRun.CurrentReading.LocationCard[0], TheRun.ReadingDeal.LocationCard(1));

        int stops = 0;
        QTimer stopper;
        stopper.setInterval(5);
        connect(&stopper, &QTimer::timeout, [&] {
            ++stops;
            reading.cmdFakeShuffle_Release();
        });
        stopper.start();
        table.picCard_Click(4);
        stopper.stop();
        QVERIFY(!table.picCard(4)->isHidden() && stops >= 1);

        MsgBoxScript::Answer(vbNo);
        QTimer::singleShot(20, [&] { reading.cmdClose->click(); });
        reading.cmdFakeShuffle_Press();
        QVERIFY(!IsLoaded<frmNewReading>() && !IsLoaded<frmReadingCards>());
    }
};

QTEST_MAIN(TestReadingScreens)
#include "tst_readingscreens.moc"
