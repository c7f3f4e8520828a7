#include "screens/diary/frmSelectSpreadforDiary.h"

#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/platform/ShellHooks.h"

frmSelectSpreadforDiary::frmSelectSpreadforDiary() : SelectSpreadScreen(tr("Select a Spread for the Diary")) {
    setObjectName(QStringLiteral("frmSelectSpreadforDiary"));
}

void frmSelectSpreadforDiary::StoreEntryOptions(bool issueAsked, const QString& issue, bool useReversed,
                                                bool allowDuplicates) {
    TheRun.CurrentDiary.Issue = issue;
    TheRun.CurrentDiary.IssueAsked = Flag(issueAsked);
    TheRun.CurrentDiary.UseReversed = Flag(useReversed);
    TheRun.CurrentDiary.AllowDuplicateCards = Flag(allowDuplicates);
    // The entry carries its card types from the start: its lists are built
    // from them before any save.
    for (std::size_t t = 0; t < 4; ++t) TheRun.CurrentDiary.CardTypeSelected[t] = Flag(TheRun.CardTypeSelected[t]);
}

EntryScreen& frmSelectSpreadforDiary::Entry() { return Get<frmNewDiary>(); }

void frmSelectSpreadforDiary::CloseEntryScreen() {
    UnloadScreen<frmNewDiary>();
    ReturnToMainScreen();
}
