// A designer's work as a reader meets it: a deck made card by card on the deck
// screens and a spread laid out on the spread designer, tied together there
// on the deck chooser, then used for a reading that shows the designed
// pictures, titles and texts in the designed places and is saved against the
// designs' own numbers.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

#include "ReadingFixtures.h"
#include "decks/DeckDriver.h"
#include "decks/frmAddCard.h"
#include "decks/frmDeckCardProperties.h"
#include "decks/frmDecks.h"
#include "decks/frmDesignDeck.h"
#include "decks/frmGetImageFile.h"
#include "decks/frmSaveDeck.h"
#include "decks/mdlDeckDesign.h"
#include "readings/frmReadingInterpretLocation.h"
#include "readings/frmSaveReading.h"
#include "shell/ClickLabel.h"
#include "shell/ImageBox.h"
#include "spreads/SpreadCanvas.h"
#include "spreads/SpreadTestKit.h"
#include "spreads/TextBoxes.h"
#include "spreads/SortedListBox.h"
#include "spreads/frmDeckChooser.h"
#include "spreads/frmDesignSpread.h"
#include "spreads/frmLocationAttributes.h"
#include "spreads/frmSaveSpread.h"
#include "spreads/frmSpreads.h"

using namespace ReadingFixtures;

namespace {
const QColor SunUp(230, 200, 0), SunRev(90, 60, 0), MoonUp(180, 180, 255), MoonRev(20, 20, 80);
}

class TestDesignedReading : public QObject {
    Q_OBJECT
    QTemporaryDir frameDir_, dir_, sources_;
    QList<QPoint> places;   // where the designer left the locations, in twips

    QString Source(const QString& name) const { return sources_.filePath(name); }

    // One card through the card editor: both pictures are asked for as the
    // card opens, then its title and the texts of each side.
    void AddCard(frmDesignDeck& designer, const QString& title, const QString& up, const QString& rev, bool last) {
        OnEachShowing<frmGetImageFile> pictures(
            {Pick<frmGetImageFile>(sources_.path(), up), Pick<frmGetImageFile>(sources_.path(), rev)});
        designer.cmdAddCard_Click();
        frmAddCard& editor = Get<frmAddCard>();
        editor.txtCardTitle->setText(title);
        ClickLine(editor.lstCardType, QStringLiteral("Major Arcana"));
        editor.txtDescription->setPlainText(title + QStringLiteral(" shines"));
        editor.optReversed->click();
        editor.txtDescription->setPlainText(title + QStringLiteral(" hides"));
        editor.optUpright->click();
        if (last) editor.cmdSaveClose_Click();
        else editor.cmdSaveNew_Click();
        QCOMPARE(pictures.Remaining(), 0);
    }

    void DesignDeck(Integer& deckId) {
        Get<frmDecks>().Show();
        OnEachShowing<frmDeckCardProperties> properties(
            {[](frmDeckCardProperties& p) { p.cmdClose_Click(); }});
        Get<frmDecks>().cmdDesign_Click();
        QCOMPARE(properties.Remaining(), 0);
        frmDesignDeck& designer = Get<frmDesignDeck>();
        designer.txtDeckTitle->setText(QStringLiteral("Sky Deck"));
        designer.txtDeckDesigner->setText(QStringLiteral("Ann Reader"));
        AddCard(designer, QStringLiteral("The Sun"), QStringLiteral("sun.bmp"), QStringLiteral("sun_rev.bmp"), false);
        AddCard(designer, QStringLiteral("The Moon"), QStringLiteral("moon.bmp"), QStringLiteral("moon_rev.bmp"), true);
        OnEachShowing<frmSaveDeck> save({[](frmSaveDeck& s) {
            s.txtSaveAs->setText(QStringLiteral("Sky"));
            s.cmdSave_Click();
        }});
        designer.cmdSave_Click();
        QCOMPARE(save.Remaining(), 0);
        designer.cmdBack_Click();
        Get<frmDecks>().cmdClose_Click();
        deckId = FindDeckIdByName(QStringLiteral("Sky"));
    }

