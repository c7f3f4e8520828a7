#include "screens/diary/frmSaveDiary.h"

#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"

frmSaveDiary::frmSaveDiary()
    : SaveEntryScreen({QStringLiteral("Save Diary"), QStringLiteral("lstDiaryNames"),
                       QStringLiteral("Please select a name to save the diary as."),
                       QStringLiteral("Diary already exists. Overwrite?")}) {
    setObjectName(QStringLiteral("frmSaveDiary"));
}

QString frmSaveDiary::ProposedName() const {
    return FirstNonBlank({CurrentDiary.DiaryName.Trimmed(), CurrentDiary.Issue.Trimmed(),
                          CurrentSpread.SpreadName.Trimmed()});
}

QStringList frmSaveDiary::SavedNames() const {
    QStringList names;
    RecordReader<DiaryRecord> reader(DiaryPath);
    DiaryRecord diary;
    while (reader.Next(diary)) names << diary.DiaryName.Trimmed();
    return names;
}

int frmSaveDiary::FindEntryByName(const QString& name) const { return FindDiaryByName(name); }

int frmSaveDiary::CountEntries() const { return CountDiaries(); }

void frmSaveDiary::WriteEntry(int recordNumber, const QString& name) {
    CurrentDiary.DiaryName = name;
    for (std::size_t t = 0; t < 4; ++t) CurrentDiary.CardTypeSelected[t] = Flag(CardTypeSelected[t]);
    CurrentDiary.SavedOn = OleToday();
    ++CurrentDiary.SaveCount;
    PutRecord(DiaryPath, recordNumber, CurrentDiary);
}

void frmSaveDiary::MarkEntrySaved() {
    if (frmNewDiary* diary = ScreenSlot<frmNewDiary>()) diary->DiaryChanged = false;
}
