// Bad input on the spread screens: text past every limit, text the record
// code page cannot hold, and a background picture that vanishes between the
// choice and the OK.
#include <QApplication>
#include <QClipboard>
#include <QTemporaryDir>
#include <QtTest>

#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmGetSpreadBackground.h"
#include "screens/spreads/frmSaveSpread.h"
#include "screens/spreads/frmSpreads.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "support/BadInput.h"
#include "support/Fixtures.h"
#include "SpreadTestKit.h"

using namespace SpreadTestKit;

class TestSpreadBadInput : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    int tried_ = 0;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        Fixtures::UseProgramDir(dir_.path());
    }

    void cleanupTestCase() { qInfo("bad inputs tried on the spread screens: %d", tried_); }

    void spreadScreensHoldTheirLimitsAndTheCodePage() {
        Get<frmSpreads>().Show();
        Get<frmSpreads>().cmdDesign_Click();
        frmDesignSpread& designer = Get<frmDesignSpread>();
        tried_ += BadInput::TourTextBoxes(designer);

        // A background that is gone by the time OK is pressed: the spread
        // keeps the background it had.
        const QString picture = dir_.filePath(QStringLiteral("back.bmp"));
        Fixtures::WritePicture(picture);
        ModalScript script;
        script.On<frmGetSpreadBackground>([&](frmGetSpreadBackground& screen) {
            tried_ += BadInput::TourTextBoxes(screen);
            screen.txtFilename->setText(picture);
            QFile::remove(picture);
            screen.cmdOK_Click();
            QVERIFY(IsLoaded<frmGetSpreadBackground>());   // told, and still there
            screen.cmdCancel_Click();
        });
        designer.cmdPicture_Click();
        QVERIFY(script.Done());
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("There is no file with the name you provided!"));
        QVERIFY(CurrentSpread.BackgroundFile.IsBlank());
        ++tried_;

        for (int pass = 0; pass < 2; ++pass) {
            if (pass == 1) MsgBoxScript::Answer(vbNo);
            script.On<frmSaveSpread>([&, pass](frmSaveSpread& save) {
                if (pass == 0) tried_ += BadInput::TourTextBoxes(save);
                QApplication::clipboard()->setText(BadInput::Foreign());
                save.txtSaveAs->clear();
                save.txtSaveAs->setFocus();
                QTest::keyClick(save.txtSaveAs, Qt::Key_V, Qt::ControlModifier);
                QCOMPARE(save.txtSaveAs->Text(), BadInput::ForeignAsStored);
                save.cmdSave_Click();
                if (pass == 1) save.cmdCancel_Click();
            });
            designer.cmdSave_Click();
            QVERIFY(script.Done());
        }
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Spread already exists. Overwrite?"));
        QCOMPARE(CountSpreads(), 1);
        SpreadRecord saved;
        GetRecord(SpreadsPath, 1, saved);
        QCOMPARE(saved.SpreadName.Trimmed(), BadInput::ForeignAsStored);
        tried_ += 2;
        designer.SpreadDirty = false;
        UnloadScreen<frmDesignSpread>();
        UnloadScreen<frmSpreads>();
        Settle();
    }
};

QTEST_MAIN(TestSpreadBadInput)
#include "tst_badinput.moc"
