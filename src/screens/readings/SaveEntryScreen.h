#pragma once
// Saving an entry, reading or diary, under a name. The name box proposes the
// entry's own name, else its issue, else the spread's name; the list shows the
// names already saved, and a click on one takes it. A name in use is
// overwritten after a question, in its own record; a new name is appended.
#include "screens/platform/Form.h"

class QLineEdit;
class ListBox;
class QPushButton;

struct SaveEntryTexts {
    QString Caption;          // "Save Reading"
    QString ListName;         // "lstReadingNames"
    QString NoNameMessage;    // "Please select a name to save the reading as."
    QString ExistsQuestion;   // "Reading already exists. Overwrite?"
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
    explicit SaveEntryScreen(const SaveEntryTexts& texts);

    virtual QString ProposedName() const = 0;
    virtual QStringList SavedNames() const = 0;     // trimmed, file order
    virtual int FindEntryByName(const QString& name) const = 0;   // record number or -1
    virtual int CountEntries() const = 0;
    // Names the entry, stamps it and writes it at that record number.
    virtual void WriteEntry(int recordNumber, const QString& name) = 0;
    virtual void MarkEntrySaved() = 0;

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    SaveEntryTexts texts_;
};

// The first of the texts that is not blank, trimmed.
QString FirstNonBlank(std::initializer_list<QString> texts);
