#pragma once
// The table of face-down cards that stands below the reading screen while
// cards can be drawn. It shows the table of the deal in hand (ReadingDeal):
// the positions whose cards still lie face down, fanned out. The moving cards
// of the Shuffle button are an animation only. A click on a card deals the
// card of that position into the next location.
#include <QColor>

#include "core/platform/Arrays.h"
#include "core/readings/Deal.h"
#include "screens/platform/Form.h"
#include "screens/readings/ReadingTable.h"

class ClickLabel;

class frmReadingCards : public Form, public ReadingTable {
    Q_OBJECT
public:
    static constexpr int TableSize = Deal::TableSize;
    // Twips of one face-down card.
    static constexpr int CardWidth = 375;
    static constexpr int CardHeight = 495;

    frmReadingCards();

    // One flag for every run of the animation on this screen, nested ones
    // included.
    bool StopShuffleFlag = false;

    QColor CardBackColor;
    // The face-down cards; position 0 is the template and never shows.
    BoundedArray<ClickLabel*> picCard;

    // Lays the table: the pool of the selected card types, face down,
    // shuffled; while a saved reading is restored, shows the table its deal
    // holds. Also run directly to lay a fresh table.
    void Form_Load() override;
    void PickRandomCard() override;
    // The animation: cards jump about until StopShuffle. Every jump yields to
    // the event loop, so the screens stay alive while it runs.
    void FakeShuffle() override;
    void StopShuffle() override;
    void EliminateDeckCard(Integer card);
    // Keeps the table 50 twips below the reading screen, left edges flush.
    void MoveForm() override;
    // Deals the card at that position into the next location.
    void picCard_Click(int Index);

    // Where a face-down card stands, twips.
    int CardTop(int index) const { return cardTop_(index); }
    int CardLeft(int index) const { return cardLeft_(index); }
    static int HomeTop(int index);
    static int HomeLeft(int index);

    void ShowTable() override { Show(); }
    void HideTable() override { Hide(); }
    void LayAgain() override { Form_Load(); }

protected:
    void Form_Unload(bool& cancel) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    // Shows the cards the deal has face down, in the table's back colour.
    void ShowFaceDown();
    void MoveCard(int index, int left, int top);

    BoundedArray<int> cardTop_;
    BoundedArray<int> cardLeft_;
};
