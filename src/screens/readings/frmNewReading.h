#pragma once
// The screen on which a reading takes place. The introduction page shows the
// spread and takes the issue; the spread page shows the locations into which
// cards are dealt from the table below the screen. Both show the deal in hand
// (ReadingDeal): which location holds which card is the deal's, and the
// screen only shows it. The buttons follow the life of the table: Next Card,
// All Cards and Shuffle while it is up, Deal once it has gone.
#include <QPushButton>
#include <functional>

#include "core/platform/Arrays.h"
#include "screens/readings/EntryScreen.h"
#include "screens/readings/ReadingTable.h"

class QTimer;

// The Shuffle button: holding it down (mouse or key) runs the animation,
// letting go stops it. A plain click does nothing of its own.
class ShuffleButton : public QPushButton {
public:
    using QPushButton::QPushButton;
    std::function<void()> Press;
    std::function<void()> Release;

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
};

class frmNewReading : public EntryScreen, public TableWatcher {
    Q_OBJECT
public:
    frmNewReading();

    bool ReadingChanged = false;
    bool frmReadingCardsIsLoaded = false;
    Integer QueryLocation = 0;  // the location the interpretation shows

    QPushButton* cmdDeal = nullptr;
    QPushButton* cmdNextCard = nullptr;
    QPushButton* cmdAllCards = nullptr;
    ShuffleButton* cmdFakeShuffle = nullptr;
    BoundedArray<ClickLabel*> lblCardName;  // the dealt card's title in each location
    QTimer* Timer1 = nullptr;               // keeps the table below this screen

    void Initialize() override;
    // Rebuilds the screen, the table and the dealt cards from a saved reading
    // in CurrentReading.
    void FillFields();
    // FillFields for the opening of a saved reading: if the reading cannot
    // be shown (a card number beyond the deck), the error is reported and
    // the reading closes. False then.
    bool OpenSavedReading();

    void cmdContinue_Click() override;
    void cmdDeal_Click();
    void cmdNextCard_Click();
    void cmdAllCards_Click();
    void cmdFakeShuffle_Press();
    void cmdFakeShuffle_Release();
    void cmdInterpret_Click();
    void cmdNotes_Click();
    void cmdPrint_Click();
    void cmdSave_Click() override;
    void cmdQuickHelp_Click();
    void cmdClose_Click() override;
    void txtIssue_LostFocus() override;
    void Timer1_Timer();
    void picLocation_Click(int Index) override;
    void imgCard_Click(int Index) override;

    // What the table below tells this screen.
    void TableLoaded(bool loaded) override;
    void TableUp() override;
    void TableGone() override;
    void EnableShuffle(bool enabled) override;
    void CardDealt(int location) override;
    void TakeFocus() override { Show(); }
    int TableLeft() const override { return Left(); }
    int TableTop() const override { return Top() + OuterHeight() + 50; }

    // Ends the reading without a question: the table goes, the main screen
    // comes back and this screen unloads.
    void CloseReading();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;

private:
    void ShowInterpretation();
    void UpdateCaption();
    // Shows the card the deal holds in a location.
    void ShowDealtCard(int location);

    bool TableShown = false;      // the table was shown once for this reading
    bool DealWasEnabled = false;  // cmdDeal's state, kept while the introduction page is up
    int lastTop_ = 0;
    int lastLeft_ = 0;
};
