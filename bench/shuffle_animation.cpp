// How many card moves a second the Shuffle animation makes on a full table of
// 100 cards, each move followed by its yield to the event loop. Run with
// QT_QPA_PLATFORM=offscreen for the bare speed of the loop, or on a display to
// include painting. Optional argument: seconds to run (default 3).
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmReadingCards.h"

namespace {

// Counts the moves of the face-down cards as they happen.
class MoveCounter : public QObject {
public:
    long moves = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::Move && watched->objectName() == QLatin1String("picCard")) ++moves;
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const int seconds = argc > 1 ? std::max(1, atoi(argv[1])) : 3;

    // A deck of 100 cards in memory, all of one selected type.
    TheRun.CurrentDeck.CardCount = 100;
    TheRun.CurrentDeck.DeckCards.Redim(1, 100);
    for (int c = 1; c <= 100; ++c) TheRun.CurrentDeck.DeckCards(c).CardType = 0;
    TheRun.CardTypeSelected = {true, false, false, false};
    ResetReading(TheRun.CurrentReading);

    Get<frmNewReading>();
    TheRun.ReadingDeal.DeckCardsLeft = 100;
    frmReadingCards& table = Get<frmReadingCards>();

    MoveCounter counter;
    app.installEventFilter(&counter);
    QElapsedTimer clock;
    qint64 stoppedAt = 0;
    QTimer::singleShot(seconds * 1000, [&] {
        stoppedAt = clock.nsecsElapsed();
        table.StopShuffle();
    });
    clock.start();
    table.FakeShuffle();
    const qint64 ended = clock.nsecsElapsed();
    const double elapsed = ended / 1e9;
    // The last moves put the cards back at their homes.
    const long moves = counter.moves - 100;
    std::printf("card moves: %ld in %.2f s: %.0f moves per second; the animation ended %.3f ms after Stop\n", moves,
                elapsed, moves / elapsed, (ended - stoppedAt) / 1e6);
    return 0;
}
