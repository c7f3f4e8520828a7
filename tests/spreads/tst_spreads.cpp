// The spread screens: a spread laid out on the designer from start to end and
// opened again unchanged to the byte; the details' dirty rules and the
// closing question; bad input on every box; the canvas's grid and snapping to
// the twip, its limits, the keys of a rectangle and what opening the notes or
// a location's attributes changes; the list, the viewer and the deck chooser.
#include "SpreadTestKit.h"
#include "core/platform/OleDate.h"
#include "core/spreads/SpreadBackground.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/SpreadDetailsPage.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmGetSpreadBackground.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSaveSpread.h"
#include "screens/spreads/frmSpreadComments.h"
#include "screens/spreads/frmSpreadInfo.h"
#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/store/frmGetPassword.h"
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

SpreadRecord SpreadNamed(const QString& name) {
    SpreadRecord spread;
    GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), spread);
    return spread;
}

void Rewrite(const QString& name, const std::function<void(SpreadRecord&)>& change) {
    ChangeRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), change);
}

frmSpreads& ListOn(const QString& name) {
    UnloadScreen<frmSpreads>();
    Settle();
    frmSpreads& list = Get<frmSpreads>();
    list.Show();
    list.lstSpreads->setListIndex(list.GetIndexOf(name));
    return list;
}

QPoint Place(frmDesignSpread& designer, int index) {
    return QPoint(designer.picLocation(index)->Left(), designer.picLocation(index)->Top());
}
}  // namespace

class TestSpreads : public QObject {
    Q_OBJECT
    QTemporaryDir dir_, lists_;
    frmDesignSpread* d_ = nullptr;
    QList<Integer> decks_;

    // A fresh designer on a new spread with `count` locations.
    frmDesignSpread& Designer(int count) {
        UnloadScreen<frmLocationAttributes>();
        UnloadScreen<frmDesignSpread>();
        Settle();
        TheRun.DesignMode = 1;
        ResetSpread(TheRun.CurrentSpread);
        d_ = &Get<frmDesignSpread>();
        d_->Show();
        d_->cmdSpread_Click();
        for (int i = 0; i < count; ++i) d_->cmdAddCard_Click();
        return *d_;
    }

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
        for (auto unload : {UnloadScreen<frmLocationAttributes>, UnloadScreen<frmSpreadInfo_LocationAttributes>,
                            UnloadScreen<frmSpreadInfo>, UnloadScreen<frmDeckChooser>, UnloadScreen<frmDesignSpread>,
                            UnloadScreen<frmSpreads>})
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

        // 3 stays where it came in (its keys: keysMoveOnlyWithShiftAlone).
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

    void gridStepsAndSnappingToTheTwip() {
        // Span, cells, step: halves go to even.
        const std::array<int, 3> steps[] = {{9495, 39, 243}, {5895, 29, 203}, {9615, 39, 247}, {5, 2, 2}, {7, 2, 4}};
        for (const auto& [span, cells, step] : steps) QCOMPARE(GridStep(span, cells), Integer(step));

        struct Case {
            int from;
            int to;
            bool set;
        };
        // Down to the line at or before; below the first line (even 0)
        // counts as set, on a line does not, past the last stays.
        for (const Case& c :
             {Case{0, 0, true}, Case{242, 0, true}, Case{243, 243, false}, Case{300, 243, true}, Case{486, 486, false},
              Case{4920, 4860, true}, Case{8019, 8019, false}, Case{9000, 9000, false}}) {
            Integer position = static_cast<Integer>(c.from);
            QCOMPARE(SnapDown(position, 243, 33), c.set);
            QCOMPARE(int(position), c.to);
        }

        Integer l = -5, t = -20;
        KeepInside(l, t, 9495, 5895);
        QCOMPARE(QPoint(l, t), QPoint(0, 0));
    }

