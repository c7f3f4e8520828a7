#include "screens/readings/frmOpenReading.h"

#include "core/records/RecordFile.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/readings/frmNewReading.h"
#include "screens/shell/frmMainScreen.h"

frmOpenReading::frmOpenReading()
    : OpenEntryScreen({
          QStringLiteral("Open Reading"),
          QStringLiteral("lstReadings"),
          QStringLiteral("Select Reading:"),
          QStringLiteral("Are you sure you want to delete reading '"),
          vbQuestion,
          QStringLiteral("This Reading cannot be opened because the deck that was used to create it is no longer "
                         "installed."),
          QStringLiteral("The reading cannot be opened because the too many cards were removed from the deck that "
                         "was used to create this reading."),
          QStringLiteral("The deck used with this reading has changed since the reading was created. Do you still "
                         "want to open it?\nNOTE: If you choose 'Yes', the reading will be opened with the new deck "
                         "version and the cards might be corrupted."),
          QStringLiteral("This reading cannot be opened because the spread that was used to create it is no longer "
                         "installed."),
          QStringLiteral("The spread used with this reading has changed since the reading was created. Do you still "
                         "want to open it?\nNOTE: If you choose 'Yes', the reading will be opened with the new spread "
                         "and the card locations might very well be corrupted."),
      }) {
    setObjectName(QStringLiteral("frmOpenReading"));
}

std::vector<std::pair<double, QString>> frmOpenReading::SavedEntries() const {
    std::vector<std::pair<double, QString>> entries;
    RecordReader<ReadingRecord> reader(ReadingsPath);
    ReadingRecord reading;
    while (reader.Next(reading)) entries.emplace_back(reading.SavedOn, reading.ReadingName.Value());
    return entries;
}

void frmOpenReading::DeleteEntry(const QString& name) { DeleteReading(name); }

bool frmOpenReading::ReadEntry(const QString& name, EntryHead& head) {
    const int number = FindReadingByName(name);
    if (number < 1 || !GetRecord(ReadingsPath, number, reading_)) return false;
    head = HeadOf(reading_);
    return true;
}

void frmOpenReading::AdoptEntry(const DeckRecord& deck, const SpreadRecord& spread) {
    CurrentReading = reading_;
    CurrentSpread = spread;
    ListDeck = deck;
}

void frmOpenReading::ShowEntry() {
    UseReversed = CurrentReading.UseReversed != 0;
    AllowDuplicateCards = CurrentReading.AllowDuplicateCards != 0;
    for (std::size_t t = 0; t < 4; ++t) CardTypeSelected[t] = CurrentReading.CardTypeSelected[t] != 0;
    Unload();
    frmNewReading& reading = Get<frmNewReading>();
    if (reading.OpenSavedReading()) reading.ReadingChanged = false;
}

void frmOpenReading::CloseEntryScreen() {
    UnloadScreen<frmNewReading>();
    Get<frmMainScreen>().Show();
}
