// Bad input on the reading and diary screens: text past every limit, text the
// record code page cannot hold, and a saved entry that goes between the
// listing and the opening.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include "screens/platform/ListBox.h"
#include <QtTest>

#include "screens/diary/frmSaveDiary.h"
#include "core/platform/FileSys.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "support/BadInput.h"
#include "ReadingFixtures.h"
#include "core/store/Lookups.h"
#include "core/store/DeletePasses.h"
#include "core/store/NewDesigns.h"

using namespace ReadingFixtures;

namespace {

// Pastes text over a line box's text as a user does.
void PasteInto(QLineEdit* box, const QString& text) {
    QApplication::clipboard()->setText(text);
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

}  // namespace

class TestReadingBadInput : public QObject, ScreenRun {
    Q_OBJECT
    int tried_ = 0;

private slots:
    void initTestCase() { StandUp(); }

    void init() {
        FreshRun(NewDir());
        const Integer deck = Fixtures::MakeDeck(QStringLiteral("Tarot"), 22, false);
        Fixtures::MakeSpread(QStringLiteral("Cross"), 3, {deck});
    }

    void cleanup() { CloseReadingScreens(); }

    void cleanupTestCase() { qInfo("bad inputs tried on the reading screens: %d", tried_); }

    // Every box of the reading, its notes and both save screens; a name that
    // the code page cannot hold is saved, found again and listed as the
    // record holds it.
    void foreignTextIsHeldAsTheRecordHoldsIt() {
        frmNewReading& reading = NewReading();
        tried_ += BadInput::TourTextBoxes(reading);
        tried_ += BadInput::TourTextBoxes(Get<frmReadingNotes>());
        tried_ += BadInput::TourTextBoxes(Get<frmSaveDiary>());
        UnloadScreen<frmSaveDiary>();

        frmSaveReading& save = Get<frmSaveReading>();
        tried_ += BadInput::TourTextBoxes(save);
        PasteInto(save.txtSaveAs, BadInput::Foreign());
        QCOMPARE(save.txtSaveAs->text(), BadInput::ForeignAsStored);
        save.cmdSave_Click();
        QCOMPARE(CountReadings(), 1);
        ReadingRecord saved;
        GetRecord(ReadingsPath, 1, saved);
        QCOMPARE(saved.ReadingName.Trimmed(), BadInput::ForeignAsStored);

        // The same foreign name again is the same record.
        frmSaveReading& again = Get<frmSaveReading>();
        PasteInto(again.txtSaveAs, BadInput::Foreign());
        MsgBoxScript::Answer(vbYes);
        again.cmdSave_Click();
        QCOMPARE(MsgBoxScript::History().last().prompt, QStringLiteral("Reading already exists. Overwrite?"));
        QCOMPARE(CountReadings(), 1);
        tried_ += 2;

        reading.CloseReading();
        frmOpenReading& open = Get<frmOpenReading>();
        QCOMPARE(open.lstEntries->count(), 1);
        QVERIFY(open.lstEntries->item(0)->text().trimmed().endsWith(QStringLiteral(" - ") + BadInput::ForeignAsStored));
    }

    // A reading deleted elsewhere after the list was made: opening it does
    // nothing, the screen stays and the file is untouched.
    void aReadingThatVanishedAfterListingIsNotOpened() {
        ReadingRecord r;
        ResetReading(r);
        for (const char* name : {"Gone", "Kept"}) {
            r.ReadingName = QLatin1String(name);
            AppendRecord(ReadingsPath, r);
        }
        frmOpenReading& open = Get<frmOpenReading>();
        QCOMPARE(open.lstEntries->count(), 2);
        DeleteReading(QStringLiteral("Gone"));
        const QByteArray file = ReadWholeFile(ReadingsPath);
        for (int row = 0; row < 2; ++row) {
            if (!open.lstEntries->item(row)->text().trimmed().endsWith(QStringLiteral("Gone"))) continue;
            open.lstEntries->setCurrentRow(row);
            open.cmdOpen_Click();
        }
        QVERIFY(IsLoaded<frmOpenReading>() && !IsLoaded<frmReadingCards>());
        QCOMPARE(ReadWholeFile(ReadingsPath), file);
        ++tried_;
    }
};

QTEST_MAIN(TestReadingBadInput)
#include "tst_badinput.moc"
