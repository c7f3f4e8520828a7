#pragma once
// "Select a Spread for the Diary": the modal first step of a new diary entry,
// above the diary screen. The same choice as for a reading, since the keeper
// lays real cards on the same spreads with the same decks.
#include "screens/readings/SelectSpreadScreen.h"

class frmSelectSpreadforDiary : public SelectSpreadScreen {
    Q_OBJECT
public:
    frmSelectSpreadforDiary();

protected:
    void StoreEntryOptions(bool issueAsked, const QString& issue, bool useReversed, bool allowDuplicates) override;
    EntryScreen& Entry() override;
    void CloseEntryScreen() override;
};
