// Bad input on the package screens and the design passwords: text past every
// limit, text the record code page cannot hold, and a package file that
// vanishes between the listing and the installation.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/FileLists.h"
#include "core/platform/FileSys.h"
#include "screens/platform/MsgBox.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/store/frmGetPassword.h"
#include "screens/store/frmSetPassword.h"
#include "core/store/RunState.h"
#include "support/BadInput.h"
#include "support/Fixtures.h"
#include "support/ModalScript.h"
#include "support/Prompts.h"

namespace {
void PasteForeign(QLineEdit* box) {
    QApplication::clipboard()->setText(BadInput::Foreign());
    box->clear();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}
}  // namespace

class TestPackageBadInput : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    int tried_ = 0;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        CommonDialogScript::Enable();
        Fixtures::UseProgramDir(program_.path());
    }

    void cleanupTestCase() { qInfo("bad inputs tried on the package and password screens: %d", tried_); }

    void init() { MsgBoxScript::Clear(); }
    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    void creationScreenHoldsItsLimits() {
        Fixtures::MakeDeck(QStringLiteral("Any"), 1, false);
        frmCreatePackage& create = Get<frmCreatePackage>();
        create.Show();
        tried_ += BadInput::TourTextBoxes(create);
        create.cmdCancel_Click();
        Settle();
    }

    // A password typed with characters no record can hold is kept as the
    // record holds it, and the same typing opens the design again.
    void aForeignPasswordIsKeptAsTheRecordHoldsIt() {
        ModalScript set;
        set.On<frmSetPassword>([this](frmSetPassword& f) {
            tried_ += BadInput::TourTextBoxes(f);
            PasteForeign(f.txtPassword1);
            PasteForeign(f.txtPassword2);
            f.cmdOK->click();
        });
        const QString stored = AskNewPassword(QString());
        QVERIFY(set.Done());
        QCOMPARE(stored, BadInput::ForeignAsStored);

        ModalScript get;
        get.On<frmGetPassword>([this](frmGetPassword& f) {
            tried_ += BadInput::TourTextBoxes(f);
            PasteForeign(f.txtPassword);
            QTest::keyClick(f.txtPassword, Qt::Key_Return);
        });
        QVERIFY(CheckPassword(stored));
        QVERIFY(get.Done());
        Settle();
    }

    // The package was listed, then deleted: the installation says so and
    // stays for another choice; nothing is installed.
    void aPackageThatVanishedAfterTheListingIsReported() {
        const QByteArray decksBefore = ReadWholeFile(DecksPath);
        WriteWholeFile(PackagesDir + QStringLiteral("gone.pck"), QByteArray("anything"));
        frmInstallPackage& install = Get<frmInstallPackage>();
        install.ShowFolder(PackagesDir);
        for (int i = 0; i < install.filSelection->ListCount(); ++i)
            if (install.filSelection->List(i) == QStringLiteral("gone.pck")) install.filSelection->setListIndex(i);
        QVERIFY(install.cmdInstall->isEnabled());
        Kill(PackagesDir + QStringLiteral("gone.pck"));
        install.cmdInstall_Click();
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Unable to open package")});
        QCOMPARE(ReadWholeFile(DecksPath), decksBefore);
        QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
        QVERIFY(IsLoaded<frmInstallPackage>());
        install.cmdCancel_Click();
        Settle();
    }
};

QTEST_MAIN(TestPackageBadInput)
#include "tst_badinput.moc"
