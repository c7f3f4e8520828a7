#pragma once
// The shuffle and the draw of a reading. The table's positions hold deck card
// numbers; the shuffle settles once, when the table is laid, which card and
// which orientation each position holds, and a random draw picks a position.
// Every random number comes from the toolkit's generator, in a fixed order,
// so that a seeded run deals the same cards.
#include <array>
#include <functional>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"
#include "core/store/RunState.h"

// Int(n * r) + 1 with the product taken in single precision: a position from
// 1 to n for a generator value r.
int RandomPosition(int n, float r);

// The cards a reading draws from: those of the selected card types (the
// run's, unless others are given).
int PoolSize(const BoundedArray<CardRecord>& deckCards, int cardCount,
             const std::array<bool, 4>& types = TheRun.CardTypeSelected);

// Lists the pool into positions 1 .. PoolSize of `positions`: grouped by
// card type, in deck order within a type. Positions past the pool keep what
// they held.
void ListPool(BoundedArray<Integer>& positions, const BoundedArray<CardRecord>& deckCards, int cardCount,
              const std::array<bool, 4>& types = TheRun.CardTypeSelected);

// Seeds the generator afresh, then each of positions 1 .. n swaps with a
// partner from the whole range and draws its orientation (-1 upright, 0
// reversed; reversed only with `useReversed`): two numbers per position,
// always, so that the order does not depend on the reversal setting.
void ShuffleTable(BoundedArray<Integer>& cards, BoundedArray<Integer>& upright, int n, bool useReversed);

// A random position from 1 to `used` for which `faceDown` holds, drawn until
// one is found; 0, drawing nothing, when none of them is face down.
int PickFaceDownPosition(int used, int tableSize, const std::function<bool(int)>& faceDown);
