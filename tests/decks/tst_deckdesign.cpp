// A deck designed through the screens from start to end: three cards with
// reversed sides and one sound, pictures picked from files on the disk,
// saved, listed, reopened with every field intact, edited, saved over itself
// and under a second name, and viewed.
#include "DeckDriver.h"
#include "core/decks/CardEditing.h"
#include "core/store/Lookups.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/decks/frmSaveDeck.h"
#include "screens/decks/frmViewCard.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/shell/Startup.h"
#include "screens/widgets/ImageBox.h"
#include "support/ScreenTest.h"

namespace {

const QColor FoolUp(200, 0, 0), FoolRev(0, 0, 200), MageRev(0, 160, 0), CupsRev(120, 0, 120), NewMage(250, 250, 0);

// A 1 x 1 red GIF, as Qt writes no GIF.
QByteArray RedGif() {
    return QByteArray::fromHex("4749463839610100010080000"
                               "0ff000000000021f9040100000000"
                               "2c00000000010001000002024401003b");
}

QSet<QString> Snapshot(const QString& folder) {
    QSet<QString> entries;
    for (const QFileInfo& f : QDir(folder).entryInfoList(QDir::Files))
        entries.insert(f.fileName() + QLatin1Char('|') + QString::number(f.size()) + QLatin1Char('|') +
                       f.lastModified().toString(Qt::ISODateWithMs));
    return entries;
}

}  // namespace

