#include "screens/diary/frmSaveDiary.h"

#include "core/readings/EntryStore.h"
#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"

frmSaveDiary::frmSaveDiary() : SaveEntryScreen(EntryKind::Diary, {tr("Save Diary"), QStringLiteral("lstDiaryNames")}) {
    setObjectName(QStringLiteral("frmSaveDiary"));
}

QString frmSaveDiary::ProposedName() const {
    return FirstNonBlank({TheRun.CurrentDiary.DiaryName.Trimmed(), TheRun.CurrentDiary.Issue.Trimmed(),
                          TheRun.CurrentSpread.SpreadName.Trimmed()});
}

void frmSaveDiary::SaveAs(const QString& name, int replacing) {
    TheRun.CurrentDiary = SaveEntry(TheRun.CurrentDiary, name, replacing, TheRun.CardTypeSelected).Saved;
}

void frmSaveDiary::MarkEntrySaved() {
    if (frmNewDiary* entry = ScreenSlot<frmNewDiary>()) entry->DiaryChanged = false;
}
