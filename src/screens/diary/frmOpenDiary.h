#pragma once
// "Open Diary": lists the saved diary entries by date, deletes them, and
// reopens one on the diary screen below it, with the same location in focus.
#include "screens/readings/OpenEntryScreen.h"

class frmOpenDiary : public OpenEntryScreen {
    Q_OBJECT
public:
    frmOpenDiary();

protected:
    std::vector<std::pair<double, QString>> SavedEntries() const override;
    void DeleteEntry(const QString& name) override;
    bool ReadEntry(const QString& name, EntryHead& head) override;
    void AdoptEntry(const DeckRecord& deck, const SpreadRecord& spread) override;
    void ShowEntry() override;
    void CloseEntryScreen() override;
    EntryKind Kind() const override { return EntryKind::Diary; }

private:
    DiaryRecord diary_;   // the screen's own copy until the opening succeeds
};
