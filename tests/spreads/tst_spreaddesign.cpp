// A spread laid out on the designer from start to end and opened again
// unchanged to the byte; the details' dirty rules and the closing question;
// the choice of a background; and bad input on every box.
#include "SpreadTestKit.h"
#include "core/spreads/SpreadBackground.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/Lookups.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmGetSpreadBackground.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSaveSpread.h"
#include "screens/spreads/frmSpreadComments.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ImageBox.h"
#include "support/BadInput.h"
#include "support/ScreenTest.h"

using namespace SpreadTestKit;

namespace {
// Saves the design in the designer under a name, answering the overwrite
// question with `overwrite` when it comes.
void SaveAs(frmDesignSpread& designer, const QString& name, int overwrite = 0) {
    if (overwrite) MsgBoxScript::Answer(overwrite);
    ModalScript script;
    script.On<frmSaveSpread>([name](frmSaveSpread& save) {
        save.txtSaveAs->setText(name);
        save.cmdSave_Click();
    });
    designer.cmdSave_Click();
    QVERIFY(script.Done());
}

void SetBackground(const QString& file) {
    ModalScript script;
    script.On<frmGetSpreadBackground>([file](frmGetSpreadBackground& screen) {
        screen.txtFilename->setText(file);
        screen.cmdOK_Click();
    });
    Get<frmDesignSpread>().cmdPicture_Click();
    QVERIFY(script.Done());
}

QPoint Place(frmDesignSpread& designer, int index) {
    return QPoint(designer.picLocation(index)->Left(), designer.picLocation(index)->Top());
}
}  // namespace

