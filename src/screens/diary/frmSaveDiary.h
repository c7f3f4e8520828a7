#pragma once
// "Save Diary": saves the diary entry in hand (CurrentDiary) under a name.
#include "screens/readings/SaveEntryScreen.h"

class frmSaveDiary : public SaveEntryScreen {
    Q_OBJECT
public:
    frmSaveDiary();

protected:
    QString ProposedName() const override;
    void SaveAs(const QString& name, int replacing) override;
    void MarkEntrySaved() override;
};
