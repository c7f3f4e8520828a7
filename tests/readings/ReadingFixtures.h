#pragma once
// What the reading tests share: a program directory with a deck and a spread,
// the way through the main screen's Readings buttons, and the save screens.
#include <functional>
#include <memory>
#include <type_traits>

#include "core/platform/Palette.h"
#include "core/platform/Rnd.h"
#include "core/store/NewDesigns.h"
#include "readings/EntryFixtures.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/readings/frmReadingCards.h"
#include "screens/readings/frmSelectSpread.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/frmMainScreen.h"
#include "support/ScreenTest.h"

namespace ReadingFixtures {

// Presses a button that opens the save screen S and saves there under name;
// an empty name cancels the save.
template <class S>
void SaveThrough(QAbstractButton* button, const QString& name) {
    ModalScript script;
    script.On<S>([name](S& save) {
        if (name.isEmpty()) return save.cmdCancel->click();
        save.txtSaveAs->setText(name);
        save.cmdSave_Click();  // as the name may be the one proposed, with the button still off
    });
    button->click();
    QVERIFY(script.Done());
}

// What every test case of the screens holds: the frame, stood up once with
// boxes and sounds scripted, and a program directory of its own per test.
class ScreenRun {
protected:
    void StandUp() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        Fixtures::StandUpFrame(frameDir_.path());
    }
    QString NewDir() {
        dir_ = std::make_unique<QTemporaryDir>();
        return dir_->path();
    }
    QString RunDir() const { return dir_->path(); }
    // After each test: no box left unanswered, the reading and its open screen gone.
    static void CloseReadingScreens() {
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        UnloadScreen<frmOpenReading>();
        if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->CloseReading();
    }

private:
    QTemporaryDir frameDir_;
    std::unique_ptr<QTemporaryDir> dir_;
};

// Opens the given row on a fresh open screen O over the entry screen E; the
// open screen stays up for checks.
template <class E, class O>
O& TryOpen(int row = 0) {
    Get<E>();
    O& open = Get<O>();
    open.lstEntries->setCurrentRow(row);
    open.cmdOpen_Click();
    return open;
}

// Twips read back from a screen's place are whole pixels.
inline bool Near(int a, int b) { return qAbs(a - b) < 15; }

// A fresh program directory with every screen of the last test gone.
inline void FreshRun(const QString& dir) {
    UnloadScreen<frmReadingCards>();
    UnloadScreen<frmNewReading>();
    Settle();
    Fixtures::UseProgramDir(dir);
    MsgBoxScript::Clear();
    SetRandomizeSeedForTests(4242);
}

// "New" of a group of the main screen: on the selection screen S, with
// whatever adjust does to its boxes, the first spread and deck as it proposes
// them, for the entry screen E.
template <class S, class E>
E& NewEntry(int button, const std::function<void(S&)>& adjust) {
    ModalScript script;
    script.On<S>([adjust](S& select) {
        if (adjust) adjust(select);
        select.cmdSelect->click();
    });
    Get<frmMainScreen>().lblButton_Click(button);
    script.Require();
    return Get<E>();
}

// "Past" of a group of the main screen, opening the entry in the given row of
// the open screen O.
template <class O>
void OpenPast(int button, int row) {
    ModalScript script;
    script.On<O>([row](O& open) {
        open.lstEntries->setCurrentRow(row);
        open.cmdOpen->click();
    });
    Get<frmMainScreen>().lblButton_Click(button);
    QVERIFY(script.Done());
}

inline frmNewReading& NewReading(const std::function<void(frmSelectSpread&)>& adjust = {}) {
    return NewEntry<frmSelectSpread, frmNewReading>(1, adjust);
}

inline void OpenPastReading(int row) { OpenPast<frmOpenReading>(2, row); }

}  // namespace ReadingFixtures
