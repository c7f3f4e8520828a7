#include "screens/readings/frmReadingCards.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <cmath>

#include "screens/platform/Events.h"
#include "core/platform/Palette.h"
#include "core/platform/Rnd.h"
#include "core/platform/Twips.h"
#include "screens/readings/frmNewReading.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"

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

// Int(n * Rnd) + 1 with the product taken in single precision: a position
// from 1 to n.
int RandomPosition(int n, float r) { return static_cast<int>(std::floor(static_cast<float>(n) * r)) + 1; }

frmNewReading& Reading() { return Get<frmNewReading>(); }

// True once the table has been unloaded (a new one may stand in its place)
// or its reading has closed, while a handler of it was yielding: that
// handler must then leave without touching either again.
bool Gone(const QPointer<frmReadingCards>& table) {
    return !table || ScreenSlot<frmReadingCards>() != table.data() || !IsLoaded<frmNewReading>();
}

int PoolSize() {
    int pool = 0;
    for (int t = 0; t <= 3; ++t) pool += CountSelectedCardsOfType(CurrentDeck.DeckCards, CurrentDeck.CardCount, t);
    return pool;
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
    reading.frmReadingCardsIsLoaded = true;
    reading.Timer1->start();

    Show();
    MoveForm();

    reading.cmdAllCards->setEnabled(true);
    reading.cmdNextCard->setEnabled(true);
    reading.cmdDeal->setEnabled(false);
    if (reading.DeckCardsLeft > 1) reading.cmdFakeShuffle->setEnabled(true);

    CardBackColor = QBColor(CurrentLocationColour);

    const int pool = PoolSize();
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
    frmNewReading& reading = Reading();
    BoundedArray<Integer>& cards = LocationCard();
    BoundedArray<Integer>& upright = LocationIsUpright();

    // The list: grouped by card type, in deck order within a type. Positions
    // past the pool keep what they held.
    int counter = 0;
    for (int t = 0; t <= 3; ++t) {
        if (!CardTypeSelected[static_cast<std::size_t>(t)]) continue;
        for (int c = 1; c <= CurrentDeck.CardCount; ++c) {
            if (CurrentDeck.DeckCards(c).CardType != t) continue;
            ++counter;
            cards(counter) = static_cast<Integer>(c);
        }
    }

    Randomize();
    // Each position swaps with a partner from the whole range, then draws
    // its orientation: two numbers of the generator per position, always.
    const int n = reading.DeckCardsLeft;
    for (int i = 1; i <= n; ++i) {
        const int x = RandomPosition(reading.DeckCardsLeft, Rnd());
        std::swap(cards(i), cards(x));
        const float s = Rnd();
        upright(i) = (s < 0.5f || !UseReversed) ? True16 : False16;
    }

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
    reading.ReadingChanged = true;
    reading.cmdContinue->setEnabled(false);

    const Integer card = LocationCard()(Index);
    const Integer upright = LocationIsUpright()(Index);

    const int L = reading.ThisLocationNumber;
    reading.ShowCardInLocation(L, card, upright == True16);
    reading.lblCardNumber(L)->hide();
    reading.lblCardName(L)->setText(DeckCard(card).CardTitle.Trimmed());
    Element(CurrentReading.DealtCard, L) = card;
    Element(CurrentReading.DealtUpright, L) = upright;
    reading.ThisLocationNumber = static_cast<Integer>(L + 1);

    reading.cmdInterpret->setEnabled(true);
    reading.Show();

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
        reading.cmdFakeShuffle->setEnabled(false);
        Unload();
    }
    if (reading.DeckCardsLeft < 2) reading.cmdFakeShuffle->setEnabled(false);
}

void frmReadingCards::PickRandomCard() {
    // A table whose positions in use are all drawn has nothing to give; the
    // pick would search for ever.
    bool anyLeft = false;
    for (int i = 1; i <= qMin<int>(MaxCardsUsed, TableSize) && !anyLeft; ++i) anyLeft = !picCard(i)->isHidden();
    if (!anyLeft) return;

    int i = 0;
    do {
        i = RandomPosition(MaxCardsUsed, Rnd());
    } while (picCard(i)->isHidden());
    picCard_Click(i);
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
    reading->cmdAllCards->setEnabled(false);
    reading->cmdNextCard->setEnabled(false);
    reading->cmdDeal->setEnabled(true);
    reading->cmdFakeShuffle->setEnabled(false);
    reading->frmReadingCardsIsLoaded = false;
    reading->Timer1->stop();
}

void frmReadingCards::mousePressEvent(QMouseEvent* e) {
    Form::mousePressEvent(e);
    // A click beside the cards hands the focus back to the reading.
    Guarded([] {
        if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->Show();
    });
}
