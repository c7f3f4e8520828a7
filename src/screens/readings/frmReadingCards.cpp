#include "screens/readings/frmReadingCards.h"

#include <QLabel>
#include <QPointer>
#include <cmath>

#include "core/platform/Palette.h"
#include "core/platform/Rnd.h"
#include "core/platform/Twips.h"
#include "core/readings/Deal.h"
#include "core/readings/Shuffle.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/Events.h"
#include "screens/widgets/ClickLabel.h"

namespace {

// Twips of the table's inner area.
constexpr int TableWidth = 10365;
constexpr int TableHeight = 1470;
// How far a card of the animation may jump from the top left corner.
constexpr float JumpDown = 1120.0f;
constexpr float JumpAcross = 9120.0f;
// Turns of the animation that found no card to move before it yields all the
// same, so that Stop is heard even when every listed card has been drawn.
constexpr int TurnsWithoutYield = 256;

// True once the table has been unloaded (a new one may stand in its place)
// or its reading has closed, while a handler of it was yielding: that
// handler must then leave without touching either again.
bool Gone(const QPointer<frmReadingCards>& table) {
    return !table || ScreenSlot<frmReadingCards>() != table.data() || !ReadingScreen();
}

}  // namespace

ReadingTable& Table() { return Get<frmReadingCards>(); }
ReadingTable* LoadedTable() { return ScreenSlot<frmReadingCards>(); }
void UnloadTable() { UnloadScreen<frmReadingCards>(); }

int frmReadingCards::HomeTop(int index) { return 120 + 120 * ((index - 1) / 16); }
int frmReadingCards::HomeLeft(int index) {
    const int row = (index - 1) / 16;
    const int column = (index - 1) % 16;
    return 240 + 600 * column + 120 * row;
}

frmReadingCards::frmReadingCards() : picCard(0, TableSize), cardTop_(0, TableSize), cardLeft_(0, TableSize) {
    setCaption(tr("Cards"));
    resize(TwipsToPixels(TableWidth), TwipsToPixels(TableHeight));
    for (int i = 0; i <= TableSize; ++i) {
        auto* card = new ClickLabel(this);
        card->setObjectName(QStringLiteral("picCard"));
        card->setProperty("Index", i);
        card->setFrameShape(QFrame::Box);
        card->hide();
        picCard(i) = card;
        if (i == 0) {
            // The template lies outside the table.
            MoveCard(0, -2 * CardWidth, -2 * CardHeight);
            continue;
        }
        MoveCard(i, HomeLeft(i), HomeTop(i));
        connect(card, &ClickLabel::Click, this, Handler([this, i] { picCard_Click(i); }));
    }
}

void frmReadingCards::MoveCard(int index, int left, int top) {
    cardLeft_(index) = left;
    cardTop_(index) = top;
    picCard(index)->setGeometry(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(CardWidth),
                                TwipsToPixels(CardHeight));
}

void frmReadingCards::Form_Load() {
    TableWatcher* reading = ReadingScreen();
    if (reading) reading->TableLoaded(true);

    Show();
    MoveForm();

    if (reading) reading->TableUp();

    CardBackColor = QBColor(TheRun.CurrentLocationColour);
    // A saved reading being restored brings its table with it.
    if (!TheRun.ReadingDeal.LoadingReading)
        LayTable(TheRun.ReadingDeal, TheRun.CurrentDeck, RunDealOptions(), TheRun.CurrentReading);
    ShowFaceDown();
    if (reading) reading->TakeFocus();
}

void frmReadingCards::ShowFaceDown() {
    for (int i = 1; i <= TableSize; ++i) {
        picCard(i)->setBackColor(CardBackColor);
        picCard(i)->setVisible(TheRun.ReadingDeal.FaceDown(i) != 0);
    }
}

