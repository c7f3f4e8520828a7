#pragma once
// "Open Reading": lists the saved readings by date, deletes them, and
// reopens one, table and all, on the reading screen below it.
#include "screens/readings/OpenEntryScreen.h"

class frmOpenReading : public OpenEntryScreen {
    Q_OBJECT
public:
    frmOpenReading();

protected:
    std::vector<std::pair<double, QString>> SavedEntries() const override;
    void DeleteEntry(const QString& name) override;
    bool ReadEntry(const QString& name, EntryHead& head) override;
    void AdoptEntry(const DeckRecord& deck, const SpreadRecord& spread) override;
    void ShowEntry() override;
    void CloseEntryScreen() override;
    EntryKind Kind() const override { return EntryKind::Reading; }

private:
    ReadingRecord reading_;   // the screen's own copy until the opening succeeds
};
