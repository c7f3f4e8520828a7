#include "screens/readings/frmSaveReading.h"

#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"

frmSaveReading::frmSaveReading()
    : SaveEntryScreen({QStringLiteral("Save Reading"), QStringLiteral("lstReadingNames"),
                       QStringLiteral("Please select a name to save the reading as."),
                       QStringLiteral("Reading already exists. Overwrite?")}) {
    setObjectName(QStringLiteral("frmSaveReading"));
}

QString frmSaveReading::ProposedName() const {
    return FirstNonBlank({CurrentReading.ReadingName.Trimmed(), CurrentReading.Issue.Trimmed(),
                          CurrentSpread.SpreadName.Trimmed()});
}

QStringList frmSaveReading::SavedNames() const {
    QStringList names;
    RecordReader<ReadingRecord> reader(ReadingsPath);
    ReadingRecord reading;
    while (reader.Next(reading)) names << reading.ReadingName.Trimmed();
    return names;
}

int frmSaveReading::FindEntryByName(const QString& name) const { return FindReadingByName(name); }

int frmSaveReading::CountEntries() const { return CountReadings(); }

void frmSaveReading::WriteEntry(int recordNumber, const QString& name) {
    CurrentReading.ReadingName = name;
    for (std::size_t t = 0; t < 4; ++t) CurrentReading.CardTypeSelected[t] = Flag(CardTypeSelected[t]);
    CurrentReading.SavedOn = OleToday();
    ++CurrentReading.SaveCount;
    PutRecord(ReadingsPath, recordNumber, CurrentReading);
}

void frmSaveReading::MarkEntrySaved() {
    if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->ReadingChanged = false;
}
