// The screen model: created at first use, loaded once, unloaded on request
// (and only when the screen agrees), shown modally with the caller waiting,
// keys seen by the screen before its controls.
#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>

#include "core/platform/Twips.h"
#include "screens/platform/Form.h"
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
}  // namespace

class TestForm : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { MsgBoxScript::Enable(); }

    void createdOnceAndFreshAfterUnload() {
        gLoads = gUnloads = 0;
        frmSample& a = Get<frmSample>();
        frmSample& b = Get<frmSample>();
        QCOMPARE(&a, &b);
        QCOMPARE(gLoads, 1);
        QVERIFY(IsLoaded<frmSample>());
        a.refuseClose = true;
        QVERIFY(!a.Unload());          // the screen may refuse
        QVERIFY(IsLoaded<frmSample>());
        a.refuseClose = false;
        QVERIFY(a.Unload());
        QCOMPARE(gUnloads, 1);
        QVERIFY(!IsLoaded<frmSample>());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Get<frmSample>();
        QCOMPARE(gLoads, 2);           // a later use starts afresh
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
        QVERIFY(shownDuringWait);
        QVERIFY(!f.Visible());
        // Unloading from inside the modal wait ends it as well.
        QTimer::singleShot(50, [&] { f.Unload(); });
        f.Show(true);
        QVERIFY(!IsLoaded<frmSample>());
    }

    void closeBoxIsARequest() {
        frmSample& f = Get<frmSample>();
        f.Show();
        f.refuseClose = true;
        f.close();
        QCOMPARE(f.lastUnloadMode, int(vbFormControlMenu));
        QVERIFY(IsLoaded<frmSample>());
        QVERIFY(f.Visible());
        f.refuseClose = false;
        f.Unload();
        QVERIFY(!IsLoaded<frmSample>());
    }

    void keyPreviewSeesKeysFirst() {
        frmSample& f = Get<frmSample>();
        f.Show();
        QTest::keyClick(f.txtName, Qt::Key_A);
        QTest::keyClick(f.txtName, Qt::Key_Escape);
        QCOMPARE(f.keysDown, QList<int>({Qt::Key_A, Qt::Key_Escape}));
        QCOMPARE(f.txtName->text(), QStringLiteral("a"));   // not handled: the box got it
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
        f.Move(1500, 3000);
        f.Show();
        QCOMPARE(f.Left(), 1500);
        QCOMPARE(f.Top(), 3000);
        QVERIFY(f.activations >= 1);
        Get<frmOther>().Show();
        QCOMPARE(f.deactivations, 1);     // another screen took the focus
        QVERIFY(FrameInnerWidth() > 0);
        UnloadScreen<frmOther>();
        UnloadScreen<frmSample>();
        SetFrameArea(nullptr);
    }
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
