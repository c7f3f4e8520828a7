// The list box every screen's lists are and the file lists that the design
// and package screens build on.
#include "core/platform/Errors.h"
#include "screens/platform/FileLists.h"
#include "support/ScreenTest.h"

class TestControls : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
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
        for (const char* n : {"b.JPG", "a.bmp", "c.gif", "d.txt", "e.wav"})
            WriteWholeFile(dir_.filePath(QLatin1String(n)), "x");
        QDir(dir_.path()).mkdir(QStringLiteral("sub"));
        FileListBox files;
        QSignalSpy pathChanges(&files, &FileListBox::PathChange);
        files.setPattern(QStringLiteral("*.bmp;*.jpg;*.gif"));
        files.setPath(dir_.path());
        QCOMPARE(pathChanges.count(), 1);
        QCOMPARE(files.ListCount(), 3);
        QCOMPARE(files.List(0), QStringLiteral("a.bmp"));
        files.setListIndex(1);
        QCOMPARE(files.FileName(), QStringLiteral("b.JPG"));

        DirListBox dirs;
        QSignalSpy changes(&dirs, &DirListBox::Change);
        dirs.setPath(dir_.path());
        QCOMPARE(changes.count(), 1);
        // The last row is the subfolder; Enter on it opens it.
        dirs.setCurrentRow(dirs.count() - 1);
        QTest::keyClick(&dirs, Qt::Key_Return);
        QCOMPARE(dirs.Path(), QDir::cleanPath(dir_.filePath(QStringLiteral("sub"))));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, dirs.setPath(dir_.filePath(QStringLiteral("none"))));
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
