// The store's questions: design passwords, the design-exists question and
// the offer to remove a deck that lost cards. What the user types decides
// access, cancelling stays silent, and the installer gets the answer; text
// past the limits and text no record can hold.
#include <QTemporaryDir>

#include "core/store/Lookups.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/store/frmDesignExists.h"
#include "screens/store/frmGetPassword.h"
#include "screens/store/frmSetPassword.h"
#include "support/BadInput.h"
#include "support/ScreenTest.h"

namespace {
bool Check(const QString& stored, const QString& typed, bool cancel = false) {
    ModalScript script;
    script.On<frmGetPassword>([typed, cancel](frmGetPassword& f) {
        f.txtPassword->setText(typed);
        if (cancel) QTest::keyClick(f.txtPassword, Qt::Key_Escape);
        else QTest::keyClick(f.txtPassword, Qt::Key_Return);  // Enter acts as OK
    });
    const bool granted = CheckPassword(stored);
    if (!script.Done()) QTest::qFail("the password screen never came", __FILE__, __LINE__);
    return granted;
}
}  // namespace

class TestPasswords : public QObject {
    Q_OBJECT
private slots:
    void init() {
        MsgBoxScript::Enable();
        MsgBoxScript::Clear();
    }

    // The screen: Enter acts as OK, a wrong password is told, a cancel is not.
    void checkPassword() {
        QVERIFY(Check(QStringLiteral("Secret"), QStringLiteral("Secret")));
        QVERIFY(MsgBoxScript::History().isEmpty());
        QVERIFY(!Check(QStringLiteral("Secret"), QStringLiteral("secret")));
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Incorrect password. Access Denied.")});
        MsgBoxScript::Clear();
        QVERIFY(!Check(QStringLiteral("Secret"), QStringLiteral("Secret"), true));
        QVERIFY(MsgBoxScript::History().isEmpty());
    }

    void askNewPassword() {
        ModalScript script;
        script.On<frmSetPassword>([](frmSetPassword& f) {
            f.txtPassword1->setText(QStringLiteral("abc"));
            f.txtPassword2->setText(QStringLiteral("abd"));
            f.cmdOK->click();
            // A mismatch empties both boxes and stays.
            QVERIFY(f.txtPassword1->text().isEmpty() && f.txtPassword2->text().isEmpty());
            f.txtPassword1->setText(QStringLiteral("Moon"));
            QTest::keyClick(f.txtPassword1, Qt::Key_Return);  // Enter moves on
            QTest::keyClicks(f.txtPassword2, QStringLiteral("Moon"));
            QTest::keyClick(f.txtPassword2, Qt::Key_Return);  // and then acts as OK
        });
        QCOMPARE(AskNewPassword(QStringLiteral("old")), QStringLiteral("Moon"));
        QCOMPARE(Prompts(), QStringList{QStringLiteral("The two passwords do not match.")});

        script.On<frmSetPassword>([](frmSetPassword& f) {
            f.txtPassword1->setText(QStringLiteral("x"));
            QTest::keyClick(f.txtPassword1, Qt::Key_Escape);
        });
        QCOMPARE(AskNewPassword(QStringLiteral("old")), QStringLiteral("old"));
        QVERIFY(script.Done());
    }

    void designExistsAnswers() {
        TheRun.DesignExistsChoice = 0;
        ModalScript script;
        script.On<frmDesignExists>([](frmDesignExists& f) {
            QCOMPARE(f.Caption(), QStringLiteral("Deck 'Rider Waite' exists."));
            f.cmdOverwriteAll->click();
        });
        Get<frmDesignExists>().Ask(DesignDeck, QStringLiteral("Rider Waite"));
        QCOMPARE(TheRun.DesignExistsChoice, 4);

        // Rename: the proposal keeps 23 characters of the name and adds " (Copy)".
        QStringList offered;
        script.On<frmDesignExists>([&offered](frmDesignExists& f) {
            f.NameInUse = [](int design, const QString& padded) {
                return design == DesignSpread && padded == QStringLiteral("Taken").leftJustified(30);
            };
            f.cmdRename->click();
            offered << f.txtDesignName->text();
            f.txtDesignName->setText(QStringLiteral("   "));
            f.cmdOK->click();  // blank
            f.txtDesignName->setText(QStringLiteral("Taken"));
            f.cmdOK->click();  // in use
            f.cmdCancel->click();
            QVERIFY(f.picDoWhat->isVisible() && f.txtDesignName->text().isEmpty());
            f.cmdRename->click();
            f.txtDesignName->setText(QStringLiteral("  Celtic Cross Mine "));
            QTest::keyClick(f.txtDesignName, Qt::Key_Return);
        });
        Get<frmDesignExists>().Ask(DesignSpread, QStringLiteral("A Very Long Spread Name Indeed"));
        QVERIFY(script.Done());
        QCOMPARE(offered, QStringList({QStringLiteral("A Very Long Spread Name (Copy)")}));
        QCOMPARE(Prompts(), (QStringList{QStringLiteral("You must enter a design name."),
                                         QStringLiteral("You already have a design with this name. Please enter a "
                                                        "change the name or click 'Cancel' to return to the "
                                                        "previous page.")}));
        QCOMPARE(TheRun.DesignExistsChoice, 1);
        QCOMPARE(TheRun.DesignExistsNewName, QStringLiteral("Celtic Cross Mine"));
    }

    // The screens' question about a deck that lost cards: No keeps it, Yes
    // removes it (what goes with it is DeleteDeck's, checked with the delete
    // passes).
    void aDeckThatLostCardsIsOfferedForRemoval() {
        QTemporaryDir dir;
        Fixtures::UseProgramDir(dir.path());
        const Integer id = Fixtures::MakeDeck(QStringLiteral("Tarot"), 2, false);
        bool removed = true;
        GetRecord(TheRun.Paths.DecksPath, 1, TheRun.ListDeck);
        QVERIFY(LoadDeck(removed));  // a whole deck loads without a word
        QVERIFY(!removed && Prompts().isEmpty());

        TheRun.ListDeck.CardCount = 3;
        MsgBoxScript::Answer(vbNo);
        QVERIFY(!LoadDeck(removed) && !removed);
        QCOMPARE(Prompts(), QStringList{QStringLiteral("This deck is missing some pictures. Cannot continue loading.\n"
                                                       "Do you want to remove it?")});
        QCOMPARE(FindDeckRecordById(id), 1);

        MsgBoxScript::Answer(vbYes);
        QVERIFY(!LoadDeck(removed) && removed);
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        QCOMPARE(FindDeckRecordById(id), -1);
    }

    // A password typed with characters no record can hold is kept as the
    // record holds it, and the same typing opens the design again.
    void aForeignPasswordIsKeptAsTheRecordHoldsIt() {
        ModalScript set;
        set.On<frmSetPassword>([](frmSetPassword& f) {
            BadInput::TourTextBoxes(f);
            BadInput::PasteForeign(f.txtPassword1);
            BadInput::PasteForeign(f.txtPassword2);
            f.cmdOK->click();
        });
        const QString stored = AskNewPassword(QString());
        QVERIFY(set.Done());
        QCOMPARE(stored, BadInput::ForeignAsStored);
        ModalScript get;
        get.On<frmGetPassword>([](frmGetPassword& f) {
            BadInput::TourTextBoxes(f);
            BadInput::PasteForeign(f.txtPassword);
            QTest::keyClick(f.txtPassword, Qt::Key_Return);
        });
        QVERIFY(CheckPassword(stored));
        QVERIFY(get.Done());
        Settle();
    }
};

QTEST_MAIN(TestPasswords)
#include "tst_passwords.moc"
