#include "screens/diary/frmOpenDiary.h"

#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/platform/ShellHooks.h"

frmOpenDiary::frmOpenDiary()
    : OpenEntryScreen(EntryKind::Diary, {tr("Open Diary"), QStringLiteral("lstDiaries"), tr("Select Diary:"),
                                          tr("Are you sure you want to delete diary '%1' ?")}) {
    setObjectName(QStringLiteral("frmOpenDiary"));
}

OpeningChecks frmOpenDiary::Judge(const QString& name) { return Keep(JudgeDiaryOpening(name), diary_); }

void frmOpenDiary::AdoptEntry() {
    Get<frmNewDiary>().OpeningDiary = true;
    CurrentDiary = diary_;
    CurrentSpread = spread_;
    ListDeck = deck_;
}

void frmOpenDiary::ShowEntry() {
    UseReversed = CurrentDiary.UseReversed != 0;
    AllowDuplicateCards = CurrentDiary.AllowDuplicateCards != 0;
    for (std::size_t t = 0; t < 4; ++t) CardTypeSelected[t] = CurrentDiary.CardTypeSelected[t] != 0;
    Unload();
    frmNewDiary& diary = Get<frmNewDiary>();
    diary.FillFields();
    diary.Show();
}

void frmOpenDiary::CloseEntryScreen() {
    UnloadScreen<frmNewDiary>();
    ReturnToMainScreen();
}
