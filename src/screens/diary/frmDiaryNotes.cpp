#include "screens/diary/frmDiaryNotes.h"

#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"

frmDiaryNotes::frmDiaryNotes() : EntryNotesScreen(tr("Diary Summary and Notes")) {
    setObjectName(QStringLiteral("frmDiaryNotes"));
}

QString frmDiaryNotes::Notes() const { return TheRun.CurrentDiary.DiaryNotes.Trimmed(); }

void frmDiaryNotes::SetNotes(const QString& notes) { TheRun.CurrentDiary.DiaryNotes = notes; }

void frmDiaryNotes::MarkEntryChanged() {
    if (frmNewDiary* diary = ScreenSlot<frmNewDiary>()) diary->DiaryChanged = true;
}