class TestSpreadDesign : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        Fixtures::UseProgramDir(dir_.path());
        for (const char* name : {"Alpha Deck", "Beta Deck", "Gamma Deck"})
            Fixtures::MakeDeck(QString::fromLatin1(name), 12, false);
    }
    void init() { MsgBoxScript::Clear(); }
    void cleanup() {
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        for (auto unload : {UnloadScreen<frmLocationAttributes>, UnloadScreen<frmDesignSpread>,
                            UnloadScreen<frmDeckChooser>, UnloadScreen<frmSpreads>})
            unload();
        Settle();
    }

    void aSpreadLaidOutOnTheScreensOpensAgainAsSaved() {
        Get<frmSpreads>().Show();
        Get<frmSpreads>().cmdDesign_Click();
        frmDesignSpread& d = Get<frmDesignSpread>();
        QTest::keyClicks(d.txtSpreadTitle(), QStringLiteral("Five Paths Title"));
        d.cmdSpread_Click();

        // 1: dragged left and down, released on the canvas.
        d.cmdAddCard_Click();
        Drag(d.picLocation(1), QPoint(10, 10), QPoint(-440, 90));
        QCOMPARE(Place(d, 1), QPoint(7570 - 450 * 15, 120 + 80 * 15));

        // 2: released far outside the canvas, it ends at the corner.
        d.cmdAddCard_Click();
        Drag(d.picLocation(2), QPoint(10, 10), QPoint(400, 500));
        QCOMPARE(Place(d, 2), QPoint(7800, 4920));

        // 3 stays where it came in (the keys: tst_spreadcanvas).
        d.cmdAddCard_Click();

        // Snapping on moves the whole layout down to the grid.
        d.cmdSnap_Click();
        QCOMPARE(Place(d, 1), QPoint(203 * 4, 243 * 5));
        QCOMPARE(Place(d, 2), QPoint(7714, 4860));

        // 4 to 6 stay where they came in.
        for (int i = 4; i <= 6; ++i) d.cmdAddCard_Click();

        // Attributes: the title shows on the rectangle as it is typed.
        const QStringList titles = {QStringLiteral("Past"),   QStringLiteral("Present"), QStringLiteral("Gone"),
                                    QStringLiteral("Future"), QStringLiteral("Hope"),    QStringLiteral("Outcome")};
        for (int i = 1; i <= 6; ++i) {
            d.cmdCardAttributes_Click(i);
            frmLocationAttributes& attributes = Get<frmLocationAttributes>();
            QTest::keyClicks(attributes.txtTitle, titles[i - 1]);
            QCOMPARE(d.lblCardTitle(i)->text(), titles[i - 1]);
            if (i == 2) {
                QTest::keyClicks(attributes.txtDescription, QStringLiteral("Where you stand"));
                QTest::keyClicks(attributes.txtQuestion(3), QStringLiteral("Why now?"));
            }
            // Losing the focus closes the attributes.
            attributes.NotifyActivated(true);
            attributes.NotifyActivated(false);
            QVERIFY(!IsLoaded<frmLocationAttributes>());
        }
        QCOMPARE(TheRun.SpreadLocations(2).LocationQuestion[2].Trimmed(), QStringLiteral("Why now?"));

        // Location 3 goes: 4 to 6 move down one number with all they carry.
        const QPoint fourWas = Place(d, 4);
        d.picLocation_GotFocus(3);
        MsgBoxScript::Answer(vbYes);
        d.cmdRemoveCard_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("Are you sure you want to completely remove location number 3 ?"));
        QCOMPARE(TheRun.CurrentSpread.LocationCount, Integer(5));
        QCOMPARE(Place(d, 3), fourWas);
        QCOMPARE(TheRun.SpreadLocations(5).LocationTitle.Trimmed(), QStringLiteral("Outcome"));

        // The background: a bitmap whose type is typed in capitals.
        Fixtures::WritePicture(dir_.path() + QStringLiteral("/PHOTO.BMP"), Qt::darkGreen);
        SetBackground(dir_.path() + QStringLiteral("/PHOTO.BMP"));
        QCOMPARE(TheRun.CurrentSpread.BackgroundFile.Trimmed(), QStringLiteral("sprpic.BMP"));
        QVERIFY(d.picDesignLocations->imgBackground->HasPicture());

        SaveAs(d, QStringLiteral("Five Paths"));
        QVERIFY(!d.SpreadDirty);
        SpreadRecord saved;
        QVERIFY(GetRecord(TheRun.Paths.SpreadsPath, 1, saved));
        QCOMPARE(saved.SpreadTitle.Trimmed(), QStringLiteral("Five Paths Title"));
        QCOMPARE(saved.BackgroundFile.Trimmed(), QStringLiteral("S000001.BMP"));
        const QList<QByteArray> savedLocations = RawRecords(TheRun.Paths.LocationsPath, LocationRecord::Length);
        QCOMPARE(savedLocations.size(), 5);
        QList<QPoint> places;
        for (int i = 1; i <= 5; ++i) places.append(Place(d, i));

        // Close, back on the list with the spread selected; open it again.
        d.cmdBack_Click();
        Settle();
        frmSpreads& list = Get<frmSpreads>();
        QCOMPARE(list.lstSpreads->Text().trimmed(), QStringLiteral("Five Paths"));
        list.cmdEdit_Click();
        frmDesignSpread& again = Get<frmDesignSpread>();
        QVERIFY(again.picDesignLocations->imgBackground->HasPicture());
        for (int i = 1; i <= 5; ++i) {
            QCOMPARE(EncodeRecord(TheRun.SpreadLocations(i)), savedLocations[i - 1]);
            QCOMPARE(Place(again, i), places[i - 1]);
        }
        // Saved again over itself, after the question: the same locations
        // to the byte.
        SaveAs(again, QStringLiteral("Five Paths"), vbYes);
        QCOMPARE(RawRecords(TheRun.Paths.LocationsPath, LocationRecord::Length), savedLocations);
        again.cmdBack_Click();
        Settle();
    }

    void detailsWriteThroughWithTheirDirtyRules() {
        Get<frmSpreads>().cmdDesign_Click();
        frmDesignSpread& d = Get<frmDesignSpread>();
        d.txtSpreadTitle()->setText(QStringLiteral("Same"));
        d.txtSpreadDesigner()->setText(QStringLiteral("Ann"));
        // The same title again leaves the design clean; the same designer
        // name marks it.
        d.SpreadDirty = false;
        d.txtSpreadTitle()->Change();
        QVERIFY(!d.SpreadDirty);
        d.txtSpreadDesigner()->Change();
        QVERIFY(d.SpreadDirty);
        QCOMPARE(TheRun.CurrentSpread.SpreadDesigner.DesignerName.Trimmed(), QStringLiteral("Ann"));
        // Notes write through at every keystroke; losing the focus closes them.
        d.SpreadDirty = false;
        d.cmdComments_Click();
        QTest::keyClicks(Get<frmSpreadComments>().txtComments, QStringLiteral("Lay slowly"));
        QCOMPARE(TheRun.CurrentSpread.SpreadComments.Trimmed(), QStringLiteral("Lay slowly"));
        QVERIFY(d.SpreadDirty);
        Get<frmSpreadComments>().NotifyActivated(true);
        Get<frmSpreadComments>().NotifyActivated(false);
        QVERIFY(!IsLoaded<frmSpreadComments>());

        // Esc asks as Close does: Cancel stays; Yes, then a cancelled save,
        // closes the designer and the changes go.
        MsgBoxScript::Answer(vbCancel);
        QTest::keyClick(d.txtSpreadTitle(), Qt::Key_Escape);
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Save changes to the spread?"));
        QVERIFY(IsLoaded<frmDesignSpread>());
        MsgBoxScript::Answer(vbYes);
        ModalScript cancel;
        cancel.On<frmSaveSpread>([](frmSaveSpread& save) { save.cmdCancel_Click(); });
        QTest::keyClick(d.txtSpreadTitle(), Qt::Key_Escape);
        QVERIFY(cancel.Done());
        Settle();
        QCOMPARE(CountSpreads(), 1);
        QCOMPARE(TheRun.CurrentSpread.SpreadTitle.Trimmed(), QStringLiteral("Five Paths Title"));
    }

    // A background must be there, be a BMP, JPG or GIF by its name and open
    // as a picture, checked in that order; a refusal leaves the spread as it
    // was. A chosen one is copied into Temp/ under its working name, in the
    // case its name was typed; blanks take the background away, after a
    // question.
    void aBackgroundIsChosenAfterItsChecks_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("problem");
        QTest::addColumn<QString>("working");
        const QString none = QStringLiteral("There is no file with the name you provided!");
        const QString type =
            QStringLiteral("Unsupported file type. Only files of type BMP, JPG and GIF are currently supported.");
        const QString open =
            QStringLiteral("Unable to open the file you selected. Please make sure it is of a valid type.");
        QTest::newRow("no such file") << "none.bmp" << none << "";
        QTest::newRow("no such file, of no supported type") << "none.png" << none << "";
        QTest::newRow("a folder named as a picture") << "folder.bmp" << none << "";
        QTest::newRow("a picture named .jpeg") << "photo.jpeg" << type << "";
        QTest::newRow("a picture named .png") << "photo.png" << type << "";
        QTest::newRow("a gif that is no picture") << "fake.gif" << open << "";
        QTest::newRow("an empty bmp") << "empty.bmp" << open << "";
        QTest::newRow("a bmp") << "back.bmp" << QString() << "sprpic.bmp";
        QTest::newRow("a jpg in small letters") << "photo.jpg" << QString() << "sprpic.jpg";
        QTest::newRow("a GIF in capitals") << "PHOTO.GIF" << QString() << "sprpic.GIF";
        QTest::newRow("blanks, taking it away") << "" << QString() << "";
    }
    void aBackgroundIsChosenAfterItsChecks() {
        QFETCH(QString, file);
        QFETCH(QString, problem);
        QFETCH(QString, working);
        const QDir folder(dir_.filePath(QStringLiteral("backgrounds")));
        folder.mkpath(QStringLiteral("folder.bmp"));
        for (const char* name : {"photo.jpeg", "photo.png", "back.bmp", "photo.jpg", "PHOTO.GIF"})
            Fixtures::WritePicture(folder.filePath(QLatin1String(name)));
        WriteWholeFile(folder.filePath(QStringLiteral("fake.gif")), QByteArray("not a picture"));
        WriteWholeFile(folder.filePath(QStringLiteral("empty.bmp")), QByteArray());
        SpreadRecord spread;
        spread.BackgroundFile = QStringLiteral("S000009.bmp");
        spread.StretchBackground = True16;
        const QString typed = file.isEmpty() ? QStringLiteral("  ") : folder.filePath(file);
        const QString question =
            QStringLiteral("Are you sure you want to remove the currently selected background picture?");
        QCOMPARE(WorkingBackgroundQuestion(spread, typed), file.isEmpty() ? question : QString());
        const WorkingBackground chosen = ChooseWorkingBackground(spread, typed, false);
        QCOMPARE(chosen.Problem, problem);
        QCOMPARE(chosen.Picture.isNull(), working.isEmpty());
        if (!problem.isEmpty()) {
            QCOMPARE(EncodeRecord(chosen.Spread), EncodeRecord(spread));
            return;
        }
        QCOMPARE(chosen.Spread.BackgroundFile.Trimmed(), working);
        QCOMPARE(chosen.Spread.StretchBackground, False16);
        QCOMPARE(chosen.Path, working.isEmpty() ? QString() : TheRun.Paths.TempDir + working);
        if (!working.isEmpty()) QCOMPARE(ReadWholeFile(chosen.Path), ReadWholeFile(typed));
    }

    // The designer opens on a copy of the background in Temp/; a background
    // gone from Cards/ leaves the spread without one.
    void theDesignerOpensOnACopy_data() {
        QTest::addColumn<QString>("background");
        QTest::addColumn<bool>("inCards");
        QTest::newRow("none") << "" << false;
        QTest::newRow("a picture in Cards/") << "S000009.bmp" << true;
        QTest::newRow("a picture gone from Cards/") << "S000009.bmp" << false;
    }
    void theDesignerOpensOnACopy() {
        QFETCH(QString, background);
        QFETCH(bool, inCards);
        QFile::remove(TheRun.Paths.CardsDir + QStringLiteral("S000009.bmp"));
        if (inCards) Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000009.bmp"));
        SpreadRecord spread;
        spread.BackgroundFile = background;
        const WorkingBackground opened = OpenWorkingBackground(spread);
        QCOMPARE(opened.Path, inCards ? TheRun.Paths.TempDir + background : QString());
        QCOMPARE(opened.Spread.BackgroundFile.Trimmed(), inCards ? background : QString());
        if (inCards) QCOMPARE(ReadWholeFile(opened.Path), ReadWholeFile(TheRun.Paths.CardsDir + background));
    }

    void theScreensHoldTheirLimitsAndTheCodePage() {
        Get<frmSpreads>().cmdDesign_Click();
        frmDesignSpread& designer = Get<frmDesignSpread>();
        BadInput::TourTextBoxes(designer);

        // A background that is gone by the time OK is pressed: the box comes,
        // the screen stays and the spread keeps the background it had.
        const QString picture = dir_.filePath(QStringLiteral("back.bmp"));
        Fixtures::WritePicture(picture);
        ModalScript script;
        script.On<frmGetSpreadBackground>([&](frmGetSpreadBackground& screen) {
            BadInput::TourTextBoxes(screen);
            screen.txtFilename->setText(picture);
            QFile::remove(picture);
            screen.cmdOK_Click();
            QVERIFY(IsLoaded<frmGetSpreadBackground>());
            screen.cmdCancel_Click();
        });
        designer.cmdPicture_Click();
        QVERIFY(script.Done());
        QCOMPARE(Prompts(), QStringList{SpreadBackgroundProblem(picture)});
        QVERIFY(TheRun.CurrentSpread.BackgroundFile.IsBlank());

        // A name the code page cannot hold is saved as the record holds it;
        // the same paste again is the same spread (the overwrite question, No).
        const int spreads = CountSpreads();
        for (int pass = 0; pass < 2; ++pass) {
            if (pass == 1) MsgBoxScript::Answer(vbNo);
            script.On<frmSaveSpread>([&, pass](frmSaveSpread& save) {
                if (pass == 0) BadInput::TourTextBoxes(save);
                BadInput::PasteForeign(save.txtSaveAs);
                QCOMPARE(save.txtSaveAs->Text(), BadInput::ForeignAsStored);
                save.cmdSave_Click();
                if (pass == 1) save.cmdCancel_Click();
            });
            designer.cmdSave_Click();
            QVERIFY(script.Done());
        }
        QCOMPARE(CountSpreads(), spreads + 1);
        QVERIFY(FindSpreadByName(BadInput::ForeignAsStored) > 0);
        designer.SpreadDirty = false;
    }
};

QTEST_MAIN(TestSpreadDesign)
#include "tst_spreaddesign.moc"
