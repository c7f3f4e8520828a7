#pragma once
// Opening or deleting a saved entry, reading or diary. The list shows each
// entry as its date ("yyyy/mm/dd"), " - " and its name, so that it stands in
// order of date. Opening checks, in a fixed order, that the entry can still be
// shown: its password if it is locked, its deck (still installed, and if
// changed, still holding the cards of the first locations), its spread (still
// installed, and if changed, the user's consent). A refused opening says why
// and leaves everything as it was.
#include <array>
#include <utility>
#include <vector>

#include "core/journal/Journal.h"
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class QLabel;
class ListBox;
class QPushButton;

struct OpenEntryTexts {
    QString Caption;            // "Open Reading"
    QString ListName;           // "lstReadings"
    QString ListLabel;          // "Select Reading:"
    QString DeleteQuestion;     // "Are you sure you want to delete reading '"
    int DeleteIcon = 0;
    QString DeckGone;
    QString TooManyCardsRemoved;
    QString DeckChanged;
    QString SpreadGone;
    QString SpreadChanged;
};

// What the checks read from a saved entry.
struct EntryHead {
    bool EntryLocked = false;
    QString EntryPassword;
    Integer DeckId = 0;
    Integer DeckRevision = 0;
    Integer SpreadId = 0;
    Integer SpreadRevision = 0;
    std::array<Integer, 32> DealtCard{};
};

template <class R>
EntryHead HeadOf(const R& entry) {
    return {entry.EntryLocked != 0, entry.EntryPassword.Value(), entry.ReadingDeckId, entry.ReadingDeckRevision,
            entry.ReadingSpreadId, entry.ReadingSpreadRevision, entry.DealtCard};
}

class OpenEntryScreen : public Form {
    Q_OBJECT
public:
    // Only the cards of the first locations are checked against a changed deck.
    static constexpr int CheckedLocations = 15;

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
    explicit OpenEntryScreen(const OpenEntryTexts& texts);

    // Date and name (as stored) of every saved entry, in file order.
    virtual std::vector<std::pair<double, QString>> SavedEntries() const = 0;
    virtual void DeleteEntry(const QString& name) = 0;
    // Reads the entry of that name into the screen's own copy; false if none.
    virtual bool ReadEntry(const QString& name, EntryHead& head) = 0;
    // Makes the screen's copies the entry, spread and deck in hand.
    virtual void AdoptEntry(const DeckRecord& deck, const SpreadRecord& spread) = 0;
    // Takes the entry's options as the run's, then shows the entry.
    virtual void ShowEntry() = 0;
    // The entry screen below goes and the main screen comes back.
    virtual void CloseEntryScreen() = 0;
    virtual EntryKind Kind() const = 0;

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    bool DeckAllowsOpening(const EntryHead& head, DeckRecord& deck);
    bool SpreadAllowsOpening(const EntryHead& head, SpreadRecord& spread);

    OpenEntryTexts texts_;
};
