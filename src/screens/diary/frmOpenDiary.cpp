#include "screens/diary/frmOpenDiary.h"

#include "core/records/RecordFile.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/frmMainScreen.h"

frmOpenDiary::frmOpenDiary()
    : OpenEntryScreen({
          QStringLiteral("Open Diary"),
          QStringLiteral("lstDiaries"),
          QStringLiteral("Select Diary:"),
          QStringLiteral("Are you sure you want to delete diary '"),
          vbQuestion,
          QStringLiteral("This diary cannot be opened because the deck that was used to create it is no longer "
                         "installed."),
          QStringLiteral("The Diary cannot be opened because the too many cards were removed from the deck that "
                         "was used to create this diary."),
          QStringLiteral("The deck used with this diary has changed since the diary was created. Do you still "
                         "want to open it?\nNOTE: If you choose 'Yes', the diary will be opened with the new deck "
                         "version and the cards might be corrupted."),
          QStringLiteral("This diary cannot be opened because the spread that was used to create it is no longer "
                         "installed."),
          QStringLiteral("The spread used with this diary has changed since the diary was created. Do you still "
                         "want to open it?\nNOTE: If you choose 'Yes', the diary will be opened with the new spread "
                         "and the card locations might very well be corrupted."),
      }) {
    setObjectName(QStringLiteral("frmOpenDiary"));
}

std::vector<std::pair<double, QString>> frmOpenDiary::SavedEntries() const {
    std::vector<std::pair<double, QString>> entries;
    RecordReader<DiaryRecord> reader(DiaryPath);
    DiaryRecord diary;
    while (reader.Next(diary)) entries.emplace_back(diary.SavedOn, diary.DiaryName.Value());
    return entries;
}

void frmOpenDiary::DeleteEntry(const QString& name) { DeleteDiary(name); }

bool frmOpenDiary::ReadEntry(const QString& name, EntryHead& head) {
    const int number = FindDiaryByName(name);
    if (number < 1 || !GetRecord(DiaryPath, number, diary_)) return false;
    head = HeadOf(diary_);
    return true;
}

void frmOpenDiary::AdoptEntry(const DeckRecord& deck, const SpreadRecord& spread) {
    Get<frmNewDiary>().OpeningDiary = true;
    CurrentDiary = diary_;
    CurrentSpread = spread;
    ListDeck = deck;
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
    Get<frmMainScreen>().Show();
}
