#pragma once
// Saving an entry, reading or diary, under a name. The name box proposes the
// entry's own name, else its issue, else the spread's name; the list shows the
// names already saved, and a click on one takes it. The core judges the name
// and writes the entry (EntryStore); this screen asks the question of a name
// in use and tells the refusal of a blank one.
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class QLineEdit;
class ListBox;
class QPushButton;

struct SaveEntryTexts {
    QString Caption;   // "Save Reading"
    QString ListName;  // "lstReadingNames"
};

class SaveEntryScreen : public Form {
    Q_OBJECT
public:
    // The box takes fewer characters than the record's name field holds.
    static constexpr int MaxNameLength = 30;

    QLineEdit* txtSaveAs = nullptr;
    ListBox* lstNames = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdCancel = nullptr;

    void txtSaveAs_Change();
    void lstNames_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

protected:
    SaveEntryScreen(EntryKind kind, const SaveEntryTexts& texts);

    virtual QString ProposedName() const = 0;
    // Saves the entry in hand under the name, in place of that record (0 for
    // a new one), and keeps the entry as saved.
    virtual void SaveAs(const QString& name, int replacing) = 0;
    virtual void MarkEntrySaved() = 0;

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    EntryKind kind_;
};

// The first of the texts that is not blank, trimmed.
QString FirstNonBlank(std::initializer_list<QString> texts);
