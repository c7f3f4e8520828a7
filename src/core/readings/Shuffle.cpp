#include "core/readings/Shuffle.h"

#include <cmath>
#include <utility>

#include "core/platform/Rnd.h"

int RandomPosition(int n, float r) { return static_cast<int>(std::floor(static_cast<float>(n) * r)) + 1; }

int PoolSize(const BoundedArray<CardRecord>& deckCards, int cardCount, const std::array<bool, 4>& types) {
    int pool = 0;
    for (int c = 1; c <= cardCount; ++c) {
        const int type = deckCards(c).CardType;
        if (type >= 0 && type <= 3 && types[static_cast<std::size_t>(type)]) ++pool;
    }
    return pool;
}

void ListPool(BoundedArray<Integer>& positions, const BoundedArray<CardRecord>& deckCards, int cardCount,
              const std::array<bool, 4>& types) {
    int counter = 0;
    for (int t = 0; t <= 3; ++t) {
        if (!types[static_cast<std::size_t>(t)]) continue;
        for (int c = 1; c <= cardCount; ++c) {
            if (deckCards(c).CardType != t) continue;
            ++counter;
            positions(counter) = static_cast<Integer>(c);
        }
    }
}

void ShuffleTable(BoundedArray<Integer>& cards, BoundedArray<Integer>& upright, int n, bool useReversed) {
    Randomize();
    for (int i = 1; i <= n; ++i) {
        const int x = RandomPosition(n, Rnd());
        std::swap(cards(i), cards(x));
        const float s = Rnd();
        upright(i) = (s < 0.5f || !useReversed) ? True16 : False16;
    }
}

int PickFaceDownPosition(int used, int tableSize, const std::function<bool(int)>& faceDown) {
    // With every position in use drawn the search would go on for ever.
    bool anyLeft = false;
    for (int i = 1; i <= std::min(used, tableSize) && !anyLeft; ++i) anyLeft = faceDown(i);
    if (!anyLeft) return 0;
    int i = 0;
    do {
        i = RandomPosition(used, Rnd());
    } while (!faceDown(i));
    return i;
}
