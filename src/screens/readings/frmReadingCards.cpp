#include "screens/readings/frmReadingCards.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <cmath>

#include "core/platform/Palette.h"
#include "core/platform/Rnd.h"
#include "core/platform/Twips.h"
#include "core/readings/Shuffle.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/Events.h"
#include "screens/readings/frmNewReading.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"

Integer frmReadingCards::MaxCardsUsed = 0;
bool frmReadingCards::LoadingReading = false;
bool frmReadingCards::StopShuffleFlag = false;

BoundedArray<Integer>& frmReadingCards::LocationCard() {
    static BoundedArray<Integer> cards(1, TableSize);
    return cards;
}

BoundedArray<Integer>& frmReadingCards::LocationIsUpright() {
    static BoundedArray<Integer> upright(1, TableSize);
    return upright;
}

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

frmNewReading& Reading() { return Get<frmNewReading>(); }

// True once the table has been unloaded (a new one may stand in its place)
// or its reading has closed, while a handler of it was yielding: that
// handler must then leave without touching either again.
bool Gone(const QPointer<frmReadingCards>& table) {
    return !table || ScreenSlot<frmReadingCards>() != table.data() || !IsLoaded<frmNewReading>();
}

}  // namespace

int frmReadingCards::HomeTop(int index) { return 120 + 120 * ((index - 1) / 16); }
int frmReadingCards::HomeLeft(int index) {
    const int row = (index - 1) / 16;
    const int column = (index - 1) % 16;
    return 240 + 600 * column + 120 * row;
}

frmReadingCards::frmReadingCards() : picCard(0, TableSize), cardTop_(0, TableSize), cardLeft_(0, TableSize) {
    setCaption(QStringLiteral("Cards"));
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
    frmNewReading& reading = Reading();
    reading.TableLoaded(true);

    Show();
    MoveForm();

    reading.TableUp();

    CardBackColor = QBColor(CurrentLocationColour);

    const int pool = PoolSize(CurrentDeck.DeckCards, CurrentDeck.CardCount);
    reading.DeckCardsLeft = static_cast<Integer>(pool);
    MaxCardsUsed = static_cast<Integer>(pool);
    for (int i = 1; i <= pool; ++i) {
        picCard(i)->setBackColor(CardBackColor);
        picCard(i)->show();
    }
    for (int i = pool + 1; i <= TableSize; ++i) picCard(i)->hide();

    ShuffleDeck();
    reading.Show();
}

void frmReadingCards::ShuffleDeck() {
    BoundedArray<Integer>& cards = LocationCard();
    BoundedArray<Integer>& upright = LocationIsUpright();
    ListPool(cards, CurrentDeck.DeckCards, CurrentDeck.CardCount);
    ShuffleTable(cards, upright, Reading().DeckCardsLeft, UseReversed);

    if (!LoadingReading) {
        for (int i = 1; i <= TableSize; ++i) {
            Element(CurrentReading.LocationIsUpright, i) = upright(i);
            Element(CurrentReading.LocationCard, i) = cards(i);
        }
    }
}

void frmReadingCards::picCard_Click(int Index) {
    QPointer<frmReadingCards> self(this);
    frmNewReading& reading = Reading();
    reading.DealCard(LocationCard()(Index), LocationIsUpright()(Index));

    const int locationCount = CurrentSpread.LocationCount;
    if (!AllowDuplicateCards) {
        picCard(Index)->hide();
        --reading.DeckCardsLeft;
    } else if (reading.ThisLocationNumber <= locationCount) {
        // The card stays in the pool: the whole table is shuffled anew, and
        // the cards move until the user stops them or draws from them.
        ShuffleDeck();
        FakeShuffle();
        if (Gone(self)) return;
    }

    if (reading.ThisLocationNumber <= locationCount && reading.DeckCardsLeft == 0) {
        Unload();
    }
    if (reading.ThisLocationNumber > locationCount) {
        reading.EnableShuffle(false);
        Unload();
    }
    if (reading.DeckCardsLeft < 2) reading.EnableShuffle(false);
}

void frmReadingCards::PickRandomCard() {
    const int i = PickFaceDownPosition(MaxCardsUsed, TableSize, [this](int at) { return !picCard(at)->isHidden(); });
    if (i > 0) picCard_Click(i);
}

void frmReadingCards::FakeShuffle() {
    QPointer<frmReadingCards> self(this);
    StopShuffleFlag = false;

    // The homes of this run are where the cards stand now: a run started on
    // top of another puts back the other's scattered places, and the outer
    // run then restores the true homes.
    const int used = MaxCardsUsed;
    BoundedArray<int> homeTop(1, used);
    BoundedArray<int> homeLeft(1, used);
    for (int i = 1; i <= used; ++i) {
        homeTop(i) = CardTop(i);
        homeLeft(i) = CardLeft(i);
    }

    // The positions still face down; entries never filled stand for the
    // template, which is never visible.
    BoundedArray<int> list(1, Reading().DeckCardsLeft);
    int listed = 0;
    for (int i = 1; i <= TableSize; ++i) {
        if (picCard(i)->isHidden()) continue;
        ++listed;
        list(listed) = i;
    }

    Randomize();
    int idleTurns = 0;
    for (;;) {
        const int s = list(RandomPosition(Reading().DeckCardsLeft, Rnd()));
        if (!picCard(s)->isHidden()) {
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
    for (int i = 1; i <= TableSize; ++i) {
        if (LocationCard()(i) == card) {
            picCard(i)->hide();
            break;
        }
    }
    frmNewReading& reading = Reading();
    --reading.DeckCardsLeft;
    if (reading.DeckCardsLeft == 0) Form_Load();
}

bool frmReadingCards::IsFaceDown(int index) const { return !picCard(index)->isHidden(); }
void frmReadingCards::SetFaceDown(int index, bool faceDown) { picCard(index)->setVisible(faceDown); }
void frmReadingCards::PaintBack(int index) { picCard(index)->setBackColor(CardBackColor); }

Integer frmReadingCards::getLocationCard(int index) const { return LocationCard()(index); }
Integer frmReadingCards::getLocationIsUpright(int index) const { return LocationIsUpright()(index); }
void frmReadingCards::setLocationCard(int index, Integer card) { LocationCard()(index) = card; }
void frmReadingCards::setLocationIsUpright(int index, Integer upright) { LocationIsUpright()(index) = upright; }

void frmReadingCards::MoveForm() {
    const frmNewReading& reading = Reading();
    Move(reading.Left(), reading.Top() + reading.OuterHeight() + 50);
}

void frmReadingCards::Form_Unload(bool& cancel) {
    (void)cancel;
    frmNewReading* reading = ScreenSlot<frmNewReading>();
    if (!reading) return;
    reading->TableGone();
    reading->TableLoaded(false);
}

void frmReadingCards::mousePressEvent(QMouseEvent* e) {
    Form::mousePressEvent(e);
    // A click beside the cards hands the focus back to the reading.
    Guarded([] {
        if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->Show();
    });
}
