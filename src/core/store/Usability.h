#pragma once
// Whether a spread or a deck can be dealt: a deck with enough cards, with
// every reversed side when reversed cards are dealt.
#include <QString>

#include "core/records/Records.h"
#include "core/store/RunState.h"

bool IsSpreadUsable(const QString& spreadName);
bool IsDeckUsable(Integer deckId, int neededCardCount);
bool IsReversedComplete(Integer deckId, int cardCount);
