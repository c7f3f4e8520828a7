#pragma once
// Opening or deleting a saved entry, reading or diary. The list shows each
// entry as its date ("yyyy/mm/dd"), " - " and its name, so that it stands in
// order of date. The core judges whether the entry can still be shown
// (JudgeReadingOpening, JudgeDiaryOpening) and deletes it (DeleteEntry); this
// screen asks the password and the questions, and tells the refusals. A
// refused opening leaves everything as it was.
#include "core/readings/EntryStore.h"
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class QLabel;
class ListBox;
class QPushButton;

struct OpenEntryTexts {
    QString Caption;         // "Open Reading"
    QString ListName;        // "lstReadings"
    QString ListLabel;       // "Select Reading:"
    QString DeleteQuestion;  // "Are you sure you want to delete reading '%1' ?"
};

// What the screen needs of the core's judgement of a saved entry.
struct OpeningChecks {
    bool Found = false;
    bool Locked = false;
    QString Password;
    QList<OpeningStep> Steps;
};

class OpenEntryScreen : public Form {
    Q_OBJECT
public:
    QLabel* lblEntries = nullptr;
    ListBox* lstEntries = nullptr;
    QPushButton* cmdOpen = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdJournal = nullptr;

    void lstEntries_Click();
    void cmdOpen_Click();
    // Opens the saved entry of that name after the checks; true once its
    // screen has it. The journal opens its results through this too.
    bool OpenEntry(const QString& name);
    // Leaves for the journal, as Cancel leaves for the main screen.
    void cmdJournal_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    // The name of the selected entry: its text from the 14th character on.
    QString SelectedName() const;

protected:
    OpenEntryScreen(EntryKind kind, const OpenEntryTexts& texts);

    // The core's judgement of the entry of that name; the screen keeps the
    // entry, its deck and its spread as they were found.
    virtual OpeningChecks Judge(const QString& name) = 0;
    // Makes the entry, spread and deck found the ones in hand.
    virtual void AdoptEntry() = 0;
    // Takes the entry's options as the run's, then shows the entry.
    virtual void ShowEntry() = 0;
    // The entry screen below goes and the main screen comes back.
    virtual void CloseEntryScreen() = 0;

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

    // Keeps what the core found for AdoptEntry.
    template <class R>
    OpeningChecks Keep(const EntryOpening<R>& opening, R& entry) {
        entry = opening.Entry;
        deck_ = opening.Deck;
        spread_ = opening.Spread;
        return {opening.Found, opening.Locked, opening.Password, opening.Steps};
    }
    DeckRecord deck_;
    SpreadRecord spread_;

private:
    EntryKind kind_;
    OpenEntryTexts texts_;
};
