#include "screens/readings/frmOpenReading.h"

#include "core/store/RunState.h"
#include "screens/platform/ShellHooks.h"
#include "screens/readings/frmNewReading.h"

frmOpenReading::frmOpenReading()
    : OpenEntryScreen(EntryKind::Reading, {tr("Open Reading"), QStringLiteral("lstReadings"), tr("Select Reading:"),
                                           tr("Are you sure you want to delete reading '%1' ?")}) {
    setObjectName(QStringLiteral("frmOpenReading"));
}

OpeningChecks frmOpenReading::Judge(const QString& name) { return Keep(JudgeReadingOpening(name), reading_); }

void frmOpenReading::AdoptEntry() {
    TheRun.CurrentReading = reading_;
    TheRun.CurrentSpread = spread_;
    TheRun.ListDeck = deck_;
}

void frmOpenReading::ShowEntry() {
    TheRun.UseReversed = TheRun.CurrentReading.UseReversed != 0;
    TheRun.AllowDuplicateCards = TheRun.CurrentReading.AllowDuplicateCards != 0;
    for (std::size_t t = 0; t < 4; ++t) TheRun.CardTypeSelected[t] = TheRun.CurrentReading.CardTypeSelected[t] != 0;
    Unload();
    frmNewReading& reading = Get<frmNewReading>();
    if (reading.OpenSavedReading()) reading.ReadingChanged = false;
}

void frmOpenReading::CloseEntryScreen() {
    UnloadScreen<frmNewReading>();
    ReturnToMainScreen();
}