void frmReadingCards::picCard_Click(int Index) {
    QPointer<frmReadingCards> self(this);
    Deal& deal = TheRun.ReadingDeal;
    const int location = DealFromPosition(deal, Index, TheRun.AllowDuplicateCards);
    picCard(Index)->setVisible(deal.FaceDown(Index) != 0);
    if (TableWatcher* reading = ReadingScreen()) reading->CardDealt(location);

    const int locationCount = TheRun.CurrentSpread.LocationCount;
    if (ReshufflesAfterDraw(deal, locationCount, TheRun.AllowDuplicateCards)) {
        // The card stays in the pool: the whole table is shuffled anew, and
        // the cards move until the user stops them or draws from them.
        ShuffleDeal(deal, TheRun.CurrentDeck, RunDealOptions(), TheRun.CurrentReading);
        FakeShuffle();
        if (Gone(self)) return;
    }

    TableWatcher* reading = ReadingScreen();
    switch (TableAfterDraw(deal, locationCount)) {
    case TableFate::Stays: break;
    case TableFate::RanEmpty: Unload(); break;
    case TableFate::DealComplete:
        if (reading) reading->EnableShuffle(false);
        Unload();
        break;
    }
    if (reading && !ShuffleAllowed(deal)) reading->EnableShuffle(false);
}

void frmReadingCards::PickRandomCard() {
    const int i = PickRandomPosition(TheRun.ReadingDeal);
    if (i > 0) picCard_Click(i);
}

void frmReadingCards::FakeShuffle() {
    QPointer<frmReadingCards> self(this);
    const Deal& deal = TheRun.ReadingDeal;
    StopShuffleFlag = false;

    // The homes of this run are where the cards stand now: a run started on
    // top of another puts back the other's scattered places, and the outer
    // run then restores the true homes.
    const int used = deal.MaxCardsUsed;
    BoundedArray<int> homeTop(1, used);
    BoundedArray<int> homeLeft(1, used);
    for (int i = 1; i <= used; ++i) {
        homeTop(i) = CardTop(i);
        homeLeft(i) = CardLeft(i);
    }

    // The positions still face down; entries never filled stand for the
    // template, which never lies face down.
    BoundedArray<int> list(1, deal.DeckCardsLeft);
    int listed = 0;
    for (int i = 1; i <= TableSize; ++i) {
        if (deal.FaceDown(i) == 0) continue;
        ++listed;
        list(listed) = i;
    }

    Randomize();
    int idleTurns = 0;
    for (;;) {
        const int s = list(RandomPosition(deal.DeckCardsLeft, Rnd()));
        if (s > 0 && deal.FaceDown(s) != 0) {
            const int top = static_cast<int>(std::floor(JumpDown * Rnd())) + 1;
            const int left = static_cast<int>(std::floor(JumpAcross * Rnd())) + 1;
            MoveCard(s, left, top);
            DoEvents();
            if (Gone(self)) return;
            idleTurns = 0;
        } else if (++idleTurns >= TurnsWithoutYield) {
            idleTurns = 0;
            DoEvents();
            if (Gone(self)) return;
        }
        if (StopShuffleFlag) break;
    }

    for (int i = 1; i <= used; ++i) MoveCard(i, homeLeft(i), homeTop(i));
}

void frmReadingCards::StopShuffle() { StopShuffleFlag = true; }

void frmReadingCards::EliminateDeckCard(Integer card) {
    const bool empty = EliminateCard(TheRun.ReadingDeal, card);
    ShowFaceDown();
    if (empty) Form_Load();
}

void frmReadingCards::MoveForm() {
    if (const TableWatcher* reading = ReadingScreen()) Move(reading->TableLeft(), reading->TableTop());
}

void frmReadingCards::Form_Unload(bool& cancel) {
    (void)cancel;
    TableRemoved(TheRun.ReadingDeal);
    TableWatcher* reading = ReadingScreen();
    if (!reading) return;
    reading->TableGone();
    reading->TableLoaded(false);
}

void frmReadingCards::mousePressEvent(QMouseEvent* e) {
    Form::mousePressEvent(e);
    // A click beside the cards hands the focus back to the reading.
    Guarded([] {
        if (TableWatcher* reading = ReadingScreen()) reading->TakeFocus();
    });
}
