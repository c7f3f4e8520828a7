#pragma once
// "Select a Spread for the Reading": the modal first step of a new reading,
// above the reading screen.
#include "screens/readings/SelectSpreadScreen.h"

class frmSelectSpread : public SelectSpreadScreen {
    Q_OBJECT
public:
    frmSelectSpread();

protected:
    void StoreEntryOptions(bool issueAsked, const QString& issue, bool useReversed, bool allowDuplicates) override;
    EntryScreen& Entry() override;
    void CloseEntryScreen() override;
};
