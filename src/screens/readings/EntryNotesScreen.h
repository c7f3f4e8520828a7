#pragma once
// The notes of an entry, reading or diary: one free text for the whole entry.
// Every change goes into the entry's record at once; when the screen closes
// (Close, Esc, or the loss of focus) a text that differs from the one it
// opened with marks the entry as changed.
#include "screens/platform/Form.h"

class QPlainTextEdit;
class QPushButton;

class EntryNotesScreen : public Form {
    Q_OBJECT
public:
    // The longest note the box takes.
    static constexpr int MaxNotesLength = 2500;

    QPlainTextEdit* txtComments = nullptr;
    QPushButton* cmdClose = nullptr;

    void txtComments_Change();
    void cmdClose_Click();

protected:
    explicit EntryNotesScreen(const QString& caption);

    virtual QString Notes() const = 0;
    virtual void SetNotes(const QString& notes) = 0;
    virtual void MarkEntryChanged() = 0;

    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    QString original_;  // the text as it was at opening
};
