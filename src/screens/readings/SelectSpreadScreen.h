#pragma once
// The first step of a new entry, reading or diary: the user chooses a spread,
// one of the decks that the spread allows, the card types of that deck that
// take part, and whether cards may fall reversed or come up twice. Only what
// can really be dealt is listed. The three boxes defend their meaning: the
// issue box shows what the spread asks and cannot be changed, the reversed
// box only ticks for a deck with reversed sides, and the duplicates box keeps
// its last value from one entry to the next.
#include "screens/platform/Form.h"

class EntryScreen;
class QCheckBox;
class QLabel;
class QLineEdit;
class ListBox;
class QPushButton;

class SelectSpreadScreen : public Form {
    Q_OBJECT
public:
    ListBox* lstSpreads = nullptr;
    ListBox* lstDecks = nullptr;
    ListBox* lstCardTypes = nullptr;
    QCheckBox* chkIssue = nullptr;
    QCheckBox* chkAllowDuplicateCards = nullptr;
    QCheckBox* chkUseReversed = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;
    QLabel* lblIssue = nullptr;
    QLineEdit* txtIssue = nullptr;  // never shown here; its text goes to the entry

    void lstSpreads_Click();
    void lstDecks_Click();
    void ShowDeckOptions();
    void chkIssue_Click();
    void chkUseReversed_Click();
    void chkAllowDuplicateCards_Click();
    void cmdSelect_Click();
    void cmdCancel_Click();

protected:
    explicit SelectSpreadScreen(const QString& caption);

    // Puts the chosen options into the entry's record.
    virtual void StoreEntryOptions(bool issueAsked, const QString& issue, bool useReversed, bool allowDuplicates) = 0;
    // The entry screen below this one.
    virtual EntryScreen& Entry() = 0;
    // The entry screen goes and the main screen comes back.
    virtual void CloseEntryScreen() = 0;

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    bool SpreadAndDeckSelected() const;
    void AddDeck(const QString& name);
};
