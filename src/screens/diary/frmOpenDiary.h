#pragma once
// "Open Diary": lists the saved diary entries by date, deletes them, and
// reopens one on the diary screen below it.
#include "screens/readings/OpenEntryScreen.h"

class frmOpenDiary : public OpenEntryScreen {
    Q_OBJECT
public:
    frmOpenDiary();

protected:
    OpeningChecks Judge(const QString& name) override;
    void AdoptEntry() override;
    void ShowEntry() override;
    void CloseEntryScreen() override;

private:
    DiaryRecord diary_;  // the screen's own copy until the opening succeeds
};
