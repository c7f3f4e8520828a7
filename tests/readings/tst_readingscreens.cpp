// A whole reading driven through its screens: select, continue, deal, interpret
// a reversed card, write notes, save, close, reopen; a half-dealt reading that
// goes on where it stopped; the buttons through the life of the table.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QtTest>

#include "ReadingFixtures.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Palette.h"
#include "core/store/Lookups.h"
#include "screens/platform/ListBox.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"

using namespace ReadingFixtures;

namespace {

constexpr int Locations = 6;
constexpr int DeckSize = 30;

struct Shown {
    Integer card = 0;
    Integer upright = 0;
    QString name;
};

// What the reading screen shows in each location.
QList<Shown> ShownCards(frmNewReading& reading, int count) {
    QList<Shown> shown;
    for (int i = 1; i <= count; ++i)
        shown.append({CurrentReading.DealtCard[static_cast<std::size_t>(i - 1)],
                      CurrentReading.DealtUpright[static_cast<std::size_t>(i - 1)], reading.lblCardName(i)->text()});
    return shown;
}

}  // namespace

class TestReadingScreens : public QObject, ScreenRun {
    Q_OBJECT
    Integer deckId_ = 0;
    Integer spreadId_ = 0;

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshRun(NewDir());
        deckId_ = Fixtures::MakeDeck(QStringLiteral("Tarot"), DeckSize, true);
        spreadId_ = Fixtures::MakeSpread(QStringLiteral("Cross"), Locations, {deckId_});
        ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) { s.AskQuestion = True16; });
        // Every card sounds on its reversed side.
        for (int n = 1; n <= DeckSize; ++n)
            ChangeRecord<CardRecord>(CardsPath, n, [n](CardRecord& c) {
                c.CardSound[1] = QStringLiteral("MCR%1.wav").arg(n, 5, 10, QLatin1Char('0'));
            });
    }

    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    void aWholeReadingFromSelectionToReopening() {
        frmNewReading& reading = NewReading();
        QVERIFY(reading.IntroductionShown());
        QCOMPARE(reading.Caption(), QStringLiteral("Reading - Cross"));
        QVERIFY(!reading.txtIssue->isHidden());
        QVERIFY(!reading.cmdDeal->isEnabled() && !reading.cmdNextCard->isEnabled() && !reading.cmdSave->isEnabled());

        // Enter in the issue box continues as the button does, the issue
        // padded the same: the spread page, and the table 50 twips below.
        reading.txtIssue->setText(QStringLiteral("  Will it rain?"));
        QTest::keyClick(reading.txtIssue, Qt::Key_Return);
        QVERIFY(!reading.IntroductionShown());
        QCOMPARE(reading.Caption(), QStringLiteral("Reading - Cross:   Will it rain?  "));
        frmReadingCards& table = Get<frmReadingCards>();
        QVERIFY(Near(table.Left(), reading.Left()));
        QVERIFY(Near(table.Top(), reading.Top() + reading.OuterHeight() + 50));
        QCOMPARE(reading.DeckCardsLeft, Integer(DeckSize));
        QCOMPARE(reading.cmdContinue->text(), QStringLiteral("&Back"));
        for (int i = 1; i <= Locations; ++i) {   // each location where its record puts it
            QVERIFY(Near(reading.picLocation(i)->x() * 15, SpreadLocations(i).LocationLeft));
            QVERIFY(Near(reading.picLocation(i)->y() * 15, SpreadLocations(i).LocationTop));
        }
        for (QPushButton* on : {reading.cmdContinue, reading.cmdNextCard, reading.cmdAllCards, reading.cmdInterpret,
                                reading.cmdNotes, reading.cmdSave, reading.cmdPrint, reading.cmdQuickHelp,
                                static_cast<QPushButton*>(reading.cmdFakeShuffle)})
            QVERIFY2(on->isEnabled(), qPrintable(on->objectName()));
        QVERIFY(!reading.cmdDeal->isEnabled());
        const auto order = CurrentReading.LocationCard;
        const auto orientation = CurrentReading.LocationIsUpright;

        // The table follows the screen when it moves.
        reading.Move(reading.Left() + 300, reading.Top() + 150);
        reading.Timer1_Timer();
        QVERIFY(Near(table.Left(), reading.Left()));
        QVERIFY(Near(table.Top(), reading.Top() + reading.OuterHeight() + 50));

        // The first card by a click, then the rest.
        table.picCard_Click(7);
        QVERIFY(!reading.cmdContinue->isEnabled());
        QCOMPARE(CurrentReading.DealtCard[0], order[6]);
        QVERIFY(table.picCard(7)->isHidden());
        reading.cmdAllCards->click();
        QCOMPARE(reading.ThisLocationNumber, Integer(Locations + 1));
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(reading.cmdDeal->isEnabled());
        QVERIFY(!reading.cmdNextCard->isEnabled() && !reading.cmdAllCards->isEnabled());
        QVERIFY(!reading.cmdFakeShuffle->isEnabled() && !reading.cmdContinue->isEnabled());
        QVERIFY(reading.ReadingChanged);
        const QList<Shown> dealt = ShownCards(reading, Locations);
        int reversedAt = 0;
        for (int i = 1; i <= Locations; ++i) {
            const Shown& s = dealt[i - 1];
            const int position = PositionOfCard(s.card);
            QVERIFY(position > 0);
            QCOMPARE(s.upright, orientation[static_cast<std::size_t>(position - 1)]);
            QCOMPARE(s.name, QStringLiteral("Card %1").arg(s.card));
            QVERIFY(reading.lblCardNumber(i)->isHidden());
            QCOMPARE(reading.imgCard(i)->Image().pixelColor(0, 0).rgb(), Fixtures::CardColour(s.card, s.upright).rgb());
            if (s.upright == False16 && reversedAt == 0) reversedAt = i;
        }
        QVERIFY2(reversedAt > 0, "the seed deals no reversed card");

        // Interpreting the reversed card: its reversed texts, picture and sound.
        reading.picLocation_Click(reversedAt);
        frmReadingInterpretLocation& page = Get<frmReadingInterpretLocation>();
        const Integer card = dealt[reversedAt - 1].card;
        QCOMPARE(page.Caption(), QStringLiteral("Cross - Position %1 (%1)").arg(reversedAt));
        QCOMPARE(page.lblCardTitle->text(), QStringLiteral("Card %1 (Reversed)").arg(card));
        QCOMPARE(page.lblText->toPlainText(), QStringLiteral("Reversed meaning of card %1").arg(card));
        page.optKeywords->click();
        QCOMPARE(page.lblText->toPlainText(), QStringLiteral("reversed keywords %1").arg(card));
        QVERIFY(page.imgCard->HasPicture() && !page.linSeparator->isHidden());
        QCOMPARE(page.MediaPlayer1->FileName(), CardsDir + QStringLiteral("MCR%1.wav").arg(card, 5, 10, QLatin1Char('0')));
        QVERIFY(page.MediaPlayer1->IsPlaying());
        QCOMPARE(reading.picLocation(reversedAt)->BackColor(), QColor(192, 0, 0));
        page.cmdEnlargePic->click();
        QVERIFY(!page.picEnlargedBackground->isHidden() && page.MediaPlayer1->isHidden());
        QCOMPARE(page.cmdEnlargePic->text(), QStringLiteral("&Back"));
        QVERIFY(page.imgEnlargedCard->HasPicture());
        page.cmdClose->click();
        QCOMPARE(reading.picLocation(reversedAt)->BackColor(), QBColor(CurrentLocationColour));

        // Notes go into the reading as they are typed.
        reading.cmdNotes->click();
        Get<frmReadingNotes>().txtComments->setPlainText(QStringLiteral("Rain later."));
        QCOMPARE(CurrentReading.ReadingNotes.Trimmed(), QStringLiteral("Rain later."));
        Get<frmReadingNotes>().cmdClose->click();

        // Save, then close with nothing left to ask.
        ModalScript script;
        script.On<frmSaveReading>([](frmSaveReading& save) {
            QCOMPARE(save.txtSaveAs->text(), QStringLiteral("Will it rain?"));
            QVERIFY(!save.cmdSave->isEnabled());
            save.txtSaveAs->setText(QStringLiteral("Morning"));
            save.cmdSave->click();
        });
        reading.cmdSave->click();
        QVERIFY(script.Done());
        QVERIFY(!reading.ReadingChanged);
        reading.cmdClose->click();
        QCOMPARE(MsgBoxScript::History().size(), 0);
        QVERIFY(!IsLoaded<frmNewReading>());
        QVERIFY(Get<frmMainScreen>().Visible());

        QCOMPARE(CountReadings(), 1);
        ReadingRecord saved;
        QVERIFY(GetRecord(ReadingsPath, 1, saved));
        QCOMPARE(saved.ReadingName.Trimmed(), QStringLiteral("Morning"));
        QVERIFY(saved.Issue.Value().startsWith(QStringLiteral("  Will it rain?  ")));
        QCOMPARE(saved.SavedOn, OleToday());
        QCOMPARE(saved.ReadingNotes.Trimmed(), QStringLiteral("Rain later."));
        // Issue asked, save count, cards dealt, deck and spread with their
        // revisions, reversed sides, duplicates, lock.
        QCOMPARE(QList<Integer>({saved.IssueAsked, saved.SaveCount, saved.DealtCount, saved.ReadingDeckId,
                                 saved.ReadingDeckRevision, saved.ReadingSpreadId, saved.ReadingSpreadRevision,
                                 saved.UseReversed, saved.AllowDuplicateCards, saved.EntryLocked}),
                 QList<Integer>({True16, 1, Locations, deckId_, 1, spreadId_, 1, True16, False16, False16}));
        QCOMPARE(saved.CardTypeSelected, (std::array<Integer, 4>{True16, True16, False16, False16}));
        QCOMPARE(saved.LocationCard, order);
        QCOMPARE(saved.LocationIsUpright, orientation);
        for (int i = 1; i <= Locations; ++i) {
            QCOMPARE(saved.DealtCard[static_cast<std::size_t>(i - 1)], dealt[i - 1].card);
            QCOMPARE(saved.DealtUpright[static_cast<std::size_t>(i - 1)], dealt[i - 1].upright);
        }
        for (int i = Locations + 1; i <= 32; ++i) QCOMPARE(saved.DealtCard[static_cast<std::size_t>(i - 1)], Integer(0));
        // A complete deal leaves no table to remember.
        for (Integer visible : saved.TableCardVisible) QCOMPARE(visible, False16);

        // Reopened: the same cards in the same places, no table, Deal offered.
        OpenPastReading(0);
        frmNewReading& again = Get<frmNewReading>();
        QVERIFY(!IsLoaded<frmOpenReading>());
        QVERIFY(!again.IntroductionShown());
        QCOMPARE(again.ThisLocationNumber, Integer(Locations + 1));
        for (int i = 1; i <= Locations; ++i) {
            QCOMPARE(again.lblCardName(i)->text(), dealt[i - 1].name);
            QVERIFY(again.imgCard(i)->HasPicture());
        }
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(again.cmdDeal->isEnabled() && !again.cmdNextCard->isEnabled() && !again.cmdFakeShuffle->isEnabled());
        QVERIFY(again.cmdSave->isEnabled() && again.cmdNotes->isEnabled());
        QVERIFY(!again.ReadingChanged);
        QCOMPARE(again.txtIssue->text(), QStringLiteral("Will it rain?"));
        again.picLocation_Click(reversedAt);
        QVERIFY(Get<frmReadingInterpretLocation>().lblCardTitle->text().endsWith(QStringLiteral("(Reversed)")));

        again.cmdClose->click();
    }

    void aHalfDealtReadingGoesOnWhereItStopped() {
        frmNewReading& reading = NewReading();
        reading.cmdContinue->click();
        reading.cmdNextCard->click();
        reading.cmdNextCard->click();
        const auto order = CurrentReading.LocationCard;
        const Shown first = ShownCards(reading, 1).first();
        QList<int> onTable;
        frmReadingCards& table = Get<frmReadingCards>();
        for (int i = 1; i <= DeckSize; ++i)
            if (!table.picCard(i)->isHidden()) onTable << i;
        QCOMPARE(onTable.size(), DeckSize - 2);

        // Closing asks; Yes saves, here under a new name.
        MsgBoxScript::Answer(vbYes);
        SaveThrough<frmSaveReading>(reading.cmdClose, QStringLiteral("Half"));
        QCOMPARE(MsgBoxScript::History().at(0).prompt, QStringLiteral("Save changes to the reading?"));
        ReadingRecord saved;
        GetRecord(ReadingsPath, 1, saved);
        QCOMPARE(saved.DealtCount, Integer(2));
        for (int i = 1; i <= 100; ++i)
            QCOMPARE(saved.TableCardVisible[static_cast<std::size_t>(i - 1)] != 0, onTable.contains(i));

        OpenPastReading(0);
        frmNewReading& again = Get<frmNewReading>();
        QVERIFY(IsLoaded<frmReadingCards>());
        frmReadingCards& restored = Get<frmReadingCards>();
        QCOMPARE(again.ThisLocationNumber, Integer(3));
        QCOMPARE(again.lblCardName(1)->text(), first.name);
        for (int i = 1; i <= DeckSize; ++i) QCOMPARE(!restored.picCard(i)->isHidden(), onTable.contains(i));
        QCOMPARE(frmReadingCards::LocationCard()(1), order[0]);
        QCOMPARE(CurrentReading.LocationCard, order);
        QCOMPARE(frmReadingCards::MaxCardsUsed, Integer(DeckSize));
        // The cards on the table are counted on top of the fresh pool.
        QCOMPARE(again.DeckCardsLeft, Integer(DeckSize + DeckSize - 2));
        QVERIFY(again.cmdNextCard->isEnabled() && !again.cmdDeal->isEnabled() && !again.ReadingChanged);

        again.cmdNextCard->click();
        QCOMPARE(again.ThisLocationNumber, Integer(4));
        const Integer third = CurrentReading.DealtCard[2];
        const int position = PositionOfCard(third);
        QVERIFY(onTable.contains(position));
        QVERIFY(restored.picCard(position)->isHidden());
        QCOMPARE(CurrentReading.DealtUpright[2], frmReadingCards::LocationIsUpright()(position));
        again.cmdAllCards->click();
        QCOMPARE(again.ThisLocationNumber, Integer(Locations + 1));
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(again.ReadingChanged);
        MsgBoxScript::Answer(vbNo);
        again.cmdClose->click();
        QCOMPARE(CountReadings(), 1);
    }

    void backAndContinueKeepTheirOddities() {
        frmNewReading& reading = NewReading();
        reading.cmdContinue->click();
        // Back before the first card hides the table and the dealing buttons.
        reading.cmdContinue->click();
        QVERIFY(reading.IntroductionShown());
        QVERIFY(!Get<frmReadingCards>().Visible());
        QVERIFY(!reading.cmdNextCard->isEnabled() && !reading.cmdSave->isEnabled());
        reading.cmdContinue->click();
        QVERIFY(Get<frmReadingCards>().Visible());
        reading.cmdAllCards->click();
        QVERIFY(reading.cmdDeal->isEnabled());

        // After a complete deal Interpret shows the last location.
        reading.cmdInterpret->click();
        QCOMPARE(reading.QueryLocation, Integer(Locations));

        // Deal starts over and keeps name and notes but not the issue.
        CurrentReading.ReadingName = QStringLiteral("Kept");
        CurrentReading.ReadingNotes = QStringLiteral("Notes kept");
        reading.cmdDeal->click();
        QCOMPARE(reading.ThisLocationNumber, Integer(1));
        QVERIFY(IsLoaded<frmReadingCards>());
        QCOMPARE(CurrentReading.ReadingName.Trimmed(), QStringLiteral("Kept"));
        QCOMPARE(CurrentReading.ReadingNotes.Trimmed(), QStringLiteral("Notes kept"));
        QCOMPARE(CurrentReading.IssueAsked, False16);
        QCOMPARE(CurrentReading.DealtCard[0], Integer(0));
        QVERIFY(!reading.lblCardNumber(1)->isHidden() && !reading.imgCard(1)->HasPicture());
        QVERIFY(reading.cmdContinue->isEnabled() && !reading.cmdDeal->isEnabled());

        // Interpret before the first card: location 1 alone, the compact page.
        reading.cmdInterpret->click();
        frmReadingInterpretLocation& page = Get<frmReadingInterpretLocation>();
        QCOMPARE(reading.QueryLocation, Integer(1));
        QVERIFY(page.imgCard->isHidden() && page.lblText->isHidden() && page.optKeywords->isHidden());
        QVERIFY(!page.cmdEnlargePic->isEnabled());
        QCOMPARE(page.lblTitle->text(), QStringLiteral("Position 1"));
        QVERIFY(page.MediaPlayer1->FileName().isEmpty());
        page.cmdClose->click();

        // Complete again, then Back and Continue: the dealing buttons come on
        // with no table, and a press lays a table again.
        reading.cmdAllCards->click();
        reading.cmdContinue->setEnabled(true);
        reading.cmdContinue->click();
        reading.cmdContinue->click();
        QVERIFY(!IsLoaded<frmReadingCards>());
        QVERIFY(reading.cmdNextCard->isEnabled() && reading.cmdAllCards->isEnabled());
        QVERIFY(reading.cmdFakeShuffle->isEnabled());
        MsgBoxScript::Answer(vbNo);
        reading.cmdClose->click();
    }
};

QTEST_MAIN(TestReadingScreens)
#include "tst_readingscreens.moc"
