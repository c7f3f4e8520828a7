#pragma once
// The table of face-down cards that stands below the reading screen while
// cards can be drawn. The order of the cards and the orientation of each
// table position are settled by the shuffle when the table is laid; the
// moving cards of the Shuffle button are an animation only. A click on a card
// deals the card of that position into the next location.
#include <QColor>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class ClickLabel;

class frmReadingCards : public Form {
    Q_OBJECT
public:
    // Positions on the table; the reading record keeps as many.
    static constexpr int TableSize = 100;
    // Twips of one face-down card.
    static constexpr int CardWidth = 375;
    static constexpr int CardHeight = 495;

    frmReadingCards();

    // These belong to the table itself, not to one laying of it: they keep
    // their values when the table unloads, so that a finished deal can still
    // be saved and a saved reading can be restored before the table is laid.
    static Integer MaxCardsUsed;     // positions in use: bounds the random pick and the animation
    static bool LoadingReading;      // a saved reading is being restored; the shuffle leaves it alone
    static bool StopShuffleFlag;
    static BoundedArray<Integer>& LocationCard();       // deck card number at each position
    static BoundedArray<Integer>& LocationIsUpright();  // -1 upright, 0 reversed, at each position

    QColor CardBackColor;
    // The face-down cards; position 0 is the template and never shows.
    BoundedArray<ClickLabel*> picCard;

    // Lays the table: the pool of the selected card types, face down, shuffled.
    // Also run directly to lay a fresh table.
    void Form_Load() override;
    void PickRandomCard();
    // The animation: cards jump about until StopShuffle. Every jump yields to
    // the event loop, so the screens stay alive while it runs.
    void FakeShuffle();
    void StopShuffle();
    void EliminateDeckCard(Integer card);
    Integer getLocationCard(int index) const;
    Integer getLocationIsUpright(int index) const;
    void setLocationCard(int index, Integer card);
    void setLocationIsUpright(int index, Integer upright);
    // Keeps the table 50 twips below the reading screen, left edges flush.
    void MoveForm();
    // Whether the card at a position still lies face down on the table, and
    // putting it back or taking it away as a saved reading says.
    bool IsFaceDown(int index) const;
    void SetFaceDown(int index, bool faceDown);
    // Gives the card at a position the table's back colour.
    void PaintBack(int index);
    // Deals the card at that position into the next location.
    void picCard_Click(int Index);

    // Where a face-down card stands, twips.
    int CardTop(int index) const { return cardTop_(index); }
    int CardLeft(int index) const { return cardLeft_(index); }
    static int HomeTop(int index);
    static int HomeLeft(int index);

protected:
    void Form_Unload(bool& cancel) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    void ShuffleDeck();
    void MoveCard(int index, int left, int top);

    BoundedArray<int> cardTop_;
    BoundedArray<int> cardLeft_;
};
