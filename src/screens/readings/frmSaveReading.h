#pragma once
// "Save Reading": writes CurrentReading to the readings file under a name.
#include "screens/readings/SaveEntryScreen.h"

class frmSaveReading : public SaveEntryScreen {
    Q_OBJECT
public:
    frmSaveReading();

protected:
    QString ProposedName() const override;
    QStringList SavedNames() const override;
    int FindEntryByName(const QString& name) const override;
    int CountEntries() const override;
    void WriteEntry(int recordNumber, const QString& name) override;
    void MarkEntrySaved() override;
};
