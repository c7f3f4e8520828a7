#include "screens/readings/frmReadingNotes.h"

#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"

frmReadingNotes::frmReadingNotes() : EntryNotesScreen(tr("Reading Summary and Notes")) {
    setObjectName(QStringLiteral("frmReadingNotes"));
}

QString frmReadingNotes::Notes() const { return TheRun.CurrentReading.ReadingNotes.Trimmed(); }

void frmReadingNotes::SetNotes(const QString& notes) { TheRun.CurrentReading.ReadingNotes = notes; }

void frmReadingNotes::MarkEntryChanged() {
    if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->ReadingChanged = true;
}
