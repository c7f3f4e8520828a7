#pragma once
// What the reading tests share: a program directory with a deck and a spread,
// the way through the main screen's Readings buttons, and the save screens.
#include <functional>
#include <memory>
#include <type_traits>

#include "core/platform/Palette.h"
#include "core/platform/Rnd.h"
#include "core/store/NewDesigns.h"
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
        save.cmdSave_Click();   // as the name may be the one proposed, with the button still off
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

// A saved entry "Saved", reading or diary, made with the deck and spread
// given, card i in location i of the first 20 locations, highCard at
// highCardAt if any.
template <class R>
R StoredEntry(const QString& path, Integer deckId, Integer spreadId, int highCardAt, Integer highCard) {
    R r;
    if constexpr (std::is_same_v<R, ReadingRecord>) {
        r = Fixtures::NamedReading(QStringLiteral("Saved"));
        r.DealtCount = 20;
    } else {
        r = Fixtures::NamedDiary(QStringLiteral("Saved"));
    }
    r.SavedOn = 46000;
    r.ReadingDeckId = deckId;
    r.ReadingDeckRevision = 1;
    r.ReadingSpreadId = spreadId;
    r.ReadingSpreadRevision = 1;
    for (int i = 1; i <= 20; ++i) r.DealtCard[std::size_t(i - 1)] = Integer(i);
    if (highCardAt > 0) r.DealtCard[std::size_t(highCardAt - 1)] = highCard;
    r.CardTypeSelected = {True16, True16, False16, False16};
    AppendRecord(path, r);
    return r;
}

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

// Opening row 0 is refused with that one message (one box of any text for an
// empty message): the open screen stays with Open on, the entry file and the
// entry in memory are as they were.
template <class E, class O, class R>
void ExpectRefusalOf(const QString& path, const R& current, const QString& message) {
    const QByteArray file = ReadWholeFile(path);
    const R before = current;
    O& open = TryOpen<E, O>();
    if (message.isEmpty()) QCOMPARE(Prompts().size(), 1);
    else QCOMPARE(Prompts(), QStringList{message});
    QVERIFY(IsLoaded<O>());
    QVERIFY(open.cmdOpen->isEnabled());
    QCOMPARE(ReadWholeFile(path), file);
    QCOMPARE(EncodeRecord(current), EncodeRecord(before));
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