    void DesignSpread(Integer& spreadId) {
        Get<frmSpreads>().Show();
        Get<frmSpreads>().cmdDesign_Click();
        frmDesignSpread& d = Get<frmDesignSpread>();
        QTest::keyClicks(d.txtSpreadTitle(), QStringLiteral("Above and Below"));
        d.cmdSpread_Click();
        const QStringList titles = {QStringLiteral("Above"), QStringLiteral("Below")};
        for (int i = 1; i <= 2; ++i) {
            d.cmdAddCard_Click();
            SpreadTestKit::Drag(d.picLocation(i), QPoint(5, 5), QPoint(-200 * i, 60 * i));
            places.append(QPoint(d.picLocation(i)->Left(), d.picLocation(i)->Top()));
            d.cmdCardAttributes_Click(i);
            QTest::keyClicks(Get<frmLocationAttributes>().txtTitle, titles[i - 1]);
            Get<frmLocationAttributes>().NotifyActivated(true);
            Get<frmLocationAttributes>().NotifyActivated(false);
        }
        SpreadTestKit::WhenShown<frmSaveSpread>([](frmSaveSpread& save) {
            save.txtSaveAs->setText(QStringLiteral("Two Worlds"));
            save.cmdSave_Click();
        });
        d.cmdSave_Click();
        d.cmdBack_Click();
        SpreadTestKit::Settle();
        // Decks are tied to a saved spread on the chooser of the spread list.
        Get<frmSpreads>().cmdManager_Click();
        frmDeckChooser& chooser = Get<frmDeckChooser>();
        QCOMPARE(chooser.lstAvailableDecks->ListCount(), 1);
        chooser.lstAvailableDecks->setListIndex(0);
        chooser.cmdAddDeck_Click();
        chooser.cmdLink_Click();
        chooser.cmdClose_Click();
        SpreadTestKit::Settle();
        Get<frmSpreads>().cmdClose_Click();
        SpreadTestKit::Settle();
        SpreadRecord spread;
        QVERIFY(GetRecord(SpreadsPath, 1, spread));
        spreadId = spread.SpreadId;
    }

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        StandUpFrame(frameDir_.path());
        FreshRun(dir_.path());
        ResetDeckDesignState();
        Fixtures::WritePicture(Source(QStringLiteral("sun.bmp")), SunUp);
        Fixtures::WritePicture(Source(QStringLiteral("sun_rev.bmp")), SunRev);
        Fixtures::WritePicture(Source(QStringLiteral("moon.bmp")), MoonUp);
        Fixtures::WritePicture(Source(QStringLiteral("moon_rev.bmp")), MoonRev);
    }

    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    void aDesignedDeckAndSpreadCarryAReading() {
        Integer deckId = 0, spreadId = 0;
        DesignDeck(deckId);
        QVERIFY(deckId > 0);
        DesignSpread(spreadId);
        QVERIFY(spreadId > 0);
        SpreadRecord spread;
        QVERIFY(GetRecord(SpreadsPath, 1, spread));
        QCOMPARE(spread.AllowedDeckCount, Integer(1));
        QCOMPARE(spread.AllowedDeckId[0], deckId);
        QVERIFY(IsSpreadUsable(QStringLiteral("Two Worlds")));

        frmNewReading& reading = NewReading([](frmSelectSpread& select) {
            QCOMPARE(select.lstSpreads->count(), 1);
            QCOMPARE(select.lstDecks->count(), 1);
            QCOMPARE(select.lstDecks->item(0)->text().trimmed(), QStringLiteral("Sky"));
        });
        QCOMPARE(reading.Caption(), QStringLiteral("Reading - Above and Below"));
        reading.cmdContinue->click();
        // The locations stand where the designer dragged them (to the pixel).
        for (int i = 1; i <= 2; ++i) {
            QVERIFY(Near(reading.picLocation(i)->x() * 15, places[i - 1].x()));
            QVERIFY(Near(reading.picLocation(i)->y() * 15, places[i - 1].y()));
        }
        QVERIFY(places[0] != places[1]);
        reading.cmdAllCards->click();
        QVERIFY(reading.cmdDeal->isEnabled());

        // Both designed cards lie on the table, each with its own picture
        // for the side it shows, and each page reads the designed texts.
        QSet<QString> names;
        for (int i = 1; i <= 2; ++i) {
            const Integer card = CurrentReading.DealtCard[static_cast<std::size_t>(i - 1)];
            const bool upright = CurrentReading.DealtUpright[static_cast<std::size_t>(i - 1)] != False16;
            const QString title = card == 1 ? QStringLiteral("The Sun") : QStringLiteral("The Moon");
            QCOMPARE(reading.lblCardName(i)->text(), title);
            names.insert(title);
            const QColor expected = card == 1 ? (upright ? SunUp : SunRev) : (upright ? MoonUp : MoonRev);
            QCOMPARE(reading.imgCard(i)->Image().pixelColor(0, 0), expected);

            reading.picLocation_Click(i);
            frmReadingInterpretLocation& page = Get<frmReadingInterpretLocation>();
            QCOMPARE(page.Caption(),
                     QStringLiteral("Two Worlds - %1 (%2)").arg(i == 1 ? QStringLiteral("Above") : QStringLiteral("Below")).arg(i));
            QCOMPARE(page.lblCardTitle->text(),
                     title + (upright ? QStringLiteral(" (Upright)") : QStringLiteral(" (Reversed)")));
            QCOMPARE(page.lblText->toPlainText(), title + (upright ? QStringLiteral(" shines") : QStringLiteral(" hides")));
            page.cmdClose->click();
        }
        QCOMPARE(names.size(), 2);

        WhenModal([] {
            frmSaveReading& save = Get<frmSaveReading>();
            save.txtSaveAs->setText(QStringLiteral("Dawn"));
            save.cmdSave->click();
        });
        reading.cmdSave->click();
        reading.cmdClose->click();
        ReadingRecord saved;
        QVERIFY(GetRecord(ReadingsPath, 1, saved));
        QCOMPARE(saved.ReadingDeckId, deckId);
        QCOMPARE(saved.ReadingSpreadId, spreadId);
        QCOMPARE(saved.ReadingDeckRevision, Integer(1));
        QCOMPARE(saved.ReadingSpreadRevision, Integer(1));
        QCOMPARE(saved.DealtCount, Integer(2));
    }
};

QTEST_MAIN(TestDesignedReading)
#include "tst_designedreading.moc"
