#pragma once
// "Reading Summary and Notes": the reading's notes.
#include "screens/readings/EntryNotesScreen.h"

class frmReadingNotes : public EntryNotesScreen {
    Q_OBJECT
public:
    frmReadingNotes();

protected:
    QString Notes() const override;
    void SetNotes(const QString& notes) override;
    void MarkEntryChanged() override;
};
