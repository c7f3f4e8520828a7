#pragma once
// "Open Reading": lists the saved readings by date, deletes them, and
// reopens one, table and all, on the reading screen below it.
#include "screens/readings/OpenEntryScreen.h"

class frmOpenReading : public OpenEntryScreen {
    Q_OBJECT
public:
    frmOpenReading();

protected:
    OpeningChecks Judge(const QString& name) override;
    void AdoptEntry() override;
    void ShowEntry() override;
    void CloseEntryScreen() override;

private:
    ReadingRecord reading_;  // the screen's own copy until the opening succeeds
};
