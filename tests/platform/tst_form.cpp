// The screen model: created at first use, loaded once, unloaded on request
// (and only when the screen agrees), gone again when its loading fails, shown
// modally with the caller waiting, keys seen by the screen before its
// controls; the list box every screen's lists are and the file lists the
// design and package screens build on; message boxes and the error report.
#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>
#include <functional>

#include "core/platform/Arrays.h"
#include "core/platform/Errors.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/diary/frmOpenDiary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/FileLists.h"
#include "screens/platform/Form.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/spreads/frmSpreadInfo.h"
#include "screens/spreads/frmSpreads.h"
#include "support/ScreenTest.h"

namespace {
int gLoads = 0;
int gUnloads = 0;

class frmSample : public Form {
public:
    frmSample() {
        resize(200, 100);
        txtName = new QLineEdit(this);
    }
    QLineEdit* txtName;
    bool refuseClose = false;
    int lastUnloadMode = -1;
    QList<int> keysDown;
    int activations = 0;
    int deactivations = 0;

protected:
    void Form_Load() override { ++gLoads; }
    void Form_QueryUnload(bool& cancel, int mode) override {
        lastUnloadMode = mode;
        cancel = refuseClose;
    }
    void Form_Unload(bool&) override { ++gUnloads; }
    void Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) override {
        keysDown.append(key);
        handled = key == Qt::Key_Escape;
    }
    void Form_Activate() override { ++activations; }
    void Form_Deactivate() override { ++deactivations; }
};

class frmOther : public Form {
public:
    frmOther() { resize(100, 100); }
};

// A screen of each kind whose loading meets a file it cannot use: how the
// file is spoilt, how the user opens the screen, and whether anything the
// opening loaded is left.
struct FailingLoad {
    std::function<void()> spoil;
    std::function<void()> open;
    std::function<bool()> left;
};

// A record file that cannot be read: a folder stands in its place.
void Unreadable(const QString& path) {
    QFile::remove(path);
    QDir().mkdir(path);
}

std::function<void()> MainButton(int index) {
    return [index] {
        Get<frmMainScreen>().Show();
        Guarded([index] { Get<frmMainScreen>().lblButton_Click(index); });
    };
}

const FailingLoad kFailingLoads[] = {
    {[] {
         ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1,
                                    [](SpreadRecord& s) { s.BackgroundFile = "S000001.bmp"; });
     },
     [] {
         Get<frmSpreads>().SelectSpread(QStringLiteral("First"));
         Get<frmSpreads>().cmdInfo->click();
     },
     IsLoaded<frmSpreadInfo>},
    {[] {
         ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 1, [](CardRecord& c) { c.CardSound[0] = "MCU00001.wav"; });
     },
     [] {
         Get<frmDecks>().lstDecks->setListIndex(0);
         Get<frmDecks>().cmdInfo->click();
     },
     IsLoaded<frmDeckInfo>},
    {[] { Unreadable(TheRun.Paths.ReadingsPath); }, MainButton(2),
     [] { return IsLoaded<frmOpenReading>() || IsLoaded<frmNewReading>(); }},
    {[] { Unreadable(TheRun.Paths.DiaryPath); }, MainButton(4),
     [] { return IsLoaded<frmOpenDiary>() || IsLoaded<frmNewDiary>(); }},
    {[] { Unreadable(TheRun.Paths.DecksPath); }, MainButton(8), IsLoaded<frmCreatePackage>},
};
}  // namespace

