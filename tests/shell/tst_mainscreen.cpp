// The frame and the main screen: the start-up run from the frame's load, Esc
// doing nothing, the pressed look, a missing manual, the quick help panels, and
// the exit question as the only way out.
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/platform/Palette.h"
#include "screens/diary/frmDiaryHelp.h"
#include "screens/journal/frmJournal.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/readings/frmQuickHelp.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/widgets/ClickLabel.h"
#include "spreads/SpreadTestKit.h"
#include "support/ScreenTest.h"

namespace {

QList<int> gEnds;
using SpreadTestKit::SendMouse;

}  // namespace

class TestMainScreen : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    frmMainScreen* main_ = nullptr;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        SetEndProcessHook([](int code) { gEnds.append(code); });
        Fixtures::StandUpFrame(dir_.path());
        main_ = &Get<frmMainScreen>();
    }

    void init() { MsgBoxScript::Clear(); }
    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    void theFrameLoadRunsTheStartup() {
        MDIMainForm& frame = Get<MDIMainForm>();
        QVERIFY(frame.isVisible());
        QCOMPARE(AppPath, dir_.path() + QLatin1Char('/'));
        QVERIFY(QFileInfo(dir_.path() + QStringLiteral("/Temp")).isDir());
        QVERIFY(main_->Visible());
        QVERIFY(!FrameArea()->subWindowList().isEmpty());
        QCOMPARE(FrameArea()->subWindowList().first()->widget(), main_);
    }

    void escapeAndStrayIndexesChangeNothing() {
        const int left = main_->Left(), top = main_->Top();
        QTest::keyClick(main_, Qt::Key_Escape);
        main_->lblButton_Click(0);
        main_->lblButton_Click(12);
        QVERIFY(main_->Visible());
        QVERIFY(IsLoaded<frmMainScreen>());
        QCOMPARE(main_->Left(), left);
        QCOMPARE(main_->Top(), top);
        QVERIFY(MsgBoxScript::History().isEmpty());
        QVERIFY(gEnds.isEmpty());
        QVERIFY(main_->cursor().shape() != Qt::WaitCursor);
    }

    void journalButtonLeadsThereAndBack() {
        main_->lblButton_Click(frmMainScreen::JournalButton);
        QVERIFY(IsLoaded<frmJournal>() && !main_->Visible());
        Get<frmJournal>().cmdClose->click();
        QVERIFY(main_->Visible());
    }

    void pressedLookFollowsTheHeldButton() {
        ClickLabel* label = main_->lblButton(9);
        const QColor down = QBColor(15), up = QBColor(0);
        const QPoint inside(5, 5), outside(label->width() + 5, 5);
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), down);
        SendMouse(label, QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), up);
        SendMouse(label, QEvent::MouseMove, inside, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), down);
        SendMouse(label, QEvent::MouseMove, QPoint(-1, 5), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), up);
        // Released outside: black, and no action.
        SendMouse(label, QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(label->BackColor(), up);
        QVERIFY(MsgBoxScript::History().isEmpty());
        // A hover without a button changes nothing.
        SendMouse(label, QEvent::MouseMove, inside, Qt::NoButton, Qt::NoButton);
        QCOMPARE(label->BackColor(), up);
        // Pressed and released inside: the button acts. Here it is Help, and
        // the manual is missing from the folder: the message, and no viewer.
        QFile::remove(dir_.path() + QStringLiteral("/Cartomar.hlp"));
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        SendMouse(label, QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(label->BackColor(), up);
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Unable to locate help file. The file is longer in the '") + dir_.path() +
                     QStringLiteral("' directory. Recopy the help file or reinstall Cartomar.")});
        QCOMPARE(MsgBoxScript::History()[0].style, int(vbCritical));
        QVERIFY(main_->Visible());
        QVERIFY(!IsLoaded<frmHelpViewer>());
    }

    void quickHelpPanelsGoOnEscAndOnLosingTheFocus() {
        frmQuickHelp& quick = Get<frmQuickHelp>();
        quick.Show();
        QTest::keyClick(&quick, Qt::Key_Escape);
        QVERIFY(!IsLoaded<frmQuickHelp>());

        frmDiaryHelp& diary = Get<frmDiaryHelp>();
        diary.Show();
        diary.NotifyActivated(true);
        diary.NotifyActivated(false);
        QVERIFY(!IsLoaded<frmDiaryHelp>());
        Settle();
    }

    void exitQuestionIsTheOnlyWayOut() {
        MDIMainForm& frame = Get<MDIMainForm>();
        const QString question = QStringLiteral("Are you sure you want to EXIT Cartomar?");

        MsgBoxScript::Answer(vbNo);
        main_->lblButton_Click(11);
        QCOMPARE(Prompts(), QStringList{question});
        QCOMPARE(MsgBoxScript::History()[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
        QVERIFY(gEnds.isEmpty());

        // The close box asks too, and is refused whatever the answer.
        MsgBoxScript::Answer(vbNo);
        frame.close();
        QCOMPARE(MsgBoxScript::History().size(), 2);
        QCOMPARE(MsgBoxScript::History()[1].prompt, question);
        QVERIFY(IsLoaded<MDIMainForm>());
        QVERIFY(frame.isVisible());
        QVERIFY(gEnds.isEmpty());

        // Yes ends the run; the frame's unload leaves Temp/ empty but there.
        WriteWholeFile(TempDir + QStringLiteral("work.tmp"), "x");
        MsgBoxScript::Answer(vbYes);
        frame.close();
        QCOMPARE(gEnds, QList<int>{0});
        QVERIFY(!IsLoaded<MDIMainForm>());
        QVERIFY(QFileInfo(TempDir).isDir());
        QVERIFY(QDir(TempDir).entryList(QDir::Files).isEmpty());
    }
};

QTEST_MAIN(TestMainScreen)
#include "tst_mainscreen.moc"
