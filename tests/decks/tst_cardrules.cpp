// The rules of the deck designer and the card editor as the screens apply
// them, and the bad input they meet.
#include "DeckDriver.h"
#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/decks/CardTypeNames.h"
#include "core/store/Lookups.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDeckCardPropertiesInfo.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/decks/frmSaveDeck.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/shell/Startup.h"
#include "support/BadInput.h"

class TestCardRules : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir sources_;
    QString src_;

    // Loads a saved deck as the deck list does before it opens a screen on it.
    static void Load(const QString& name) {
        GetRecord(TheRun.Paths.DecksPath, FindDeckByName(name), TheRun.ListDeck);
        bool removed = false;
        if (!LoadDeck(removed)) QFAIL("deck did not load");
    }

    // Opens a saved deck in the designer as the deck list does.
    static frmDesignDeck& Design(const QString& name) {
        Load(name);
        TheRun.DesignMode = 0;
        return Get<frmDesignDeck>();
    }

    static void Leave() {
        if (IsLoaded<frmDesignDeck>()) {
            MsgBoxScript::Answer(vbNo);
            Get<frmDesignDeck>().cmdBack_Click();
        }
        UnloadScreen<frmDecks>();
        MsgBoxScript::Clear();
    }

    static QString LastPrompt() {
        return MsgBoxScript::History().isEmpty() ? QString() : MsgBoxScript::History().last().prompt;
    }

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        CommonDialogScript::Enable();
        SetEndProcessHook([](int code) { QFAIL(qPrintable(QStringLiteral("process ended with %1").arg(code))); });
        Fixtures::UseProgramDir(program_.path());
        src_ = sources_.path();
        Fixtures::WritePicture(src_ + QStringLiteral("/good.bmp"), Qt::green);
        Fixtures::MakeDeck(QStringLiteral("Full"), MaxDeckCards, false);
        Fixtures::MakeDeck(QStringLiteral("Plain"), 2, false);
    }

    void cleanup() { Leave(); }

    void theHundredAndFirstCardIsRefused() {
        frmDesignDeck& designer = Design(QStringLiteral("Full"));
        ModalScript none;
        none.Refuse<frmGetImageFile>();
        designer.cmdAddCard_Click();
        // The import is refused the same way, before a folder is asked.
        designer.cmdImportPictures_Click();
        QCOMPARE(Prompts(), QStringList(2, QStringLiteral("The number of cards in a deck cannot exceed 100.")));
        QVERIFY(CommonDialogScript::History().isEmpty());
        QVERIFY(none.Done());
        QCOMPARE(TheRun.CurrentDeck.CardCount, MaxDeckCards);
    }

    // Which titles are refused is checked on the store (tst_pictureimport);
    // here a refused one is said and keeps the editor open.
    void titlesMustBeFilledAndUnique() {
        frmDesignDeck& designer = Design(QStringLiteral("Plain"));
        ModalScript pick;
        pick.On(Pick<frmGetImageFile>(src_, QStringLiteral("good.bmp")));
        designer.cmdAddCard_Click();
        frmAddCard& editor = Get<frmAddCard>();
        QVERIFY(pick.Done());  // a deck without reversed cards: only the upright picture is asked

        editor.txtCardTitle->setText(QStringLiteral(" Card 1  "));
        editor.cmdSaveClose_Click();
        QCOMPARE(LastPrompt(), NewCardTitleProblem(editor.txtCardTitle->text()));
        QVERIFY(IsLoaded<frmAddCard>());

        editor.txtCardTitle->setText(QStringLiteral("Card 3"));
        editor.cmdSaveClose_Click();
        QCOMPARE(TheRun.CurrentDeck.CardCount, 3);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(3).CardPicture[1].Value(), DefaultPictureName);

        // Deleting a card moves the later ones up by one.
        ClickLine(designer.lstCards, QStringLiteral("Card 1"));
        MsgBoxScript::Answer(vbYes);
        designer.cmdDeleteCard_Click();
        QCOMPARE(TheRun.CurrentDeck.CardCount, 2);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(1).CardTitle.Trimmed(), QStringLiteral("Card 2"));
        QCOMPARE(TheRun.CurrentDeck.DeckCards(2).CardTitle.Trimmed(), QStringLiteral("Card 3"));
    }

    void cancelledPicksLeaveNothingBehind() {
        // A new deck: reversed cards, so both pictures are asked.
        ModalScript script;
        script.On<frmDeckCardProperties>([](frmDeckCardProperties& p) { p.cmdClose_Click(); })
            .On(Pick<frmGetImageFile>(src_, QString()))
            .On(Pick<frmGetImageFile>(src_, QStringLiteral("good.bmp")))
            .On(Pick<frmGetImageFile>(src_, QString()))
            .Refuse<frmGetImageFile>();
        Get<frmDecks>().cmdDesign_Click();
        frmDesignDeck& designer = Get<frmDesignDeck>();
        designer.cmdAddCard_Click();
        designer.cmdAddCard_Click();
        QVERIFY(script.Done());
        QVERIFY(!IsLoaded<frmAddCard>());
        QCOMPARE(TheRun.CurrentDeck.CardCount, 0);
        QVERIFY(!designer.DesignModified);
    }

    void propertiesAreFixedOnceConfigured() {
        // A new deck: open until the first close.
        ModalScript script;
        script.On<frmDeckCardProperties>([](frmDeckCardProperties& p) {
            p.txtCardTypeName[0]->setText(QStringLiteral("Major"));
            p.txtCardTypeName[1]->setText(QStringLiteral("Major "));
            p.txtCardTypeName[2]->setText(QStringLiteral(""));
            p.chkType[3]->click();  // a type without a name can't be used
            QVERIFY(!p.chkType[3]->isChecked());
            p.cmdClose_Click();
            QCOMPARE(LastPrompt(), CardTypeNamesProblem({"Major", "Major ", "", ""}));
            QVERIFY(IsLoaded<frmDeckCardProperties>());
            p.txtCardTypeName[1]->setText(QStringLiteral("Minor"));
            p.chkUseReversed->click();
            p.cmdClose_Click();
        });
        Get<frmDecks>().cmdDesign_Click();
        QVERIFY(script.Done());
        QCOMPARE(TheRun.CurrentDeck.CardTypeName[1].Trimmed(), QStringLiteral("Minor"));
        QCOMPARE(TheRun.CurrentDeck.IncludesReversed, False16);
        QVERIFY(Get<frmDesignDeck>().DesignModified);
        Leave();

        // An existing deck: only the display of titles changes.
        Design(QStringLiteral("Plain"));
        script.On<frmDeckCardProperties>([](frmDeckCardProperties& p) {
            p.chkUseReversed->click();
            p.chkType[0]->click();
            p.chkDisplay->click();
            QVERIFY(!p.chkUseReversed->isChecked() && p.chkType[0]->isChecked());
            p.cmdClose_Click();
        });
        Get<frmDesignDeck>().cmdProperties_Click();
        QVERIFY(script.Done());
        QCOMPARE(TheRun.CurrentDeck.DisplayCardTitles, False16);
        QCOMPARE(TheRun.CurrentDeck.IncludesReversed, False16);
        Leave();

        // The viewer's twin puts every check back.
        Load(QStringLiteral("Plain"));
        script.On<frmDeckCardPropertiesInfo>([](frmDeckCardPropertiesInfo& p) {
            p.chkDisplay->click();
            p.chkType[1]->click();
            QVERIFY(p.chkDisplay->isChecked() && p.chkType[1]->isChecked());
            p.cmdClose_Click();
        });
        Get<frmDeckInfo>().cmdProperties_Click();
        QVERIFY(script.Done());
        Get<frmDeckInfo>().cmdBack_Click();
    }

    void leavingAsksAboutUnsavedWork() {
        frmDesignDeck& designer = Design(QStringLiteral("Plain"));
        ClickLine(designer.lstCards, QStringLiteral("Card 2"));
        designer.cmdEditCard_Click();
        frmAddCard& editor = Get<frmAddCard>();
        editor.txtKeywords->setPlainText(QStringLiteral("changed"));
        MsgBoxScript::Answer(vbCancel);
        editor.cmdBack_Click();
        QCOMPARE(LastPrompt(), QStringLiteral("Save changes to the card?"));
        QVERIFY(IsLoaded<frmAddCard>());  // Cancel stays
        MsgBoxScript::Answer(vbNo);
        editor.cmdBack_Click();
        QCOMPARE(TheRun.CurrentDeck.DeckCards(2).CardKeywords[0].Trimmed(), QStringLiteral("upright keywords 2"));

        designer.txtDeckTitle->setText(QStringLiteral("Plain, retitled"));
        MsgBoxScript::Answer(vbCancel);
        designer.cmdBack_Click();
        QCOMPARE(LastPrompt(), QStringLiteral("Save changes to the deck?"));
        QVERIFY(IsLoaded<frmDesignDeck>());
        MsgBoxScript::Answer(vbNo);
        designer.cmdBack_Click();
        QVERIFY(!IsLoaded<frmDesignDeck>());
        QVERIFY(FilesIn(TheRun.Paths.TempDir).isEmpty());
        GetRecord(TheRun.Paths.DecksPath, FindDeckByName(QStringLiteral("Plain")), TheRun.ListDeck);
        QCOMPARE(TheRun.ListDeck.DeckTitle.Trimmed(), QStringLiteral("Plain"));
    }

    // The properties, the designer and the save screen; a deck name the code
    // page cannot hold is saved as the record holds it and found again.
    void deckScreensHoldTheirLimitsAndTheCodePage() {
        ModalScript properties;
        properties.On<frmDeckCardProperties>([](frmDeckCardProperties& p) {
            BadInput::TourTextBoxes(p);
            // The tour left one text in every type name: they must differ.
            for (int i = 0; i < 4; ++i) p.txtCardTypeName[std::size_t(i)]->setText(QString::number(i));
            p.cmdClose_Click();
        });
        Get<frmDecks>().cmdDesign_Click();
        QVERIFY(properties.Done());
        frmDesignDeck& designer = Get<frmDesignDeck>();
        BadInput::TourTextBoxes(designer);
        const int decks = CountDecks();
        for (int pass = 0; pass < 2; ++pass) {
            ModalScript save;
            save.On<frmSaveDeck>([pass](frmSaveDeck& s) {
                if (pass == 0) BadInput::TourTextBoxes(s);
                BadInput::PasteForeign(s.txtSaveAs);
                QCOMPARE(s.txtSaveAs->text(), BadInput::ForeignAsStored);
                if (pass == 1) MsgBoxScript::Answer(vbNo);  // the same name again: the overwrite question
                s.cmdSave_Click();
                if (pass == 1) {  // No keeps the save screen open
                    QVERIFY(IsLoaded<frmSaveDeck>());
                    s.cmdCancel_Click();
                }
            });
            designer.cmdSave_Click();
            QVERIFY(save.Done());
        }
        QCOMPARE(CountDecks(), decks + 1);
        DeckRecord deck;
        GetRecord(TheRun.Paths.DecksPath, FindDeckByName(BadInput::ForeignAsStored), deck);
        // The tour left the pasted text in the designer's boxes.
        QCOMPARE(deck.DeckTitle.Trimmed(), BadInput::ForeignAsStored);
        designer.DesignModified = false;
    }

    // A picture or sound deleted after the chooser listed it: the pick
    // reports the missing file, the chooser stays for another pick, and the
    // card's working files are as they were.
    void aFileThatVanishedAfterListingIsNotTaken() {
        const QString before = WorkingFiles().Picture[0];
        const QString soundBefore = WorkingFiles().Sound[0];
        for (FileChooser* chooser :
             {static_cast<FileChooser*>(&Get<frmGetImageFile>()), static_cast<FileChooser*>(&Get<frmGetSoundFile>())}) {
            const bool picture = chooser == ScreenSlot<frmGetImageFile>();
            const QString name = picture ? QStringLiteral("gone.bmp") : QStringLiteral("gone.wav");
            if (picture) Fixtures::WritePicture(src_ + QLatin1Char('/') + name);
            else WriteWholeFile(src_ + QLatin1Char('/') + name, "RIFF....WAVEfmt ");
            chooser->GetPictureCode = 1;
            chooser->dirSelection->setPath(src_);
            chooser->filSelection->setPath(src_);
            ClickLine(chooser->filSelection, name);
            QVERIFY(QFile::remove(src_ + QLatin1Char('/') + name));
            MsgBoxScript::Clear();
            chooser->cmdSelect->click();
            QCOMPARE(MsgBoxScript::History().size(), 1);
            QVERIFY(MsgBoxScript::History()[0].prompt.contains(QStringLiteral("File not found")));
            QVERIFY(chooser->IsLoadedForm());
        }
        QCOMPARE(WorkingFiles().Picture[0], before);
        QCOMPARE(WorkingFiles().Sound[0], soundBefore);
        QVERIFY(!AnyFileMatches(TheRun.Paths.TempDir + QStringLiteral("TempUp.*")));
        QVERIFY(!AnyFileMatches(TheRun.Paths.TempDir + QStringLiteral("TsndUp.*")));
        UnloadScreen<frmGetImageFile>();
        UnloadScreen<frmGetSoundFile>();
    }
};

QTEST_MAIN(TestCardRules)
#include "tst_cardrules.moc"
