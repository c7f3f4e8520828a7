// The spread list, the viewer and the deck chooser, and spreads whose
// location file holds what does not belong to them.
#include "SpreadTestKit.h"
#include "core/platform/OleDate.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/SpreadDetailsPage.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/spreads/frmSpreadInfo.h"
#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/store/frmGetPassword.h"
#include "support/ScreenTest.h"

using namespace SpreadTestKit;

namespace {
SpreadRecord SpreadNamed(const QString& name) {
    SpreadRecord spread;
    GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), spread);
    return spread;
}

void Rewrite(const QString& name, const std::function<void(SpreadRecord&)>& change) {
    ChangeRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), change);
}

frmSpreads& ListOn(const QString& name) {
    UnloadScreen<frmSpreads>();
    Settle();
    frmSpreads& list = Get<frmSpreads>();
    list.Show();
    list.lstSpreads->setListIndex(list.GetIndexOf(name));
    return list;
}
}  // namespace

class TestSpreadScreens : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    QList<Integer> decks_;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        Fixtures::UseProgramDir(dir_.path());
    }
    void init() { MsgBoxScript::Clear(); }
    void cleanup() {
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        for (auto unload : {UnloadScreen<frmSpreadInfo_LocationAttributes>, UnloadScreen<frmSpreadInfo>,
                            UnloadScreen<frmDeckChooser>, UnloadScreen<frmDesignSpread>, UnloadScreen<frmSpreads>})
            unload();
        Settle();
    }

    void anEmptyListIsLeftForTheMainScreen() {
        // Reached from the main screen, which hides meanwhile.
        frmMainScreen& main = Get<frmMainScreen>();
        main.Show();
        main.lblButton_Click(6);
        QVERIFY(!main.Visible() && IsLoaded<frmSpreads>());
        frmSpreads& list = Get<frmSpreads>();
        QCOMPARE(list.GetIndexOf(QStringLiteral("anything")), -1);
        QTest::keyClick(list.lstSpreads, Qt::Key_Escape);
        QVERIFY(!IsLoaded<frmSpreads>() && main.Visible());
    }

    void theListSummarisesAndDeletes() {
        for (int i = 1; i <= 6; ++i) decks_.append(Fixtures::MakeDeck(QStringLiteral("Deck %1").arg(i), 8, false));
        Fixtures::MakeSpread(QStringLiteral("celtic"), 3, {decks_[0]});
        Fixtures::MakeSpread(QStringLiteral("Alpha"), 2, {}, true);
        Fixtures::MakeSpread(QStringLiteral("Beta"), 4, {decks_[0], decks_[1]});
        Rewrite(QStringLiteral("Beta"), [](SpreadRecord& s) {
            s.AskQuestion = True16;
            s.SpreadDesigner.DesignerName = QStringLiteral("Mira");
            s.ModifiedOn = ToOleDate(QDate(2024, 3, 5));
        });
        frmSpreads& list = ListOn(QStringLiteral("Beta"));
        QCOMPARE(TrimField(list.lstSpreads->List(2)), QStringLiteral("celtic"));  // sorted, ignoring case
        QCOMPARE(list.lstSpreads->List(0).size(), 50);                            // as stored, with its blanks
        QCOMPARE(list.GetIndexOf(QStringLiteral(" Beta ")), 1);
        QCOMPARE(list.GetIndexOf(QStringLiteral("Gone")), 0);
        QCOMPARE((QStringList{list.lblQueryField->text(), list.lblCardsField->text(), list.lblDecksField->text(),
                              list.lblDesignDateField->text(), list.lblDesignerNameField->text().trimmed()}),
                 (QStringList{"Y", "4", "2", "05-Mar-2024", "Mira"}));
        QCOMPARE(TheRun.SpreadLocations.UBound(), 4);
        list.lstSpreads->setListIndex(0);
        QCOMPARE(list.lblDecksField->text(), QStringLiteral("All"));

        // No keeps it; Yes deletes it and the next one moves up.
        MsgBoxScript::Answer(vbNo);
        list.cmdDelete_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("Are you sure you want to delete spread 'Alpha' ?"));
        QCOMPARE(CountSpreads(), 3);
        MsgBoxScript::Answer(vbYes);
        list.cmdDelete_Click();
        QCOMPARE(CountSpreads(), 2);
        QCOMPARE(TrimField(list.lstSpreads->Text()), QStringLiteral("Beta"));
        QCOMPARE(TheRun.CurrentSpread.SpreadName.Trimmed(), QStringLiteral("Beta"));
    }

    void aLockedSpreadAsksForItsPassword() {
        Rewrite(QStringLiteral("celtic"), [](SpreadRecord& s) {
            s.SpreadLocked = True16;
            s.SpreadPassword = QStringLiteral("Moon");
        });
        ModalScript script;
        script.On<frmGetPassword>([](frmGetPassword& screen) {
            screen.txtPassword->setText(QStringLiteral("Moon"));
            screen.cmdOK_Click();
        });
        ListOn(QStringLiteral("celtic")).cmdEdit_Click();
        QVERIFY(script.Done());
        QCOMPARE(Get<frmDesignSpread>().RememberedSpreadName.trimmed(), QStringLiteral("celtic"));
    }

    void theViewerShowsAndChangesNothing() {
        // Five decks of which one is gone since.
        Fixtures::MakeSpread(QStringLiteral("Five Decks"), 2, {decks_[0], decks_[1], decks_[2], decks_[3], decks_[4]});
        Rewrite(QStringLiteral("Five Decks"), [](SpreadRecord& s) {
            s.AskQuestion = True16;
            s.SpreadComments = QStringLiteral("Read slowly");
        });
        DeleteDeck(FindDeckByName(QStringLiteral("Deck 3")));
        frmSpreads& list = ListOn(QStringLiteral("Five Decks"));
        list.cmdInfo_Click();
        frmSpreadInfo& viewer = Get<frmSpreadInfo>();
        QCOMPARE(viewer.lstDecks->List(0), QStringLiteral("     [ MISSING DECK ] "));
        QCOMPARE(viewer.picDesignInfo->txtComments->Text(), QStringLiteral("Read slowly"));
        viewer.cmdSpread_Click();
        viewer.cmdGrid_Click();
        QCOMPARE(viewer.GridStepY, Integer(247));  // its canvas is wider than the designer's
        // Only the Attributes button answers.
        SendMouse(viewer.picLocation(2), QEvent::MouseButtonPress, QPoint(5, 5), Qt::LeftButton, Qt::LeftButton);
        SendMouse(viewer.picLocation(2), QEvent::MouseMove, QPoint(90, 90), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(viewer.picLocation(2)->Left(), Integer(1440));
        viewer.cmdCardAttributes(2)->click();
        QCOMPARE(Get<frmSpreadInfo_LocationAttributes>().txtTitle->text(), QStringLiteral("Position 2"));

        viewer.cmdClose_Click();
        Settle();
        QCOMPARE(TrimField(Get<frmSpreads>().lstSpreads->Text()), QStringLiteral("Five Decks"));

        // An any-deck spread says so on the fourth line.
        Fixtures::MakeSpread(QStringLiteral("Any"), 1, {}, true);
        ListOn(QStringLiteral("Any")).cmdInfo_Click();
        QCOMPARE(Get<frmSpreadInfo>().lstDecks->List(3), QStringLiteral("                          [ ALL DECKS ] "));
    }

    void theChooserTiesDecksWithoutANewRevision() {
        const SpreadRecord before = SpreadNamed(QStringLiteral("Five Decks"));
        frmSpreads& list = ListOn(QStringLiteral("Five Decks"));
        list.cmdManager_Click();
        frmDeckChooser& chooser = Get<frmDeckChooser>();
        QCOMPARE(chooser.lstDecks->ListCount(), 4);  // the deleted deck is passed over

        chooser.lstDecks->setListIndex(3);
        chooser.cmdDeleteDeck_Click();
        QCOMPARE(chooser.lstDecks->ListIndex(), 2);  // the noted position, one up
        chooser.cmdLink_Click();
        QVERIFY(!chooser.ChooserDirty);
        SpreadRecord after = SpreadNamed(QStringLiteral("Five Decks"));
        QCOMPARE(after.AllowedDeckCount, Integer(3));
        QCOMPARE(after.AllowedDeckId[3], Integer(-1));
        QCOMPARE(after.SpreadRevision, before.SpreadRevision);

        // Any deck with names still listed: -1 and the ids all the same,
        // and a later load shows only the box.
        chooser.chkAnyDeck->setChecked(true);
        MsgBoxScript::Answer(vbYes);
        chooser.cmdClose_Click();
        Settle();
        after = SpreadNamed(QStringLiteral("Five Decks"));
        QCOMPARE(after.AllowedDeckCount, Integer(-1));
        QCOMPARE(after.AllowedDeckId[0], FindDeckIdByName(QStringLiteral("Deck 1")));
        QCOMPARE(Get<frmSpreads>().lblDecksField->text(), QStringLiteral("All"));
        Get<frmSpreads>().cmdManager_Click();
        QVERIFY(Get<frmDeckChooser>().chkAnyDeck->isChecked());
        QCOMPARE(Get<frmDeckChooser>().lstDecks->ListCount(), 0);
    }

    void theChooserKeepsToTenDecksAndAsksAboutNone() {
        for (int i = 7; i <= 12; ++i)
            Fixtures::MakeDeck(QStringLiteral("Deck %1").arg(i, 2, 10, QLatin1Char('0')), 8, false);
        Fixtures::MakeSpread(QStringLiteral("Bare"), 1);
        ListOn(QStringLiteral("Bare")).cmdManager_Click();
        frmDeckChooser& chooser = Get<frmDeckChooser>();
        // The tenth deck fits, the eleventh is refused.
        for (int i = 0; i < 11; ++i) chooser.cmdAddDeck_Click();
        QCOMPARE(Prompts(), QStringList{QStringLiteral("The maximum number of decks allowed cannot exceed 10.")});
        while (chooser.lstDecks->ListCount() > 0) chooser.cmdDeleteDeck_Click();
        // Not saved, then no decks.
        MsgBoxScript::Answer(vbNo);
        MsgBoxScript::Answer(vbNo);
        chooser.cmdClose_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt,
                 QStringLiteral("No decks have been selected.  Are you sure you want to continue?"));
        QVERIFY(IsLoaded<frmDeckChooser>());  // No stays
        cleanup();

        // Installation: the chooser starts empty and writes nothing.
        TheRun.ChooserManageMode = false;
        TheRun.InstallAllSpreads = true;
        TheRun.CurrentSpread = SpreadNamed(QStringLiteral("Beta"));
        const QByteArray onDisk = ReadWholeFile(TheRun.Paths.SpreadsPath);
        frmDeckChooser& installing = Get<frmDeckChooser>();
        installing.chkInstallAll->setChecked(false);
        QVERIFY(!TheRun.InstallAllSpreads);
        installing.lstAvailableDecks->setListIndex(0);
        const QString chosen = installing.lstAvailableDecks->Text();
        installing.cmdAddDeck_Click();
        installing.cmdClose_Click();
        QVERIFY(!IsLoaded<frmDeckChooser>());
        QCOMPARE(TheRun.CurrentSpread.AllowedDeckCount, Integer(1));
        QCOMPARE(TheRun.CurrentSpread.AllowedDeckId[0], FindDeckIdByName(chosen));
        QCOMPARE(ReadWholeFile(TheRun.Paths.SpreadsPath), onDisk);
        TheRun.ChooserManageMode = true;
    }
};

QTEST_MAIN(TestSpreadScreens)
#include "tst_spreadscreens.moc"
