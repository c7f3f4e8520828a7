// The file choosers and the media player that the design and package screens
// build on.
#include <QTemporaryDir>
#include <QtTest>

#include "platform/CommonDialog.h"
#include "platform/Errors.h"
#include "platform/FileLists.h"
#include "platform/FileSys.h"
#include "platform/MediaPlayer.h"

class TestControls : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
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
        QCOMPARE(files.FileName(), QString());   // nothing chosen yet
        QSignalSpy clicks(&files, &FileListBox::Click);
        files.setListIndex(1);
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(files.FileName(), QStringLiteral("b.JPG"));

        DirListBox dirs;
        QSignalSpy changes(&dirs, &DirListBox::Change);
        dirs.setPath(dir_.path());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(dirs.Path(), QDir::cleanPath(dir_.path()));
        // The last row is the subfolder; Enter on it opens it.
        dirs.setCurrentRow(dirs.count() - 1);
        QTest::keyClick(&dirs, Qt::Key_Return);
        QCOMPARE(dirs.Path(), QDir::cleanPath(dir_.filePath(QStringLiteral("sub"))));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, dirs.setPath(dir_.filePath(QStringLiteral("none"))));
    }

    void scriptedDialogs() {
        CommonDialogScript::Enable();
        CommonDialog dlg;
        dlg.CancelError = true;
        dlg.DialogTitle = QStringLiteral("Select Attachment");
        CommonDialogScript::Cancel();
        try {
            dlg.ShowOpen();
            QFAIL("a cancelled dialogue must raise when asked to");
        } catch (const RuntimeError& e) {
            QCOMPARE(e.Number(), 32755);
        }
        dlg.CancelError = false;
        CommonDialogScript::Answer(QStringLiteral("/tmp/some/file.txt"));
        QVERIFY(dlg.ShowSave());
        QCOMPARE(dlg.FileName, QStringLiteral("/tmp/some/file.txt"));
        QCOMPARE(dlg.FileTitle, QStringLiteral("file.txt"));
        QCOMPARE(CommonDialogScript::History().size(), 2);
        QCOMPARE(CommonDialogScript::History()[0].title, QStringLiteral("Select Attachment"));
    }

    void playerLoadsWithoutStarting() {
        MediaPlayerScript::Enable();
        MediaPlayer player;
        player.Open(dir_.filePath(QStringLiteral("e.wav")), false);
        QVERIFY(!player.IsPlaying());
        QVERIFY(player.FileName().endsWith(QLatin1String("e.wav")));
        player.Play();
        QVERIFY(player.IsPlaying());
        player.Close();
        QVERIFY(!player.IsPlaying());
        QVERIFY(player.FileName().isEmpty());
        player.Open(dir_.filePath(QStringLiteral("e.wav")), true);
        QVERIFY(player.IsPlaying());
        player.Open(QString(), true);   // nothing to play: stops
        QVERIFY(!player.IsPlaying());
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
