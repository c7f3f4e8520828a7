// Bad input on the deck screens: text past every limit, text the record code
// page cannot hold, and picture and sound files that vanish between the
// listing and the pick.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "core/store/RunState.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/decks/frmSaveDeck.h"
#include "core/decks/CardEditing.h"
#include "screens/decks/DeckControls.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/MsgBox.h"
#include "core/platform/Rnd.h"
#include "core/store/Lookups.h"
#include "support/BadInput.h"
#include "support/Fixtures.h"
#include "DeckDriver.h"

class TestDeckBadInput : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir sources_;
    int tried_ = 0;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        Fixtures::UseProgramDir(program_.path());
        ResetDeckDesignState();
        Fixtures::WritePicture(sources_.filePath(QStringLiteral("up.bmp")));
        WriteWholeFile(sources_.filePath(QStringLiteral("bell.wav")), QByteArray("RIFF....WAVEfmt "));
    }

    void cleanupTestCase() { qInfo("bad inputs tried on the deck screens: %d", tried_); }

    // The properties, the designer and the save screen; a deck name the code
    // page cannot hold is saved as the record holds it and found again.
    void deckScreensHoldTheirLimitsAndTheCodePage() {
        ModalScript properties;
        properties.On<frmDeckCardProperties>([this](frmDeckCardProperties& p) {
            tried_ += BadInput::TourTextBoxes(p);
            // The tour left one text in every type name: they must differ.
            for (int i = 0; i < 4; ++i) p.txtCardTypeName[std::size_t(i)]->setText(QString::number(i));
            p.cmdClose_Click();
        });
        Get<frmDecks>().cmdDesign_Click();
        QVERIFY(properties.Done());
        frmDesignDeck& designer = Get<frmDesignDeck>();
        tried_ += BadInput::TourTextBoxes(designer);

        for (int pass = 0; pass < 2; ++pass) {
            ModalScript save;
            save.On<frmSaveDeck>([this, pass](frmSaveDeck& s) {
                if (pass == 0) tried_ += BadInput::TourTextBoxes(s);
                QApplication::clipboard()->setText(BadInput::Foreign());
                s.txtSaveAs->clear();
                s.txtSaveAs->setFocus();
                QTest::keyClick(s.txtSaveAs, Qt::Key_V, Qt::ControlModifier);
                QCOMPARE(s.txtSaveAs->text(), BadInput::ForeignAsStored);
                if (pass == 1) MsgBoxScript::Answer(vbNo);
                s.cmdSave_Click();
                if (pass == 1) s.cmdCancel_Click();
            });
            designer.cmdSave_Click();
            QVERIFY(save.Done());
        }
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Deck already exists. Overwrite?"));
        QCOMPARE(CountDecks(), 1);
        DeckRecord deck;
        GetRecord(DecksPath, 1, deck);
        QCOMPARE(deck.DeckName.Trimmed(), BadInput::ForeignAsStored);
        // The tour left the pasted text in the designer's boxes.
        QCOMPARE(deck.DeckTitle.Trimmed(), BadInput::ForeignAsStored);
        tried_ += 2;
        designer.DesignModified = false;
        designer.Unload();
    }

    // A picture or sound deleted after the chooser listed it: the pick
    // reports the missing file, the chooser stays for another pick, and the
    // card's working files are as they were.
    void aFileThatVanishedAfterListingIsNotTaken() {
        const QString before = WorkingFiles().Picture[0];
        const QString soundBefore = WorkingFiles().Sound[0];
        for (FileChooser* chooser : {static_cast<FileChooser*>(&Get<frmGetImageFile>()),
                                     static_cast<FileChooser*>(&Get<frmGetSoundFile>())}) {
            const QString name = chooser == ScreenSlot<frmGetImageFile>() ? QStringLiteral("gone.bmp")
                                                                           : QStringLiteral("gone.wav");
            if (name.endsWith(QLatin1String(".bmp"))) Fixtures::WritePicture(sources_.filePath(name));
            else WriteWholeFile(sources_.filePath(name), "RIFF....WAVEfmt ");
            chooser->GetPictureCode = 1;
            chooser->dirSelection->setPath(sources_.path());
            chooser->filSelection->setPath(sources_.path());
            for (int i = 0; i < chooser->filSelection->ListCount(); ++i)
                if (chooser->filSelection->List(i) == name) chooser->filSelection->setListIndex(i);
            QVERIFY(QFile::remove(sources_.filePath(name)));
            MsgBoxScript::Clear();
            chooser->cmdSelect->click();
            QCOMPARE(MsgBoxScript::History().size(), 1);
            QVERIFY(MsgBoxScript::History()[0].prompt.contains(QStringLiteral("File not found")));
            QVERIFY(chooser->IsLoadedForm());
            ++tried_;
        }
        QCOMPARE(WorkingFiles().Picture[0], before);
        QCOMPARE(WorkingFiles().Sound[0], soundBefore);
        QVERIFY(!AnyFileMatches(TempDir + QStringLiteral("TempUp.*")));
        QVERIFY(!AnyFileMatches(TempDir + QStringLiteral("TsndUp.*")));
        UnloadScreen<frmGetImageFile>();
        UnloadScreen<frmGetSoundFile>();
    }
};

QTEST_MAIN(TestDeckBadInput)
#include "tst_badinput.moc"
