// The choice of a spread's background: the checks a chosen file passes, in
// their order, and the working copy in Temp/ the designer works on.
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

class TestSpreadBackground : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void initTestCase() { Fixtures::UseProgramDir(dir_.path()); }

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
};

QTEST_MAIN(TestSpreadBackground)
#include "tst_spreadbackground.moc"
