// The rules of the deck list, the deck designer, the card editor and the
// picture import as the screens apply them, and the bad input they meet.
#include <QStandardItemModel>
#include <QTableView>

#include "DeckDriver.h"
#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/decks/CardTypeNames.h"
#include "core/decks/DeckStore.h"
#include "core/decks/PictureImport.h"
#include "core/store/Lookups.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmBrowseDeck.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDeckCardPropertiesInfo.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/decks/frmImportPictures.h"
#include "screens/decks/frmSaveDeck.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/store/frmGetPassword.h"
#include "support/BadInput.h"

class TestCardRules : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir sources_;
    QTemporaryDir pictures_;  // a folder of six cards to import, one with a reversed file
    // The import walk's program directory, emptied for each row; the tests
    // after it go on there.
    QTemporaryDir importRun_;
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
        Fixtures::MakeSpread(QStringLiteral("Solo"), 2,
                             {Fixtures::MakeDeck(QStringLiteral("Full"), MaxDeckCards, false)});
        Fixtures::MakeDeck(QStringLiteral("Plain"), 2, false);
        // Plain carries a design password, which only the deck list asks.
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [](DeckRecord& d) {
            d.DeckLocked = True16;
            d.DeckPassword = QStringLiteral("secret");
        });
        for (const char* name : {"1 sun.bmp", "2 moon.bmp", "2 moon-reversed.bmp", "3 star.bmp", "4 tower.bmp",
                                 "5 world.bmp", "6 left out.bmp"})
            Fixtures::WritePicture(pictures_.path() + QLatin1Char('/') + QLatin1String(name));
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

    void browseHandsTheChosenDeckToTheSpreadDesigner() {
        QStringList chosen;
        frmBrowseDeck& browse = Get<frmBrowseDeck>();
        browse.DeckChosen = [&chosen](const QString& name) { chosen.append(name.trimmed()); };
        ClickLine(browse.lstDecks, QStringLiteral("Plain"));
        browse.cmdSelect_Click();
        QCOMPARE(chosen, QStringList{QStringLiteral("Plain")});
        QVERIFY(!IsLoaded<frmBrowseDeck>());
    }

    // Which second question comes, and what the spreads do, is the table's
    // below; here the list asks, stops at No, and deletes at Yes.
    void deleteAsksAndUntiesSpreads() {
        frmDecks& decks = Get<frmDecks>();
        const int count = CountDecks();
        MsgBoxScript::Answer(vbNo);
        decks.cmdDelete_Click();
        QCOMPARE(CountDecks(), count);
        QCOMPARE(Prompts(), CheckDeckDelete(decks.lstDecks->Text()).Questions.mid(0, 1));
        QCOMPARE(MsgBoxScript::History()[0].style, vbYesNo | vbQuestion | vbDefaultButton2);

        MsgBoxScript::Answer(vbYes);
        MsgBoxScript::Answer(vbYes);
        decks.cmdDelete_Click();
        QCOMPARE(CountDecks(), count - 1);
        SpreadRecord solo;
        GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(QStringLiteral("Solo")), solo);
        QCOMPARE(solo.AllowedDeckCount, 0);
        // The line went; the first line is selected in its place.
        QCOMPARE(decks.lblTitleField->text(), QStringLiteral("Plain"));
    }

    void lockedDeckAsksPasswordToEditOnly() {
        frmDecks& decks = Get<frmDecks>();
        ClickLine(decks.lstDecks, QStringLiteral("Plain"));
        ModalScript wrong;
        wrong.On<frmGetPassword>([](frmGetPassword& p) {
            p.txtPassword->setText(QStringLiteral("Secret"));
            p.cmdOK_Click();
        });
        decks.cmdEdit_Click();
        QVERIFY(wrong.Done());
        QVERIFY(!IsLoaded<frmDesignDeck>());  // the wrong password is refused

        // Viewing asks nothing.
        decks.cmdInfo_Click();
        QCOMPARE(Get<frmDeckInfo>().lstCards->count(), 2);
        Get<frmDeckInfo>().cmdBack_Click();
        QCOMPARE(Get<frmDecks>().lstDecks->Text().trimmed(), QStringLiteral("Plain"));

        ModalScript right;
        right.On<frmGetPassword>([](frmGetPassword& p) {
            p.txtPassword->setText(QStringLiteral("secret"));
            p.cmdOK_Click();
        });
        Get<frmDecks>().cmdEdit_Click();
        QVERIFY(right.Done());
        QVERIFY(IsLoaded<frmDesignDeck>() && TheRun.DesignMode == 0);
        Get<frmDesignDeck>().cmdBack_Click();
        QCOMPARE(Get<frmDecks>().lstDecks->Text().trimmed(), QStringLiteral("Plain"));
    }

    void theMainScreenOpensTheListAndTakesItBack() {
        frmMainScreen& main = Get<frmMainScreen>();
        main.Show();
        main.lblButton_Click(5);
        QVERIFY(!main.Visible());
        QVERIFY(IsLoaded<frmDecks>() && Get<frmDecks>().Visible());
        Get<frmDecks>().cmdClose_Click();
        QVERIFY(!IsLoaded<frmDecks>() && main.Visible());
    }

    // Every choice of the screen, in a deck with and without reversed cards,
    // saved by the designer's Save as a user saves and opened by Edit on the
    // deck list: no box comes, every card is whole, and every file its record
    // names is in Cards/. On the way, the screen's own steps: a title edited,
    // a row left out by Space on its title, another by Delete and taken in
    // again by Space, the type of a selection set.
    void importedDecksSaveAndOpenWhole_data() {
        QTest::addColumn<int>("reversed");
        QTest::addColumn<bool>("deckReversed");
        for (const bool deckReversed : {true, false}) {
            const char* deck = deckReversed ? "reversed cards" : "upright only";
            QTest::addRow("%s, none", deck) << int(ReversedSide::None) << deckReversed;
            QTest::addRow("%s, turned", deck) << int(ReversedSide::Turned) << deckReversed;
            QTest::addRow("%s, own file", deck) << int(ReversedSide::OwnFile) << deckReversed;
        }
    }
    void importedDecksSaveAndOpenWhole() {
        QFETCH(int, reversed);
        QFETCH(bool, deckReversed);
        Fixtures::UseProgramDir(importRun_.path());
        Fixtures::MakeDeck(QStringLiteral("Before"), 2, deckReversed);
        ClickLine(Get<frmDecks>().lstDecks, QStringLiteral("Before"));
        Get<frmDecks>().cmdEdit->click();
        frmDesignDeck& designer = Get<frmDesignDeck>();
        MsgBoxScript::Clear();
        CommonDialogScript::Answer(pictures_.path());
        ModalScript script;
        script.On<frmImportPictures>([reversed](frmImportPictures& s) {
            s.mdlPictures->item(1, 1)->setText(QStringLiteral("Moon Rising"));
            s.tblPictures->setFocus();
            s.tblPictures->setCurrentIndex(s.mdlPictures->index(5, 1));
            QTest::keyClick(s.tblPictures, Qt::Key_Space);
            s.tblPictures->selectRow(4);
            QTest::keyClick(s.tblPictures, Qt::Key_Delete);
            QTest::keyClick(s.tblPictures, Qt::Key_Space);
            s.tblPictures->selectRow(0);
            s.cboType->setCurrentIndex(1);
            s.cmdSetType->click();
            // Greyed in a deck without reversed cards: what it shows must do too.
            QRadioButton* option = std::array{s.optNone, s.optTurned, s.optOwnFile}[std::size_t(reversed)];
            if (option->isEnabled()) option->click();
            else option->setChecked(true);
            s.cmdOK->click();
        });
        script.On<frmSaveDeck>([](frmSaveDeck& s) {
            s.txtSaveAs->setText(QStringLiteral("Imported"));
            s.cmdSave->click();
        });
        designer.cmdImportPictures->click();
        designer.cmdSave->click();
        QVERIFY(script.Done());
        designer.cmdBack->click();
        ClickLine(Get<frmDecks>().lstDecks, QStringLiteral("Imported"));
        Get<frmDecks>().cmdEdit->click();
        QVERIFY2(MsgBoxScript::History().isEmpty(), qPrintable(MsgBoxScript::History().value(0).prompt));
        QCOMPARE(TheRun.CurrentDeck.CardCount, 7);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(3).CardType, 1);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(4).CardTitle.Trimmed(), QStringLiteral("Moon Rising"));
        QVERIFY(LineOf(Get<frmDesignDeck>().lstCards, QStringLiteral("Moon Rising")) >= 0);
        for (const CardRecord& card : TheRun.CurrentDeck.DeckCards) {
            for (const auto& picture : card.CardPicture)
                QVERIFY2(FileExists(TheRun.Paths.CardsDir + picture.Value()), qPrintable(picture.Value()));
            QCOMPARE(card.CardPicture[1].Value() == DefaultPictureName, !deckReversed);
        }
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