    void addingAndRemovingKeepTheirLimits() {
        frmDesignSpread& d = Designer(32);
        d.SpreadDirty = false;
        d.cmdAddCard_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("The number of locations in a spread cannot exceed 32."));
        QCOMPARE(TheRun.CurrentSpread.LocationCount, Integer(32));
        QVERIFY(!d.SpreadDirty);

        // A new location is every byte zero, until a box of its attributes
        // changes: a title typed and taken back leaves blanks.
        Designer(1);
        QCOMPARE(TheRun.SpreadLocations(1).LocationTitle.Raw(), QByteArray(50, '\0'));
        d_->cmdCardAttributes_Click(1);
        frmLocationAttributes& attributes = Get<frmLocationAttributes>();
        QTest::keyClicks(attributes.txtTitle, QStringLiteral("A"));
        QTest::keyClick(attributes.txtTitle, Qt::Key_Backspace);
        QVERIFY(TheRun.SpreadLocations(1).LocationTitle.Raw() == QByteArray(50, ' '));
        attributes.cmdClose_Click();

        // The only location goes: nothing gets the focus, the selection
        // keeps its number, and Remove then has nothing to remove.
        MsgBoxScript::Answer(vbYes);
        QTest::keyClick(d_->picLocation(1), Qt::Key_Delete);  // key up removes
        QCOMPARE(TheRun.CurrentSpread.LocationCount, Integer(0));
        QCOMPARE(TheRun.SelectedLocation, 1);
        QCOMPARE(TheRun.SpreadLocations(1).LocationLeft, Integer(6480));
        QCOMPARE(TheRun.SpreadLocations(1).LocationTop, Integer(240));
        d_->cmdRemoveCard_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("There are no locations to be removed."));
    }

    // Opening the notes or a location's attributes fills their boxes; only a
    // fill that changes a box's text counts as a change. An empty field then
    // keeps its bytes and leaves the spread clean, while one with text marks
    // the spread, as the design has it.
    void openingACompanionChangesOnlyWhatItFills_data() {
        QTest::addColumn<bool>("notes");  // else the attributes of a new location
        QTest::addColumn<QString>("text");
        QTest::newRow("empty notes") << true << "";
        QTest::newRow("notes with text") << true << "Slowly";
        QTest::newRow("a location never edited") << false << "";
        QTest::newRow("a location with a title") << false << "Past";
    }
    void openingACompanionChangesOnlyWhatItFills() {
        QFETCH(bool, notes);
        QFETCH(QString, text);
        Designer(1);
        if (notes) TheRun.CurrentSpread.SpreadComments = text;
        else if (!text.isEmpty()) TheRun.SpreadLocations(1).LocationTitle = text;
        const QByteArray before = EncodeRecord(TheRun.CurrentSpread) + EncodeRecord(TheRun.SpreadLocations(1));
        d_->SpreadDirty = false;
        if (notes) d_->cmdComments_Click();
        else d_->cmdCardAttributes_Click(1);
        UnloadScreen<frmSpreadComments>();
        UnloadScreen<frmLocationAttributes>();
        QCOMPARE(d_->SpreadDirty, !text.isEmpty());
        if (text.isEmpty())
            QCOMPARE(EncodeRecord(TheRun.CurrentSpread) + EncodeRecord(TheRun.SpreadLocations(1)), before);
    }

    void keysMoveOnlyWithShiftAlone() {
        frmDesignSpread& d = Designer(2);
        d.picLocation(1)->Move(0, 100);
        d.SpreadDirty = false;
        QTest::keyClick(d.picLocation(1), Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(d.picLocation(1), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(QPoint(d.picLocation(1)->Left(), d.picLocation(1)->Top()), QPoint(0, 0));
        QVERIFY(!d.SpreadDirty);  // a nudge does not mark the design
        for (const Qt::KeyboardModifiers others : {Qt::AltModifier, Qt::ControlModifier, Qt::NoModifier})
            QTest::keyClick(d.picLocation(1), Qt::Key_Right,
                            others == Qt::NoModifier ? others : others | Qt::ShiftModifier);
        QCOMPARE(d.picLocation(1)->Left(), Integer(0));
        // The same keys reach the rectangle from its Attributes button.
        QTest::keyClick(d.cmdCardAttributes(1), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(d.picLocation(1)->Left(), Integer(120));
        // Enter opens the attributes of that location.
        QTest::keyClick(d.cmdCardAttributes(1), Qt::Key_Return);
        QVERIFY(IsLoaded<frmLocationAttributes>());
        QCOMPARE(TheRun.SelectedLocation, 1);
        UnloadScreen<frmLocationAttributes>();

        // A second press of Snap leaves the layout snapped.
        d.cmdSnap_Click();
        d.cmdSnap_Click();
        QCOMPARE(QPoint(d.picLocation(2)->Left(), d.picLocation(2)->Top()), QPoint(7511, 0));
    }

    void theGridShowsAndHidesItsLines() {
        frmDesignSpread& d = Designer(1);
        SpreadCanvas* canvas = d.picDesignLocations;
        d.cmdGrid_Click();
        QVERIFY(canvas->linVerticalGrid(0)->isVisible() && canvas->linHorizontalGrid(33)->isVisible());

        // A rectangle stands above the grid and the picture.
        d.picLocation(1)->Move(0, 0);
        canvas->SetBackground(QImage(20, 20, QImage::Format_RGB32), true);
        QWidget* top = canvas->childAt(QPoint(0, 0));
        QVERIFY(top == d.picLocation(1) || d.picLocation(1)->isAncestorOf(top));

        d.cmdGrid_Click();
        QVERIFY(canvas->linVerticalGrid(0)->isHidden() && canvas->linHorizontalGrid(33)->isHidden());
    }

    void anEmptyListIsLeftForTheMainScreen() {
        Fixtures::UseProgramDir(lists_.path());
        // Reached from the main screen, which hides meanwhile.
        frmMainScreen& main = Get<frmMainScreen>();
        main.Show();
        main.lblButton_Click(6);
        QVERIFY(!main.Visible() && IsLoaded<frmSpreads>());
        frmSpreads& list = Get<frmSpreads>();
        QCOMPARE(list.GetIndexOf(QStringLiteral("anything")), -1);
        QTest::keyClick(list.lstSpreads, Qt::Key_Escape);
        QVERIFY(!IsLoaded<frmSpreads>() && main.Visible());
    }

    void theListSummarisesAndDeletes() {
        for (int i = 1; i <= 6; ++i) decks_.append(Fixtures::MakeDeck(QStringLiteral("Deck %1").arg(i), 8, false));
        Fixtures::MakeSpread(QStringLiteral("celtic"), 3, {decks_[0]});
        Fixtures::MakeSpread(QStringLiteral("Alpha"), 2, {}, true);
        Fixtures::MakeSpread(QStringLiteral("Beta"), 4, {decks_[0], decks_[1]});
        Rewrite(QStringLiteral("Beta"), [](SpreadRecord& s) {
            s.AskQuestion = True16;
            s.SpreadDesigner.DesignerName = QStringLiteral("Mira");
            s.ModifiedOn = ToOleDate(QDate(2024, 3, 5));
        });
        frmSpreads& list = ListOn(QStringLiteral("Beta"));
        QCOMPARE(TrimField(list.lstSpreads->List(2)), QStringLiteral("celtic"));  // sorted, ignoring case
        QCOMPARE(list.lstSpreads->List(0).size(), 50);                            // as stored, with its blanks
        QCOMPARE(list.GetIndexOf(QStringLiteral(" Beta ")), 1);
        QCOMPARE(list.GetIndexOf(QStringLiteral("Gone")), 0);
        QCOMPARE((QStringList{list.lblQueryField->text(), list.lblCardsField->text(), list.lblDecksField->text(),
                              list.lblDesignDateField->text(), list.lblDesignerNameField->text().trimmed()}),
                 (QStringList{"Y", "4", "2", "05-Mar-2024", "Mira"}));
        QCOMPARE(TheRun.SpreadLocations.UBound(), 4);
        list.lstSpreads->setListIndex(0);
        QCOMPARE(list.lblDecksField->text(), QStringLiteral("All"));

        // No keeps it; Yes deletes it and the next one moves up.
        MsgBoxScript::Answer(vbNo);
        list.cmdDelete_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("Are you sure you want to delete spread 'Alpha' ?"));
        QCOMPARE(CountSpreads(), 3);
        MsgBoxScript::Answer(vbYes);
        list.cmdDelete_Click();
        QCOMPARE(CountSpreads(), 2);
        QCOMPARE(TrimField(list.lstSpreads->Text()), QStringLiteral("Beta"));
        QCOMPARE(TheRun.CurrentSpread.SpreadName.Trimmed(), QStringLiteral("Beta"));
    }

    void aLockedSpreadAsksForItsPassword() {
        Rewrite(QStringLiteral("celtic"), [](SpreadRecord& s) {
            s.SpreadLocked = True16;
            s.SpreadPassword = QStringLiteral("Moon");
        });
        ModalScript script;
        script.On<frmGetPassword>([](frmGetPassword& screen) {
            screen.txtPassword->setText(QStringLiteral("Moon"));
            screen.cmdOK_Click();
        });
        ListOn(QStringLiteral("celtic")).cmdEdit_Click();
        QVERIFY(script.Done());
        QCOMPARE(Get<frmDesignSpread>().RememberedSpreadName.trimmed(), QStringLiteral("celtic"));
    }

    void theViewerShowsAndChangesNothing() {
        // Five decks of which one is gone since.
        Fixtures::MakeSpread(QStringLiteral("Five Decks"), 2, {decks_[0], decks_[1], decks_[2], decks_[3], decks_[4]});
        Rewrite(QStringLiteral("Five Decks"), [](SpreadRecord& s) {
            s.AskQuestion = True16;
            s.SpreadComments = QStringLiteral("Read slowly");
        });
        DeleteDeck(FindDeckByName(QStringLiteral("Deck 3")));
        frmSpreads& list = ListOn(QStringLiteral("Five Decks"));
        list.cmdInfo_Click();
        frmSpreadInfo& viewer = Get<frmSpreadInfo>();
        QCOMPARE(viewer.lstDecks->List(0), QStringLiteral("     [ MISSING DECK ] "));
        QCOMPARE(viewer.picDesignInfo->txtComments->Text(), QStringLiteral("Read slowly"));
        viewer.cmdSpread_Click();
        viewer.cmdGrid_Click();
        QCOMPARE(viewer.GridStepY, Integer(247));  // its canvas is wider than the designer's
        // Only the Attributes button answers.
        SendMouse(viewer.picLocation(2), QEvent::MouseButtonPress, QPoint(5, 5), Qt::LeftButton, Qt::LeftButton);
        SendMouse(viewer.picLocation(2), QEvent::MouseMove, QPoint(90, 90), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(viewer.picLocation(2)->Left(), Integer(1440));
        viewer.cmdCardAttributes(2)->click();
        QCOMPARE(Get<frmSpreadInfo_LocationAttributes>().txtTitle->text(), QStringLiteral("Position 2"));

        viewer.cmdClose_Click();
        Settle();
        QCOMPARE(TrimField(Get<frmSpreads>().lstSpreads->Text()), QStringLiteral("Five Decks"));

        // An any-deck spread says so on the fourth line.
        Fixtures::MakeSpread(QStringLiteral("Any"), 1, {}, true);
        ListOn(QStringLiteral("Any")).cmdInfo_Click();
        QCOMPARE(Get<frmSpreadInfo>().lstDecks->List(3), QStringLiteral("                          [ ALL DECKS ] "));
    }

    void theChooserTiesDecksWithoutANewRevision() {
        const SpreadRecord before = SpreadNamed(QStringLiteral("Five Decks"));
        frmSpreads& list = ListOn(QStringLiteral("Five Decks"));
        list.cmdManager_Click();
        frmDeckChooser& chooser = Get<frmDeckChooser>();
        QCOMPARE(chooser.lstDecks->ListCount(), 4);  // the deleted deck is passed over

        chooser.lstDecks->setListIndex(3);
        chooser.cmdDeleteDeck_Click();
        QCOMPARE(chooser.lstDecks->ListIndex(), 2);  // the noted position, one up
        chooser.cmdLink_Click();
        QVERIFY(!chooser.ChooserDirty);
        SpreadRecord after = SpreadNamed(QStringLiteral("Five Decks"));
        QCOMPARE(after.AllowedDeckCount, Integer(3));
        QCOMPARE(after.AllowedDeckId[3], Integer(-1));
        QCOMPARE(after.SpreadRevision, before.SpreadRevision);

        // Any deck with names still listed: -1 and the ids all the same,
        // and a later load shows only the box.
        chooser.chkAnyDeck->setChecked(true);
        MsgBoxScript::Answer(vbYes);
        chooser.cmdClose_Click();
        Settle();
        after = SpreadNamed(QStringLiteral("Five Decks"));
        QCOMPARE(after.AllowedDeckCount, Integer(-1));
        QCOMPARE(after.AllowedDeckId[0], FindDeckIdByName(QStringLiteral("Deck 1")));
        QCOMPARE(Get<frmSpreads>().lblDecksField->text(), QStringLiteral("All"));
        Get<frmSpreads>().cmdManager_Click();
        QVERIFY(Get<frmDeckChooser>().chkAnyDeck->isChecked());
        QCOMPARE(Get<frmDeckChooser>().lstDecks->ListCount(), 0);
    }

    void theChooserKeepsToTenDecksAndAsksAboutNone() {
        for (int i = 7; i <= 12; ++i)
            Fixtures::MakeDeck(QStringLiteral("Deck %1").arg(i, 2, 10, QLatin1Char('0')), 8, false);
        Fixtures::MakeSpread(QStringLiteral("Bare"), 1);
        ListOn(QStringLiteral("Bare")).cmdManager_Click();
        frmDeckChooser& chooser = Get<frmDeckChooser>();
        // The tenth deck fits, the eleventh is refused.
        for (int i = 0; i < 11; ++i) chooser.cmdAddDeck_Click();
        QCOMPARE(Prompts(), QStringList{QStringLiteral("The maximum number of decks allowed cannot exceed 10.")});
        while (chooser.lstDecks->ListCount() > 0) chooser.cmdDeleteDeck_Click();
        // Not saved, then no decks.
        MsgBoxScript::Answer(vbNo);
        MsgBoxScript::Answer(vbNo);
        chooser.cmdClose_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("No decks have been selected.  Are you sure you want to continue?"));
        QVERIFY(IsLoaded<frmDeckChooser>());  // No stays
        cleanup();

        // Installation: the chooser starts empty and writes nothing.
        TheRun.ChooserManageMode = false;
        TheRun.InstallAllSpreads = true;
        TheRun.CurrentSpread = SpreadNamed(QStringLiteral("Beta"));
        const QByteArray onDisk = ReadWholeFile(TheRun.Paths.SpreadsPath);
        frmDeckChooser& installing = Get<frmDeckChooser>();
        installing.chkInstallAll->setChecked(false);
        QVERIFY(!TheRun.InstallAllSpreads);
        installing.lstAvailableDecks->setListIndex(0);
        const QString chosen = installing.lstAvailableDecks->Text();
        installing.cmdAddDeck_Click();
        installing.cmdClose_Click();
        QVERIFY(!IsLoaded<frmDeckChooser>());
        QCOMPARE(TheRun.CurrentSpread.AllowedDeckCount, Integer(1));
        QCOMPARE(TheRun.CurrentSpread.AllowedDeckId[0], FindDeckIdByName(chosen));
        QCOMPARE(ReadWholeFile(TheRun.Paths.SpreadsPath), onDisk);
        TheRun.ChooserManageMode = true;
    }
};

QTEST_MAIN(TestSpreads)
#include "tst_spreads.moc"
