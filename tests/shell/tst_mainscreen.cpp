// The frame and the main screen: Esc doing nothing, the pressed look, a
// missing manual, the quick help panels, and the exit question as the only way
// out.
#include <QDir>

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

    // Esc and an index beyond the buttons do nothing.
    void escapeAndStrayIndexesChangeNothing() {
        QTest::keyClick(main_, Qt::Key_Escape);
        main_->lblButton_Click(0);
        main_->lblButton_Click(12);
        QVERIFY(main_->Visible());
        QVERIFY(MsgBoxScript::History().isEmpty() && gEnds.isEmpty());
    }

    void journalButtonLeadsThereAndBack() {
        main_->lblButton_Click(frmMainScreen::JournalButton);
        QVERIFY(IsLoaded<frmJournal>() && !main_->Visible());
        Get<frmJournal>().cmdClose->click();
        QVERIFY(main_->Visible());
    }

    // The button acts only when released where it was pressed. Here it is
    // Help, and the manual is missing: the message, and no viewer.
    void pressedLookFollowsTheHeldButton() {
        ClickLabel* label = main_->lblButton(9);
        const QPoint inside(5, 5), outside(label->width() + 5, 5);
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), QBColor(15));
        SendMouse(label, QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), QBColor(0));
        SendMouse(label, QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
        QVERIFY(MsgBoxScript::History().isEmpty());
        QFile::remove(dir_.path() + QStringLiteral("/Cartomar.hlp"));
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        SendMouse(label, QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(Prompts(),
                 QStringList{QStringLiteral("Unable to locate help file. The file is longer in the '") + dir_.path() +
                             QStringLiteral("' directory. Recopy the help file or reinstall Cartomar.")});
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

    // No, by the Exit button or the close box, keeps the run; Yes ends it and
    // the frame's unload leaves Temp/ empty but there.
    void exitQuestionIsTheOnlyWayOut() {
        MDIMainForm& frame = Get<MDIMainForm>();
        const QString question = QStringLiteral("Are you sure you want to EXIT Cartomar?");
        MsgBoxScript::Answer(vbNo);
        main_->lblButton_Click(11);
        QCOMPARE(MsgBoxScript::History()[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
        MsgBoxScript::Answer(vbNo);
        frame.close();
        QCOMPARE(Prompts(), (QStringList{question, question}));
        QVERIFY(frame.isVisible() && gEnds.isEmpty());
        WriteWholeFile(TheRun.Paths.TempDir + QStringLiteral("work.tmp"), "x");
        MsgBoxScript::Answer(vbYes);
        frame.close();
        QCOMPARE(gEnds, QList<int>{0});
        QVERIFY(!IsLoaded<MDIMainForm>());
        QVERIFY(QFileInfo(TheRun.Paths.TempDir).isDir() && QDir(TheRun.Paths.TempDir).entryList(QDir::Files).isEmpty());
    }
};

QTEST_MAIN(TestMainScreen)
#include "tst_mainscreen.moc"