class TestDeckDesign : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir sources_;
    QString src_;

    // Fills the open card editor: title, type, both sides' texts ("up
    // meaning", "up reversed words", ...).
    static void FillCard(frmAddCard& editor, const QString& title, const QString& type, const QString& up) {
        const QString rev = up + QStringLiteral(" reversed");
        editor.txtCardTitle->setText(title);
        ArrowToLine(editor.lstCardType, type);  // the type chosen by the keys is stored
        editor.txtDescription->setPlainText(up + QStringLiteral(" meaning"));
        editor.txtKeywords->setPlainText(up + QStringLiteral(" words"));
        editor.optReversed->click();
        editor.txtDescription->setPlainText(rev + QStringLiteral(" meaning"));
        editor.txtKeywords->setPlainText(rev + QStringLiteral(" words"));
        editor.optUpright->click();
    }

    static void SaveAs(const QString& name) {
        ModalScript save;
        save.On<frmSaveDeck>([name](frmSaveDeck& s) {
            s.txtSaveAs->setText(name);
            s.cmdSave_Click();
        });
        Get<frmDesignDeck>().cmdSave_Click();
        QVERIFY(save.Done());
    }

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        SetEndProcessHook([](int code) { QFAIL(qPrintable(QStringLiteral("process ended with %1").arg(code))); });
        Fixtures::UseProgramDir(program_.path());
        src_ = sources_.path();
        Fixtures::WritePicture(src_ + QStringLiteral("/fool_up.bmp"), FoolUp);
        Fixtures::WritePicture(src_ + QStringLiteral("/fool_rev.bmp"), FoolRev);
        QImage green(8, 8, QImage::Format_RGB32);
        green.fill(QColor(0, 200, 0));
        QVERIFY(green.save(src_ + QStringLiteral("/mage_up.jpg"), "JPG"));
        Fixtures::WritePicture(src_ + QStringLiteral("/mage_rev.bmp"), MageRev);
        WriteWholeFile(src_ + QStringLiteral("/cups_up.gif"), RedGif());
        Fixtures::WritePicture(src_ + QStringLiteral("/cups_rev.bmp"), CupsRev);
        Fixtures::WritePicture(src_ + QStringLiteral("/mage_new.bmp"), NewMage);
        WriteWholeFile(src_ + QStringLiteral("/bell.wav"), QByteArray("RIFF....WAVEfmt "));
        WriteWholeFile(src_ + QStringLiteral("/notes.txt"), QByteArray("not listed"));
    }

    void designSaveReopenEditSaveTwiceAndView() {
        const QSet<QString> sourcesBefore = Snapshot(src_);

        // ---- A new deck: the properties come first.
        ModalScript properties;
        properties.On<frmDeckCardProperties>([](frmDeckCardProperties& p) {
            p.txtCardTypeName[2]->setText(QStringLiteral("Court"));
            p.cmdClose_Click();
        });
        Get<frmDecks>().cmdDesign_Click();
        QVERIFY(properties.Done());
        frmDesignDeck& designer = Get<frmDesignDeck>();
        designer.txtDeckTitle->setText(QStringLiteral("Sea Tarot"));
        designer.txtDeckDesigner->setText(QStringLiteral("Ann Reader"));
        designer.txtDesignerEmail->setText(QStringLiteral("ann@example.org"));
        designer.txtDesignerWebPage->setText(QStringLiteral("example.org/ann"));
        designer.txtDeckDescription->setPlainText(QStringLiteral("Cards of the sea."));

        // ---- Three cards, each with both pictures asked at once; Save-New
        // goes straight on to the next card.
        frmAddCard* editor = nullptr;
        {
            ModalScript pictures;
            for (const char* name :
                 {"fool_up.bmp", "fool_rev.bmp", "mage_up.jpg", "mage_rev.bmp", "cups_up.gif", "cups_rev.bmp"})
                pictures.On(Pick<frmGetImageFile>(src_, QString::fromLatin1(name)));
            ModalScript sounds;
            sounds.On(Pick<frmGetSoundFile>(src_, QStringLiteral("bell.wav")));
            designer.cmdAddCard_Click();
            editor = &Get<frmAddCard>();
            FillCard(*editor, QStringLiteral("The Fool"), QStringLiteral("Major Arcana"), QStringLiteral("fool"));
            editor->cmdGetSound_Click();
            QVERIFY(editor->MediaPlayer1->FileName().endsWith(QLatin1String("TsndUp.wav")));
            editor->cmdSaveNew_Click();
            QCOMPARE(TheRun.CurrentDeck.DeckCards(1).CardSound[0].Trimmed(), QStringLiteral("MCU00001.wav"));
            QVERIFY(!FileExists(TheRun.Paths.TempDir + QStringLiteral("TsndUp.wav")));

            editor = &Get<frmAddCard>();
            FillCard(*editor, QStringLiteral("The Magician"), QStringLiteral("Major Arcana"), QStringLiteral("mage"));
            editor->cmdSaveNew_Click();
            editor = &Get<frmAddCard>();
            FillCard(*editor, QStringLiteral("Ace of Cups"), QStringLiteral("Court"), QStringLiteral("cups"));
            editor->cmdSaveClose_Click();
            QVERIFY(pictures.Done());
            QVERIFY(sounds.Done());
        }

        // ---- Saved, then reopened in the designer with every field intact.
        SaveAs(QStringLiteral("Sea Tarot"));
        QVERIFY(!designer.DesignModified);
        designer.cmdBack_Click();
        Get<frmDecks>().cmdEdit_Click();
        frmDesignDeck& again = Get<frmDesignDeck>();
        QCOMPARE((QStringList{again.txtDeckTitle->text(), again.txtDesignerEmail->text(),
                              again.txtDesignerWebPage->text(), again.txtDeckDescription->toPlainText()}),
                 (QStringList{"Sea Tarot", "ann@example.org", "example.org/ann", "Cards of the sea."}));
        // Saving drew names free in both Cards/ and Temp/.
        QCOMPARE(TheRun.CurrentDeck.DeckCards(1).CardSound[0].Trimmed(), QStringLiteral("MCU00004.wav"));
        QVERIFY(FileExists(TheRun.Paths.TempDir + QStringLiteral("MCU00004.wav")));
        ClickLine(again.lstCards, QStringLiteral("The Fool"));
        again.cmdEditCard_Click();
        editor = &Get<frmAddCard>();
        QCOMPARE(editor->lstCardType->Text(), QStringLiteral("Major Arcana"));
        QCOMPARE(editor->txtKeywords->toPlainText(), QStringLiteral("fool words"));
        QVERIFY(editor->MediaPlayer1->FileName().endsWith(QLatin1String("MCU00004.wav")));
        QCOMPARE(editor->imgCard->Image().pixelColor(0, 0), FoolUp);
        editor->optReversed->click();
        QVERIFY(!editor->DesignModified);  // looking at the other side changes nothing
        QCOMPARE(editor->txtDescription->toPlainText(), QStringLiteral("fool reversed meaning"));
        QCOMPARE(editor->imgCard->Image().pixelColor(0, 0), FoolRev);
        editor->txtKeywords->setPlainText(QStringLiteral("fool reversed, edited"));
        editor->cmdSaveClose_Click();
        QCOMPARE(TheRun.CurrentDeck.DeckCards(1).CardKeywords[1].Trimmed(), QStringLiteral("fool reversed, edited"));

        // A new upright picture for the magician takes a fresh CU name; the
        // old working file stays until the designer closes.
        const QString oldMage = TheRun.CurrentDeck.DeckCards(2).CardPicture[0].Trimmed();
        ClickLine(again.lstCards, QStringLiteral("The Magician"));
        again.cmdEditCard_Click();
        ModalScript replace;
        replace.On(Pick<frmGetImageFile>(src_, QStringLiteral("mage_new.bmp")));
        Get<frmAddCard>().cmdEditImage_Click();
        QVERIFY(replace.Done());
        QCOMPARE(Get<frmAddCard>().imgCard->Image().pixelColor(0, 0), NewMage);
        Get<frmAddCard>().cmdSaveClose_Click();
        const QString newMage = TheRun.CurrentDeck.DeckCards(2).CardPicture[0].Trimmed();
        QVERIFY(newMage.startsWith(QLatin1String("CU")) && newMage != oldMage);
        QVERIFY(FileExists(TheRun.Paths.TempDir + oldMage) && FileExists(TheRun.Paths.TempDir + newMage));

        // ---- Saved over itself under the name offered: the overwrite
        // question, still one deck. (A No to it: tst_cardrules.)
        MsgBoxScript::Clear();
        MsgBoxScript::Answer(vbYes);
        ModalScript over;
        over.On<frmSaveDeck>([](frmSaveDeck& s) {
            QCOMPARE(s.txtSaveAs->text(), QStringLiteral("Sea Tarot"));
            s.cmdSave_Click();
        });
        again.cmdSave_Click();
        QVERIFY(over.Done());
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Deck already exists. Overwrite?")});
        QCOMPARE(CountCards(), 3);

        // ---- And under a new name: two decks with files of their own (six
        // pictures and a sound each, and the default picture).
        SaveAs(QStringLiteral("Sea Tarot Copy"));
        QCOMPARE(CountDecks(), 2);
        QCOMPARE(FilesIn(TheRun.Paths.CardsDir).size(), 15);
        again.cmdBack_Click();
        QCOMPARE(Get<frmDecks>().lstDecks->Text().trimmed(), QStringLiteral("Sea Tarot Copy"));

        // ---- Viewed: the first card shows its picture; once a card is
        // closed the working files are gone and the next shows the default.
        Get<frmDecks>().cmdInfo_Click();
        frmDeckInfo& info = Get<frmDeckInfo>();
        ClickLine(info.lstCards, QStringLiteral("The Fool"));
        info.cmdEditCard_Click();
        frmViewCard* view = &Get<frmViewCard>();
        QCOMPARE(view->imgCard->Image().pixelColor(0, 0), FoolUp);
        view->optReversed->click();
        QCOMPARE(view->txtKeywords->toPlainText(), QStringLiteral("fool reversed, edited"));
        view->cmdBack_Click();
        ClickLine(info.lstCards, QStringLiteral("Ace of Cups"));
        info.cmdEditCard_Click();
        view = &Get<frmViewCard>();
        QCOMPARE(view->txtCardType->text(), QStringLiteral("Court"));
        QCOMPARE(view->imgCard->Image().pixelColor(0, 0), QColor(Qt::white));  // the default picture
        view->cmdBack_Click();
        info.cmdBack_Click();

        // Nothing outside Temp/ and Cards/ was touched.
        QCOMPARE(Snapshot(src_), sourcesBefore);
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        Get<frmDecks>().Unload();
    }
};

QTEST_MAIN(TestDeckDesign)
#include "tst_deckdesign.moc"
