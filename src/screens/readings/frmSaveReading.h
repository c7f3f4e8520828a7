#pragma once
// "Save Reading": saves the reading in hand (CurrentReading) under a name.
#include "screens/readings/SaveEntryScreen.h"

class frmSaveReading : public SaveEntryScreen {
    Q_OBJECT
public:
    frmSaveReading();

protected:
    QString ProposedName() const override;
    void SaveAs(const QString& name, int replacing) override;
    void MarkEntrySaved() override;
};
