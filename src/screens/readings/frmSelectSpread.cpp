#include "screens/readings/frmSelectSpread.h"

#include "core/store/RunState.h"
#include "screens/platform/ShellHooks.h"
#include "screens/readings/frmNewReading.h"

frmSelectSpread::frmSelectSpread() : SelectSpreadScreen(tr("Select a Spread for the Reading")) {
    setObjectName(QStringLiteral("frmSelectSpread"));
}

void frmSelectSpread::StoreEntryOptions(bool issueAsked, const QString& issue, bool useReversed, bool allowDuplicates) {
    TheRun.CurrentReading.Issue = issue;
    TheRun.CurrentReading.IssueAsked = Flag(issueAsked);
    TheRun.CurrentReading.UseReversed = Flag(useReversed);
    TheRun.CurrentReading.AllowDuplicateCards = Flag(allowDuplicates);
}

EntryScreen& frmSelectSpread::Entry() { return Get<frmNewReading>(); }

void frmSelectSpread::CloseEntryScreen() {
    UnloadScreen<frmNewReading>();
    ReturnToMainScreen();
}
