#pragma once
// What the diary tests share: the way in through the main screen's Diary
// buttons, and the card choice driven as the keeper drives it.
#include "readings/ReadingFixtures.h"
#include "screens/diary/frmDiaryCards.h"
#include "screens/diary/frmDiaryInterpretLocation.h"
#include "screens/diary/frmDiaryNotes.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/diary/frmOpenDiary.h"
#include "screens/diary/frmSaveDiary.h"
#include "screens/diary/frmSelectSpreadforDiary.h"

namespace DiaryFixtures {

using namespace ReadingFixtures;

inline void FreshDiaryRun(const QString& dir) {
    UnloadScreen<frmDiaryCards>();
    UnloadScreen<frmOpenDiary>();
    UnloadScreen<frmNewDiary>();
    FreshRun(dir);
}

// After each test: no box left unanswered, the card choice and the open
// screen gone, the entry closed without a question.
inline void CloseDiaryScreens() {
    QCOMPARE(MsgBoxScript::Unanswered(), 0);
    UnloadScreen<frmDiaryCards>();
    UnloadScreen<frmOpenDiary>();
    if (frmNewDiary* diary = ScreenSlot<frmNewDiary>()) {
        diary->DiaryChanged = false;
        diary->cmdClose_Click();
    }
    Settle();
}

inline frmNewDiary& NewDiary(const std::function<void(frmSelectSpreadforDiary&)>& adjust = {}) {
    return NewEntry<frmSelectSpreadforDiary, frmNewDiary>(3, adjust);
}

inline void OpenPastDiary(int row) { OpenPast<frmOpenDiary>(4, row); }

inline int RowOf(const QListWidget* list, const QString& text) {
    for (int r = 0; r < list->count(); ++r)
        if (list->item(r)->text() == text) return r;
    return -1;
}

// The keeper presses the location's button and, on the card choice, takes
// the row of that text (the last one of that text with last), turns the
// box to the orientation and presses Select; act replaces all of that.
inline void Choose(frmNewDiary& diary, int location, const QString& text, bool reversed = false,
                   const std::function<void(frmDiaryCards&)>& act = {}) {
    ModalScript script;
    script.On<frmDiaryCards>([text, reversed, act](frmDiaryCards& cards) {
        if (act) return act(cards);
        cards.lstCards->setCurrentRow(RowOf(cards.lstCards, text));
        if (cards.chkReserved->isChecked() != reversed) cards.chkReserved->click();
        cards.cmdSelect->click();
    });
    diary.cmdCardTitle(location)->click();
    QVERIFY(script.Done());
}

// The cards a location's list offers, in order of title.
inline QStringList Offered(int location) {
    QStringList texts;
    for (const CardRow& row : TheRun.DiaryLists.Rows(location)) texts << row.Text;
    texts.sort();
    return texts;
}

inline QString CardText(int n) { return QStringLiteral("Card %1").arg(n); }

}  // namespace DiaryFixtures
