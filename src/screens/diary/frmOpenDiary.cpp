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
    TheRun.CurrentDiary = diary_;
    TheRun.CurrentSpread = spread_;
    TheRun.ListDeck = deck_;
}

void frmOpenDiary::ShowEntry() {
    TheRun.UseReversed = TheRun.CurrentDiary.UseReversed != 0;
    TheRun.AllowDuplicateCards = TheRun.CurrentDiary.AllowDuplicateCards != 0;
    for (std::size_t t = 0; t < 4; ++t) TheRun.CardTypeSelected[t] = TheRun.CurrentDiary.CardTypeSelected[t] != 0;
    Unload();
    frmNewDiary& diary = Get<frmNewDiary>();
    diary.FillFields();
    diary.Show();
}

void frmOpenDiary::CloseEntryScreen() {
    UnloadScreen<frmNewDiary>();
    ReturnToMainScreen();
}
