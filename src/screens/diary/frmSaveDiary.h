#pragma once
// "Save Diary": writes CurrentDiary to the diary file under a name.
#include "screens/readings/SaveEntryScreen.h"

class frmSaveDiary : public SaveEntryScreen {
    Q_OBJECT
public:
    frmSaveDiary();

protected:
    QString ProposedName() const override;
    QStringList SavedNames() const override;
    int FindEntryByName(const QString& name) const override;
    int CountEntries() const override;
    void WriteEntry(int recordNumber, const QString& name) override;
    void MarkEntrySaved() override;
};
