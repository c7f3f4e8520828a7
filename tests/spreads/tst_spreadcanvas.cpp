// The designer's canvas: the grid and snapping arithmetic to the twip, the
// limits of adding and removing locations, the keys of a rectangle, and what
// opening the notes or a location's attributes changes.
#include "SpreadTestKit.h"
#include "core/store/NewDesigns.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSpreadComments.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ImageBox.h"
#include "support/ScreenTest.h"

using namespace SpreadTestKit;

class TestSpreadCanvas : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    frmDesignSpread* d_ = nullptr;

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
    }
    void init() { MsgBoxScript::Clear(); }
    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }
    void cleanupTestCase() {
        UnloadScreen<frmDesignSpread>();
        UnloadScreen<frmSpreads>();
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
        Nudge(d, Qt::Key_Left, Qt::ShiftModifier);
        Nudge(d, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(QPoint(d.picLocation(1)->Left(), d.picLocation(1)->Top()), QPoint(0, 0));
        QVERIFY(!d.SpreadDirty);  // a nudge does not mark the design
        for (const Qt::KeyboardModifiers others : {Qt::AltModifier, Qt::ControlModifier, Qt::NoModifier})
            Nudge(d, Qt::Key_Right, others == Qt::NoModifier ? others : others | Qt::ShiftModifier);
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

private:
    void Nudge(frmDesignSpread& d, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(d.picLocation(1), key, modifiers);
    }
};

QTEST_MAIN(TestSpreadCanvas)
#include "tst_spreadcanvas.moc"
