#include "screens/readings/frmSaveReading.h"

#include "core/readings/EntryStore.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"

frmSaveReading::frmSaveReading()
    : SaveEntryScreen(EntryKind::Reading, {tr("Save Reading"), QStringLiteral("lstReadingNames")}) {
    setObjectName(QStringLiteral("frmSaveReading"));
}

QString frmSaveReading::ProposedName() const {
    return FirstNonBlank({TheRun.CurrentReading.ReadingName.Trimmed(), TheRun.CurrentReading.Issue.Trimmed(),
                          TheRun.CurrentSpread.SpreadName.Trimmed()});
}

void frmSaveReading::SaveAs(const QString& name, int replacing) {
    TheRun.CurrentReading = SaveEntry(TheRun.CurrentReading, name, replacing, TheRun.CardTypeSelected).Saved;
}

void frmSaveReading::MarkEntrySaved() {
    if (frmNewReading* entry = ScreenSlot<frmNewReading>()) entry->ReadingChanged = false;
}
