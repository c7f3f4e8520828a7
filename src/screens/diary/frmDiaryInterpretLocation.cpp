#include "screens/diary/frmDiaryInterpretLocation.h"

#include "core/readings/DiaryCards.h"
#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"

// The sound player stays up while the picture is enlarged.
frmDiaryInterpretLocation::frmDiaryInterpretLocation() : InterpretLocationScreen(false) {
    setObjectName(QStringLiteral("frmDiaryInterpretLocation"));
}

int frmDiaryInterpretLocation::Location() const { return Get<frmNewDiary>().PickLocation; }

bool frmDiaryInterpretLocation::CardLiesThere() const { return HasCardIn(TheRun.DiaryLists, Location()); }

int frmDiaryInterpretLocation::CardNumber() const { return Element(TheRun.CurrentDiary.DealtCard, Location()); }

bool frmDiaryInterpretLocation::CardUpright() const {
    return Element(TheRun.CurrentDiary.DealtUpright, Location()) != 0;
}

void frmDiaryInterpretLocation::MarkLocation(int location, bool marked) {
    if (frmNewDiary* diary = ScreenSlot<frmNewDiary>()) diary->MarkLocation(location, marked);
}