class TestForm : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { MsgBoxScript::Enable(); }
    void init() { MsgBoxScript::Clear(); }

    void createdOnceAndFreshAfterUnload() {
        gLoads = gUnloads = 0;
        frmSample& a = Get<frmSample>();
        frmSample& b = Get<frmSample>();
        QCOMPARE(&a, &b);
        QCOMPARE(gLoads, 1);
        // The close box is a request the screen may refuse.
        a.Show();
        a.refuseClose = true;
        a.close();
        QCOMPARE(a.lastUnloadMode, int(vbFormControlMenu));
        QVERIFY(IsLoaded<frmSample>() && a.Visible());
        a.refuseClose = false;
        QVERIFY(a.Unload());
        QCOMPARE(gUnloads, 1);
        QVERIFY(!IsLoaded<frmSample>());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Get<frmSample>();
        QCOMPARE(gLoads, 2);  // a later use starts afresh
        UnloadScreen<frmSample>();
    }

    void modalShowWaitsUntilHidden() {
        frmSample& f = Get<frmSample>();
        bool shownDuringWait = false;
        QTimer::singleShot(50, [&] {
            shownDuringWait = f.Visible() && f.ShownModal();
            f.Hide();
        });
        f.Show(true);
        QVERIFY(shownDuringWait && !f.Visible());
        // Unloading from inside the modal wait ends it as well.
        QTimer::singleShot(50, [&] { f.Unload(); });
        f.Show(true);
        QVERIFY(!IsLoaded<frmSample>());
    }

    // A screen whose loading fails shows the error box and is gone, with
    // what its opening loaded: the next use loads it afresh instead of
    // bringing back the half-loaded one.
    void aScreenThatFailsToLoadIsNotKept_data() {
        QTest::addColumn<int>("screen");
        QTest::newRow("the spread viewer, its background gone") << 0;
        QTest::newRow("the deck viewer, a sound gone") << 1;
        QTest::newRow("the saved readings, their file unreadable") << 2;
        QTest::newRow("the saved diary entries, their file unreadable") << 3;
        QTest::newRow("package creation, the decks unreadable") << 4;
    }
    void aScreenThatFailsToLoadIsNotKept() {
        QFETCH(int, screen);
        const FailingLoad& failing = kFailingLoads[screen];
        QTemporaryDir dir;
        Fixtures::UseProgramDir(dir.path());
        for (const char* name : {"First", "Second"}) {
            Fixtures::MakeDeck(QLatin1String(name), 2, false);
            Fixtures::MakeSpread(QLatin1String(name), 2);
        }
        failing.spoil();
        failing.open();
        QCOMPARE(Prompts().size(), 1);
        QVERIFY(Prompts().first().startsWith(QStringLiteral("Run-time error '")));
        QVERIFY(!failing.left());
        QVERIFY(!QApplication::overrideCursor());  // the hourglass went with the operation
        if (IsLoaded<frmMainScreen>()) QVERIFY(Get<frmMainScreen>().Visible());  // back where it was
        for (auto unload : {UnloadScreen<frmSpreadInfo>, UnloadScreen<frmSpreads>, UnloadScreen<frmDecks>,
                            UnloadScreen<frmMainScreen>})
            unload();
        Settle();
    }

    void keyPreviewSeesKeysFirst() {
        frmSample& f = Get<frmSample>();
        f.Show();
        QTest::keyClick(f.txtName, Qt::Key_A);
        QTest::keyClick(f.txtName, Qt::Key_Escape);
        QCOMPARE(f.keysDown, QList<int>({Qt::Key_A, Qt::Key_Escape}));
        QCOMPARE(f.txtName->text(), QStringLiteral("a"));  // not handled: the box got it
        f.Unload();
    }

    void screensInTheFrameTrackActivation() {
        QMainWindow frame;
        auto* area = new QMdiArea(&frame);
        frame.setCentralWidget(area);
        frame.resize(800, 600);
        frame.show();
        SetFrameArea(area);
        frmSample& f = Get<frmSample>();
        f.Show();
        QVERIFY(f.activations >= 1);
        Get<frmOther>().Show();
        QCOMPARE(f.deactivations, 1);  // another screen took the focus
        UnloadScreen<frmOther>();
        UnloadScreen<frmSample>();
        SetFrameArea(nullptr);
    }

    // Click runs once for each change of the selection, whether the mouse,
    // the keys or the program made it, and once for a click on the selected
    // entry; filling and emptying the list run nothing.
    void listClickRunsOncePerSelection_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("clicks");
        QTest::addColumn<int>("selected");
        QTest::newRow("mouse on another entry") << "mouse 2" << 1 << 2;
        QTest::newRow("mouse on the selected entry") << "mouse 0" << 1 << 0;
        QTest::newRow("ctrl and mouse keep the selection") << "ctrl 0" << 1 << 0;
        QTest::newRow("double click") << "double 1" << 1 << 1;
        QTest::newRow("arrow down") << "down" << 1 << 1;
        QTest::newRow("arrow up at the top") << "up" << 0 << 0;
        QTest::newRow("first arrow with nothing selected") << "focus" << 1 << 0;
        QTest::newRow("program selects") << "code 2" << 1 << 2;
        QTest::newRow("program selects the selected") << "code 0" << 1 << 0;
        QTest::newRow("program clears") << "code -1" << 0 << -1;
        QTest::newRow("filling and emptying") << "fill" << 0 << -1;
    }
    void listClickRunsOncePerSelection() {
        QFETCH(QString, action);
        QFETCH(int, clicks);
        QFETCH(int, selected);
        ListBox list;
        list.setSorted(true);
        for (const char* name : {"b", "C", "a"}) list.AddItem(QLatin1String(name));
        QCOMPARE(list.List(2), QStringLiteral("C"));  // sorted, capitals among small letters
        list.show();
        list.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        list.setListIndex(0);
        QSignalSpy clicked(&list, &ListBox::Click);
        const QStringList words = action.split(QLatin1Char(' '));
        const int row = words.value(1).toInt();
        const QPoint at = row >= 0 ? list.visualItemRect(list.item(row)).center() : QPoint();
        if (words[0] == QLatin1String("mouse")) QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        if (words[0] == QLatin1String("ctrl"))
            QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, at);
        if (words[0] == QLatin1String("double")) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
        if (words[0] == QLatin1String("down")) QTest::keyClick(&list, Qt::Key_Down);
        if (words[0] == QLatin1String("up")) QTest::keyClick(&list, Qt::Key_Up);
        if (words[0] == QLatin1String("focus")) {
            list.setListIndex(-1);
            list.clearFocus();
            list.setFocus();
            QTest::keyClick(&list, Qt::Key_Down);
        }
        if (words[0] == QLatin1String("code")) list.setListIndex(row);
        if (words[0] == QLatin1String("fill")) {
            list.AddItem(QStringLiteral("d"));
            list.RemoveItem(0);
            list.Clear();
        }
        QCOMPARE(clicked.count(), clicks);
        QCOMPARE(list.ListIndex(), selected);
    }

    void fileListFollowsPathAndPatterns() {
        QTemporaryDir dir;
        for (const char* n : {"b.JPG", "a.bmp", "c.gif", "d.txt", "e.wav"})
            WriteWholeFile(dir.filePath(QLatin1String(n)), "x");
        QDir(dir.path()).mkdir(QStringLiteral("sub"));
        FileListBox files;
        QSignalSpy pathChanges(&files, &FileListBox::PathChange);
        files.setPattern(QStringLiteral("*.bmp;*.jpg;*.gif"));
        files.setPath(dir.path());
        QCOMPARE(pathChanges.count(), 1);
        QCOMPARE(files.ListCount(), 3);
        QCOMPARE(files.List(0), QStringLiteral("a.bmp"));
        files.setListIndex(1);
        QCOMPARE(files.FileName(), QStringLiteral("b.JPG"));

        DirListBox dirs;
        QSignalSpy changes(&dirs, &DirListBox::Change);
        dirs.setPath(dir.path());
        QCOMPARE(changes.count(), 1);
        // The last row is the subfolder; Enter on it opens it.
        dirs.setCurrentRow(dirs.count() - 1);
        QTest::keyClick(&dirs, Qt::Key_Return);
        QCOMPARE(dirs.Path(), QDir::cleanPath(dir.filePath(QStringLiteral("sub"))));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, dirs.setPath(dir.filePath(QStringLiteral("none"))));
    }

    // A box is titled with the program's name; a question left alone takes
    // its default button; a break written as CR or CR LF shows as "\n" does.
    void messageBoxesTakeTitleDefaultAndBreaks() {
        QCOMPARE(MsgBox(QStringLiteral("Save?"), vbYesNoCancel | vbDefaultButton2), int(vbNo));
        QCOMPARE(MsgBoxScript::History()[0].title, QStringLiteral("Cartomar"));
        for (const char* text : {"Line\rnext", "Line\r\nnext"}) {
            MsgBox(QString::fromLatin1(text));
            QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Line\nnext"));
        }
    }

    // A real box over a screen that goes while the box waits (as a screen
    // unloaded just before the box was asked for goes at the next turn of
    // the event loop) ends with the Esc answer instead of a crash.
    void aBoxWhoseScreenGoesAnswersAsEsc() {
        MsgBoxScript::Disable();
        auto* screen = new QWidget;
        screen->show();
        QApplication::setActiveWindow(screen);
        screen->deleteLater();
        QCOMPARE(MsgBox(QStringLiteral("Save changes?"), vbYesNoCancel | vbQuestion), int(vbCancel));
        auto* other = new QWidget;
        other->show();
        QApplication::setActiveWindow(other);
        other->deleteLater();
        QCOMPARE(MsgBox(QStringLiteral("Done.")), int(vbOK));
        MsgBoxScript::Enable();
    }

    void errorsReportAndEndOnlyTheOperation() {
        bool after = false;
        const bool ok = Guarded([&] {
            BoundedArray<int> cards(1, 3);
            cards(3) = 1;
            cards(4) = 2;  // past the end: the toolkit's subscript error
            after = true;
        });
        QVERIFY(!ok);
        QVERIFY(!after);
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Run-time error '9':\n\nSubscript out of range")});
        QCOMPARE(MsgBoxScript::History()[0].style & 0x70, int(vbCritical));
        QVERIFY(Guarded([] {}));
    }
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
