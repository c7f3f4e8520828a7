#include "screens/readings/frmSaveReading.h"

#include "core/readings/EntryStore.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"

frmSaveReading::frmSaveReading()
    : SaveEntryScreen(EntryKind::Reading, {tr("Save Reading"), QStringLiteral("lstReadingNames")}) {
    setObjectName(QStringLiteral("frmSaveReading"));
}

QString frmSaveReading::ProposedName() const {
    return FirstNonBlank({CurrentReading.ReadingName.Trimmed(), CurrentReading.Issue.Trimmed(), CurrentSpread.SpreadName.Trimmed()});
}

void frmSaveReading::SaveAs(const QString& name, int replacing) {
    CurrentReading = SaveEntry(CurrentReading, name, replacing, CardTypeSelected).Saved;
}

void frmSaveReading::MarkEntrySaved() {
    if (frmNewReading* entry = ScreenSlot<frmNewReading>()) entry->ReadingChanged = false;
}
