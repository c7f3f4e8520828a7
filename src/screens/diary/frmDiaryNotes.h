#pragma once
// "Diary Summary and Notes": the diary entry's notes.
#include "screens/readings/EntryNotesScreen.h"

class frmDiaryNotes : public EntryNotesScreen {
    Q_OBJECT
public:
    frmDiaryNotes();

protected:
    QString Notes() const override;
    void SetNotes(const QString& notes) override;
    void MarkEntryChanged() override;
};
